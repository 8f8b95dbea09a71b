# Sourced by play_game.sh: the same game, played on a real desktop.
#
#   E2E_WM=openbox  a window manager runs in the virtual X server.
#       The framed screens must be centred by their outer size (within 1
#       pixel), the full-size screens and the fastest-times screen must keep
#       their exact places, windows must keep their order whatever is clicked,
#       and closing a window through the window manager must do what the
#       screen's own command does. The game is also started once as on a
#       Wayland desktop and must still run on X11.
#   E2E_SOUND=pulse  a PulseAudio server with a null sink plays the game's
#       sounds; its output is recorded, and the drop, the wrong-grid verdict
#       and the fanfare must each be heard within half a second of the moment
#       the game plays them.
#
# With neither set, every desktop_* function does nothing. The functions use
# play_game.sh's globals and helpers (work, out, game_pid, state, shot...).

desktop_wm=${E2E_WM:-}
desktop_sound=${E2E_SOUND:-}
desktop_pulse_pid=""
desktop_parec_pid=""
desktop_record_start=""  # milliseconds since the epoch of the recording's first sample

desktop_log() {
    echo "[${SECONDS}s] $*"
}

desktop_need() {
    local tool
    for tool in "$@"; do
        if ! command -v "$tool" >/dev/null; then
            echo "SKIP: $tool is not installed"
            exit 77
        fi
    done
}

desktop_stop() {
    if [[ -n $desktop_parec_pid ]] && kill -0 "$desktop_parec_pid" 2>/dev/null; then
        kill -INT "$desktop_parec_pid" 2>/dev/null || true
        wait "$desktop_parec_pid" 2>/dev/null || true
    fi
    desktop_parec_pid=""
    if [[ -n $desktop_pulse_pid ]] && kill -0 "$desktop_pulse_pid" 2>/dev/null; then
        kill "$desktop_pulse_pid" 2>/dev/null || true
        wait "$desktop_pulse_pid" 2>/dev/null || true
    fi
    desktop_pulse_pid=""
}

now_ms() {
    date +%s%3N
}

# Starts the window manager and the audio server; called with the game's
# XDG_RUNTIME_DIR set, before the game starts.
desktop_start() {
    [[ -n $desktop_wm$desktop_sound ]] || return 0
    # Ours go first, then play_game.sh's own clean-up with the same status
    # (without errexit, which would end the shell at a failed status there and
    # leave the X server and window manager running).
    trap 'desktop_status=$?; desktop_stop; set +e; (exit $desktop_status); cleanup' EXIT
    if [[ -n $desktop_wm ]]; then
        desktop_need "$desktop_wm" xprop xwininfo wmctrl
        # A window manager that gives up at once on a busy machine (it could
        # not open the display) gets two more tries.
        local _ try
        : >"$out/wm.log"
        for try in 1 2 3; do
            case $desktop_wm in
                openbox) openbox --sm-disable >>"$out/wm.log" 2>&1 & ;;
                *) fail "unknown window manager $desktop_wm" ;;
            esac
            for _ in $(seq 100); do
                wmctrl -m >/dev/null 2>&1 && break
                sleep 0.1
            done
            wmctrl -m >/dev/null 2>&1 && break
            echo "$desktop_wm did not start (try $try)"
            sleep 1
        done
        wmctrl -m >/dev/null 2>&1 || fail "$desktop_wm did not start"
        echo "window manager: $(wmctrl -m | awk -F': ' '/^Name/ { print $2 }')"
    fi
    if [[ -n $desktop_sound ]]; then
        desktop_need pulseaudio pactl parec sox
        # As root it warns that it should not run so, and runs.
        pulseaudio --daemonize=no --system=false --exit-idle-time=-1 -n \
            --load=module-native-protocol-unix --load="module-null-sink sink_name=nul" \
            --load=module-always-sink >"$out/pulseaudio.log" 2>&1 &
        desktop_pulse_pid=$!
        local _
        for _ in $(seq 100); do
            pactl info >/dev/null 2>&1 && break
            sleep 0.1
        done
        pactl info >/dev/null 2>&1 || fail "PulseAudio did not start"
        pactl set-default-sink nul
        parec --latency-msec=20 -d nul.monitor --file-format=wav "$out/sound.wav" &
        desktop_parec_pid=$!
    fi
}

