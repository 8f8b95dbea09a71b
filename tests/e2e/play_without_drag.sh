# Sourced by play_game.sh when E2E_PLAY is "click" or "keys": plays the board
# without a single drag, with the state hook's "move", "place", "layout"
# and "picked" lines. Uses play_game.sh's state, fail, shot and press_key.

# Waits until the hook reports `picked <piece>` (-1: nothing picked).
wait_picked() {
    local want=$1 deadline=$((SECONDS + 5))
    while ((SECONDS < deadline)); do
        [[ $(state | awk '$1 == "picked" { print $2 }') == "$want" ]] && return 0
        sleep 0.1
    done
    fail "expected picked piece $want"
}

# Every piece: a click on it, then a click on its cell.
play_by_click() {
    local move fx fy tx ty first=1
    echo "placing ${#moves[@]} pieces with clicks"
    for move in "${moves[@]}"; do
        read -r fx fy tx ty <<<"$move"
        xdotool mousemove --sync "$fx" "$fy" click 1
        if ((first)); then
            wait_picked "$(state | awk '$1 == "place" { print $2; exit }')"
            shot picked-by-click
            first=0
        fi
        xdotool mousemove --sync "$tx" "$ty" click 1
        sleep 0.2
    done
}

# Arrow keys from one index to another in a grid `columns` wide; going up
# first when the target row is higher, so no step leaves the tray's short
# last row sideways.
route() {
    local from=$1 to=$2 columns=$3
    local r1=$((from / columns)) c1=$((from % columns)) r2=$((to / columns)) c2=$((to % columns))
    local vertical=() horizontal=() i
    for ((i = r1; i > r2; i--)); do vertical+=(Up); done
    for ((i = r1; i < r2; i++)); do vertical+=(Down); done
    for ((i = c1; i > c2; i--)); do horizontal+=(Left); done
    for ((i = c1; i < c2; i++)); do horizontal+=(Right); done
    if ((r2 < r1)); then
        echo "${vertical[@]}" "${horizontal[@]}"
    else
        echo "${horizontal[@]}" "${vertical[@]}"
    fi
}

# Every piece: walk the tray to it, Return picks it, Tab to the grid, walk
# to its cell, space puts it down, shift+Tab back to the tray.
play_by_keys() {
    local n columns place piece cell slot=0 at=0 first=1
    read -r n columns < <(state | awk '$1 == "layout" { print $2, $3 }')
    [[ -n $columns ]] || fail "the board reported no layout"
    mapfile -t places < <(state | awk '$1 == "place" { print $2, $3 }')
    echo "placing ${#places[@]} pieces with the keyboard"
    press_key Tab  # the first key only shows the ring, on the tray's first slot
    for place in "${places[@]}"; do
        read -r piece cell <<<"$place"
        # shellcheck disable=SC2046
        press_key $(route "$slot" "$piece" "$columns") Return
        wait_picked "$piece"
        # shellcheck disable=SC2046
        press_key Tab $(route "$at" "$cell" "$n")
        if ((first)); then
            shot picked-by-keys
            first=0
        fi
        press_key space
        wait_picked -1
        press_key shift+Tab
        slot=$piece
        at=$cell
    done
}
