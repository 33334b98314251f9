#include "framework/support/parts/component.h"

#include "framework/support/objects/text.h"

#include <algorithm>

namespace xbr {

Component::~Component() {
    for (const auto& parameter : m_parameters) {
        parameter->detach();
    }
    for (const auto& child : m_children) {
        child->m_parent = nullptr;
    }
    XBRGetSignalHandler()->forgetObserver(this);
    XBRGetSignalHandler()->forgetSubject(this);
}

Text Component::name() const noexcept {
    return toText(m_name);
}

std::int32_t Component::countParameters() const noexcept {
    return static_cast<std::int32_t>(m_parameters.size());
}

IParameter* Component::parameterAt(std::int32_t index) noexcept {
    return index >= 0 && index < countParameters() ? m_parameters[static_cast<std::size_t>(index)].get()
                                                   : nullptr;
}

IParameter* Component::findParameter(Text name) noexcept {
    const auto found = std::find_if(m_parameters.begin(), m_parameters.end(), [&](const auto& parameter) {
        return xbr::view(parameter->name()) == xbr::view(name);
    });
    return found == m_parameters.end() ? nullptr : found->get();
}

IObject* Component::findObject(Text name) noexcept {
    const auto wanted = xbr::view(name);
    for (const auto& child : m_children) {
        if (child->m_name == wanted) {
            return static_cast<IController*>(child.get());
        }
    }
    for (const auto& named : m_objects) {
        if (named.name == wanted) {
            return named.object.get();
        }
    }
    return nullptr;
}

Result Component::createView(Text, IView** out) noexcept {
    *out = nullptr;
    return kFalse;
}

void Component::viewAttached(IView* view) noexcept {
    m_views.push_back(view);
}

void Component::viewDetached(IView* view) noexcept {
    std::erase(m_views, view);
}

Result Component::getProperty(Text, Value* out) noexcept {
    *out = noValue();
    return kFalse;
}

Result Component::setProperty(Text, const Value&) noexcept {
    return kFalse;
}

void Component::notify(ISubject*, IMessage*) noexcept {}

void Component::parameterChanged(Parameter&) {}

Parameter* Component::parameter(std::int32_t tag) const {
    const auto found = std::find_if(m_parameters.begin(), m_parameters.end(),
                                    [&](const auto& parameter) { return parameter->tag() == tag; });
    return found == m_parameters.end() ? nullptr : found->get();
}

Parameter& Component::addParameter(ParameterKind kind, std::int32_t tag, std::string_view name,
                                   std::int64_t minimum, std::int64_t maximum) {
    IParameterOwner& owner = *this;
    m_parameters.push_back(make<Parameter>(owner, kind, tag, name, minimum, maximum));
    return *m_parameters.back();
}

void Component::addChild(const Ref<Component>& child) {
    child->m_parent = this;
    m_children.push_back(child);
}

void Component::addObject(std::string_view name, const Ref<IObject>& object) {
    m_objects.push_back({std::string(name), object});
}

} // namespace xbr
