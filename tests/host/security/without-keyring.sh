#!/bin/sh
# Runs a command where credentials cannot be stored.
#
#   without-keyring.sh none COMMAND ...   no session bus
#   without-keyring.sh bare COMMAND ...   a session bus without a Secret Service
#   without-keyring.sh deaf COMMAND ...   a session bus whose Secret Service is started and never answers
set -eu

kind=$1
shift
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
mkdir -m 700 "$home/run" "$home/services"
unset DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
export HOME="$home" XDG_RUNTIME_DIR="$home/run"

if [ "$kind" = none ]; then
    "$@"
    exit
fi
if [ "$kind" = deaf ]; then
    printf '[D-BUS Service]\nName=org.freedesktop.secrets\nExec=/bin/sh -c "exec sleep 12 >/dev/null 2>&1"\n' \
        >"$home/services/org.freedesktop.secrets.service"
fi
cat >"$home/bus.conf" <<END
<busconfig><type>session</type><listen>unix:dir=$home/run</listen><servicedir>$home/services</servicedir>
<policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy></busconfig>
END
dbus-run-session --config-file="$home/bus.conf" -- "$@"
