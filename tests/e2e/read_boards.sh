#!/bin/bash
# The three boards as a screen reader finds them: the game runs in a virtual
# X server under openbox, with the accessibility bus of a desktop session,
# and board_reader.py reads it through AT-SPI as a screen reader does (with
# the helpers of screen_reader.py).
#
#   read_boards.sh <pimbalo_e2e> <game folder> <output folder>
#
# The output folder gets each board's tree as text (role, name, states and
# actions of every object) and the game's log. Run by root (as CI is), the
# game and the reader run as the ordinary player "pimbalo-player": a desktop
# session belongs to a player, not to root.
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")

if [[ ${1:-} != --inside ]]; then
    game_exe=$(readlink -f "$1")
    game_dir=$(readlink -f "$2")
    out=$3
    for tool in Xvfb openbox xdotool dbus-run-session /usr/libexec/at-spi-bus-launcher; do
        command -v "$tool" >/dev/null || {
            echo "SKIP: $tool is not installed"
            exit 77
        }
    done
    /usr/bin/python3 -c 'import pyatspi' 2>/dev/null || {
        echo "SKIP: python3-pyatspi is not installed"
        exit 77
    }
    # What the player runs lies in a folder of its own: the player may not
    # reach the build folder.
    stage=$(mktemp -d)
    trap 'rm -rf "$stage"' EXIT
    cp "$game_exe" "$stage/pimbalo"
    cp "$(dirname "$game_exe")"/pimbalo-sound*.so "$stage/" 2>/dev/null || true
    cp "$here"/{read_boards.sh,board_reader.py,screen_reader.py,start_xvfb.sh} "$stage/"
    mkdir "$stage/out" "$stage/work"
    ln -s "$game_dir/Images" "$stage/work/Images"
    ln -s "$game_dir/wav" "$stage/work/wav"
    chmod -R a+rX "$stage"
    inside=(dbus-run-session -- bash "$stage/read_boards.sh" --inside "$stage")
    status=0
    if [[ $(id -u) -eq 0 ]]; then
        player=pimbalo-player
        if ! id -u "$player" >/dev/null 2>&1; then
            useradd --system --no-create-home --shell /usr/sbin/nologin "$player" 2>/dev/null ||
                id -u "$player" >/dev/null 2>&1 || {
                echo "SKIP: cannot make the player account $player"
                exit 77
            }
        fi
        chown -R "$player" "$stage/out" "$stage/work"
        runuser -u "$player" -- env -i PATH="$PATH" HOME="$stage/work" "${inside[@]}" || status=$?
    else
        env -u DBUS_SESSION_BUS_ADDRESS "${inside[@]}" || status=$?
    fi
    mkdir -p "$out"
    cp -r "$stage/out/." "$out/"
    exit "$status"
fi

# --- inside the player's desktop session ------------------------------------
stage=$2
work=$stage/work
out=$stage/out
source "$stage/start_xvfb.sh"
pids=()
cleanup() {
    local status=$? pid
    for ((i = ${#pids[@]} - 1; i >= 0; i--)); do
        pid=${pids[i]}
        kill "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    exit "$status"
}
trap cleanup EXIT
trap 'exit 1' INT TERM

export XDG_RUNTIME_DIR=$work/runtime
mkdir -m 700 "$XDG_RUNTIME_DIR"
/usr/libexec/at-spi-bus-launcher --launch-immediately >"$out/at-spi.log" 2>&1 &
pids+=($!)

start_xvfb "$out/xvfb.log" || { echo "FAIL: no X display of our own"; exit 1; }
xvfb=$xvfb_pid
pids+=("$xvfb")
# Keyboard focus needs a window manager.
openbox --sm-disable >"$out/wm.log" 2>&1 &
pids+=($!)

# Sound off, clock on, last board 4x4; no fastest times yet.
printf '0\r\n1\r\n0\r\n0\r\n' >"$work/lastgame.inf"
(cd "$work" && exec env QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 \
    "$stage/pimbalo") >"$out/game.log" 2>&1 &
pids+=($!)

/usr/bin/python3 "$stage/board_reader.py" "$work" "$out"
