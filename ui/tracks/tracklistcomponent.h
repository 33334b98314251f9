#pragma once

#include "framework/support/parts/component.h"
#include "framework/support/parts/listviewmodel.h"
#include "ui/tracks/trackitem.h"
#include "ui/tracks/trackpropertycomponent.h"

namespace brindlex {

/// The list of tracks that the user wants to release. A component named "TrackList" with the parameters 100
/// "addTracks", 101 "removeAll" and 102 "albumUpload", the list model "tracks" and the child
/// "TrackProperties".
///
/// "changed" is signalled when the tracks, their states or their completeness changed.
class TrackListComponent final : public xbr::Component, private xbr::IListViewDelegate {
public:
    TrackListComponent();
    ~TrackListComponent() override;

    xbr::ListViewModel& model() const { return *m_model; }
    TrackPropertyComponent& editor() const { return *m_editor; }

    UploadMode mode() const { return m_editor->mode(); }

    /// Switches the mode without telling the parameter's observers; the tracks are brought into line when the
    /// next ones are added.
    void prepareMode(UploadMode mode);

    /// Adds tracks from objects: ready TrackItems, or objects that supply the URL of a supported audio file.
    /// Anything else is skipped.
    void add(xbr::IObjectIterator& objects);

    void removeAll();

    /// The track that is being transferred; null for none. Borrowed.
    TrackItem* currentUploadItem() const { return m_uploading.empty() ? nullptr : m_uploading.back().get(); }

    /// Marks a track as being transferred, or the transfer as ended (null). In album mode the tracks marked
    /// before stay marked until the end; the mode is the one in which the transfer's first track was marked.
    void setCurrentUploadItem(TrackItem* item);

    /// Clears the missing marks when a transfer starts, or sets them when the service missed something: for
    /// the tracks that are being transferred; while there are none, for every track in album mode.
    void validateForUpload(Marks marks);

    /// Tells views and observers that states or progress of the tracks changed.
    void signalTracksChanged();

    /// "removeAll" is enabled while there are tracks and none is being transferred, "albumUpload" while none
    /// is.
    void updateEnabled();

    void notify(xbr::ISubject* subject, xbr::IMessage* message) noexcept override;

protected:
    void parameterChanged(xbr::Parameter& parameter) override;

private:
    // IListViewDelegate
    std::int32_t countColumns() const override;
    xbr::Column columnAt(std::int32_t index) const override;
    xbr::Cell cellOf(xbr::IObject& item, std::int32_t column) const override;
    bool isItemEditable(xbr::IObject& item) const override;
    xbr::DropEffect dragOver(xbr::IObjectIterator& objects) override;
    xbr::Result drop(xbr::IObjectIterator& objects) override;
    xbr::Result removeFocused() override;
    xbr::Ref<xbr::ICommandList> contextCommands() override;

    void insert(const xbr::Ref<TrackItem>& item);
    void setUploadMode(UploadMode mode);
    void reloadEditor();

    xbr::Ref<xbr::ListViewModel> m_model;
    xbr::Ref<TrackPropertyComponent> m_editor;
    Tracks m_uploading;                             ///< the tracks that are being transferred
    UploadMode m_uploadMode = UploadMode::kSingles; ///< of that transfer
    std::vector<std::string> m_columnTitles;
};

} // namespace brindlex
