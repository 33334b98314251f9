#!/bin/sh
# Runs a command in a D-Bus session of its own with an unlocked GNOME Keyring, in a home folder that is thrown away.
# Nothing of the user's own session is touched.
#
#   with-keyring.sh COMMAND [ARGUMENT ...]
set -eu

home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
mkdir -m 700 "$home/run"
unset DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
export HOME="$home" XDG_DATA_HOME="$home/data" XDG_CONFIG_HOME="$home/config" XDG_CACHE_HOME="$home/cache" \
    XDG_RUNTIME_DIR="$home/run"

# The daemon reads the password of the keyring up to the end of its input. It would outlive the session, so it is
# ended by hand.
dbus-run-session -- sh -c '
    printf test | gnome-keyring-daemon --foreground --unlock --components=secrets >"$HOME/keyring.log" 2>&1 &
    daemon=$!
    trap "kill $daemon; wait" EXIT
    tries=0
    until dbus-send --session --print-reply --dest=org.freedesktop.DBus / org.freedesktop.DBus.NameHasOwner \
        string:org.freedesktop.secrets | grep -q "boolean true"; do
        tries=$((tries + 1))
        if [ $tries -gt 100 ]; then
            cat "$HOME/keyring.log" >&2
            exit 1
        fi
        sleep 0.1
    done
    "$@"' sh "$@"
