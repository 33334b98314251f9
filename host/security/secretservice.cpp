#include "host/security/secretservice.h"

#include "host/security/interruptwatch.h"

#include <libsecret/secret.h>

namespace xbr::host {

namespace {

/// How long the service may take for an answer that does not depend on the user. Covers its start by the bus.
constexpr int kPatience = 5'000; // milliseconds

template <auto kFree>
struct Freer {
    template <class T>
    void operator()(T* object) const {
        kFree(object);
    }
};

using Connection = std::unique_ptr<GDBusConnection, Freer<&g_object_unref>>;
using Service = std::unique_ptr<SecretService, Freer<&g_object_unref>>;
using Attributes = std::unique_ptr<GHashTable, Freer<&g_hash_table_unref>>;
using Variant = std::unique_ptr<GVariant, Freer<&g_variant_unref>>;
using Error = std::unique_ptr<GError, Freer<&g_error_free>>;
using SecretText = std::unique_ptr<SecretValue, Freer<&secret_value_unref>>;

struct ItemsFreer {
    void operator()(GList* items) const { g_list_free_full(items, g_object_unref); }
};
using Items = std::unique_ptr<GList, ItemsFreer>;

const SecretSchema& schema() {
    // The name and the attributes are in the keyrings of users: never change them.
    static const SecretSchema kSchema = [] {
        SecretSchema result{};
        result.name = "com.brindlex.host.Credential";
        result.flags = SECRET_SCHEMA_NONE;
        result.attributes[0] = {"target", SECRET_SCHEMA_ATTRIBUTE_STRING};
        result.attributes[1] = {"user", SECRET_SCHEMA_ATTRIBUTE_STRING};
        return result;
    }();
    return kSchema;
}

void addAttribute(const Attributes& attributes, const char* name, std::string_view value) {
    g_hash_table_insert(attributes.get(), const_cast<char*>(name), g_strndup(value.data(), value.size()));
}

Attributes attributesOf(std::string_view target) {
    Attributes attributes(g_hash_table_new_full(&g_str_hash, &g_str_equal, nullptr, &g_free));
    addAttribute(attributes, "target", target);
    return attributes;
}

/// Whether there is a session bus that can be used without starting one. GLib, left alone, would try to
/// launch a bus through the X11 display.
bool hasSessionBus() {
    const char* address = g_getenv("DBUS_SESSION_BUS_ADDRESS");
    if (address && *address) {
        return !g_str_has_prefix(address, "autolaunch:");
    }
    const char* folder = g_getenv("XDG_RUNTIME_DIR");
    return folder && *folder && g_file_test((std::string(folder) + "/bus").c_str(), G_FILE_TEST_EXISTS);
}

Connection connectToBus() {
    if (!hasSessionBus()) {
        return nullptr;
    }
    Connection bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    if (bus) {
        // The default would end this program when the bus ends.
        g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    }
    return bus;
}

/// Whether the service is there and answers in time; the bus starts it when it knows how.
bool isServiceAlive(GDBusConnection* bus, GCancellable* cancellable) {
    const Variant answer(g_dbus_connection_call_sync(
        bus, "org.freedesktop.secrets", "/org/freedesktop/secrets", "org.freedesktop.DBus.Properties", "Get",
        g_variant_new("(ss)", "org.freedesktop.Secret.Service", "Collections"), nullptr,
        G_DBUS_CALL_FLAGS_NONE, kPatience, cancellable, nullptr));
    return answer != nullptr;
}

/// Opens the service for one operation. Nothing is kept between operations, so that a service that was
/// restarted or came late is found, and nothing is left to clean up at the end.
Service openService(GCancellable* cancellable) {
    const Connection bus = connectToBus();
    if (!bus || !isServiceAlive(bus.get(), cancellable)) {
        return nullptr;
    }
    Service service(secret_service_open_sync(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION,
                                             cancellable, nullptr));
    if (service) {
        g_dbus_proxy_set_default_timeout(G_DBUS_PROXY(service.get()), kPatience);
    }
    return service;
}

StoreResult failureOf(const Error& error) {
    // No error, yet not done: a question to the user was dismissed.
    if (!error || g_error_matches(error.get(), SECRET_ERROR, SECRET_ERROR_IS_LOCKED) ||
        g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_CANCELLED)) {
        return StoreResult::kLocked;
    }
    return StoreResult::kFailed;
}

/// All items of a target, unlocked where the user allowed it.
StoreResult searchItems(SecretService* service, std::string_view target, Items& items,
                        GCancellable* cancellable) {
    const Attributes attributes = attributesOf(target);
    const auto flags =
        static_cast<SecretSearchFlags>(SECRET_SEARCH_ALL | SECRET_SEARCH_UNLOCK | SECRET_SEARCH_LOAD_SECRETS);
    GError* raw = nullptr;
    items.reset(secret_service_search_sync(service, &schema(), attributes.get(), flags, cancellable, &raw));
    const Error error(raw);
    if (error) {
        return failureOf(error);
    }
    return items ? StoreResult::kDone : StoreResult::kNothing;
}

SecretItem* itemOf(const GList* node) {
    return SECRET_ITEM(node->data);
}

std::string userNameOf(SecretItem* item) {
    const Attributes attributes(secret_item_get_attributes(item));
    const void* name = attributes ? g_hash_table_lookup(attributes.get(), "user") : nullptr;
    return name ? static_cast<const char*>(name) : std::string();
}

SecretItem* lastModified(const Items& items) {
    SecretItem* last = itemOf(items.get());
    for (const GList* node = items.get(); node; node = node->next) {
        if (secret_item_get_modified(itemOf(node)) > secret_item_get_modified(last)) {
            last = itemOf(node);
        }
    }
    return last;
}

std::string labelOf(std::string_view target, std::string_view note) {
    std::string label(target);
    return note.empty() ? label : label.append(" (").append(note).append(")");
}

} // namespace

