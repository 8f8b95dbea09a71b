#!/bin/bash
# The installed game, played as a player would: from an unrelated folder, as
# a user who is not root, with HOME and XDG_DATA_HOME in a fresh folder.
#
#   play_installed.sh <installed root> <program> <data folder> <state reporter .so>
#                     <play_game.sh> <output folder>
#
# 1. One whole timed game through the end-to-end script, started from the
#    files of an earlier game in $XDG_DATA_HOME/pimbalo (the new time ranks
#    above the old one only if they were read); both files must land
#    byte-exact there.
# 2. Nothing under the installed root may change.
set -euo pipefail

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
trap 'rm -rf "$base"' EXIT
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

# --- 2. the installed tree is as it was ------------------------------------------
manifest >"$base/after"
diff "$base/before" "$base/after" >&2 || fail "files under the installed root changed"
echo "PASS: installed game played, records read and kept in \$XDG_DATA_HOME/pimbalo"
