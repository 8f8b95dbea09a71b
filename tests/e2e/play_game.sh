#!/bin/bash
# Plays one whole game of Pimbalo in a virtual X server with real pointer and
# keyboard input, then checks the two files the game wrote, byte for byte.
#
#   play_game.sh <pimbalo_e2e> <game folder> <output folder>
#
# The game runs in a fresh folder holding links to the game folder's Images
# and wav, with a lastgame.inf and highscore.inf of our own. Screenshots of
# every screen, the game's log and the files it wrote go to the output folder.
# pimbalo_e2e is the game plus a hook that writes e2e_state.txt: where each
# shown screen lies and, on a board, which drags solve the puzzle.
#
# E2E_NAME is the name typed for the new record ("Zoe 7" unless set), and the
# game runs with LANGUAGE=$E2E_LANGUAGE when that is set. With E2E_NAME set,
# the game is started a second time to show the record on the board's
# fastest-times screen, read back through the hook.
#
# E2E_PLAY=reader plays the whole game with the keyboard alone, as a player
# who cannot use a mouse and hears a screen reader: not one pointer event.
# Each command is found by Tab, asking AT-SPI (screen_reader.py) which
# control has the focus, and pressed with a key; the AT-SPI trees of the
# options screen and of the board go to the output folder. Run as root, the
# game is played by an ordinary user with a D-Bus session of its own.
#
# E2E_PLAY=boards starts the game the same way, clock on and no records yet,
# and leaves it to board_reader.py, which reads the three boards through
# AT-SPI (trees and the events heard go to the output folder).
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/start_xvfb.sh"

game_exe=$1
game_dir=$2
out=$3
play=${E2E_PLAY:-drag}
reading=false  # the game read through AT-SPI, not one pointer event of ours
[[ $play == reader || $play == boards ]] && reading=true

