#!/bin/sh
# Runs a command in a D-Bus session of its own, in a home folder that is thrown away. Nothing of the user's own session is
# touched.
#
#   session.sh keyring COMMAND ...   with an unlocked GNOME Keyring
#   session.sh none COMMAND ...      no session bus
#   session.sh bare COMMAND ...      a session bus without a Secret Service
#   session.sh deaf COMMAND ...      a session bus whose Secret Service is started and never answers
set -eu

kind=$1
shift
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
mkdir -m 700 "$home/run" "$home/services"
unset DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
export HOME="$home" XDG_DATA_HOME="$home/data" XDG_CONFIG_HOME="$home/config" XDG_CACHE_HOME="$home/cache" \
    XDG_RUNTIME_DIR="$home/run"

case $kind in
none)
    "$@"
    exit
    ;;
keyring)
    # The daemon reads the password of the keyring up to the end of its input. It would outlive the session, so it is
    # ended by hand.
    dbus-run-session -- sh -c '
        printf test | gnome-keyring-daemon --foreground --unlock --components=secrets >"$HOME/keyring.log" 2>&1 &
        daemon=$!
        trap "kill $daemon; wait" EXIT
        tries=0
        until gdbus wait --session --timeout 1 org.freedesktop.secrets; do
            tries=$((tries + 1))
            [ $tries -le 10 ] || { cat "$HOME/keyring.log" >&2; exit 1; }
        done
        "$@"' sh "$@"
    exit
    ;;
deaf)
    printf '[D-BUS Service]\nName=org.freedesktop.secrets\nExec=/bin/sh -c "exec sleep 12 >/dev/null 2>&1"\n' \
        >"$home/services/org.freedesktop.secrets.service"
    ;;
esac
cat >"$home/bus.conf" <<END
<busconfig><type>session</type><listen>unix:dir=$home/run</listen><servicedir>$home/services</servicedir>
<policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy></busconfig>
END
dbus-run-session --config-file="$home/bus.conf" -- "$@"
