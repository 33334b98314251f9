#pragma once

#include "framework/abi/dates.h"
#include "framework/abi/feed.h"
#include "framework/support/parts/component.h"
#include "ui/pictures/imageelement.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// One entry of the news, for a form that shows it alone: the parameters of that entry, its picture as the
/// child "image", and the property "hasDate".
class FeedEntry final : public xbr::Component {
public:
    using Parameters = std::vector<xbr::Ref<xbr::Parameter>>;

    FeedEntry(std::string_view name, Parameters parameters, xbr::Ref<ImageElement> image, bool hasDate);

    /// The news.
    void setOwner(xbr::IController* owner) { m_owner = owner; }

    /// The news have other entries; a view may hold parts of this one longer.
    void letGo();

    ImageElement& image() { return *m_image; }

    xbr::IController* parent() noexcept override { return m_owner; }
    std::int32_t countParameters() const noexcept override;
    xbr::IParameter* parameterAt(std::int32_t index) noexcept override;
    xbr::IParameter* findParameter(xbr::Text name) noexcept override;
    xbr::Result getProperty(xbr::Text name, xbr::Value* out) noexcept override;

private:
    xbr::IController* m_owner = nullptr;
    Parameters m_parameters;
    xbr::Ref<ImageElement> m_image;
    bool m_hasDate;
};

/// When an entry was published; nothing when it does not tell.
std::optional<xbr::Date> publicationOf(const xbr::IFeedEntry& entry);

/// A date as the user's locale writes it; without one 1 January 1900.
std::string feedDate(const std::optional<xbr::Date>& date);

} // namespace brindlex
