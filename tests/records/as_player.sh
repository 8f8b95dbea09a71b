#!/bin/bash
# Runs a test program as an ordinary player rather than root, who may write
# any file: permission checks only mean something for an ordinary user.
#
#   as_player.sh <program> [arguments...]
#
# Run by root (as CI is), it makes the player account "pimbalo-player" when
# there is none yet and runs the program as that user; run by anyone else, it
# runs the program as it is.
set -euo pipefail

if [[ $(id -u) -ne 0 ]]; then
    exec "$@"
fi

player=pimbalo-player
if ! id -u "$player" >/dev/null 2>&1; then
    # Another test run may make the same account at the same moment.
    useradd --system --no-create-home --shell /usr/sbin/nologin "$player" 2>/dev/null ||
        id -u "$player" >/dev/null 2>&1 || {
        echo "SKIP: cannot make the player account $player"
        exit 77
    }
fi

# The player may not reach the build folder (a clone in root's home, say), so
# it runs a copy of the program from a folder of its own, with a copy of the
# leak suppressions the sanitizer build names.
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
program="$stage/$(basename "$1")"
cp "$1" "$program"
shift
if [[ ${LSAN_OPTIONS:-} =~ suppressions=([^:]*) ]]; then
    cp "${BASH_REMATCH[1]}" "$stage/lsan.supp"
    LSAN_OPTIONS=${LSAN_OPTIONS/"${BASH_REMATCH[1]}"/"$stage/lsan.supp"}
fi
chmod -R a+rX "$stage"
# The player's own temporary files, wherever TMPDIR pointed for root.
runuser -u "$player" -- env TMPDIR=/tmp LSAN_OPTIONS="${LSAN_OPTIONS:-}" "$program" "$@"
