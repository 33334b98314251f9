#include "tests/host/security/keyringprobe.h"

#include <libsecret/secret.h>

#include <atomic>
#include <csignal>

namespace xbr::host::test {

namespace {

std::atomic<int> g_refusals = 0;

SeenItem look(SecretItem* item) {
    SeenItem seen;
    char* label = secret_item_get_label(item);
    seen.label = label;
    g_free(label);
    GHashTable* attributes = secret_item_get_attributes(item);
    GHashTableIter at;
    g_hash_table_iter_init(&at, attributes);
    gpointer name = nullptr;
    gpointer value = nullptr;
    while (g_hash_table_iter_next(&at, &name, &value)) {
        seen.attributes[static_cast<const char*>(name)] = static_cast<const char*>(value);
    }
    g_hash_table_unref(attributes);
    return seen;
}

/// A connection that does not end this program with the bus.
GDBusConnection* ownConnection() {
    const auto flags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                         G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    return g_dbus_connection_new_for_address_sync(g_getenv("DBUS_SESSION_BUS_ADDRESS"), flags, nullptr,
                                                  nullptr, nullptr);
}

GVariant* callBus(GDBusConnection* bus, const char* method, GVariant* arguments) {
    return g_dbus_connection_call_sync(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                                       "org.freedesktop.DBus", method, arguments, nullptr,
                                       G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr);
}

pid_t processOf(GDBusConnection* bus, const char* name) {
    GVariant* answer = callBus(bus, "GetConnectionUnixProcessID", g_variant_new("(s)", name));
    guint32 process = 0;
    g_variant_get(answer, "(u)", &process);
    g_variant_unref(answer);
    return static_cast<pid_t>(process);
}

GDBusMessage* dropCall(GDBusConnection*, GDBusMessage* message, gboolean incoming, gpointer) {
    if (!incoming || g_dbus_message_get_message_type(message) != G_DBUS_MESSAGE_TYPE_METHOD_CALL) {
        return message;
    }
    g_object_unref(message);
    return nullptr;
}

void sendAndForget(GDBusConnection* bus, GDBusMessage* message) {
    g_dbus_connection_send_message(bus, message, G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
    g_object_unref(message);
}

/// A person who presses "Cancel": a question that begins is asked for, and answered by "no".
GDBusMessage* refusePrompt(GDBusConnection* bus, GDBusMessage* message, gboolean incoming, gpointer data) {
    if (incoming && g_dbus_message_get_message_type(message) == G_DBUS_MESSAGE_TYPE_METHOD_CALL) {
        sendAndForget(bus, g_dbus_message_new_method_reply(message));
        const std::string method = g_dbus_message_get_member(message);
        GVariant* question = g_variant_get_child_value(g_dbus_message_get_body(message), 0);
        const bool isOver = method == "StopPrompting";
        g_refusals += method == "PerformPrompt" ? 1 : 0;
        GDBusMessage* answer = g_dbus_message_new_method_call(
            g_dbus_message_get_sender(message), g_variant_get_string(question, nullptr),
            "org.gnome.keyring.internal.Prompter.Callback", isOver ? "PromptDone" : "PromptReady");
        g_variant_unref(question);
        if (!isOver) {
            g_dbus_message_set_body(
                answer, g_variant_new("(sa{sv}s)", method == "PerformPrompt" ? "no" : "", nullptr, ""));
        }
        sendAndForget(bus, answer);
    }
    return dropCall(bus, message, incoming, data);
}

} // namespace

std::vector<SeenItem> itemsOf(const std::string& target) {
    SecretService* service =
        secret_service_open_sync(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION, nullptr, nullptr);
    GHashTable* attributes = g_hash_table_new(&g_str_hash, &g_str_equal);
    std::string key = "target";
    std::string value = target;
    g_hash_table_insert(attributes, key.data(), value.data());
    GList* items =
        secret_service_search_sync(service, nullptr, attributes, SECRET_SEARCH_ALL, nullptr, nullptr);
    std::vector<SeenItem> seen;
    for (GList* node = items; node; node = node->next) {
        seen.push_back(look(SECRET_ITEM(node->data)));
    }
    g_list_free_full(items, g_object_unref);
    g_hash_table_unref(attributes);
    g_object_unref(service);
    return seen;
}

void lockKeyring() {
    GDBusConnection* bus = ownConnection();
    GVariant* answer = g_dbus_connection_call_sync(
        bus, "org.freedesktop.secrets", "/org/freedesktop/secrets", "org.freedesktop.Secret.Service", "Lock",
        g_variant_new_parsed("([objectpath '/org/freedesktop/secrets/aliases/default'],)"), nullptr,
        G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr);
    g_variant_unref(answer);
    g_object_unref(bus);
}

void stopKeyring(bool isStopped) {
    GDBusConnection* bus = ownConnection();
    ::kill(processOf(bus, "org.freedesktop.secrets"), isStopped ? SIGSTOP : SIGCONT);
    g_object_unref(bus);
}

Prompter::Prompter(Answer answer) : m_bus(ownConnection()) {
    auto* bus = static_cast<GDBusConnection*>(m_bus);
    // Calls are taken here, before GDBus would answer them.
    g_dbus_connection_add_filter(bus, answer == Answer::kRefused ? &refusePrompt : &dropCall, nullptr,
                                 nullptr);
    g_variant_unref(
        callBus(bus, "RequestName", g_variant_new("(su)", "org.gnome.keyring.SystemPrompter", 4U)));
}

int Prompter::refusals() {
    return g_refusals;
}

Prompter::~Prompter() {
    g_object_unref(m_bus);
}

void endSessionBus() {
    GDBusConnection* bus = ownConnection();
    ::kill(processOf(bus, "org.freedesktop.DBus"), SIGTERM);
    while (!g_dbus_connection_is_closed(bus)) {
        g_usleep(10'000);
    }
    g_object_unref(bus);
}

void runEventLoop() {
    while (g_main_context_iteration(nullptr, FALSE)) {
    }
}

std::string environment(const char* name) {
    const char* value = g_getenv(name);
    return value ? value : "";
}

void setEnvironment(const char* name, const char* value) {
    value ? static_cast<void>(g_setenv(name, value, TRUE)) : g_unsetenv(name);
}

} // namespace xbr::host::test
