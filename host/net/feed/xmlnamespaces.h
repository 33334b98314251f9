#pragma once

#include "framework/abi/textformats.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace xbr::host {

/// A name with the namespace that it belongs to (Namespaces in XML 1.0).
struct XmlName {
    std::string_view space; ///< the namespace's name; empty for none
    std::string_view local;
};

/// The namespaces that are declared where a document is being read.
class XmlNamespaces {
public:
    /// Enters an element with its declarations; `leave` goes back.
    void enter(const IStringDictionary& attributes);
    void leave();

    /// Both answer nothing when the prefix is not declared: the document is not well-formed then.
    std::optional<XmlName> elementName(std::string_view qualified) const;
    std::optional<XmlName> attributeName(std::string_view qualified) const;

private:
    std::optional<std::string_view> find(std::string_view prefix) const;

    /// What each prefix stands for, the innermost declaration last.
    std::unordered_map<std::string, std::vector<std::string>> m_declared;
    std::vector<std::vector<std::string>> m_elements; ///< the prefixes that each open element declares
};

} // namespace xbr::host
