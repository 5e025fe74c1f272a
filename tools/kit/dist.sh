#!/usr/bin/env bash
# dist.sh ROOT OUTDIR - packs morvix-VERSION-win.zip from the win64 and win32
# builds (both already built): `cmake --install` of each into one tree, so
# the download is exactly the installed package. Prints the zip's path.
set -euo pipefail
root=$1
out=$2
version_of() { sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$root/build/$1/CMakeCache.txt"; }
version=$(version_of win64)
if [ -z "$version" ] || [ "$version" != "$(version_of win32)" ]; then
    echo "dist: the win64 and win32 builds disagree on the version; rebuild both" >&2
    exit 1
fi
name=morvix-$version-win
stage=$out/stage
rm -rf "$stage"
mkdir -p "$stage/$name"
for build in win64 win32; do
    cmake --install "$root/build/$build" --prefix "$stage/$name" >/dev/null
done
rm -f "$out/$name.zip"
# -X: no extra file attributes, so that the zip depends on the files alone.
(cd "$stage" && zip -qrX "../$name.zip" "$name")
rm -rf "$stage"
echo "$out/$name.zip"
