#include "ui/tracks/tracklistcomponent.h"

#include "framework/support/objects/text.h"
#include "framework/support/parts/modulecomponent.h"
#include "ui/tracks/requiredfields.h"
#include "ui/tracks/resetcommand.h"
#include "ui/tracks/trackcells.h"
#include "ui/tracks/trackitem.h"
#include "ui/tracks/tracksources.h"

namespace brindlex {

namespace {

enum TrackListTag : std::int32_t { kAddTracks = 100, kRemoveAll = 101, kAlbumUpload = 102 };

/// A track as it is, or one made of a file; null for anything else.
xbr::Ref<TrackItem> makeItem(xbr::IObject& object) {
    if (TrackItem* item = TrackItem::from(object)) {
        return xbr::Ref<TrackItem>::share(item);
    }
    const xbr::Url file = audioLocationOf(object);
    return file.isEmpty() ? nullptr : makeTrackFromFile(file);
}

} // namespace

TrackListComponent::TrackListComponent() : Component("TrackList") {
    xbr::IListViewDelegate& delegate = *this;
    m_model = xbr::make<xbr::ListViewModel>(delegate);
    m_editor = xbr::make<TrackPropertyComponent>(m_model);
    addChild(m_editor);
    addObject("tracks", xbr::query<xbr::IObject>(m_model.get()));
    addParameter(xbr::ParameterKind::kCommand, kAddTracks, "addTracks");
    addParameter(xbr::ParameterKind::kCommand, kRemoveAll, "removeAll").setEnabled(false);
    addParameter(xbr::ParameterKind::kToggle, kAlbumUpload, "albumUpload");
    for (std::int32_t i = 0; i < kTrackColumns; ++i) {
        m_columnTitles.push_back(xbr::translate(trackColumn(i).title));
    }
    XBRGetSignalHandler()->addObserver(m_model.get(), this);
    XBRGetSignalHandler()->addObserver(m_editor.get(), this);
}

TrackListComponent::~TrackListComponent() {
    XBRGetSignalHandler()->forgetObserver(this);
    m_model->detach();
}

void TrackListComponent::prepareMode(UploadMode mode) {
    m_editor->setMode(mode);
    parameter(kAlbumUpload)->set(xbr::boolValue(mode == UploadMode::kAlbum), xbr::Notify::kNobody);
}

void TrackListComponent::add(xbr::IObjectIterator& objects) {
    const auto self = xbr::Ref<TrackListComponent>::share(this);
    xbr::Ref<xbr::IObject> object;
    while (objects.next(object.out()) == xbr::kOk) {
        if (const auto item = makeItem(*object)) {
            insert(item);
        }
    }
}

void TrackListComponent::insert(const xbr::Ref<TrackItem>& item) {
    TrackMetadata& record = *item->metadata;
    for (const RequiredField& field : kRequiredFields) {
        record.*field.value = xbr::toSingleLine(record.*field.value);
    }
    item->title = xbr::toSingleLine(item->title);
    record.albumGenre = record.primaryGenre;
    record.singlesGenre = record.primaryGenre;
    if (mode() == UploadMode::kAlbum) {
        record.albumModeTitle = record.albumTitle;
    }
    item->enabled = true;
    m_model->append(xbr::query<xbr::IObject>(item.get()));
    m_editor->trackAdded();
    signalTracksChanged();
}

void TrackListComponent::removeAll() {
    m_editor->setItem(nullptr);
    m_editor->clearReady();
    m_model->clear();
    signalTracksChanged();
}

void TrackListComponent::signalTracksChanged() {
    m_model->signalChanged();
}

void TrackListComponent::setCurrentUploadItem(TrackItem* item) {
    auto kept = xbr::Ref<TrackItem>::share(item);
    if (m_uploading.empty()) {
        m_uploadMode = mode();
    }
    // All tracks of an album travel together: a track that gives way to the next one is still on its way, so
    // it keeps its mark until the transfer ends. The list may not hold it any more then.
    if (!item || m_uploadMode == UploadMode::kSingles) {
        for (const auto& track : std::exchange(m_uploading, {})) {
            track->uploading = false;
        }
    }
    if (item) {
        item->uploading = true;
        m_uploading.push_back(std::move(kept));
    }
    signalTracksChanged();
    updateEnabled();
}

void TrackListComponent::validateForUpload(Marks marks) {
    const bool isWholeAlbum = m_uploading.empty() && mode() == UploadMode::kAlbum;
    for (std::size_t i = 0; i < countTracks(*m_model); ++i) {
        if (isWholeAlbum || trackAt(*m_model, i).uploading) {
            m_editor->validateItem(marks, i);
        }
    }
    reloadEditor();
}

void TrackListComponent::updateEnabled() {
    parameter(kRemoveAll)->setEnabled(countTracks(*m_model) > 0 && m_uploading.empty());
    parameter(kAlbumUpload)->setEnabled(m_uploading.empty());
}

void TrackListComponent::setUploadMode(UploadMode mode) {
    m_editor->setMode(mode);
    m_editor->applyMode();
    reloadEditor();
}

void TrackListComponent::reloadEditor() {
    m_editor->setItem(focusTrack(*m_model));
}

void TrackListComponent::notify(xbr::ISubject* subject, xbr::IMessage* message) noexcept {
    const auto self = xbr::Ref<TrackListComponent>::share(this);
    if (subject == m_editor.get()) {
        signalChanged();
    } else if (xbr::isNamed(*message, "selectionChanged")) {
        reloadEditor();
    } else if (xbr::isNamed(*message, "changed")) {
        updateEnabled();
        signalChanged();
    }
}

void TrackListComponent::parameterChanged(xbr::Parameter& parameter) {
    const auto self = xbr::Ref<TrackListComponent>::share(this);
    switch (parameter.tag()) {
    case kAddTracks:
        if (const auto chosen = chooseTrackFiles()) {
            add(*chosen);
        }
        break;
    case kRemoveAll:
        removeAll();
        break;
    case kAlbumUpload:
        setUploadMode(parameter.integer() != 0 ? UploadMode::kAlbum : UploadMode::kSingles);
        break;
    default:
        break;
    }
}

std::int32_t TrackListComponent::countColumns() const {
    return kTrackColumns;
}

xbr::Column TrackListComponent::columnAt(std::int32_t index) const {
    return {xbr::toText(m_columnTitles[static_cast<std::size_t>(index)]), trackColumn(index).width};
}

xbr::Cell TrackListComponent::cellOf(xbr::IObject& item, std::int32_t column) const {
    return trackCell(*TrackItem::from(item), column);
}

bool TrackListComponent::isItemEditable(xbr::IObject& item) const {
    return !TrackItem::from(item)->uploading;
}

xbr::DropEffect TrackListComponent::dragOver(xbr::IObjectIterator& objects) {
    xbr::Ref<xbr::IObject> object;
    while (objects.next(object.out()) == xbr::kOk) {
        if (!audioLocationOf(*object).isEmpty()) {
            return xbr::DropEffect::kCopy;
        }
    }
    return xbr::DropEffect::kNone;
}

xbr::Result TrackListComponent::drop(xbr::IObjectIterator& objects) {
    const auto self = xbr::Ref<TrackListComponent>::share(this);
    const auto before = countTracks(*m_model);
    add(objects);
    return countTracks(*m_model) > before ? xbr::kOk : xbr::kFalse;
}

xbr::Result TrackListComponent::removeFocused() {
    const TrackItem* track = focusTrack(*m_model);
    if (!track || track->uploading) {
        return xbr::kFalse;
    }
    const auto self = xbr::Ref<TrackListComponent>::share(this);
    m_editor->tracksRemoved();
    m_model->remove(m_model->focus());
    m_editor->updateReady();
    signalTracksChanged();
    return xbr::kOk;
}

xbr::Ref<xbr::ICommandList> TrackListComponent::contextCommands() {
    return xbr::make<ResetCommand>(m_model);
}

} // namespace brindlex
