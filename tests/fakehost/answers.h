#pragma once

#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"

#include <memory>
#include <regex>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace fakehost {

/// The rows of a table of cases.
template <class... Columns>
using Rows = std::vector<std::tuple<Columns...>>;

/// True for the calls of the host that are to fail; remembers the name of the last one.
bool fails(const char* call = __builtin_FUNCTION());

inline xbr::Result okUnlessItFails(const char* call = __builtin_FUNCTION()) {
    return fails(call) ? xbr::kUnexpected : xbr::kOk;
}

/// Answers with an object, or with `otherwise` when there is none.
template <class T, class Interface>
xbr::Result give(xbr::Ref<T> object, Interface** out, xbr::Result otherwise = xbr::kFalse) {
    *out = object.detach();
    return *out ? xbr::kOk : otherwise;
}

/// The same in a call that may fail.
template <class T, class Interface>
xbr::Result giveUnlessItFails(xbr::Ref<T> object, Interface** out, const char* call = __builtin_FUNCTION()) {
    return fails(call) ? give(xbr::Ref<T>(), out, xbr::kUnexpected) : give(std::move(object), out);
}

/// Lends an object's texts as briefly as the border allows: all out of one buffer, which the next text takes
/// back.
class Lender {
public:
    xbr::Text lend(std::string_view text) const {
        m_lent = std::make_unique<char[]>(text.size());
        text.copy(m_lent.get(), text.size());
        return {m_lent.get(), text.size()};
    }

private:
    mutable std::unique_ptr<char[]> m_lent;
};

/// A document on one line.
inline std::string withoutLayout(const std::string& json) {
    return std::regex_replace(json, std::regex("\n *|(:) "), "$1");
}

// What users and forms do with a component.

template <class Controller>
xbr::Result set(Controller& controller, const char* name, const xbr::Value& value) {
    return controller.findParameter(xbr::toText(name))->setValue(value);
}
template <class Controller>
xbr::Result press(Controller& controller, const char* name) {
    return set(controller, name, xbr::integerValue(1));
}
template <class Controller>
xbr::Value shown(Controller& controller, const char* name) {
    return controller.findParameter(xbr::toText(name))->value();
}
/// Its property; none when it has no such one.
template <class Source>
xbr::Value property(Source& source, const std::string& name) {
    xbr::Value value{};
    return source.getProperty(xbr::toText(name), &value) == xbr::kOk ? value : xbr::noValue();
}

} // namespace fakehost
