#include "framework/abi/graphics.h"
#include "framework/abi/listmodel.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "tests/host/gui/testskin.h"

#include <QBuffer>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

namespace xbr::host::tests {
namespace {

using Kind = ParameterKind;

/// A picture of two halves, red and blue, decoded by the library.
Ref<IImage> picture(int width, int height, int points) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int y = 0; y < height; ++y) {
        for (int x = width / 2; x < width; ++x) {
            image.setPixel(x, y, qRgb(0, 0, 255));
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    const auto stream = make<MemoryStream>();
    stream->write(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())));
    stream->seek(0, SeekOrigin::kStart, nullptr);
    Ref<IImage> decoded;
    Ref<IImage> shown;
    XBRGetGraphicsHelper()->decodeImage(stream.get(), nullptr, decoded.out());
    XBRGetGraphicsHelper()->createHighResolutionImage(decoded.get(), points, points * height / width,
                                                      shown.out());
    return shown;
}

class TestPicture final : public Implements<Component, IImageSource, IShownImage> {
public:
    TestPicture() : Implements("picture") {}

    void beginShowing() noexcept override { ++shows; }
    void endShowing() noexcept override {
        --shows;
        set(nullptr);
    }
    bool mayHaveImage() const noexcept override { return isExpected; }

    void set(Ref<IImage> image) {
        m_image = std::move(image);
        signal(*this, "propertyChanged");
    }
    Result getImage(IImage** out) noexcept override {
        *out = Ref<IImage>(m_image).detach();
        return m_image ? kOk : kFalse;
    }

    int shows = 0;
    bool isExpected = false;

private:
    Ref<IImage> m_image;
};

/// A list of entries "entry0" and so on, each made when it is asked for; with commands.
class TestEntries final : public Implements<TestController, ICommandList> {
public:
    TestEntries() : Implements("Entries") {}

    void show(int count, const std::string& prefix) {
        m_entries.assign(static_cast<std::size_t>(count), nullptr);
        m_prefix = prefix;
        signalChanged();
        signalChanged();
    }
    int made() const {
        return static_cast<int>(m_entries.size() - static_cast<std::size_t>(std::count(
                                                       m_entries.begin(), m_entries.end(), nullptr)));
    }
    IObject* findObject(Text name) noexcept override {
        const std::string wanted = toString(name);
        const bool isEntry = wanted.starts_with("entry");
        const std::size_t index = isEntry ? std::stoul(wanted.substr(5)) : 0;
        if (!isEntry || index >= m_entries.size()) {
            return Implements::findObject(name);
        }
        if (!m_entries[index]) {
            m_entries[index] = make<TestController>("entry");
            m_entries[index]
                ->addParameter(Kind::kText, 1, "title")
                .set(textValue(m_prefix + std::to_string(index)));
        }
        return static_cast<IController*>(m_entries[index].get());
    }

    std::int32_t count() const noexcept override { return 2; }
    Text categoryAt(std::int32_t) const noexcept override { return toText("Feed"); }
    Text nameAt(std::int32_t index) const noexcept override {
        return toText(index == 0 ? "Reload & more" : "Off");
    }
    bool isEnabled(std::int32_t index) const noexcept override { return index == 0; }
    Result perform(std::int32_t) noexcept override {
        ++performed;
        return kOk;
    }

    int performed = 0;

private:
    std::vector<Ref<TestController>> m_entries;
    std::string m_prefix;
};

class Rows : public testing::Test {
protected:
    static constexpr int kRowHeight = 50;

    Rows() {
        entries = make<TestEntries>();
        skin.addForm("Row", "<layout class='QVBoxLayout'><item>" +
                                widgetXml("QPushButton", "open", "xbrText=title",
                                          "<property name='minimumSize'><size><width>9</width><height>" +
                                              std::to_string(kRowHeight) + "</height></size></property>") +
                                "</item></layout>");
        const std::string inside = widgetXml("QWidget", "inside", {}, "<layout class='QVBoxLayout'/>");
        skin.addForm("F",
                     "<layout class='QVBoxLayout'><item>" + widgetXml("QPushButton", "before", {}) +
                         "</item><item>" +
                         widgetXml("QScrollArea", "area", "xbrRows=Row;xbrRowsOf=entry",
                                   "<property name='widgetResizable'><bool>true</bool></property>" + inside) +
                         "</item><item>" + widgetXml("QPushButton", "after", {}) + "</item></layout>");
    }

