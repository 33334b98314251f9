#pragma once

#include "framework/support/objects/text.h"
#include "framework/support/parts/listviewmodel.h"

#include <string>
#include <vector>

namespace xbr::host::tests {

/// A list model of texts; rows that begin with "!" may not be removed and are shown as errors. Drops of files
/// ending in ".wav" become rows.
class TestList final : private IListViewDelegate {
public:
    TestList() : m_model(make<ListViewModel>(static_cast<IListViewDelegate&>(*this))) {}
    TestList(const TestList&) = delete;
    TestList& operator=(const TestList&) = delete;
    ~TestList() { m_model->detach(); }

    ListViewModel& model() const { return *m_model; }

    void add(const std::vector<std::string>& texts);
    void insert(std::size_t row, const std::string& text);
    std::vector<std::string> texts() const;
    std::vector<std::string> selectedTexts() const;

    int cellsRead = 0;
    std::vector<std::string> performed; ///< commands of the context menu

private:
    std::int32_t countColumns() const override { return 2; }
    Column columnAt(std::int32_t index) const override;
    Cell cellOf(IObject& item, std::int32_t column) const override;
    bool isItemEditable(IObject& item) const override;
    DropEffect dragOver(IObjectIterator& objects) override;
    Result drop(IObjectIterator& objects) override;
    Result removeFocused() override;
    Ref<ICommandList> contextCommands() override;

    Ref<ListViewModel> m_model;
};

} // namespace xbr::host::tests