bool isAttributeText(std::string_view text) {
    return g_utf8_validate_len(text.data(), text.size(), nullptr) != 0;
}

StoreResult storeSecret(std::string_view target, std::string_view userName, std::string_view password,
                        std::string_view note) {
    const InterruptWatch watch;
    const Service service = openService(watch.cancellable());
    if (!service) {
        return StoreResult::kMissing;
    }
    const Attributes attributes = attributesOf(target);
    addAttribute(attributes, "user", userName);
    const SecretText secret(
        secret_value_new(password.data(), static_cast<gssize>(password.size()), "text/plain"));
    GError* raw = nullptr;
    const bool done = secret_service_store_sync(service.get(), &schema(), attributes.get(),
                                                SECRET_COLLECTION_DEFAULT, labelOf(target, note).c_str(),
                                                secret.get(), watch.cancellable(), &raw) != 0;
    const Error error(raw);
    return done ? StoreResult::kDone : failureOf(error);
}

StoreResult findSecret(std::string_view target, FoundSecret& found) {
    const InterruptWatch watch;
    const Service service = openService(watch.cancellable());
    if (!service) {
        return StoreResult::kMissing;
    }
    Items items;
    if (const StoreResult result = searchItems(service.get(), target, items, watch.cancellable());
        result != StoreResult::kDone) {
        return result;
    }
    SecretItem* item = lastModified(items);
    SecretValue* value = secret_item_get_secret(item);
    if (!value) {
        return StoreResult::kLocked;
    }
    gsize length = 0;
    const char* password = secret_value_get(value, &length);
    found.userName = userNameOf(item);
    found.password = {password, length};
    found.keeper = {value, [](const void* kept) { secret_value_unref(const_cast<void*>(kept)); }};
    return StoreResult::kDone;
}

StoreResult removeSecrets(std::string_view target) {
    const InterruptWatch watch;
    const Service service = openService(watch.cancellable());
    if (!service) {
        return StoreResult::kMissing;
    }
    Items items;
    StoreResult result = searchItems(service.get(), target, items, watch.cancellable());
    for (const GList* node = items.get(); node; node = node->next) {
        GError* raw = nullptr;
        const bool removed = secret_item_delete_sync(itemOf(node), watch.cancellable(), &raw) != 0;
        const Error error(raw);
        if (!removed) {
            // The others are removed all the same: fewer secrets left behind.
            result = failureOf(error);
        }
    }
    return result;
}

} // namespace xbr::host