    void open() {
        form = skin.widget("F", *entries);
        form->resize(300, 400);
        settleAll();
    }
    static void settleAll() {
        for (int i = 0; i < 10; ++i) {
            settle();
        }
    }
    std::vector<std::string> rows() const {
        std::vector<std::string> titles;
        for (const auto* button : form->findChildren<QPushButton*>("open")) {
            titles.push_back(button->text().toStdString());
        }
        return titles;
    }
    bool hasRow(const std::string& title) const {
        const auto present = rows();
        return std::find(present.begin(), present.end(), title) != present.end();
    }
    QScrollBar& bar() const { return *child<QScrollArea>(*form, "area").verticalScrollBar(); }

    TestSkin skin;
    Ref<TestEntries> entries;
    std::unique_ptr<QWidget> form;
};

TEST_F(Rows, areMadeOfWhatComesNearThePersonsSight) {
    entries->show(300, "a");
    open();
    const int first = entries->made();
    EXPECT_GE(first * kRowHeight, 2 * 300); // what is seen, and as much again
    EXPECT_LT(first, 40);
    EXPECT_EQ(rows().size(), static_cast<std::size_t>(first));
    bar().setValue(bar().maximum());
    settleAll();
    EXPECT_GT(entries->made(), first);
    EXPECT_LT(entries->made(), 60);
    for (int i = 0; i < 200 && entries->made() < 300; ++i) {
        bar().setValue(bar().maximum());
        settleAll();
        EXPECT_LT(rows().size(), 80U) << "those far away have gone";
    }
    EXPECT_TRUE(hasRow("a299"));
    EXPECT_FALSE(hasRow("a0"));
    bar().setValue(bar().maximum() / 2); // as one drags the bar
    settleAll();
    EXPECT_FALSE(hasRow("a299"));
    const auto& area = child<QScrollArea>(*form, "area");
    int seen = 0;
    for (const auto* row : form->findChildren<QPushButton*>("open")) {
        if (row->visibleRegion().isEmpty()) {
            continue;
        }
        const int place = row->mapTo(area.widget(), QPoint()).y() * 300 / area.widget()->height();
        EXPECT_NEAR(row->text().mid(1).toInt(), place, 1);
        seen += row->height();
    }
    EXPECT_GT(seen, area.viewport()->height() / 2) << "what is seen is there";
    bar().setValue(0);
    settleAll();
    EXPECT_TRUE(hasRow("a0"));
}

TEST_F(Rows, stayWhileTheyHaveTheFocusAndInTheirOrder) {
    entries->show(200, "a");
    open();
    child<QPushButton>(*form, "open").setFocus();
    for (int i = 0; i < 10; ++i) {
        bar().setValue(bar().maximum());
        settleAll();
    }
    EXPECT_TRUE(hasRow("a0"));
    EXPECT_FALSE(hasRow("a1"));
    bar().setValue(0);
    settleAll();
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(qobject_cast<QPushButton*>(form->focusWidget())->text(), "a1") << "made anew behind it";
}

TEST_F(Rows, followTheController) {
    open();
    EXPECT_TRUE(rows().empty());
    entries->show(3, "a");
    settleAll();
    EXPECT_EQ(rows(), (std::vector<std::string>{"a0", "a1", "a2"}));
    child<QPushButton>(*form, "open").setFocus();
    entries->show(2, "b");
    EXPECT_EQ(rows().size(), 3U); // not within the module's call
    settleAll();
    EXPECT_EQ(rows(), (std::vector<std::string>{"b0", "b1"}));
    EXPECT_EQ(form->focusWidget()->objectName(), "area"); // whoever was in the list stays there
    entries->show(0, "");
    settleAll();
    EXPECT_TRUE(rows().empty());
    entries->show(2, "c");
    form.reset(); // with the change on its way
    settleAll();
}

TEST_F(Rows, areBetweenTheirNeighboursForTheTabKey) {
    entries->show(3, "a");
    open();
    std::vector<std::string> stops;
    child<QPushButton>(*form, "before").setFocus();
    for (int i = 0; i < 6; ++i) {
        auto* stop = form->focusWidget();
        stops.push_back(stop->objectName() == "open" ? qobject_cast<QPushButton*>(stop)->text().toStdString()
                                                     : stop->objectName().toStdString());
        QTest::keyClick(stop, Qt::Key_Tab);
    }
    EXPECT_EQ(stops, (std::vector<std::string>{"before", "area", "a0", "a1", "a2", "after"}));
}

