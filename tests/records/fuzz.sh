#!/usr/bin/env bash
# Feeds the file loaders' fuzzer for a fixed time, starting from a few
# well-formed files written here. A crash, a sanitizer report or a file that
# does not read back the same fails the run; the input that did it is kept.
# Usage: fuzz.sh <fuzzer> <folder for failing inputs> [seconds]
set -euo pipefail
fuzzer=$1
failures=$2
seconds=${3:-60}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/corpus" "$failures"

# lastgame.inf, and a highscore.inf with a record on every table and rank.
printf '1\r\n0\r\n1\r\n2\r\n' >"$work/corpus/lastgame.inf"
printf '1\r\n1\r\n0\r\n' >"$work/corpus/lastgame-short.inf"
for rank in 0 1 2 3 4; do
    for table in 0 1 2 3 4 5 6 7 8; do printf '%d\r\n' $((10 * rank + table + 1)); done
    for table in 0 1 2 3 4 5 6 7 8; do printf 'Pl\xe4yer %d\r\n' "$table"; done
done >"$work/corpus/highscore.inf"
# The same with UTF-8 names, as the game writes them now.
LC_ALL=C sed 's/\xe4/\xc5\x82/' "$work/corpus/highscore.inf" >"$work/corpus/highscore-utf8.inf"

if ! "$fuzzer" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
    -artifact_prefix="$failures/" "$work/corpus" >"$work/log" 2>&1; then
    tail -n 40 "$work/log"
    echo "FAIL: the file loaders' fuzzer found an input that breaks them (kept in $failures)"
    exit 1
fi
tail -n 1 "$work/log"
