#include "framework/support/parts/modulecomponent.h"

#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/translation.h"

namespace xbr {

namespace {

ModuleComponent* g_current = nullptr;

} // namespace

ModuleComponent::ModuleComponent(std::string id, std::string company, std::string title, std::string version)
    : m_id(std::move(id)),
      m_company(std::move(company)),
      m_title(std::move(title)),
      m_version(std::move(version)) {
    g_current = this;
}

ModuleComponent::~ModuleComponent() {
    if (g_current == this) {
        g_current = nullptr;
    }
}

ModuleComponent* ModuleComponent::current() {
    return g_current;
}

bool ModuleComponent::loadTheme(std::string_view location) {
    auto theme = createHostObject<ITheme>();
    const std::string folder = location.empty() ? "resource://" + m_id + "/skin" : std::string(location);
    if (!theme || theme->load(toText(folder)) != kOk) {
        return false;
    }
    m_theme = std::move(theme);
    return true;
}

Ref<ITranslationTable> ModuleComponent::translations() {
    if (!m_translations) {
        XBRGetLocaleManager()->getTable(toText(m_id), m_translations.out());
    }
    return m_translations;
}

std::string translate(std::string_view source) {
    const auto table = ModuleComponent::current() ? ModuleComponent::current()->translations() : nullptr;
    return translate(toText(source), table.get());
}

} // namespace xbr
