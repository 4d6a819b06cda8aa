#!/usr/bin/env bash
# UnderXvfb.sh <program> <argument>...
# Runs the program on a display of its own that exists in memory alone, and returns its exit code.
set -eu

numbers=$(mktemp -d)
trap 'kill "$server" 2>/dev/null || true; rm -rf "$numbers"' EXIT
mkfifo "$numbers/display"
Xvfb -displayfd 3 -screen 0 "${KORVEX_DISPLAY_SIZE:-1440x900}x24" -dpi 96 -nolisten tcp 3>"$numbers/display" 2>"$numbers/log" &
server=$!
if ! read -r -t 20 display <"$numbers/display"; then
    cat "$numbers/log" >&2
    echo "Xvfb did not start." >&2
    exit 1
fi
status=0
DISPLAY=":$display" QT_QPA_PLATFORM=xcb "$@" || status=$?
exit "$status"
