#!/bin/bash
# Runs a program on a virtual X server of its own (1280 x 1024 pixels), for
# the tests that need real windows: without a window manager, or with one.
#
#   under_xvfb.sh [--wm openbox] <program> [arguments...]
set -euo pipefail

wm=""
if [[ ${1:-} == --wm ]]; then
    wm=$2
    shift 2
fi
for tool in Xvfb $wm ${wm:+xprop xdotool}; do
    if ! command -v "$tool" >/dev/null; then
        echo "SKIP: $tool is not installed"
        exit 77
    fi
done

display_file=$(mktemp)
xvfb_pid=""
wm_pid=""
cleanup() {
    if [[ -n $wm_pid ]]; then
        kill "$wm_pid" 2>/dev/null || true
        wait "$wm_pid" 2>/dev/null || true
    fi
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

export DISPLAY=":$(head -n 1 "$display_file")"

if [[ -n $wm ]]; then
    "$wm" --sm-disable >/dev/null 2>&1 &
    wm_pid=$!
    for _ in $(seq 100); do
        xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
        kill -0 "$wm_pid" 2>/dev/null || { echo "FAIL: $wm did not start"; exit 1; }
        sleep 0.1
    done
    xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id' || { echo "FAIL: no $wm"; exit 1; }
fi

QT_QPA_PLATFORM=xcb "$@"
