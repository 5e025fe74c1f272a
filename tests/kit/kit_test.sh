#!/usr/bin/env bash
# kit_test.sh ZIP - what a Windows developer does with the download, checked:
#   1. the zip holds the documented layout, and its name, the header and the
#      DLL's version resource agree on the version;
#   2. the example host builds against the unpacked package with its own
#      CMake file (find_package(Morvix)), for x64 and x86 with mingw-w64,
#      and the x64 host runs under Wine with the expected output;
#   3. the Microsoft-format import libraries name every export, and a host
#      compiled by clang for the Microsoft ABI links against them with
#      lld-link (x64 and x86) and runs under Wine (x64);
#   4. the package's mxrun.exe --check reports what the native check does.
# Runs inside `./mx test` with its Wine prefix and display already set up.
set -euo pipefail
zip=$(realpath "$1")
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
work=$(dirname "$zip")/kit-test
wine=${MX_WINE:-/usr/lib/wine/wine64}
failures=0
fail() { echo "kit: FAILED: $*" >&2; failures=$((failures + 1)); }

rm -rf "$work"
mkdir -p "$work"
unzip -q "$zip" -d "$work"
name=$(basename "$zip" .zip)
pkg=$work/$name
version=${name#morvix-}
version=${version%-win}

# 1. Layout and version.
for f in include/morvix.h bin/x64/morvix32w.dll bin/x64/mxrun.exe bin/x86/morvix32w.dll \
    lib/x64/libmorvix32w.dll.a lib/x64/morvix32w.lib lib/x86/libmorvix32w.dll.a \
    lib/x86/morvix32w.lib lib/cmake/Morvix/MorvixConfig.cmake \
    lib/cmake/Morvix/MorvixConfigVersion.cmake examples/host/host.c \
    examples/host/CMakeLists.txt examples/host/greet.mac examples/hello.mac \
    docs/embedding.md docs/guide.md editors/morvix.tmLanguage.json \
    cmake/mingw-x86_64.cmake cmake/mingw-i686.cmake README.md; do
    [ -f "$pkg/$f" ] || fail "the package has no $f"
done
header_version=$(sed -n 's/^#define MORVIX_VERSION_\(MAJOR\|MINOR\|PATCH\|BUILD\) \([0-9]*\)$/\2/p' \
    "$pkg/include/morvix.h" | paste -sd.)
[ "$header_version" = "$version" ] || fail "zip name says $version, header says $header_version"

# 2. The example host, built the way its CMakeLists.txt tells a developer.
for arch in x64:mingw-x86_64 x86:mingw-i686; do
    dir=$work/host-${arch%%:*}
    if ! cmake -S "$pkg/examples/host" -B "$dir" -DCMAKE_PREFIX_PATH="$pkg" \
        -DCMAKE_TOOLCHAIN_FILE="$pkg/cmake/${arch#*:}.cmake" -DCMAKE_BUILD_TYPE=Release \
        >"$dir.log" 2>&1 || ! cmake --build "$dir" >>"$dir.log" 2>&1; then
        cat "$dir.log" >&2
        fail "the example host does not build for ${arch%%:*}"
    fi
done
if [ -f "$work/host-x64/morvix_host.exe" ]; then
    sed "s/@VERSION@/$version/g" "$here/host_expected.txt" >"$work/host_expected.txt"
    status=0
    (cd "$work/host-x64" && "$wine" morvix_host.exe) | tr -d '\r' >"$work/host_output.txt" || status=$?
    [ "$status" = 0 ] || fail "the example host exits with $status"
    diff -u "$work/host_expected.txt" "$work/host_output.txt" >&2 ||
        fail "the example host's output differs"
fi

# 3. The Microsoft-format import libraries.
exports=$(sed -n '/^EXPORTS/,$p' "$root/interface/morvix32w.def" | tail -n +2 | sed -n 's/^ *\([A-Za-z_][A-Za-z0-9_]*\).*/\1/p')
symbols64=$(llvm-nm "$pkg/lib/x64/morvix32w.lib" 2>/dev/null)
symbols32=$(llvm-nm "$pkg/lib/x86/morvix32w.lib" 2>/dev/null)
for e in $exports; do
    grep -qx ".* __imp_$e" <<<"$symbols64" || fail "x64 morvix32w.lib lacks $e"
    grep -qE "^.* __imp__$e@[0-9]+$" <<<"$symbols32" || fail "x86 morvix32w.lib lacks _$e@N"
done
for target in x86_64:x64:x64 i686:x86:x86; do
    IFS=: read -r cpu arch machine <<<"$target"
    exe=$work/msvc_host_$arch.exe
    if ! clang --target="$cpu-pc-windows-msvc" -O1 -c "$here/msvc_host.c" -o "$work/msvc_host_$arch.obj" \
        "-DEXPECTED_VERSION=u\"$version\"" ||
        ! lld-link /nologo /nodefaultlib /entry:start /subsystem:console "/machine:$machine" \
            "/out:$exe" "$work/msvc_host_$arch.obj" "$pkg/lib/$arch/morvix32w.lib"; then
        fail "a Microsoft-ABI host does not link against $arch/morvix32w.lib"
        continue
    fi
    # The import must name the undecorated export the DLL has.
    llvm-readobj --coff-imports "$exe" | grep -q "Symbol: Morvix_GetVersion" ||
        fail "$arch host imports no undecorated Morvix_GetVersion"
done
if [ -f "$work/msvc_host_x64.exe" ]; then
    cp "$pkg/bin/x64/morvix32w.dll" "$work/"
    status=0
    (cd "$work" && "$wine" msvc_host_x64.exe) || status=$?
    [ "$status" = 0 ] || fail "the Microsoft-ABI host exits with $status"
fi

# 4. mxrun.exe --check from the package: the same errors as the native host.
"$here/check_cli.sh" "$wine" "$pkg/bin/x64/mxrun.exe" || fail "mxrun.exe --check"

if [ $failures = 0 ]; then echo "kit: the package builds, links and runs" >&2; fi
exit $((failures > 0))
