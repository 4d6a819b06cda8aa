#!/usr/bin/env bash
# Makes the pictures of the README: builds the desktop program, opens the sample clip in it on a display in memory,
# draws a track in and writes docs/screenshots/desktop-light.png and desktop-dark.png; then goes once through the online
# search, with the tests' service on this machine, and writes online-search-light.png and online-search-dark.png.
set -eu

cd "$(dirname "$(readlink -f "$0")")/.."
. Packaging/setup.sh
InstallPackages build run test
Configure debug
cmake --build --preset debug --target korvex-portrait korvex-make-sample OnlineWindowTest

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
build/debug/bin/korvex-make-sample "$folder/Evening.mkv"
cp Samples/clip.ru.srt "$folder/evening-walk.srt"
LC_ALL=C.UTF-8 KORVEX_DISPLAY_SIZE=1280x800 Tests/Support/UnderXvfb.sh \
    build/debug/bin/korvex-portrait "$folder/Evening.mkv" "$folder/evening-walk.srt" docs/screenshots
LC_ALL=C.UTF-8 KORVEX_DISPLAY_SIZE=1280x800 KORVEX_SCREENSHOTS=$folder Tests/Support/UnderXvfb.sh \
    build/debug/bin/OnlineWindowTest --gtest_filter='*FromFindFile*Legacy' >"$folder/log"
cp "$folder"/online-search-*.png docs/screenshots/