if $reading && [[ $(id -u) == 0 ]]; then
    # The player may not reach the build folder: the game, its pictures and
    # these scripts are copied to a folder of its own.
    player=pimbalo-player
    id -u "$player" >/dev/null 2>&1 ||
        useradd --system --no-create-home --shell /usr/sbin/nologin "$player" 2>/dev/null ||
        id -u "$player" >/dev/null 2>&1 || {
        echo "SKIP: cannot make the player account $player"
        exit 77
    }
    stage=$(mktemp -d)
    trap 'rm -rf "$stage"' EXIT
    mkdir -p "$stage"/{game,scripts,out,home}
    cp "$game_exe" "$(dirname "$game_exe")"/pimbalo-sound* "$stage/game/" 2>/dev/null || true
    cp -rL "$game_dir/Images" "$game_dir/wav" "$stage/game/"
    cp "$here"/*.sh "$here"/*.py "$stage/scripts/"
    chmod -R a+rX "$stage"
    chown "$player" "$stage/out" "$stage/home"
    status=0
    runuser -u "$player" -- env E2E_PLAY="$play" E2E_WM="${E2E_WM:-openbox}" HOME="$stage/home" \
        TMPDIR=/tmp bash "$stage/scripts/play_game.sh" "$stage/game/$(basename "$game_exe")" \
        "$stage/game" "$stage/out" || status=$?
    mkdir -p "$out"
    rm -f "$out"/*.png "$out"/*.txt
    cp -r "$stage/out/." "$out/"
    exit "$status"
fi

# A real desktop (window manager, audio server) when asked for.
source "$here/desktop.sh"
desktop_need Xvfb xdotool import cmp
if $reading; then
    desktop_need dbus-run-session /usr/bin/python3 "$desktop_wm"
    /usr/bin/python3 -c 'import pyatspi' 2>/dev/null || desktop_need python3-pyatspi
    # No pointer: none of the desktop checks, which click; only its window
    # manager, without which no window gets the keyboard.
    for check in on_title on_options on_rules after_rules on_board on_name_entry \
        after_name_entry finish; do
        eval "desktop_$check() { :; }"
    done
    desktop_continue_by_key() { return 1; }
fi

mkdir -p "$out"
rm -f "$out"/*.png "$out"/*.inf "$out"/game.log
work=$(mktemp -d)
xvfb_pid=""
game_pid=""

cleanup() {
    local status=$?
    if [[ -n $game_pid ]] && kill -0 "$game_pid" 2>/dev/null; then
        kill "$game_pid" 2>/dev/null || true
        wait "$game_pid" 2>/dev/null || true
    fi
    if [[ -n $xvfb_pid ]] && kill -0 "$xvfb_pid" 2>/dev/null; then
        kill "$xvfb_pid" 2>/dev/null || true
        wait "$xvfb_pid" 2>/dev/null || true
    fi
    cp "$work"/*.inf "$out"/ 2>/dev/null || true
    rm -rf "$work"
    exit "$status"
}
trap cleanup EXIT
trap 'exit 1' INT TERM

fail() {
    echo "FAIL: $*" >&2
    [[ -f $work/e2e_state.txt ]] && sed 's/^/  state: /' "$work/e2e_state.txt" >&2
    exit 1
}

# --- a virtual screen of 1280 x 1024 pixels, no window manager -------------
start_xvfb "$out/xvfb.log" || fail "Xvfb did not start"
xdotool getdisplaygeometry >/dev/null 2>&1 || fail "Xvfb did not answer"

# --- the game folder: saved options and records of an earlier game ---------
ln -s "$game_dir/Images" "$work/Images"
ln -s "$game_dir/wav" "$work/wav"
printf '1\r\n0\r\n0\r\n0\r\n' >"$work/lastgame.inf"  # sound on, clock off, 4x4

# 90 lines: for rank r the nine times, then the nine names, tables in the
# order 4x4 levels 1-3, 5x5 levels 1-3, 6x6 levels 1-3.
highscore_text() {  # pairs of "line value" override the empty file
    local -A value=()
    while (($#)); do
        value[$1]=$2
        shift 2
    done
    local line
    for line in $(seq 90); do
        local field=$(((line - 1) % 18))
        if [[ -n ${value[$line]+set} ]]; then
            printf '%s\r\n' "${value[$line]}"
        elif ((field < 9)); then
            printf '0\r\n'
        else
            printf '\r\n'
        fi
    done
}
# 4x4 level 1 rank 1: 9000 s "Slowpoke"; 5x5 level 2 rank 1: 50 s "Max".
highscore_text 1 9000 10 Slowpoke 5 50 14 Max >"$work/highscore.inf"
if [[ $play == boards ]]; then  # sound off, clock on (its ticks are read out)
    printf '0\r\n1\r\n0\r\n0\r\n' >"$work/lastgame.inf"
    rm "$work/highscore.inf"
fi

export XDG_RUNTIME_DIR="$work/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"
desktop_start
start_game() {
    if $reading; then
        # The game on a session bus of its own with the accessibility bus
        # launched, as a desktop session has them; the bus address is left in
        # the work folder for screen_reader.py.
        (cd "$work" && exec dbus-run-session -- bash -c '
            /usr/libexec/at-spi-bus-launcher --launch-immediately &
            echo "$DBUS_SESSION_BUS_ADDRESS" >bus
            exec env QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_QPA_PLATFORM=xcb "$0"' "$game_exe") \
            >>"$out/game.log" 2>&1 &
        game_pid=$!
    else
        start_game_again QT_QPA_PLATFORM=xcb ${E2E_LANGUAGE:+LANGUAGE=$E2E_LANGUAGE}
    fi
}
start_game

# --- reading the hook and acting like a player -------------------------------
state() { cat "$work/e2e_state.txt" 2>/dev/null || true; }

# Prints "x y" of a shown screen's client area once it is shown.
wait_screen() {
    local name=$1 limit=${2:-10}
    local deadline=$((SECONDS + limit))
    while ((SECONDS < deadline)); do
        kill -0 "$game_pid" 2>/dev/null || fail "the game ended while waiting for $name"
        local where
        where=$(state | awk -v n="$name" '$1 == "screen" && $2 == n { print $3, $4 }')
        if [[ -n $where ]]; then
            echo "$where"
            return 0
        fi
        sleep 0.1
    done
    fail "$name was not shown within $limit s"
}

wait_gone() {
    local name=$1 deadline=$((SECONDS + 10))
    while ((SECONDS < deadline)); do
        state | grep -q "^screen $name " || return 0
        sleep 0.1
    done
    fail "$name did not close"
}

# Clicks at a control given in twips (left, top, width, height) on a screen
# whose client area is at origin "x y": the middle, or the indicator of a box.
click_control() {
    local origin=($1) left=$2 top=$3 width=$4 height=$5 where=${6:-middle}
    local x y
    if [[ $where == indicator ]]; then
        x=$((origin[0] + left / 15 + 8))
    else
        x=$((origin[0] + (left + width / 2) / 15))
    fi
    y=$((origin[1] + (top + height / 2) / 15))
    xdotool mousemove --sync "$x" "$y"
    sleep 0.1
    xdotool click 1
    sleep 0.3
}

# --- the keyboard and the screen reader (E2E_PLAY=reader) ---------------------
reader() {
    DBUS_SESSION_BUS_ADDRESS=$(cat "$work/bus") /usr/bin/python3 "$here/screen_reader.py" "$@"
}

press_key() {
    xdotool key --delay 40 "$@"
    sleep 0.15
}

# Moves the focus with `key` (Tab, or an arrow within a group) until the
# screen reader says the control named `name` has it.
focus_on() {
    local name=$1 key=${2:-Tab} i now
    for i in $(seq 30); do
        now=$(reader focused 2>/dev/null | cut -f2)
        [[ $now == "$name" ]] && return 0
        press_key "$key"
    done
    fail "the focus never reached \"$name\" (last on \"$now\")"
}

# A command: in reader mode reached by `move` keys and run with `key`, else
# clicked at its twips rectangle on the screen at `origin`.
#   choose <name> <key> <move> <origin> <left> <top> <width> <height> [indicator]
choose() {
    local name=$1 key=$2 move=$3
    shift 3
    if [[ $play == reader ]]; then
        focus_on "$name" "$move"
        press_key "$key"
    else
        click_control "$@"
    fi
}

shot_number=0
shot() {
    shot_number=$((shot_number + 1))
    sleep 0.4  # let the screen paint
    import -window root "$out/$(printf '%02d' "$shot_number")-$1.png"
}

# A drag with the real pointer, in small steps as a hand would.
drag() {
    local fx=$1 fy=$2 tx=$3 ty=$4 steps=8 i
    xdotool mousemove --sync "$fx" "$fy"
    sleep 0.1
    xdotool mousedown 1
    for i in $(seq 1 $steps); do
        xdotool mousemove "$((fx + (tx - fx) * i / steps))" "$((fy + (ty - fy) * i / steps))"
        sleep 0.03
    done
    sleep 0.1
    xdotool mouseup 1
    sleep 0.2
}

if [[ $play == boards ]]; then
    wait_screen Titlefrm >/dev/null  # the bus address is written by then
    DBUS_SESSION_BUS_ADDRESS=$(cat "$work/bus") /usr/bin/python3 "$here/board_reader.py" \
        "$work" "$out"
    exit 0
fi

# --- the game ------------------------------------------------------------------
title=$(wait_screen Titlefrm)
desktop_on_title
shot title
if [[ $play == reader ]]; then
    first=$(reader focused | cut -f1,2)
    [[ $first == $'push button\tOK' ]] || fail "the title opened with the focus on '$first'"
fi
choose OK Return Tab "$title" 1560 7080 1575 600

options=$(wait_screen Startplay2)
wait_screen Grey >/dev/null
wait_gone Titlefrm
shot options
desktop_on_options
if [[ $play == reader ]]; then
    reader tree --window " " >"$out/atspi-options.txt"
fi
choose "Timers On" space Tab "$options" 360 5100 1575 375 indicator
choose "The Rules" Return Tab "$options" 3900 4200 2295 555

rules=$(wait_screen Morvelrules)
desktop_on_rules
shot rules-4x4
choose "6x6 Board" space Down "$rules" 360 1320 2295 495 indicator
shot rules-6x6
choose Exit Return Tab "$rules" 13560 10920 1695 495
wait_gone Morvelrules
desktop_after_rules

shot options-timers-on
choose 1 Return Tab "$options" 1440 6360 975 855
started=$SECONDS
board=$(wait_screen jigsaw)
wait_gone Startplay2
shot board
desktop_on_board
mapfile -t moves < <(state | awk '$1 == "move" { print $2, $3, $4, $5 }')
((${#moves[@]} > 0)) || fail "the board reported no moves"
[[ $play == reader ]] && reader tree >"$out/atspi-board.txt"
if [[ $play != drag ]]; then  # click, keys or reader: no drags at all
    source "$here/play_without_drag.sh"
    "play_by_${play/reader/keys}"
    moves=()
fi
echo "dragging ${#moves[@]} pieces"
for move in "${moves[@]}"; do
    # shellcheck disable=SC2086
    drag $move
done

# The check runs a second after the last drop; the time qualifies.
scores=$(wait_screen highscores 15)
shot verdict
desktop_on_name_entry
box=$(state | awk '$1 == "textbox" { print $2, $3 }')
[[ -n $box ]] || fail "no name box has the focus"
if [[ $play == reader ]]; then
    # The box has the focus already, the reader says; Enter is "Continue".
    [[ $(reader focused | cut -f1) == text ]] || fail "the name box has not the focus"
else
    xdotool mousemove --sync ${box} click 1
    sleep 0.2
fi
typed=${E2E_NAME:-Zoe 7}
LC_ALL=C.UTF-8 xdotool type --delay 80 "$typed"  # xdotool reads non-ASCII by the locale
sleep 0.5  # the screen copies the name every 100 ms
shot name-typed
solved_within=$((SECONDS - started + 1))
if [[ $play == reader ]]; then
    press_key Return
else
    desktop_continue_by_key || click_control "$scores" 12960 120 1935 495  # "Continue"
fi
wait_gone highscores
shot board-after
desktop_after_name_entry

# On a board Tab goes from the tray to the grid to the commands, where the
# arrows walk them.
if [[ $play == reader ]]; then
    for _ in 1 2 3 4; do
        [[ $(reader focused 2>/dev/null | cut -f1) == "push button" ]] && break
        press_key Tab
    done
    reader tree >"$out/atspi-board-command-focused.txt"
fi
choose Exit Return Down "$board" 13740 10680 1245 555
options=$(wait_screen Startplay2)
wait_gone jigsaw
shot options-again
choose Exit Return Tab "$options" 5280 7500 735 375

title=$(wait_screen Titlefrm)
shot title-cancel
choose Exit Return Tab "$title" 3360 7080 1575 600

expect_game_ends "on the title screen's Exit"

desktop_finish

# --- what the game wrote -------------------------------------------------------
expected=$(mktemp)
printf '1\r\n1\r\n1\r\n0\r\n' >"$expected"  # sound on, clock on, backdrop on, 4x4
cmp "$expected" "$work/lastgame.inf" || fail "lastgame.inf differs"

seconds=$(head -n 1 "$work/highscore.inf" | tr -d '\r')
[[ $seconds =~ ^[0-9]+$ ]] && ((seconds >= 1 && seconds <= solved_within)) ||
    fail "the new time '$seconds' is not between 1 and $solved_within s"
highscore_text 1 "$seconds" 10 "$typed" 19 9000 28 Slowpoke 5 50 14 Max >"$expected"
cmp "$expected" "$work/highscore.inf" || fail "highscore.inf differs"
rm -f "$expected"

if [[ -n ${E2E_NAME:-} ]]; then  # a second start shows the name as typed
    start_game
    title=$(wait_screen Titlefrm)
    shot title-again  # painted, so it takes the click
    click_control "$title" 1560 7080 1575 600  # "OK"
    options=$(wait_screen Startplay2)
    shot options-again
    click_control "$options" 1440 6360 975 855  # level "1"
    board=$(wait_screen jigsaw)
    shot board-again
    click_control "$board" 13200 8880 1785 1095  # "Fastest Times"
    wait_screen highscores >/dev/null
    shot fastest-times-again
    shown=$(state | sed -n 's/^name 0 //p')
    [[ $shown == "$typed" ]] || fail "the fastest-times screen shows '$shown', not '$typed'"
fi
echo "PASS: solved in $seconds s, files as expected; screenshots in $out"
