#include "framework/abi/graphics.h"
#include "tests/fixtures/streams.h"
#include "tests/host/gui/formtest.h"

#include <QBuffer>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

namespace xbr::host::tests {
namespace {

/// A picture of two halves, red and blue, decoded by the library.
Ref<IImage> picture(int width, int height, int points) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter(&image).fillRect(width / 2, 0, width, height, Qt::blue);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    Ref<IImage> decoded;
    Ref<IImage> shown;
    auto& graphics = *XBRGetGraphicsHelper();
    graphics.decodeImage(streamOf(buffer.data().toStdString()).get(), nullptr, decoded.out());
    graphics.createHighResolutionImage(decoded.get(), points, points * height / width, shown.out());
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

/// A list of entries "entry0" and so on, each made when it is asked for.
class TestEntries final : public TestController {
public:
    TestEntries() : TestController("Entries") {}

    void show(std::size_t count, const std::string& prefix) {
        m_entries.assign(count, nullptr);
        m_prefix = prefix;
        signalChanged();
        signalChanged();
    }
    std::ptrdiff_t made() const {
        return std::ssize(m_entries) - std::count(m_entries.begin(), m_entries.end(), nullptr);
    }
    IObject* findObject(Text name) noexcept override {
        const std::string wanted = toString(name);
        const bool isEntry = wanted.starts_with("entry");
        const std::size_t index = isEntry ? std::stoul(wanted.substr(5)) : 0;
        if (!isEntry || index >= m_entries.size()) {
            return TestController::findObject(name);
        }
        auto& entry = m_entries[index];
        if (!entry) {
            entry = make<TestController>("entry");
            entry->addParameter(Kind::kText, 1, "title").set(textValue(m_prefix + std::to_string(index)));
        }
        return static_cast<IController*>(entry.get());
    }

private:
    std::vector<Ref<TestController>> m_entries;
    std::string m_prefix;
};

const char* const kRowSize =
    "<property name='minimumSize'><size><width>100</width><height>50</height></size></property>";

class Rows : public FormTest {
protected:
    Rows() {
        root = entries;
        addForm("Row", columnXml({widgetXml("QPushButton", "open", "xbrText=title", kRowSize)}));
        addForm("F", columnXml({widgetXml("QPushButton", "before", {}),
                                widgetXml("QScrollArea", "area", "xbrRows=Row;xbrRowsOf=entry",
                                          "<property name='widgetResizable'><bool>true</bool></property>" +
                                              widgetXml("QWidget", "inside", {}, columnXml({}))),
                                widgetXml("QPushButton", "after", {})}));
    }

    void open() {
        show();
        form->resize(300, 400);
        settle();
    }
    void scrollTo(int place) {
        bar().setValue(place);
        settle();
    }
    Texts rows() const {
        Texts titles;
        for (const auto* button : form->findChildren<QPushButton*>("open")) {
            titles.push_back(button->text().toStdString());
        }
        return titles;
    }
    bool hasRow(const std::string& title) const {
        const auto present = rows();
        return std::find(present.begin(), present.end(), title) != present.end();
    }
    QScrollBar& bar() const { return *at<QScrollArea>("area").verticalScrollBar(); }

    Ref<TestEntries> entries = make<TestEntries>();
};

TEST_F(Rows, areMadeOfWhatComesNearThePersonsSight) {
    open();
    entries->show(300, "a");
    settle();
    EXPECT_GE(entries->made(), 2 * 300 / 50); // what is seen, and as much again
    EXPECT_LT(entries->made(), 40);
    scrollTo(bar().maximum());
    EXPECT_LT(entries->made(), 60);
    for (int i = 0; i < 200 && entries->made() < 300; ++i) {
        scrollTo(bar().maximum());
        EXPECT_LT(rows().size(), 80U) << "those far away have gone";
    }
    EXPECT_TRUE(hasRow("a299"));
    EXPECT_FALSE(hasRow("a0"));
    scrollTo(bar().maximum() / 2); // as one drags the bar
    EXPECT_FALSE(hasRow("a299"));
    int seen = 0;
    for (const auto* row : form->findChildren<QPushButton*>("open")) {
        seen += row->visibleRegion().isEmpty() ? 0 : row->height();
    }
    EXPECT_GT(seen, at<QScrollArea>("area").viewport()->height() / 2) << "what is seen is there";
    scrollTo(0);
    EXPECT_TRUE(hasRow("a0"));
}

TEST_F(Rows, stayWhileTheyHaveTheFocusAndInTheirOrder) {
    entries->show(200, "a");
    open();
    at("open").setFocus();
    for (int i = 0; i < 10; ++i) {
        scrollTo(bar().maximum());
    }
    EXPECT_TRUE(hasRow("a0"));
    EXPECT_FALSE(hasRow("a1"));
    scrollTo(0);
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(form->focusWidget()->property("text"), "a1") << "made anew behind it";
}

TEST_F(Rows, followTheController) {
    open();
    EXPECT_EQ(rows(), Texts());
    entries->show(3, "a");
    settle();
    EXPECT_EQ(rows(), (Texts{"a0", "a1", "a2"}));
    at("open").setFocus();
    entries->show(2, "b");
    EXPECT_EQ(rows().size(), 3U); // not within the module's call
    settle();
    EXPECT_EQ(rows(), (Texts{"b0", "b1"}));
    EXPECT_EQ(form->focusWidget()->objectName(), "area"); // whoever was in the list stays there
    entries->show(0, "");
    settle();
    EXPECT_EQ(rows(), Texts());
    entries->show(2, "c");
    form.reset(); // with the change on its way
    settle();
}

TEST_F(Rows, areBetweenTheirNeighboursForTheTabKey) {
    entries->show(3, "a");
    open();
    at("before").setFocus();
    for (const char* name : {"before", "area", "a0", "a1", "a2", "after"}) {
        const auto* stop = form->focusWidget();
        EXPECT_EQ(stop->property(stop->objectName() == "open" ? "text" : "objectName"), name);
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    }
}

TEST_F(Rows, picturesAreShownAsAWholeAndSharp) {
    const auto source = make<TestPicture>();
    entries->addChild(source);
    show(widgetXml("QLabel", "shown", "xbrImage=picture", kRowSize));
    auto& label = at<QLabel>("shown");
    EXPECT_FALSE(label.isVisible());
    source->isExpected = true;
    source->set(nullptr);
    EXPECT_TRUE(label.isVisible()) << "its place is kept";
    source->isExpected = false;
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    const std::tuple<int, int, int, int> table[] = {
        {400, 200, 400, 100}, {400, 400, 200, 50}, {80, 40, 40, 40}};
    for (const auto& [width, height, points, right] : table) {
        const int middle = right * height / width / 2;
        source->set(picture(width, height, points));
        label.resize(100, 50);
        const QImage grabbed = label.grab().toImage();
        const auto isAt = [&](int x, int y, Qt::GlobalColor color) {
            return grabbed.pixelColor((QPointF(x, y) * grabbed.devicePixelRatio()).toPoint()) == color;
        };
        EXPECT_TRUE(isAt(right / 2 - 2, middle, Qt::red)) << width;
        EXPECT_TRUE(isAt(right / 2 + 2, middle, Qt::blue)) << width;
        EXPECT_TRUE(right == label.width() || !isAt(right + 2, middle, Qt::blue)) << width;
    }
    source->set(nullptr);
    EXPECT_FALSE(label.isVisible());
    EXPECT_EQ(source->shows, 1);
    form.reset();
    EXPECT_EQ(source->shows, 0);
}

} // namespace
} // namespace xbr::host::tests
