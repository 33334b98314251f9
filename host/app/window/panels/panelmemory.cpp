#include "host/app/window/panels/panelmemory.h"

#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"
#include "host/app/publishing/verdict/words.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace xbr::host {

namespace {

constexpr char kNumber[] = "trackNumber";

class Items final : public Object<IObjectIterator> {
public:
    explicit Items(std::vector<Ref<IObject>> items) : m_items(std::move(items)) {}

    Result next(IObject** out) noexcept override {
        const bool isThere = m_next < m_items.size();
        *out = isThere ? Ref<IObject>(m_items[m_next++]).detach() : nullptr;
        return isThere ? kOk : kFalse;
    }

private:
    std::vector<Ref<IObject>> m_items;
    std::size_t m_next = 0;
};

/// What was selected and had the focus; both come back when this object dies.
class Selection {
public:
    explicit Selection(IListViewModel& list) : m_list(&list), m_focus(list.focus()) {
        for (std::int32_t row = 0; row < list.countRows(); ++row) {
            if (list.isSelected(row)) {
                m_rows.push_back(row);
            }
        }
    }
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;
    ~Selection() {
        m_list->setSelection(m_rows.data(), static_cast<std::int32_t>(m_rows.size()));
        m_list->setFocus(m_focus);
    }

    std::size_t size() const { return m_rows.size(); }

private:
    IListViewModel* m_list;
    std::int32_t m_focus;
    std::vector<std::int32_t> m_rows;
};

/// The fields that can be typed into; in singles those of the release follow the song's.
std::vector<QString> fieldsOf(bool isAlbum) {
    return isAlbum ? std::vector<QString>{"albumTitle", "albumArtist", "primaryGenre",
                                          "songTitle",  "songArtist",  kNumber}
                   : std::vector<QString>{"songTitle", "songArtist", "primaryGenre"};
}

QString nameOf(const QString& parameter) {
    for (const Detail detail : kDetails) {
        if (parameter == parameterOf(detail)) {
            const QString name = QString::fromStdString(wordsOf({detail}));
            return name.left(1).toUpper() + name.mid(1);
        }
    }
    return PanelMemory::tr("Track number");
}

void setText(IParameter& parameter, const std::string& text) {
    if (parameter.kind() == ParameterKind::kInteger) {
        parameter.setValue(integerValue(std::stoll(text)));
        return;
    }
    if (parameter.kind() != ParameterKind::kList) {
        parameter.setValue(textValue(text));
        return;
    }
    for (std::int32_t i = 0; i < parameter.countChoices(); ++i) {
        if (toString(parameter.choiceAt(i)) == text || (i == 0 && text.empty())) {
            parameter.setValue(integerValue(i));
            return;
        }
    }
}

} // namespace

PanelMemory::PanelMemory(GadgetPanel& panel, Publishing& publishing, QObject* parent)
    : QObject(parent),
      m_panel(&panel),
      m_publishing(&publishing) {
    m_rows = read();
}

std::string PanelMemory::valueOf(const TrackReport& report, const QString& parameter) const {
    for (const Detail detail : kDetails) {
        if (parameter == parameterOf(detail)) {
            return report.details.text(detail);
        }
    }
    return std::to_string(report.details.number);
}

PanelMemory::Rows PanelMemory::read() {
    Rows rows;
    const auto list = m_panel->tracks();
    const auto& tracks = m_publishing->tracks();
    rows.reserve(tracks.size());
    for (const TrackReport& report : tracks) {
        Item item;
        list->getItem(report.index, item.out());
        rows.push_back({std::move(item), report});
    }
    return rows;
}

/// Comes by with each key that is typed: of a long list only what has changed is copied.
void PanelMemory::look() {
    const auto list = m_panel->tracks();
    const auto& tracks = m_publishing->tracks();
    const bool hasSameItems = std::equal(tracks.begin(), tracks.end(), m_rows.begin(), m_rows.end(),
                                         [&list](const TrackReport& track, const Row& row) {
                                             Item item;
                                             list->getItem(track.index, item.out());
                                             return item.get() == row.item.get();
                                         });
    if (!hasSameItems) {
        Rows now = read();
        if (!m_isPaused) {
            findRemoval(now);
        }
        m_rows = std::move(now);
        return;
    }
    if (!m_isPaused) {
        findEdit(tracks);
    }
    for (std::size_t row = 0; row < tracks.size(); ++row) {
        if (!(m_rows[row].report == tracks[row])) {
            m_rows[row].report = tracks[row];
        }
    }
}

std::unordered_set<const IObject*> PanelMemory::itemsOf(const Rows& rows) {
    std::unordered_set<const IObject*> items;
    for (const Row& row : rows) {
        items.insert(row.item.get());
    }
    return items;
}

/// What the host itself did is not told.
void PanelMemory::catchUp() {
    m_rows = read();
    m_edit = {};
}

