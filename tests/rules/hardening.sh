#!/bin/sh
# Reads in built files whether they are hardened: hardening.sh BUILD_TYPE FILE...
set -eu
type=$1
shift

for file in "$@"; do
    missing=
    need() { # need TEXT NAME: TEXT has to be among what was read
        case $read in
        *"$1"*) ;;
        *) missing="$missing, $2" ;;
        esac
    }
    read=$(readelf -W --file-header --segments --dynamic "$file")
    need "DYN (" "a place that differs each time"
    need GNU_RELRO "tables that cannot be written"
    need BIND_NOW "names that are looked up at the start"
    if [ "$type" != Debug ]; then
        read=$(readelf -W --dyn-syms "$file")
        need __stack_chk_fail "a guarded stack"
        need __glibcxx_assert_fail "the library's assertions"
        # Only where the compiler knows how large a target is: not every library has such a copy.
        case $read in
        *_chk@*) checked=yes ;;
        esac
    fi
    if [ -n "$missing" ]; then
        echo "$file lacks${missing#,}"
        failed=yes
    fi
done
if [ "$type" != Debug ] && [ -z "${checked:-}" ]; then
    echo "none has copies that are checked"
    failed=yes
fi
[ -z "${failed:-}" ]
