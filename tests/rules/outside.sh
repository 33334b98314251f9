#!/bin/sh
# Builds the extension outside of this build: outside.sh WHAT ROOT [XBRHOST]
#   alone    with a C++ compiler and CMake and nothing else, twice: the bytes are the same, and hardened
#   example  the module of docs/example from an installation of the border; the host tells its name
#   windows  for another system; the library exports what a module exports
set -eu
what=$1
root=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Nothing else can be found then.
mkdir "$work/bin"
for tool in cmake c++ g++ as ld ar ranlib ninja; do
    ln -s "$(command -v $tool)" "$work/bin/"
done
path=$work/bin

build() { # build FOLDER OPTION...: prints what was said when it failed
    folder=$1
    shift
    env -i PATH="$path" HOME="$work" /bin/sh -c 'cmake -G Ninja -B "$@" && cmake --build "$1"' sh \
        "$folder" -DCMAKE_BUILD_TYPE=Release -DCMAKE_UNITY_BUILD=ON "$@" >"$work/log" 2>&1 || {
        cat "$work/log"
        exit 1
    }
}

case $what in
alone)
    for place in short a/longer/place; do
        mkdir -p "$work/$place"
        tar -C "$root" --exclude=./build --exclude=./.git -cf - . | tar -C "$work/$place" -xf -
        touch "$work/$place/resources/gadget.xml" # as another checkout has other times
        build "$work/$place/build" -S "$work/$place" -DXBR_HOST=OFF
    done
    library=build/lib/libbrindlex.so
    cmp "$work/short/$library" "$work/a/longer/place/$library"
    "$root/tests/rules/hardening.sh" Release "$work/short/$library"
    ;;
example)
    build "$work/border" -S "$root" -DXBR_HOST=OFF
    cmake --install "$work/border" --component development --prefix "$work/installed" >/dev/null
    build "$work/example" -S "$root/docs/example" -DCMAKE_PREFIX_PATH="$work/installed"
    XBRHOST_MODULE_PATH=$work/example/greeter.so "$3" --version | grep -x "Greeter"
    ;;
windows)
    path=$PATH
    build "$work/windows" -S "$root" -DXBR_HOST=OFF --toolchain "$root/cmake/windows.cmake"
    exports=$(x86_64-w64-mingw32-objdump -p "$work/windows/bin/libbrindlex.dll" |
        sed -n '/Ordinal\/Name Pointer/,/^$/s/.*\[ *[0-9]*\] //p' | sort | tr '\n' ' ')
    [ "$exports" = "XBRGetClassFactory XBRModuleMain " ] || {
        echo "exported: $exports"
        exit 1
    }
    ;;
esac
