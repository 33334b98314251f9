#include "framework/abi/view.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/component.h"
#include "host/base/fileurl.h"
#include "host/gui/hostwidgets.h"
#include "host/gui/skin/theme.h"
#include "tests/fuzz/fuzz.h"

#include <QApplication>
#include <QWidget>

#include <filesystem>
#include <memory>

namespace {

constexpr std::string_view kManifest = "<Skin><Form name='form' file='form.ui'/></Skin>";
constexpr std::string_view kForm = "<ui version='4.0'><widget class='QWidget' name='form'/></ui>";

/// Qt needs a display, and the one without a screen has none to miss.
void startQt() {
    static int count = 3;
    static char name[] = "skin", option[] = "-platform", platform[] = "offscreen";
    static char* arguments[] = {name, option, platform, nullptr};
    static const QApplication application(count, arguments);
}

} // namespace

/// Qt's form loader forgets the place of a widget whose cell is taken, and fontconfig what it read: neither
/// is ours.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): the sanitizer's name
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libQt6UiTools\nleak:libfontconfig\n";
}

/// A skin with the bytes as its manifest or its form: a widget comes of it, or none.
void fuzz::read(std::string_view input) {
    startQt();
    const bool isForm = input.find("<Skin") == std::string_view::npos;
    fileOf("skin.xml", isForm ? kManifest : input);
    fileOf("form.ui", isForm ? input : kForm);
    const auto theme = xbr::make<xbr::host::Theme>();
    const auto folder = xbr::host::fileUrl(std::filesystem::current_path().string());
    const auto panel = xbr::make<xbr::Component>("panel");
    xbr::Ref<xbr::IView> view;
    if (theme->load(xbr::toText(folder)) == xbr::kOk &&
        theme->createView(xbr::toText("form"), panel.get(), view.out()) == xbr::kOk) {
        const std::unique_ptr<QWidget> widget(xbr::host::createViewWidget(*view, nullptr));
        QApplication::processEvents();
    }
}
