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

void endSessionBus() {
    GDBusConnection* bus = ownConnection();
    GVariant* answer = g_dbus_connection_call_sync(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                                                   "org.freedesktop.DBus", "GetConnectionUnixProcessID",
                                                   g_variant_new("(s)", "org.freedesktop.DBus"), nullptr,
                                                   G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr);
    guint32 process = 0;
    g_variant_get(answer, "(u)", &process);
    g_variant_unref(answer);
    ::kill(static_cast<pid_t>(process), SIGTERM);
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
