#!/bin/bash
# Runs a program on a virtual X server of its own (1280 x 1024 pixels, no
# window manager), for the tests that need real window stacking.
#
#   under_xvfb.sh <program> [arguments...]
set -euo pipefail

if ! command -v Xvfb >/dev/null; then
    echo "SKIP: Xvfb is not installed"
    exit 77
fi

display_file=$(mktemp)
xvfb_pid=""
cleanup() {
    if [[ -n $xvfb_pid ]]; then
        kill "$xvfb_pid" 2>/dev/null || true
        wait "$xvfb_pid" 2>/dev/null || true
    fi
    rm -f "$display_file"
}
trap cleanup EXIT

# Xvfb picks a free display itself and writes its number once it listens.
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -ac 3>"$display_file" 2>/dev/null &
xvfb_pid=$!
for _ in $(seq 100); do
    [[ -s $display_file ]] && break
    kill -0 "$xvfb_pid" 2>/dev/null || { echo "FAIL: Xvfb did not start"; exit 1; }
    sleep 0.1
done
[[ -s $display_file ]] || { echo "FAIL: Xvfb did not answer"; exit 1; }

DISPLAY=":$(head -n 1 "$display_file")" QT_QPA_PLATFORM=xcb "$@"
