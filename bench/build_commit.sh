#!/usr/bin/env bash
# Builds the game as it was at an earlier commit, for side-by-side start-up
# measurements with bench/startup.sh:
#
#   bash bench/build_commit.sh COMMIT      # prints the path of its game
#
# The commit's files are exported (git archive) to build/commit-<id>/ and
# built in build/commit-<id>/build/ with the flags of the main build; its
# game folder gets the pictures and sounds that commit draws.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
[[ $# -eq 1 ]] || { echo "usage: $0 COMMIT" >&2; exit 2; }
id=$(git -C "$root" rev-parse --short "$1^{commit}")
src=$root/build/commit-$id
if [[ ! -f $src/CMakeLists.txt ]]; then
    mkdir -p "$src"
    git -C "$root" archive "$id" | tar -x -C "$src"
fi
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S "$src" -B "$src/build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DPIMBALO_TESTS=OFF \
    "${launcher[@]}" >/dev/null
cmake --build "$src/build" --target pimbalo >&2
echo "$src/build/game/pimbalo"
