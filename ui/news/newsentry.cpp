#include "ui/news/newsentry.h"

#include "framework/support/objects/text.h"

#include <algorithm>

namespace brindlex {

FeedEntry::FeedEntry(std::string_view name, Parameters parameters, const xbr::Ref<ImageElement>& image)
    : Component(name),
      m_parameters(std::move(parameters)) {
    addObject("image", xbr::query<xbr::IObject>(image.get()));
}

std::int32_t FeedEntry::countParameters() const noexcept {
    return static_cast<std::int32_t>(m_parameters.size());
}

xbr::IParameter* FeedEntry::parameterAt(std::int32_t index) noexcept {
    return index >= 0 && index < countParameters() ? m_parameters[static_cast<std::size_t>(index)].get()
                                                   : nullptr;
}

xbr::IParameter* FeedEntry::findParameter(xbr::Text name) noexcept {
    const auto found = std::find_if(m_parameters.begin(), m_parameters.end(), [&](const auto& parameter) {
        return xbr::view(parameter->name()) == xbr::view(name);
    });
    return found == m_parameters.end() ? nullptr : found->get();
}

} // namespace brindlex
