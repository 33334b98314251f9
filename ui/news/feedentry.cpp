#include "ui/news/feedentry.h"

#include "framework/abi/dates.h"
#include "framework/abi/locale.h"
#include "framework/support/objects/text.h"

#include <algorithm>

namespace brindlex {

namespace {

constexpr xbr::Date kNoDate{1900, 1, 1};

xbr::Date dateOf(const xbr::IFeedEntry& entry, xbr::IDateFormats& formats) {
    std::int64_t time = 0;
    xbr::Date date{};
    const bool hasTime = entry.getPublished(&time) == xbr::kOk || entry.getUpdated(&time) == xbr::kOk;
    return hasTime && formats.getLocalDate(time, &date) == xbr::kOk ? date : kNoDate;
}

} // namespace

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

std::string feedDate(const xbr::IFeedEntry& entry) {
    const auto formats = xbr::query<xbr::IDateFormats>(XBRGetLocaleManager());
    xbr::Ref<xbr::IString> text;
    const bool isWritten =
        formats &&
        formats->formatDate(dateOf(entry, *formats), xbr::IDateFormats::kLongDate, text.out()) == xbr::kOk;
    return isWritten ? take(text) : std::string();
}

} // namespace brindlex