TEST_F(Rows, commandsAndNamesComeFromTheController) {
    entries->addParameter(Kind::kText, 1, "title").set(textValue("A title"));
    skin.addForm("F", widgetXml("QPushButton", "reload", "xbrCommand=0") +
                          widgetXml("QPushButton", "off", "xbrCommand=1") +
                          widgetXml("QPushButton", "more", "xbrAccessibleName=title;text=More") +
                          widgetXml("QLabel", "short", "xbrText=title;xbrMaximumLength=5"));
    form = skin.widget("F", *entries);
    auto& reload = child<QPushButton>(*form, "reload");
    EXPECT_EQ(reload.text(), "Reload && more");
    QTest::mouseClick(&reload, Qt::LeftButton);
    EXPECT_EQ(entries->performed, 1);
    EXPECT_FALSE(child<QPushButton>(*form, "off").isEnabled());
    EXPECT_EQ(child<QPushButton>(*form, "more").accessibleName(), "A title");
    struct {
        const char* text;
        const char* shown;
    } const table[] = {{"Five5", "Five5"}, {"Five and", "Five\u2026"}, {"Unbroken", "Unbro\u2026"}, {"", ""}};
    for (const auto& [text, shown] : table) {
        entries->named("title").set(textValue(text));
        EXPECT_EQ(child<QLabel>(*form, "short").text().toStdString(), shown);
    }
}

TEST_F(Rows, picturesAreShownAsAWholeAndSharp) {
    const auto source = make<TestPicture>();
    entries->addChild(source);
    skin.addForm("F",
                 widgetXml("QLabel", "shown", "xbrImage=picture",
                           "<property name='minimumSize'><size><width>100</width><height>50</height></size>"
                           "</property>"));
    form = skin.widget("F", *entries);
    auto& label = child<QLabel>(*form, "shown");
    EXPECT_FALSE(label.isVisible());
    source->isExpected = true;
    source->set(nullptr);
    EXPECT_TRUE(label.isVisible()) << "its place is kept";
    source->isExpected = false;
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    struct {
        int width, height, points; ///< of the picture
        QSize shown;               ///< in points
    } const table[] = {{400, 200, 400, {100, 50}},
                       {400, 400, 200, {50, 50}},
                       {40, 20, 40, {40, 20}},
                       {80, 40, 40, {40, 20}}};
    for (const auto& [width, height, points, shown] : table) {
        source->set(picture(width, height, points));
        EXPECT_TRUE(label.isVisible());
        label.resize(100, 50);
        QImage grabbed = label.grab().toImage();
        const double ratio = grabbed.devicePixelRatio();
        const auto at = [&](double x, double y) {
            return grabbed.pixelColor(static_cast<int>(x * ratio), static_cast<int>(y * ratio)).rgb();
        };
        const double middle = shown.width() / 2.0;
        EXPECT_EQ(at(middle - 2, shown.height() / 2.0), qRgb(255, 0, 0)) << width << "x" << height;
        EXPECT_EQ(at(middle + 2, shown.height() / 2.0), qRgb(0, 0, 255)) << width << "x" << height;
        EXPECT_EQ(at(shown.width() - 8, shown.height() - 2), qRgb(0, 0, 255));
        if (shown.width() < label.width()) {
            EXPECT_NE(at(shown.width() + 2, shown.height() / 2.0), qRgb(0, 0, 255));
        }
    }
    source->set(nullptr);
    EXPECT_FALSE(label.isVisible());
    EXPECT_EQ(source->shows, 1);
    form.reset();
    EXPECT_EQ(source->shows, 0);
}

TEST_F(Rows, hiddenViewsAreMadeWhenTheyAreShown) {
    int made = 0;
    entries->addParameter(Kind::kText, 1, "title").set(textValue("in the view"));
    entries->makeView = [&](std::string_view) {
        ++made;
        return skin.view("Row", *entries);
    };
    skin.addForm("F", widgetXml("QWidget", "page", "xbrView=Page",
                                "<property name='visible'><bool>false</bool></property>"));
    form = skin.widget("F", *entries);
    auto& page = child<QWidget>(*form, "page");
    EXPECT_EQ(made, 0);
    page.show();
    EXPECT_TRUE(child<QPushButton>(page, "open").isVisible());
    page.hide();
    page.show();
    EXPECT_EQ(made, 1);
}

} // namespace
} // namespace xbr::host::tests
