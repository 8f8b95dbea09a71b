#!/usr/bin/env bash
# Start-up benchmark: the bare Qt window and one or more builds of the game,
# started in turn (interleaved, the order rotating every round) under a
# private Xvfb, so that the machine's noise falls on all of them alike.
#
#   bash bench/startup.sh [-n ROUNDS] [GAME ...]
#
# GAME is a game executable beside its Images/ and wav/ folders (default
# build/game/pimbalo); give two to compare builds, e.g. the current one and
# one built by bench/build_commit.sh. Each game run starts in a fresh folder
# with both saved files, clicks "OK" and level "1" with real X input and
# times the board (the board size turns 4x4, 5x5, 6x6 from round to round).
# Prints the medians, the ratio to the bare window and the memory; the raw
# lines are kept in the folder named at the end. The second row, the bare
# window with one line of text, shows what drawing any text costs on top.
# BENCH_DIR names the folder holding startup and bare_window (build/bench).
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../tests/e2e/start_xvfb.sh"
root=$(cd "$(dirname "$0")/.." && pwd)
rounds=15
if [[ ${1:-} == -n ]]; then
    rounds=$2
    shift 2
fi
bench_dir=${BENCH_DIR:-$root/build/bench}
games=()
for exe in "${@:-$root/build/game/pimbalo}"; do
    games+=("$(realpath "$exe")")
done
for exe in "$bench_dir/startup" "$bench_dir/bare_window" "${games[@]}"; do
    [[ -x $exe ]] || { echo "not built: $exe" >&2; exit 1; }
done
command -v Xvfb >/dev/null || { echo "SKIP: Xvfb is not installed" >&2; exit 77; }

# Where the title screen's "OK" and the options screen's level "1" lie, in
# pixels inside their windows (both screens are 434 x 550).
ok_at=156,492
level_at=128,452

out=$(mktemp -d /tmp/pimbalo-startup.XXXXXX)
work=$out/work
mkdir -p "$work"
export XDG_RUNTIME_DIR=$out/runtime
mkdir -m 700 "$XDG_RUNTIME_DIR"
xvfb_pid=""
cleanup() {
    [[ -n $xvfb_pid ]] && kill "$xvfb_pid" 2>/dev/null && wait "$xvfb_pid" 2>/dev/null
    rm -rf "$work" "$XDG_RUNTIME_DIR"
}
trap cleanup EXIT

start_xvfb "$out/xvfb.log" || { echo "Xvfb did not start" >&2; exit 1; }
export QT_QPA_PLATFORM=xcb

# The saved files a returning player has: sound and clock on, some records.
write_saved_files() {  # folder board-size
    printf '1\r\n1\r\n1\r\n%s\r\n' "$2" >"$1/lastgame.inf"
    local line
    for line in $(seq 90); do
        local field=$(((line - 1) % 18))
        if ((field < 9)); then printf '%s\r\n' $((field * 7 + line)); else printf 'Kim\r\n'; fi
    done >"$1/highscore.inf"
}

run_one() {  # index executable round
    local k=$1 exe=$2 round=$3 size=$(($3 % 3)) dir=$work/run
    rm -rf "$dir"
    mkdir -p "$dir"
    if ((k < 2)); then
        local text=()
        ((k == 1)) && text=(--text)
        line=$(cd "$dir" && "$bench_dir/startup" -- "$exe" "${text[@]}" 2>>"$out/program$k.log") ||
            true
    else
        local folder
        for folder in Images wav icons; do  # icons: the window icon, as a real game has it
            [[ -e $(dirname "$exe")/$folder ]] && ln -s "$(dirname "$exe")/$folder" "$dir/$folder"
        done
        write_saved_files "$dir" "$size"
        line=$(cd "$dir" && "$bench_dir/startup" --ok $ok_at --level $level_at -- "$exe" 2>>"$out/program$k.log") || true
    fi
    echo "size=$size $line" >>"$out/program$k.txt"
    if [[ $line != map_ms=* ]]; then
        echo "program $k round $round: ${line:-no answer}" >&2
        failed=1
    fi
}

failed=0
programs=("$bench_dir/bare_window" "$bench_dir/bare_window" "${games[@]}")
count=${#programs[@]}
for round in $(seq 0 $((rounds - 1))); do
    for step in $(seq 0 $((count - 1))); do
        k=$(((step + round) % count))
        run_one "$k" "${programs[$k]}" "$round"
    done
done

# Median of the named field over one program's lines, optionally one size.
median() {  # file field [size]
    awk -v f="$2" -v s="${3:-}" '
        $0 !~ /map_ms=/ { next }
        s != "" && $1 != "size=" s { next }
        { for (i = 1; i <= NF; i++) { split($i, kv, "="); if (kv[1] == f) print kv[2] } }' "$1" |
        sort -n | awk '{ v[NR] = $1 } END {
            if (NR == 0) { print "-"; exit }
            print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'
}
most() {  # file field: the largest value
    awk -v f="$2" '{ for (i = 1; i <= NF; i++) { split($i, kv, "="); if (kv[1] == f) print kv[2] } }' \
        "$1" | sort -n | tail -1
}

bare_map=$(median "$out/program0.txt" map_ms)
bare_cpu=$(median "$out/program0.txt" cpu_map_ms)
bare_hwm=$(median "$out/program0.txt" hwm_1s_kb)
echo "Start-up under Xvfb, $rounds rounds, medians: fork to first map (wall clock and processor"
echo "time), memory in MB one second after the map, level click to board map"
printf '%-3s %8s %6s %8s %6s %8s %8s %9s %8s %8s %8s %8s\n' "#" "map ms" ratio "cpu ms" ratio \
    "peak" "resident" "peak-bare" "4x4 ms" "5x5 ms" "6x6 ms" "board max"
for k in $(seq 0 $((count - 1))); do
    f=$out/program$k.txt
    map=$(median "$f" map_ms)
    cpu=$(median "$f" cpu_map_ms)
    hwm=$(median "$f" hwm_1s_kb)
    rss=$(median "$f" rss_1s_kb)
    boards=("-" "-" "-")
    worst="-"
    if ((k > 1)); then
        boards=("$(median "$f" board_ms 0)" "$(median "$f" board_ms 1)" "$(median "$f" board_ms 2)")
        worst=$(most "$f" board_ms)
    fi
    awk -v k="$k" -v map="$map" -v bm="$bare_map" -v cpu="$cpu" -v bc="$bare_cpu" -v hwm="$hwm" \
        -v bh="$bare_hwm" -v rss="$rss" -v b0="${boards[0]}" -v b1="${boards[1]}" \
        -v b2="${boards[2]}" -v w="$worst" 'BEGIN {
        printf "%-3s %8.1f %6.2f %8.1f %6.2f %8.1f %8.1f %+9.1f %8s %8s %8s %8s\n", k, map,
            map / bm, cpu, cpu / bc, hwm / 1024, rss / 1024, (hwm - bh) / 1024, b0, b1, b2, w }'
done
for k in $(seq 0 $((count - 1))); do
    echo "$k: ${programs[$k]}$( ((k == 1)) && echo " --text")"
done
echo "raw lines: $out/program*.txt"
exit $failed
