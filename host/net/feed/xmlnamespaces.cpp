#include "host/net/feed/xmlnamespaces.h"

#include "framework/support/objects/text.h"

namespace xbr::host {

namespace {

constexpr std::string_view kXml = "http://www.w3.org/XML/1998/namespace";
constexpr std::string_view kDeclaration = "xmlns";

/// The prefix that an attribute declares; empty for the default namespace.
std::optional<std::string_view> declaredPrefix(std::string_view attribute) {
    if (!attribute.starts_with(kDeclaration)) {
        return std::nullopt;
    }
    attribute.remove_prefix(kDeclaration.size());
    if (attribute.empty()) {
        return attribute;
    }
    return attribute.front() == ':' ? std::optional(attribute.substr(1)) : std::nullopt;
}

struct Parts {
    std::string_view prefix;
    std::string_view local;
};

Parts split(std::string_view qualified) {
    const auto colon = qualified.find(':');
    return colon == std::string_view::npos ? Parts{{}, qualified}
                                           : Parts{qualified.substr(0, colon), qualified.substr(colon + 1)};
}

} // namespace

void XmlNamespaces::enter(const IStringDictionary& attributes) {
    auto& declared = m_elements.emplace_back();
    for (std::int32_t i = 0; i < attributes.count(); ++i) {
        if (const auto prefix = declaredPrefix(view(attributes.keyAt(i)))) {
            declared.emplace_back(*prefix);
            m_declared[declared.back()].emplace_back(view(attributes.valueAt(i)));
        }
    }
}

void XmlNamespaces::leave() {
    for (const auto& prefix : m_elements.back()) {
        auto found = m_declared.find(prefix);
        found->second.pop_back();
        if (found->second.empty()) {
            m_declared.erase(found);
        }
    }
    m_elements.pop_back();
}

std::optional<std::string_view> XmlNamespaces::find(std::string_view prefix) const {
    const auto found = m_declared.find(std::string(prefix));
    if (found != m_declared.end()) {
        return found->second.back();
    }
    if (prefix == "xml") {
        return kXml;
    }
    return prefix.empty() ? std::optional(std::string_view()) : std::nullopt;
}

std::optional<XmlName> XmlNamespaces::elementName(std::string_view qualified) const {
    const Parts parts = split(qualified);
    const auto space = find(parts.prefix);
    return space ? std::optional(XmlName{*space, parts.local}) : std::nullopt;
}

std::optional<XmlName> XmlNamespaces::attributeName(std::string_view qualified) const {
    const Parts parts = split(qualified);
    if (parts.prefix.empty()) {
        return XmlName{{}, parts.local}; // the default namespace is not for attributes
    }
    if (parts.prefix == kDeclaration) {
        return XmlName{kDeclaration, parts.local};
    }
    return elementName(qualified);
}

} // namespace xbr::host