# --- where windows are --------------------------------------------------------
window_id() {  # decimal X window of a shown screen
    state | awk -v n="$1" '$1 == "window" && $2 == n { print $3 }'
}

# Prints "x y width height" of a window's outer rectangle, frame included.
outer_rect() {
    local id=$1 info extents
    info=$(xwininfo -id "$id")
    extents=$(xprop -id "$id" _NET_FRAME_EXTENTS | awk -F' = ' 'NF > 1 { print $2 }' | tr -d ,)
    [[ -n $extents ]] || extents="0 0 0 0"
    awk -v e="$extents" '
        /Absolute upper-left X/ { x = $NF } /Absolute upper-left Y/ { y = $NF }
        /Width:/ { w = $NF } /Height:/ { h = $NF }
        END { split(e, f, " "); print x - f[1], y - f[3], w + f[1] + f[2], h + f[3] + f[4] }
    ' <<<"$info"
}

# Position of a window in the window manager's stacking order, bottom first.
stack_index() {
    local hex
    hex=$(printf '0x%x' "$1")
    xprop -root _NET_CLIENT_LIST_STACKING | awk -F'# ' '{ print $2 }' | tr -d ' ' | tr , '\n' |
        awk -v w="$hex" '$1 == w { print NR; found = 1 } END { if (!found) print 0 }'
}

expect_above() {  # upper lower
    local upper lower
    upper=$(stack_index "$(window_id "$1")")
    lower=$(stack_index "$(window_id "$2")")
    ((upper > lower && lower > 0)) || fail "$1 (at $upper) is not above $2 (at $lower)"
}

# A framed window is centred again once it has its frame: allow it a moment.
expect_centred() {
    local name=$1 deadline=$((SECONDS + 5)) rect dx dy
    local width height
    read -r width height < <(xdotool getdisplaygeometry)
    while :; do
        rect=($(outer_rect "$(window_id "$name")"))
        dx=$((2 * rect[0] + rect[2] - width))
        dy=$((2 * rect[1] + rect[3] - height))
        ((dx >= -2 && dx <= 2 && dy >= -2 && dy <= 2)) && break
        ((SECONDS < deadline)) || fail "$name is not centred: outer ${rect[*]}"
        sleep 0.1
    done
    echo "centred $name: outer ${rect[*]}, centre off by $((dx / 2)).$((dx % 2 * 5)) x," \
        "$((dy / 2)).$((dy % 2 * 5)) y pixels"
}

expect_rect() {  # name x y width height
    local rect
    rect=$(outer_rect "$(window_id "$1")")
    [[ $rect == "$2 $3 $4 $5" ]] || fail "$1 lies at $rect, not at $2 $3 $4 $5"
    echo "placed $1: outer $rect"
}

# Asks the window manager to close a window, as a player would.
close_by_wm() {  # name how(alt-f4|wmctrl)
    local id
    id=$(window_id "$1")
    [[ -n $id ]] || fail "$1 has no window to close"
    if [[ $2 == alt-f4 ]]; then
        # The key goes to the active window: wait until the window manager
        # has really activated this one (a busy machine can take a while).
        local tries
        for tries in $(seq 30); do
            wmctrl -i -a "$id"
            sleep 0.1
            (($(xdotool getactivewindow 2>/dev/null || echo 0) == id)) && break
        done
        sleep 0.2
        xdotool key --clearmodifiers alt+F4
    else
        wmctrl -i -c "$id"
    fi
    sleep 0.3
}

expect_running() {
    kill -0 "$game_pid" 2>/dev/null || fail "the game ended: $*"
}

# --- checks at the moments play_game.sh reaches --------------------------------
desktop_on_title() {
    desktop_log desktop_on_title
    [[ -n $desktop_wm ]] || return 0
    expect_centred Titlefrm
}

desktop_on_options() {
    desktop_log desktop_on_options
    [[ -n $desktop_wm ]] || return 0
    expect_centred Startplay2
    expect_above Startplay2 Grey
}

