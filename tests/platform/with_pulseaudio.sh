#!/bin/bash
# Runs a program beside a PulseAudio server of its own, playing into a null
# sink, for the tests of sound against a real audio server. The program finds
# the server's process id in PIMBALO_TEST_PULSE_PID (to stop and resume it).
#
#   with_pulseaudio.sh <program> [arguments...]
set -euo pipefail

if ! command -v pulseaudio >/dev/null || ! command -v pactl >/dev/null; then
    echo "SKIP: PulseAudio is not installed"
    exit 77
fi

runtime=$(mktemp -d)
chmod 700 "$runtime"
export XDG_RUNTIME_DIR=$runtime
pulse_pid=""
cleanup() {
    if [[ -n $pulse_pid ]]; then
        kill -CONT "$pulse_pid" 2>/dev/null || true
        kill "$pulse_pid" 2>/dev/null || true
        wait "$pulse_pid" 2>/dev/null || true
    fi
    rm -rf "$runtime"
}
trap cleanup EXIT

# As root it warns that it should not run so, and runs.
pulseaudio --daemonize=no --system=false --exit-idle-time=-1 -n \
    --load=module-native-protocol-unix --load="module-null-sink sink_name=nul" \
    --load=module-always-sink >"$runtime/pulseaudio.log" 2>&1 &
pulse_pid=$!
for _ in $(seq 100); do
    pactl info >/dev/null 2>&1 && break
    kill -0 "$pulse_pid" 2>/dev/null || break
    sleep 0.1
done
if ! pactl info >/dev/null 2>&1; then
    cat "$runtime/pulseaudio.log"
    echo "FAIL: PulseAudio did not start"
    exit 1
fi
pactl set-default-sink nul

PIMBALO_TEST_PULSE_PID=$pulse_pid "$@"
