#pragma once

#include "framework/abi/view.h"
#include "framework/support/parts/classfactory.h"
#include "framework/support/parts/component.h"
#include "ui/tracks/tracklistcomponent.h"

#include <QByteArray>

#include <memory>
#include <string>
#include <vector>

class QWidget;

namespace xbr::host::tests {

/// The sign-in client of the panel, with a state that tests choose.
class PanelClient final : public Component {
public:
    PanelClient();

    void setState(int state);
    Result getProperty(Text name, Value* out) noexcept override;

    int resets = 0;
    int retries = 0;

protected:
    void parameterChanged(Parameter& parameter) override;

private:
    int m_state = 0;
};

/// The panel's controller as its forms see it: the extension's own track list and editor beside a client
/// without a network.
class Panel final : public Component {
public:
    Panel();
    ~Panel() override;

    PanelClient& client() const { return *m_client; }
    brindlex::TrackListComponent& tracks() const { return *m_tracks; }
    Parameter& named(std::string_view name);

    void signIn(std::string_view user, std::string_view url);
    void addTracks(int count);

    int uploads = 0;

protected:
    void parameterChanged(Parameter& parameter) override;

private:
    Ref<PanelClient> m_client;
    Ref<brindlex::TrackListComponent> m_tracks;
};

/// The extension's resources and the component of its news, registered as the module would, in the language
/// "LANGUAGE" names.
class PanelSkin {
public:
    explicit PanelSkin(const std::string& archive, const std::string& language = "en");
    PanelSkin(const PanelSkin&) = delete;
    PanelSkin& operator=(const PanelSkin&) = delete;
    ~PanelSkin();

    /// Panels made from now on show these news; an empty address for none.
    static void setNews(const std::string& url);

    Ref<IView> view(std::string_view form, IController& controller) const;
    std::unique_ptr<QWidget> widget(std::string_view form, IController& controller) const;

private:
    std::string m_bytes;
    QByteArray m_locale; // as it was before
    Ref<ClassFactory> m_classes;
    Ref<ITheme> m_theme;
};

} // namespace xbr::host::tests
