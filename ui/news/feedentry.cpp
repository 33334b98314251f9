#include "ui/news/feedentry.h"

#include "framework/abi/locale.h"
#include "framework/support/objects/text.h"

#include <algorithm>

namespace brindlex {

namespace {

constexpr xbr::Date kNoDate{1900, 1, 1};

xbr::Ref<xbr::IDateFormats> dateFormats() {
    return xbr::query<xbr::IDateFormats>(XBRGetLocaleManager());
}

} // namespace

FeedEntry::FeedEntry(std::string_view name, Parameters parameters, xbr::Ref<ImageElement> image, bool hasDate)
    : Component(name),
      m_parameters(std::move(parameters)),
      m_image(std::move(image)),
      m_hasDate(hasDate) {
    addObject("image", xbr::query<xbr::IObject>(m_image.get()));
}

void FeedEntry::letGo() {
    m_owner = nullptr;
    m_image->setOwner(nullptr);
    for (const auto& parameter : m_parameters) {
        parameter->detach();
    }
}

xbr::Result FeedEntry::getProperty(xbr::Text name, xbr::Value* out) noexcept {
    if (xbr::view(name) == "hasDate") {
        *out = xbr::boolValue(m_hasDate);
        return xbr::kOk;
    }
    return Component::getProperty(name, out);
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

std::optional<xbr::Date> publicationOf(const xbr::IFeedEntry& entry) {
    std::int64_t time = 0;
    xbr::Date date{};
    const auto formats = dateFormats();
    const bool isKnown =
        formats && entry.getPublished(&time) == xbr::kOk && formats->getLocalDate(time, &date) == xbr::kOk;
    return isKnown ? std::optional(date) : std::nullopt;
}

std::string feedDate(const std::optional<xbr::Date>& date) {
    const auto formats = dateFormats();
    xbr::Ref<xbr::IString> text;
    const bool isWritten =
        formats &&
        formats->formatDate(date.value_or(kNoDate), xbr::IDateFormats::kLongDate, text.out()) == xbr::kOk;
    return isWritten ? take(text) : std::string();
}

} // namespace brindlex
