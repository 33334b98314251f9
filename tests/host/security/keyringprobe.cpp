#include "tests/host/security/keyringprobe.h"

#include <libsecret/secret.h>

#include <csignal>

namespace xbr::host::test {

namespace {

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

SilentPrompter::SilentPrompter() : m_bus(ownConnection()) {
    auto* bus = static_cast<GDBusConnection*>(m_bus);
    // Calls are dropped, which GDBus would answer.
    g_dbus_connection_add_filter(
        bus,
        [](GDBusConnection*, GDBusMessage* message, gboolean incoming, gpointer) -> GDBusMessage* {
            if (incoming && g_dbus_message_get_message_type(message) == G_DBUS_MESSAGE_TYPE_METHOD_CALL) {
                g_object_unref(message);
                return nullptr;
            }
            return message;
        },
        nullptr, nullptr);
    g_variant_unref(
        callBus(bus, "RequestName", g_variant_new("(su)", "org.gnome.keyring.SystemPrompter", 4U)));
}

SilentPrompter::~SilentPrompter() {
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

std::string environment(const char* name) {
    const char* value = g_getenv(name);
    return value ? value : "";
}

void setEnvironment(const char* name, const char* value) {
    g_setenv(name, value, TRUE);
}

} // namespace xbr::host::test
