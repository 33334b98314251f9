#pragma once

#include "framework/abi/feed.h"
#include "framework/support/parts/component.h"
#include "ui/pictures/imageelement.h"

#include <string>
#include <vector>

namespace brindlex {

/// One entry of the news, for a form that shows it alone: the parameters of that entry, and its picture as
/// the child "image".
class FeedEntry final : public xbr::Component {
public:
    using Parameters = std::vector<xbr::Ref<xbr::Parameter>>;

    FeedEntry(std::string_view name, Parameters parameters, const xbr::Ref<ImageElement>& image);

    /// The news; null once they have other entries.
    void setOwner(xbr::IController* owner) { m_owner = owner; }

    xbr::IController* parent() noexcept override { return m_owner; }
    std::int32_t countParameters() const noexcept override;
    xbr::IParameter* parameterAt(std::int32_t index) noexcept override;
    xbr::IParameter* findParameter(xbr::Text name) noexcept override;

private:
    xbr::IController* m_owner = nullptr;
    Parameters m_parameters;
};

/// When an entry was published, or else changed last, as the user's locale writes dates. The date of an entry
/// without any is 1 January 1900.
std::string feedDate(const xbr::IFeedEntry& entry);

} // namespace brindlex