void PanelMemory::handedOver() {
    m_isPaused = false;
    catchUp();
    m_handed.clear();
    for (const Row& row : m_rows) {
        m_handed[row.report.file] = row.report.details;
    }
}

void PanelMemory::findRemoval(const Rows& now) {
    const auto there = itemsOf(now);
    std::vector<Item> gone;
    for (const Row& row : m_rows) {
        if (!there.contains(row.item.get())) {
            gone.push_back(row.item);
        }
    }
    if (gone.empty()) {
        return;
    }
    m_edit = {};
    const auto count = static_cast<int>(gone.size());
    emit changed({tr("%n song(s) removed from the panel.", nullptr, count),
                  [this, before = m_rows] { restore(before); }, [this, gone] { removeItems(gone); }, -1});
}

// NOLINTNEXTLINE(readability-function-cognitive-complexity): one walk through the fields
void PanelMemory::findEdit(const std::vector<TrackReport>& now) {
    const auto list = m_panel->tracks();
    std::vector<std::int32_t> selected;
    for (std::int32_t row = 0; row < list->countRows(); ++row) {
        if (list->isSelected(row)) {
            selected.push_back(row);
        }
    }
    if (selected.size() < 2) {
        return;
    }
    for (const QString& field : fieldsOf(m_panel->isAlbum())) {
        Edit edit{field, {}};
        Edit after{field, {}};
        bool isChanged = false;
        for (const std::int32_t row : selected) {
            const auto index = static_cast<std::size_t>(row);
            const std::string before = valueOf(m_rows[index].report, field);
            const std::string value = valueOf(now[index], field);
            isChanged = isChanged || before != value;
            edit.before[m_rows[index].item.get()] = before;
            after.before[m_rows[index].item.get()] = value;
        }
        if (!isChanged) {
            continue;
        }
        const bool goesOn = m_edit.parameter == field && m_edit.before.size() == edit.before.size() &&
                            std::all_of(edit.before.begin(), edit.before.end(), [this](const auto& each) {
                                return m_edit.before.contains(each.first);
                            });
        m_edit = goesOn ? m_edit : edit;
        m_series += goesOn ? 0 : 1;
        emit changed(
            {tr("%1 changed in %n song(s).", nullptr, static_cast<int>(selected.size())).arg(nameOf(field)),
             [this, back = m_edit] { write(back); }, [this, after] { write(after); }, m_series});
        return;
    }
}

/// The list takes its own items back, with all that they know; new ones come to its end. So all of them are
/// put there in their order.
void PanelMemory::restore(const Rows& rows) {
    const auto list = m_panel->tracks();
    std::vector<Item> items;
    m_panel->set("TrackList/removeAll", 1);
    const auto there = list->countRows() > 0 ? itemsOf(m_rows) : std::unordered_set<const IObject*>();
    for (const Row& row : rows) {
        if (!there.contains(row.item.get())) {
            items.push_back(row.item);
        }
    }
    list->drop(make<Items>(std::move(items)).get());
    catchUp();
}

void PanelMemory::remove(const std::vector<std::int32_t>& rows) {
    const auto list = m_panel->tracks();
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        list->setFocus(*row);
        list->removeFocused();
    }
}

void PanelMemory::removeItems(const std::vector<Item>& items) {
    std::vector<std::int32_t> rows;
    for (const Row& row : read()) {
        if (std::any_of(items.begin(), items.end(),
                        [&row](const Item& item) { return item.get() == row.item.get(); })) {
            rows.push_back(row.report.index);
        }
    }
    remove(rows);
    catchUp();
}

void PanelMemory::write(const Edit& edit) {
    const auto list = m_panel->tracks();
    {
        const Selection kept(*list);
        for (const Row& row : read()) {
            const auto value = edit.before.find(row.item.get());
            if (value != edit.before.end() && list->isEditable(row.report.index)) {
                list->setSelection(&row.report.index, 1);
                list->setFocus(row.report.index);
                const std::string path = "TrackList/TrackProperties/" + edit.parameter.toStdString();
                if (IParameter* parameter = findParameter(m_panel->controller(), path)) {
                    setText(*parameter, value->second);
                }
            }
        }
    }
    catchUp();
}

std::size_t PanelMemory::countEdited() {
    const auto fields = fieldsOf(m_panel->isAlbum());
    std::size_t count = 0;
    for (const TrackReport& report : m_publishing->tracks()) {
        const auto handed = m_handed.find(report.file);
        TrackReport before = report;
        before.details = handed == m_handed.end() ? TrackDetails() : handed->second;
        const bool isEdited = std::any_of(fields.begin(), fields.end(), [&](const QString& field) {
            return valueOf(report, field) != valueOf(before, field);
        });
        count += report.state != TrackState::kDone && isEdited ? 1 : 0;
    }
    return count;
}

} // namespace xbr::host
