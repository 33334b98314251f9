#pragma once

#include "framework/abi/credentials.h"
#include "framework/support/objects/text.h"
#include "host/security/hostsecurity.h"

#include <gtest/gtest.h>
#include <libsecret/secret.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <set>
#include <string>
#include <vector>

namespace xbr::host::test {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::milliseconds;

inline Result add(std::string_view target, std::string_view user, std::string_view password,
                  std::string_view note = {}) {
    return XBRGetCredentialManager()->add(toText(target), toText(user), toText(password), toText(note));
}

inline Result remove(std::string_view target) {
    return XBRGetCredentialManager()->remove(toText(target));
}

/// "user|password" of the credential that is found, or what the search answered.
inline std::string find(std::string_view target) {
    Ref<ICredential> found;
    const Result result = XBRGetCredentialManager()->find(toText(target), found.out());
    if (result == kOk) {
        return toString(found->userName()) + "|" + toString(found->password());
    }
    return found ? "failed, yet there is one" : result == kFalse ? "none" : "failed";
}

/// Hears as the host program does; gives up after a while.
class Hearing final : public StoreListener {
public:
    explicit Hearing(Milliseconds patience = std::chrono::hours(1)) : m_patience(patience) {
        setStoreListener(this);
    }
    Hearing(const Hearing&) = delete;
    Hearing& operator=(const Hearing&) = delete;
    ~Hearing() { setStoreListener(nullptr); }

    bool storeWaits(bool isForUser) override {
        wasUserAsked = wasUserAsked || isForUser;
        ++looks;
        return time() < m_patience;
    }
    void storeAnswered(StoreOperation operation, StoreResult result) override {
        results.emplace_back(operation, result);
    }

    Clock::duration time() const { return Clock::now() - m_start; }

    std::vector<std::pair<StoreOperation, StoreResult>> results;
    bool wasUserAsked = false;
    int looks = 0; ///< chances to paint the window

private:
    Milliseconds m_patience;
    Clock::time_point m_start = Clock::now();
};

/// All items whose attribute "target" is this, as any other program of the user sees them: the label and the
/// attributes, in the order of their names.
inline std::vector<std::string> itemsOf(std::string target) {
    g_autoptr(SecretService) service =
        secret_service_open_sync(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION, nullptr, nullptr);
    g_autoptr(GHashTable) wanted = g_hash_table_new(&g_str_hash, &g_str_equal);
    std::string key = "target";
    g_hash_table_insert(wanted, key.data(), target.data());
    g_autolist(SecretItem) items =
        secret_service_search_sync(service, nullptr, wanted, SECRET_SEARCH_ALL, nullptr, nullptr);
    std::vector<std::string> seen;
    for (GList* node = items; node; node = node->next) {
        g_autofree char* label = secret_item_get_label(SECRET_ITEM(node->data));
        g_autoptr(GHashTable) attributes = secret_item_get_attributes(SECRET_ITEM(node->data));
        std::set<std::string> texts;
        const auto keep = [](gpointer name, gpointer value, gpointer kept) {
            static_cast<std::set<std::string>*>(kept)->insert(std::string(static_cast<const char*>(name)) +
                                                              "=" + static_cast<const char*>(value));
        };
        g_hash_table_foreach(attributes, keep, &texts);
        seen.emplace_back(label);
        for (const auto& text : texts) {
            seen.back() += ", " + text;
        }
    }
    return seen;
}

inline void runShell(const std::string& command) {
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
}

inline void lockKeyring() {
    runShell("gdbus call --session --dest org.freedesktop.secrets --object-path /org/freedesktop/secrets"
             " --method org.freedesktop.Secret.Service.Lock"
             " \"['/org/freedesktop/secrets/aliases/default']\" >/dev/null");
}

/// Sends a signal to the process that has a name on the bus.
inline void sendSignal(const std::string& signal, const std::string& name) {
    runShell("kill -" + signal +
             " $(gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus"
             " --method org.freedesktop.DBus.GetConnectionUnixProcessID " +
             name + " | sed 's/.* \\([0-9]*\\),.*/\\1/')");
}

/// Ends the session bus, and returns when it is gone.
inline void endSessionBus() {
    sendSignal("TERM", "org.freedesktop.DBus");
    runShell("while gdbus introspect --session --dest org.freedesktop.DBus --object-path / >/dev/null 2>&1;"
             " do sleep 0.01; done");
}

/// Runs what GLib has for the event loop.
inline void runEventLoop() {
    while (g_main_context_iteration(nullptr, FALSE)) {
    }
}

/// The value of an environment variable; empty when there is none.
inline std::string environment(const char* name) {
    const char* value = g_getenv(name);
    return value ? value : "";
}

/// While it lives, the keyring's question for a password gets no answer, or is refused at once.
class Prompter {
public:
    enum class Answer { kNone, kRefused };

    explicit Prompter(Answer answer) {
        // Calls are taken here, before GDBus would answer them.
        g_dbus_connection_add_filter(m_bus, answer == Answer::kRefused ? &refuse : &drop, nullptr, nullptr);
        g_variant_unref(g_dbus_connection_call_sync(
            m_bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
            g_variant_new("(su)", "org.gnome.keyring.SystemPrompter", 4U), nullptr, G_DBUS_CALL_FLAGS_NONE,
            -1, nullptr, nullptr));
    }
    Prompter(const Prompter&) = delete;
    Prompter& operator=(const Prompter&) = delete;
    ~Prompter() { g_object_unref(m_bus); }

    inline static std::atomic<int> refusals = 0; ///< so far

private:
    static bool isCall(GDBusMessage* message, gboolean isIncoming) {
        return isIncoming && g_dbus_message_get_message_type(message) == G_DBUS_MESSAGE_TYPE_METHOD_CALL;
    }
    static GDBusMessage* drop(GDBusConnection*, GDBusMessage* message, gboolean isIncoming, gpointer) {
        if (!isCall(message, isIncoming)) {
            return message;
        }
        g_object_unref(message);
        return nullptr;
    }
    static void send(GDBusConnection* bus, GDBusMessage* message) {
        g_dbus_connection_send_message(bus, message, G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
        g_object_unref(message);
    }
    /// A person who presses "Cancel": a question that begins is asked for, and answered by "no".
    static GDBusMessage* refuse(GDBusConnection* bus, GDBusMessage* message, gboolean isIncoming,
                                gpointer data) {
        if (isCall(message, isIncoming)) {
            send(bus, g_dbus_message_new_method_reply(message));
            const std::string method = g_dbus_message_get_member(message);
            g_autoptr(GVariant) question = g_variant_get_child_value(g_dbus_message_get_body(message), 0);
            const bool isOver = method == "StopPrompting";
            refusals += method == "PerformPrompt" ? 1 : 0;
            GDBusMessage* answer = g_dbus_message_new_method_call(
                g_dbus_message_get_sender(message), g_variant_get_string(question, nullptr),
                "org.gnome.keyring.internal.Prompter.Callback", isOver ? "PromptDone" : "PromptReady");
            if (!isOver) {
                g_dbus_message_set_body(
                    answer, g_variant_new("(sa{sv}s)", method == "PerformPrompt" ? "no" : "", nullptr, ""));
            }
            send(bus, answer);
        }
        return drop(bus, message, isIncoming, data);
    }

    GDBusConnection* m_bus = g_dbus_connection_new_for_address_sync(
        g_getenv("DBUS_SESSION_BUS_ADDRESS"),
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
        nullptr, nullptr, nullptr);
};

} // namespace xbr::host::test
