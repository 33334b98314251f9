#pragma once

#include "framework/abi/locale.h"
#include "framework/abi/view.h"
#include "framework/support/objects/object.h"

#include <string>

namespace xbr {

/// A module's identity, theme and translations.
class ModuleComponent final : public Object<IObject> {
public:
    ModuleComponent(std::string id, std::string company, std::string title, std::string version);
    ~ModuleComponent() override;

    /// The module's one component while the module is started; null before and after.
    static ModuleComponent* current();

    const std::string& id() const { return m_id; }
    const std::string& company() const { return m_company; }
    const std::string& title() const { return m_title; }

    /// Loads the skin at a location of the module's resources; an empty location is the module's own skin.
    bool loadTheme(std::string_view location);

    /// The loaded theme; empty before.
    const Ref<ITheme>& theme() const { return m_theme; }

    /// The module's translations, looked up on first use.
    Ref<ITranslationTable> translations();

private:
    std::string m_id;
    std::string m_company;
    std::string m_title;
    std::string m_version;
    Ref<ITheme> m_theme;
    Ref<ITranslationTable> m_translations;
};

/// `source`, an English text of the module, in the user's language.
std::string translate(std::string_view source);

/// Marks an English text that the host translates where it shows it, such as a command's name.
constexpr const char* translatable(const char* source) {
    return source;
}

} // namespace xbr
