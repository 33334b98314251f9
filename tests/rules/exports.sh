#!/bin/sh
# The extension exports its two entry points and needs the host's five libraries and the C++ runtime, nothing else.
set -eu
library=$1

exported=$(nm -D --defined-only "$library" | awk '{print $3}' | sort | tr '\n' ' ')
if [ "$exported" != "XBRGetClassFactory XBRModuleMain " ]; then
    echo "exported: $exported"
    exit 1
fi

needed=$(readelf -d "$library" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
for name in $needed; do
    case $name in
    libxbrsystem.so | libxbrtext.so | libxbrgui.so | libxbrnet.so | libxbrsecurity.so) ;;
    libstdc++.so.* | libgcc_s.so.* | libc.so.* | libm.so.* | ld-linux*) ;;
    libasan.so.* | libubsan.so.* | libtsan.so.* | libclang_rt.*) ;; # sanitizer builds
    *)
        echo "needs $name"
        exit 1
        ;;
    esac
done
for name in system text gui net security; do
    case $needed in
    *libxbr$name.so*) ;;
    *)
        echo "does not need libxbr$name.so"
        exit 1
        ;;
    esac
done
