#pragma once

#include "framework/abi/parameter.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/value.h"

#include <string>
#include <vector>

namespace xbr {

class Parameter;

/// Who acts when the user changed a parameter.
struct IParameterOwner {
    virtual void parameterChanged(Parameter& parameter) = 0;

protected:
    ~IParameterOwner() = default;
};

/// How an owner's change of a parameter is told to it.
enum class Notify { kObservers, kNobody };

/// A parameter of a component.
class Parameter final : public Object<IParameter, ISubject> {
public:
    /// A parameter of a kind; integers go from `minimum` to `maximum`.
    Parameter(IParameterOwner& owner, ParameterKind kind, std::int32_t tag, std::string_view name,
              std::int64_t minimum = 0, std::int64_t maximum = 1);
    ~Parameter() override;

    std::int32_t tag() const noexcept override { return m_tag; }
    Text name() const noexcept override;
    ParameterKind kind() const noexcept override { return m_kind; }
    Value value() const noexcept override { return m_value.value(); }
    bool isEnabled() const noexcept override { return m_enabled; }
    std::int64_t minimum() const noexcept override { return m_minimum; }
    std::int64_t maximum() const noexcept override;
    std::int32_t countChoices() const noexcept override {
        return static_cast<std::int32_t>(m_choices.size());
    }
    Text choiceAt(std::int32_t index) const noexcept override;
    Result setValue(const Value& value) noexcept override;

    std::string string() const { return std::string(textOf(value())); }
    std::int64_t integer() const { return integerOf(value()); }

    /// Sets the value from the component's side: views learn of it (unless Notify::kNobody), the owner's
    /// change handling does not run.
    void set(const Value& value, Notify notify = Notify::kObservers);
    void setEnabled(bool enabled);

    /// The value of a list is held to what there is.
    void setChoices(std::vector<std::string> choices);

    /// The owner is going; the parameter may outlive it in a view.
    void detach() { m_owner = nullptr; }

private:
    bool convert(const Value& value, OwnedValue& converted) const;
    void signalChanged();

    IParameterOwner* m_owner;
    ParameterKind m_kind;
    std::int32_t m_tag;
    std::string m_name;
    std::int64_t m_minimum;
    std::int64_t m_maximum;
    std::vector<std::string> m_choices;
    OwnedValue m_value;
    bool m_enabled = true;
};

} // namespace xbr
