#!/bin/bash
# The installed game, played as a player would: from an unrelated folder, as
# a user who is not root, with HOME and XDG_DATA_HOME in a fresh folder.
#
#   play_installed.sh <installed root> <program> <data folder> <state reporter .so>
#                     <play_game.sh> <output folder>
#
# 1. One whole timed game through the end-to-end script; both files must land
#    byte-exact in $XDG_DATA_HOME/pimbalo.
# 2. A second start must read them back: the options screen shows them.
# 3. Nothing under the installed root may change.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../e2e/free_display.sh"

root=$1 program=$2 data=$3 preload=$4 play_game=$5 out=$6
here=$(cd "$(dirname "$0")" && pwd)

for tool in Xvfb xdotool import cmp sha256sum; do
    if ! command -v "$tool" >/dev/null; then
        echo "SKIP: $tool is not installed"
        exit 77
    fi
done

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

# --- a player who is not root ---------------------------------------------------
player_user=pimbalo-player
as_player() { "$@"; }
if [[ $(id -u) == 0 ]]; then
    # Another run may be making the same user at this moment.
    id -u "$player_user" >/dev/null 2>&1 ||
        useradd --no-create-home --shell /usr/sbin/nologin "$player_user" 2>/dev/null ||
        id -u "$player_user" >/dev/null 2>&1 || fail "cannot make the user $player_user"
    as_player() { runuser -u "$player_user" -- "$@"; }
fi

base=$(mktemp -d)
xvfb_pid="" game_pid=""
# runuser passes no signal on: programs run as the player are stopped by
# their own pids, which they write into the player's runtime folder.
own_pid() { cat "$base/runtime/$1.pid" 2>/dev/null; }
cleanup() {
    local status=$? name
    for name in game xvfb; do
        [[ -n $(own_pid $name) ]] && kill "$(own_pid $name)" 2>/dev/null
    done
    [[ -n $game_pid ]] && kill "$game_pid" 2>/dev/null
    [[ -n $xvfb_pid ]] && kill "$xvfb_pid" 2>/dev/null
    wait 2>/dev/null
    rm -rf "$base"
    exit "$status"
}
trap cleanup EXIT
trap 'exit 1' INT TERM

chmod 755 "$base"
mkdir -p "$base"/{home,data,elsewhere/Images,screens,runtime}  # a home folder's own "Images"
chmod 700 "$base/runtime"
if [[ $(id -u) == 0 ]]; then chown -R "$player_user" "$base"/{home,data,elsewhere,screens,runtime}; fi
rm -rf "$out"
mkdir -p "$out"

manifest() { (cd "$root" && find . -printf '%p %y %m %s %T@\n' | sort && find . -type f -print0 |
    sort -z | xargs -0 sha256sum); }
manifest >"$base/before"

# A sanitizer build wants its runtime loaded first; the preloaded reporter is.
player_env=(env ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}verify_asan_link_order=0"
            HOME="$base/home" XDG_DATA_HOME="$base/data" XDG_RUNTIME_DIR="$base/runtime"
            PIMBALO_PROGRAM="$program"
            PIMBALO_PRELOAD="$preload" PIMBALO_START_DIR="$base/elsewhere")

# --- 1. a whole game --------------------------------------------------------------
as_player "${player_env[@]}" bash "$play_game" "$here/launch_installed.sh" "$data" \
    "$base/screens" || fail "the game through the end-to-end script"
cp "$base"/screens/* "$out/"

folder="$base/data/pimbalo"
[[ $(ls "$folder") == $'highscore.inf\nlastgame.inf' ]] ||
    fail "the player's folder holds: $(ls "$folder" | tr '\n' ' ')"
printf '1\r\n1\r\n1\r\n0\r\n' | cmp - "$folder/lastgame.inf" || fail "lastgame.inf differs"
# play_game.sh checked the copy it was given line by line.
cmp "$out/highscore.inf" "$folder/highscore.inf" || fail "highscore.inf differs"
cp "$folder"/*.inf "$base/"

# --- 2. a second start reads them back -------------------------------------------
display=$(free_display 161 230) || fail "no free X display"
as_player sh -c 'echo $$ >"$0"; exec Xvfb "$@"' "$base/runtime/xvfb.pid" \
    "$display" -screen 0 1280x1024x24 -nolisten tcp -ac >"$out/xvfb2.log" 2>&1 &
xvfb_pid=$!
export DISPLAY=$display
for _ in $(seq 100); do
    xdotool getdisplaygeometry >/dev/null 2>&1 && break
    sleep 0.1
done

state="$base/screens/state.txt"
as_player "${player_env[@]}" sh -c 'echo $$ >"$1"; cd "$PIMBALO_START_DIR" &&
    QT_QPA_PLATFORM=xcb PIMBALO_E2E_STATE="$0" LD_PRELOAD="$PIMBALO_PRELOAD" \
    exec "$PIMBALO_PROGRAM"' "$state" "$base/runtime/game.pid" >"$out/game2.log" 2>&1 &
game_pid=$!

# The origin "x y" of a shown screen, once it is shown.
wait_screen() {
    for _ in $(seq 150); do
        local where
        where=$(awk -v n="$1" '$1 == "screen" && $2 == n { print $3, $4 }' "$state" 2>/dev/null)
        [[ -n $where ]] && echo "$where" && return 0
        sleep 0.1
    done
    fail "$1 was not shown on the second start"
}
title=($(wait_screen Titlefrm))
xdotool mousemove --sync $((title[0] + (1560 + 1575 / 2) / 15)) $((title[1] + (7080 + 600 / 2) / 15))
sleep 0.1
xdotool click 1  # "OK"
wait_screen Startplay2 >/dev/null
sleep 0.5
import -window root "$out/second-start-options.png"
for option in "Timers On" "Play Sound" "4x4"; do
    grep -qx "button 1 $option" "$state" || fail "the options screen does not show \"$option\" set"
done
kill "$(own_pid game)"  # closing any other way than a board's "Exit" saves nothing
wait "$game_pid" 2>/dev/null || true
game_pid=""
rm -f "$base/runtime/game.pid"

cmp "$base/lastgame.inf" "$folder/lastgame.inf" && cmp "$base/highscore.inf" "$folder/highscore.inf" ||
    fail "the second start changed the saved files"

# --- 3. the installed tree is as it was ------------------------------------------
manifest >"$base/after"
diff "$base/before" "$base/after" >&2 || fail "files under the installed root changed"
echo "PASS: installed game played, records kept in \$XDG_DATA_HOME/pimbalo and read back"
