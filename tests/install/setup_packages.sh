#!/bin/bash
# What scripts/setup installs and how it configures, with apt, dpkg and cmake
# replaced by stand-ins that only note their arguments:
#
#   setup_packages.sh <source folder> <scratch folder>
#
# For playing (scripts/play) it installs the toolchain, Qt and the fonts and
# no test tool, and leaves the tests out of the build; for the tests it
# installs the test tools too. Then a real configuration without any test
# package proves that the game builds with what playing installs.
set -euo pipefail
src=$1 scratch=$2
fail() {
    echo "FAIL: $*" >&2
    exit 1
}

rm -rf "$scratch"
mkdir -p "$scratch/bin"
for tool in apt-get cmake; do
    printf '#!/bin/sh\necho "$*" >>"%s/%s.log"\n' "$scratch" "$tool" >"$scratch/bin/$tool"
done
printf '#!/bin/sh\nexit 1\n' >"$scratch/bin/dpkg-query"  # nothing is installed yet
chmod +x "$scratch"/bin/*

# Prints the packages a run of setup asked apt to install, and its cmake calls.
run_setup() {
    rm -f "$scratch"/*.log
    PATH="$scratch/bin:$PATH" bash "$src/scripts/setup" "$@" >/dev/null
    grep '^install ' "$scratch/apt-get.log" | tr ' ' '\n' | grep -v '^-' | sed 1d
    sed 's/^/cmake /' "$scratch/cmake.log"
}

test_only=(libgtest-dev googletest xvfb xdotool imagemagick openbox xfwm4 x11-utils wmctrl
           pulseaudio pulseaudio-utils sox qt6-wayland lintian dpkg-dev desktop-file-utils
           appstream libx11-dev libxtst-dev clang)
for_play=(cmake g++ ninja-build qt6-base-dev qt6-multimedia-dev fonts-liberation)

play=$(run_setup --play pimbalo)
for package in "${for_play[@]}"; do
    grep -qx "$package" <<<"$play" || fail "playing does not install $package"
done
for package in "${test_only[@]}"; do
    grep -qx "$package" <<<"$play" && fail "playing installs the test package $package"
done
grep -q -- '-DPIMBALO_TESTS=OFF' <<<"$play" || fail "playing builds the tests: $play"
grep -qx 'cmake --build build --target pimbalo' <<<"$play" || fail "playing builds more than the game"

all=$(run_setup)
for package in "${for_play[@]}" xvfb libgtest-dev lintian openbox; do
    grep -qx "$package" <<<"$all" || fail "the tests do not install $package"
done
grep -q -- '-DPIMBALO_TESTS=ON' <<<"$all" || fail "the test setup leaves the tests out: $all"

# The game's configuration finds nothing a test package brings.
cmake -S "$src" -B "$scratch/build" -G Ninja -DPIMBALO_TESTS=OFF \
    -DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON -DCMAKE_DISABLE_FIND_PACKAGE_X11=ON \
    -DDPKG_BUILDFLAGS=DPKG_BUILDFLAGS-NOTFOUND >"$scratch/configure.log" 2>&1 ||
    { cat "$scratch/configure.log"; fail "the game does not configure without the test packages"; }
grep -q 'Hardening: .*-D_FORTIFY_SOURCE=2 .*-Wl,-z,now' "$scratch/configure.log" ||
    fail "without dpkg-buildflags the game is built without hardening"
rm -rf "$scratch"
echo "PASS: playing installs ${for_play[*]}"
