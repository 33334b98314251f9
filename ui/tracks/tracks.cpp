#include "ui/tracks/tracks.h"

namespace brindlex {

namespace {

TrackItem* asTrack(xbr::IObject* object) {
    return static_cast<TrackItem*>(static_cast<xbr::IPropertySource*>(object));
}

} // namespace

TrackItem& trackAt(const xbr::ListViewModel& model, std::size_t index) {
    return *asTrack(model.items()[index].get());
}

TrackItem* focusTrack(const xbr::ListViewModel& model) {
    return asTrack(model.focusItem());
}

} // namespace brindlex
