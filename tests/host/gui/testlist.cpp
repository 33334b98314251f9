#include "tests/host/gui/testlist.h"

namespace xbr::host::tests {

namespace {

std::string textOf(IObject& item) {
    return toString(static_cast<String&>(item).text());
}

Ref<IObject> makeItem(const std::string& text) {
    return Ref<IObject>::adopt(static_cast<IString*>(make<String>(text).detach()));
}

class Commands final : public Object<ICommandList> {
public:
    explicit Commands(TestList& list) : m_list(&list) {}

    std::int32_t count() const noexcept override { return 3; }
    Text categoryAt(std::int32_t index) const noexcept override {
        return toText(index < 2 ? "Rows" : "Other");
    }
    Text nameAt(std::int32_t index) const noexcept override {
        return toText(index == 0 ? "Reset" : index == 1 ? "Cut & paste" : "Never");
    }
    bool isEnabled(std::int32_t index) const noexcept override { return index < 2; }
    Result perform(std::int32_t index) noexcept override {
        m_list->performed.push_back(toString(nameAt(index)));
        return kOk;
    }

private:
    TestList* m_list;
};

std::string droppedUrl(IObject& object) {
    Ref<IString> url;
    const auto source = query<IUrlSource>(&object);
    return source && source->getUrl(url.out()) == kOk ? take(url) : std::string();
}

} // namespace

void TestList::add(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) {
        m_model->append(makeItem(text));
    }
    m_model->signalChanged();
}

void TestList::insert(std::size_t row, const std::string& text) {
    auto all = texts();
    all.insert(all.begin() + static_cast<std::ptrdiff_t>(row), text);
    m_model->clear();
    add(all);
}

std::vector<std::string> TestList::texts() const {
    std::vector<std::string> texts;
    for (const auto& item : m_model->items()) {
        texts.push_back(textOf(*item));
    }
    return texts;
}

std::vector<std::string> TestList::selectedTexts() const {
    std::vector<std::string> texts;
    for (const auto& item : m_model->selection()) {
        texts.push_back(textOf(*item));
    }
    return texts;
}

Column TestList::columnAt(std::int32_t index) const {
    return {toText(index == 0 ? "Name" : "State"), index == 0 ? 300 : 100};
}

Cell TestList::cellOf(IObject& item, std::int32_t column) const {
    ++const_cast<TestList*>(this)->cellsRead;
    const std::string text = textOf(item);
    const bool isError = text.starts_with('!');
    return column == 0 ? Cell{text}
                       : Cell{isError ? "failed" : "", isError ? CellStyle::kError : CellStyle::kNormal};
}

bool TestList::isItemEditable(IObject& item) const {
    return !textOf(item).starts_with('!');
}

DropEffect TestList::dragOver(IObjectIterator& objects) {
    Ref<IObject> object;
    while (objects.next(object.out()) == kOk) {
        if (droppedUrl(*object).ends_with(".wav")) {
            return DropEffect::kCopy;
        }
    }
    return DropEffect::kNone;
}

Result TestList::drop(IObjectIterator& objects) {
    Ref<IObject> object;
    while (objects.next(object.out()) == kOk) {
        add({droppedUrl(*object)});
    }
    return kOk;
}

Result TestList::removeFocused() {
    if (!m_model->isEditable(m_model->focus())) {
        return kFalse;
    }
    m_model->remove(m_model->focus());
    m_model->signalChanged();
    return kOk;
}

Ref<ICommandList> TestList::contextCommands() {
    return make<Commands>(*this);
}

} // namespace xbr::host::tests