desktop_on_rules() {
    desktop_log desktop_on_rules
    [[ -n $desktop_wm ]] || return 0
    local width height
    read -r width height < <(xdotool getdisplaygeometry)
    expect_rect Morvelrules $(((width - 1024) / 2)) $(((height - 768) / 2)) 1024 768
    # Even when the desktop brings the options screen forward, the rules stay
    # on top of it.
    wmctrl -i -a "$(window_id Startplay2)"
    sleep 0.3
    expect_above Morvelrules Startplay2
    expect_above Startplay2 Grey
}

# The rules were left with their "Exit"; now open them again and close them
# through the window manager: the options screen is back, the game goes on.
desktop_after_rules() {
    desktop_log desktop_after_rules
    [[ -n $desktop_wm ]] || return 0
    click_control "$options" 3900 4200 2295 555  # "The Rules"
    wait_screen Morvelrules >/dev/null
    close_by_wm Morvelrules alt-f4
    wait_gone Morvelrules
    expect_running "closing the rules"
    wait_screen Startplay2 >/dev/null
}

# With sound, fill the grid wrongly first (two pictures swapped), so that the
# wrong verdict is heard, then "Start again".
desktop_on_board() {
    desktop_log desktop_on_board
    [[ -n $desktop_sound ]] || return 0
    local -a moves
    mapfile -t moves < <(state | awk '$1 == "move" { print $2, $3, $4, $5, $6 }')
    local i j a b
    for ((i = 0; i < ${#moves[@]}; i++)); do
        for ((j = i + 1; j < ${#moves[@]}; j++)); do
            a=(${moves[i]})
            b=(${moves[j]})
            ((a[4] != b[4])) && break 2
        done
    done
    ((j < ${#moves[@]})) || fail "no two loose pieces with different pictures to swap"
    moves[i]="${a[0]} ${a[1]} ${b[2]} ${b[3]}"
    moves[j]="${b[0]} ${b[1]} ${a[2]} ${a[3]}"
    local move
    for move in "${moves[@]}"; do
        # shellcheck disable=SC2086
        drag $move
    done
    local deadline=$((SECONDS + 5))
    until grep -q 'boink' "$work/e2e_sounds.txt" 2>/dev/null; do
        ((SECONDS < deadline)) || fail "no wrong verdict after a wrongly filled grid"
        sleep 0.1
    done
    sleep 0.6  # the verdict is heard whole
    click_control "$board" 1125 10680 3345 555  # "Start again"
    sleep 0.3                                   # the hook reports the pieces anew
}

# The name box is open over the board: the overlay covers the board's width
# exactly, stays above the board when the board is clicked, and the player
# can go back to the box and type.
desktop_on_name_entry() {
    desktop_log desktop_on_name_entry
    [[ -n $desktop_wm ]] || return 0
    local b
    b=($(outer_rect "$(window_id jigsaw)"))
    expect_rect highscores "${b[0]}" $((b[1] + 1)) "${b[2]}" 280
    xprop -id "$(window_id highscores)" WM_TRANSIENT_FOR |
        grep -qi "$(printf '0x%x' "$(window_id jigsaw)")" ||
        fail "the fastest-times screen does not name its board as its owner"
    local box
    box=$(state | awk '$1 == "textbox" { print $2, $3 }')
    click_control "$board" 300 6540 4905 4155  # the board's rules text
    sleep 0.3
    expect_above highscores jigsaw
    shot board-clicked-under-name-box
    # shellcheck disable=SC2086
    xdotool mousemove $box click 1
    # Off the box again: the game's own script moves the pointer there and
    # waits until it has moved.
    xdotool mousemove_relative 20 20
    local deadline=$((SECONDS + 5))
    until state | grep -q '^textbox '; do
        ((SECONDS < deadline)) || fail "the name box did not take the keyboard again"
        sleep 0.1
    done
}

# On a desktop the name entry is left with Alt+F4 sent to the window itself,
# as where the window manager leaves that key to the game: it is "Continue"
# there, so the game goes on and the name typed reaches highscore.inf.
desktop_continue_by_key() {
    [[ -n $desktop_wm ]] || return 1
    desktop_log desktop_continue_by_key
    xdotool key --window "$(window_id highscores)" alt+F4 || true
    # The window went at the key press, so xdotool may have failed to release
    # the keys: held, they repeat. The game goes on all the same.
    sleep 2
    expect_running "Alt+F4 on the fastest-times screen, held"
    xdotool keyup F4 Alt_L
    sleep 1  # a close request right after the key's repeats counts as one of them
}

# Viewing the fastest times and closing them through the window manager is
# their "Continue": the board stays.
desktop_after_name_entry() {
    desktop_log desktop_after_name_entry
    [[ -n $desktop_wm ]] || return 0
    click_control "$board" 13200 8880 1785 1095  # "Fastest Times"
    wait_screen highscores >/dev/null
    local b
    b=($(outer_rect "$(window_id jigsaw)"))
    expect_rect highscores "${b[0]}" $((b[1] + 1)) "${b[2]}" 280
    shot fastest-times-viewing
    close_by_wm highscores wmctrl
    wait_gone highscores
    expect_running "closing the fastest times"
    wait_screen jigsaw >/dev/null
}

# Starts the game (again) in play_game.sh's work folder; extra environment
# (VAR=value) goes before the program. Used by play_game.sh too.
start_game_again() {
    rm -f "$work/e2e_state.txt"
    (cd "$work" && exec env "$@" "$game_exe") >>"$out/game.log" 2>&1 &
    game_pid=$!
}

expect_game_ends() {  # used by play_game.sh too
    local _
    for _ in $(seq 100); do
        kill -0 "$game_pid" 2>/dev/null || break
        sleep 0.1
    done
    kill -0 "$game_pid" 2>/dev/null && fail "the game did not end: $*"
    wait "$game_pid" || fail "the game ended with status $? ($*)"
    game_pid=""
}

# Ends the recording. The recorder takes a while to start, but stops at once:
# the recording's first sample is timed back from its end.
stop_recording() {
    local end
    end=$(now_ms)
    kill -INT "$desktop_parec_pid" 2>/dev/null || true
    wait "$desktop_parec_pid" 2>/dev/null || true
    desktop_parec_pid=""
    desktop_record_start=$(awk -v e="$end" -v d="$(soxi -D "$out/sound.wav")" \
        'BEGIN { printf "%.0f", e - d * 1000 }')
}

# The peak level, in dBFS, of the recording from `from` milliseconds since the
# epoch for `length` seconds.
peak_db() {
    local from=$1 length=$2 offset
    offset=$(awk -v f="$from" -v s="$desktop_record_start" 'BEGIN { o = (f - s) / 1000; print (o < 0 ? 0 : o) }')
    sox "$out/sound.wav" -n trim "$offset" "$length" stats 2>&1 | awk '/^Pk lev dB/ { print $4 }'
}

expect_heard() {  # label milliseconds-since-the-epoch
    local db
    [[ -n $2 ]] || fail "the game never played the $1 sound"
    db=$(peak_db "$2" 0.5)
    echo "sound $1: peak $db dBFS within 0.5 s"
    awk -v d="$db" 'BEGIN { exit !(d != "-inf" && d + 0 > -30) }' || fail "$1 was not heard"
}

# After the main game ended through its title screen's "Exit": a start as on
# a Wayland desktop closed at once through the window manager, then the
# sound checks of the main game.
desktop_finish() {
    desktop_log desktop_finish
    if [[ -n $desktop_wm ]]; then
        start_game_again -u QT_QPA_PLATFORM WAYLAND_DISPLAY=wayland-e2e XDG_SESSION_TYPE=wayland
        wait_screen Titlefrm >/dev/null
        state | grep -qx 'platform xcb' || fail "on a Wayland desktop the game runs on $(state | awk '$1 == "platform" { print $2 }')"
        expect_centred Titlefrm
        close_by_wm Titlefrm wmctrl
        expect_game_ends "closing the title screen"
    fi
    [[ -n $desktop_sound ]] || return 0
    stop_recording
    local log=$work/e2e_sounds.txt
    cp "$log" "$out/sounds.txt"
    # The drop that filled the grid wrongly, a second before its verdict.
    expect_heard drop "$(awk '/boink/ { print last; exit } /click1/ { last = $2 }' "$log")"
    expect_heard "wrong verdict" "$(awk '/boink/ { print $2; exit }' "$log")"
    expect_heard fanfare "$(awk '/fanf3/ { print $2; exit }' "$log")"
}
