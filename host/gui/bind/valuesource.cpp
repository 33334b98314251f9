#include "host/gui/bind/valuesource.h"

#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"
#include "host/base/qttext.h"

#include <algorithm>
#include <cstdlib>

namespace xbr::host {

namespace {

bool hasProperty(IController& controller, std::string_view name) {
    const auto properties = query<IPropertySource>(&controller);
    Value value{};
    return properties && properties->getProperty(toText(name), &value) == kOk;
}

} // namespace

std::unique_ptr<ValueSource> ValueSource::find(IController& scope, std::string_view path) {
    const PathTarget target = resolvePath(scope, path);
    if (!target.controller) {
        return nullptr;
    }
    auto source = std::unique_ptr<ValueSource>(new ValueSource);
    source->m_controller = target.controller;
    source->m_parameter = Ref<IParameter>::share(target.controller->findParameter(toText(target.name)));
    if (!source->m_parameter) {
        source->m_property = target.name;
        if (!hasProperty(*target.controller, target.name)) {
            return nullptr;
        }
    }
    return source;
}

void ValueSource::observe(std::function<void()> changed) {
    m_listener =
        std::make_unique<Listener>([changed = std::move(changed)](ISubject*, const IMessage&) { changed(); });
    m_listener->listen(query<ISubject>(m_parameter.get()));
    // Also for a parameter: a controller may set one without telling, and tell of itself afterwards.
    m_listener->listen(query<ISubject>(m_controller.get()));
}

OwnedValue ValueSource::value() const {
    if (m_parameter) {
        return OwnedValue(m_parameter->value());
    }
    Value value{};
    const auto properties = query<IPropertySource>(m_controller.get());
    return properties->getProperty(toText(m_property), &value) == kOk ? OwnedValue(value) : OwnedValue();
}

QString ValueSource::text() const {
    const OwnedValue held = value();
    const Value now = held.value();
    if (now.kind == ValueKind::kText) {
        return toQString(now.text);
    }
    return now.kind == ValueKind::kNone ? QString() : QString::number(integerOf(now));
}

Condition Condition::parse(std::string_view text) {
    Condition condition;
    condition.isNegated = text.starts_with('!');
    text.remove_prefix(condition.isNegated ? 1 : 0);
    const auto equals = text.find('=');
    condition.path = text.substr(0, equals);
    for (auto rest = equals; rest != std::string_view::npos; rest = text.find(',', rest + 1)) {
        condition.wanted.push_back(std::strtoll(std::string(text.substr(rest + 1)).c_str(), nullptr, 10));
    }
    return condition;
}

bool Condition::holds(const Value& value) const {
    if (!wanted.empty()) {
        return isNegated != (std::find(wanted.begin(), wanted.end(), integerOf(value)) != wanted.end());
    }
    const bool isTrue = value.kind == ValueKind::kText ? value.text.length > 0 : integerOf(value) != 0;
    return isNegated != isTrue;
}

} // namespace xbr::host
