#!/bin/bash
# Started by tests/e2e/play_game.sh in place of the game, in the script's own
# folder (which holds the saved files of an earlier game). It hands those
# files to the installed game's player folder, starts the INSTALLED game from
# an unrelated folder with the state reporter preloaded, and afterwards puts
# what the game saved back where the script checks it.
#
# Environment: PIMBALO_PROGRAM (the installed program), PIMBALO_PRELOAD (the
# state reporter), PIMBALO_START_DIR (where it is started), XDG_DATA_HOME.
set -uo pipefail
script_folder=$PWD
player="$XDG_DATA_HOME/pimbalo"
mkdir -p "$player"
cp "$script_folder/lastgame.inf" "$script_folder/highscore.inf" "$player/"

cd "$PIMBALO_START_DIR" || exit 1
PIMBALO_E2E_STATE="$script_folder/e2e_state.txt" LD_PRELOAD="$PIMBALO_PRELOAD" \
    "$PIMBALO_PROGRAM" &
game=$!
trap 'kill "$game" 2>/dev/null; wait "$game"; exit 143' TERM INT
status=0
wait "$game" || status=$?
cp "$player/lastgame.inf" "$player/highscore.inf" "$script_folder/" 2>/dev/null
exit "$status"
