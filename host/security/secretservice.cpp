#include "host/security/secretservice.h"

#include <libsecret/secret.h>

#include <memory>
#include <utility>

namespace xbr::host {

namespace {

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

/// Whether there is nobody to ask, rather than somebody who does not answer.
bool isNoStore(const GError& error) {
    return g_error_matches(&error, G_DBUS_ERROR, G_DBUS_ERROR_SERVICE_UNKNOWN) ||
           g_error_matches(&error, G_DBUS_ERROR, G_DBUS_ERROR_NAME_HAS_NO_OWNER) ||
           g_error_matches(&error, G_DBUS_ERROR, G_DBUS_ERROR_SPAWN_SERVICE_NOT_FOUND) ||
           g_error_matches(&error, G_DBUS_ERROR, G_DBUS_ERROR_SPAWN_EXEC_FAILED);
}

StoreResult failureOf(const Error& error) {
    // No error, yet not done: a question to the user was dismissed.
    if (!error || g_error_matches(error.get(), SECRET_ERROR, SECRET_ERROR_IS_LOCKED)) {
        return StoreResult::kLocked;
    }
    return isNoStore(*error) ? StoreResult::kNoStore : StoreResult::kSilent;
}

/// The methods of SecretService with which questions to the user are shown.
decltype(SecretServiceClass::prompt_sync) g_prompt = nullptr;
decltype(SecretServiceClass::prompt_async) g_beginPrompt = nullptr;
decltype(SecretServiceClass::prompt_finish) g_endPrompt = nullptr;

GVariant* prompt(SecretService* self, SecretPrompt* question, GCancellable* cancellable,
                 const GVariantType* type, GError** error) {
    StoreCall::current().setAsking(true);
    GVariant* answer = g_prompt(self, question, cancellable, type, error);
    StoreCall::current().setAsking(false);
    return answer;
}

void beginPrompt(SecretService* self, SecretPrompt* question, const GVariantType* type,
                 GCancellable* cancellable, GAsyncReadyCallback callback, gpointer data) {
    StoreCall::current().setAsking(true);
    g_beginPrompt(self, question, type, cancellable, callback, data);
}

GVariant* endPrompt(SecretService* self, GAsyncResult* result, GError** error) {
    StoreCall::current().setAsking(false);
    return g_endPrompt(self, result, error);
}

/// A service that tells the call when the user is asked: that may take as long as it takes.
GType serviceType() {
    static const GType kType = g_type_register_static_simple(
        SECRET_TYPE_SERVICE, "XbrSecretService", sizeof(SecretServiceClass),
        [](gpointer type, gpointer) {
            auto* methods = static_cast<SecretServiceClass*>(type);
            g_prompt = std::exchange(methods->prompt_sync, &prompt);
            g_beginPrompt = std::exchange(methods->prompt_async, &beginPrompt);
            g_endPrompt = std::exchange(methods->prompt_finish, &endPrompt);
        },
        sizeof(SecretService), nullptr, G_TYPE_FLAG_NONE);
    return kType;
}

/// Null when there is none.
Connection sessionBus(GCancellable* cancellable) {
    Connection bus(hasSessionBus() ? g_bus_get_sync(G_BUS_TYPE_SESSION, cancellable, nullptr) : nullptr);
    if (bus) { // the default would end this program when the bus ends
        g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    }
    return bus;
}

/// Opens the service for one operation. Nothing is kept between operations, so that a service that was
/// restarted or came late is found, and nothing is left to clean up at the end.
StoreResult openService(StoreCall& call, Service& service) {
    const Connection bus = sessionBus(call.cancellable()); // which libsecret shares, as long as it is held
    if (!bus) {
        return StoreResult::kNoStore;
    }
    GError* raw = nullptr;
    service.reset(secret_service_open_sync(serviceType(), nullptr, SECRET_SERVICE_OPEN_SESSION,
                                           call.cancellable(), &raw));
    const Error error(raw);
    return service ? StoreResult::kDone : failureOf(error);
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

StoreResult connectToBus(StoreCall& call) {
    return sessionBus(call.cancellable()) ? StoreResult::kDone : StoreResult::kNoStore;
}

StoreResult storeSecret(StoreCall& call, std::string_view target, std::string_view userName,
                        std::string_view password, std::string_view note) {
    Service service;
    if (const StoreResult opened = openService(call, service); opened != StoreResult::kDone) {
        return opened;
    }
    const Attributes attributes = attributesOf(target);
    addAttribute(attributes, "user", userName);
    const SecretText secret(
        secret_value_new(password.data(), static_cast<gssize>(password.size()), "text/plain"));
    GError* raw = nullptr;
    const bool done =
        secret_service_store_sync(service.get(), &schema(), attributes.get(), SECRET_COLLECTION_DEFAULT,
                                  labelOf(target, note).c_str(), secret.get(), call.cancellable(), &raw) != 0;
    const Error error(raw);
    return done ? StoreResult::kDone : failureOf(error);
}

StoreResult findSecret(StoreCall& call, std::string_view target, FoundSecret& found) {
    Service service;
    if (const StoreResult opened = openService(call, service); opened != StoreResult::kDone) {
        return opened;
    }
    Items items;
    if (const StoreResult result = searchItems(service.get(), target, items, call.cancellable());
        result != StoreResult::kDone) {
        return result;
    }
    SecretItem* item = lastModified(items);
    const SecretText value(secret_item_get_secret(item));
    if (!value) {
        return StoreResult::kLocked;
    }
    gsize length = 0;
    const char* password = secret_value_get(value.get(), &length);
    found.userName = userNameOf(item);
    found.password.assign(password, length);
    return StoreResult::kDone;
}

StoreResult removeSecrets(StoreCall& call, std::string_view target) {
    Service service;
    if (const StoreResult opened = openService(call, service); opened != StoreResult::kDone) {
        return opened;
    }
    Items items;
    StoreResult result = searchItems(service.get(), target, items, call.cancellable());
    for (const GList* node = items.get(); node; node = node->next) {
        GError* raw = nullptr;
        const bool removed = secret_item_delete_sync(itemOf(node), call.cancellable(), &raw) != 0;
        const Error error(raw);
        if (!removed) {
            // The others are removed all the same: fewer secrets left behind.
            result = failureOf(error);
        }
    }
    return result;
}

} // namespace xbr::host
