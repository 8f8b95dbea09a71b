#!/bin/bash
# Builds the Debian package from the build folder and checks what it holds:
#
#   package_deb.sh <build folder> <output folder> <app id>
#
# the program, pictures, sounds, translations, menu entry, icons, metadata and manual page
# at Debian's places for games, filled for /usr, and Depends worked out from
# the libraries the program links; and Debian's own checks (lintian) find no
# error and no warning in it.
set -euo pipefail
build=$1 out=$2 id=$3

for tool in cpack dpkg-deb dpkg-shlibdeps dpkg-architecture lintian; do
    if ! command -v "$tool" >/dev/null; then
        echo "SKIP: $tool is not installed"
        exit 77
    fi
done
fail() {
    echo "FAIL: $*" >&2
    exit 1
}

rm -rf "$out"
cpack -G DEB --config "$build/CPackConfig.cmake" -B "$out" >"$build/cpack.log" 2>&1 ||
    { cat "$build/cpack.log" >&2; fail "cpack -G DEB"; }
debs=("$out"/pimbalo_*.deb)
[[ ${#debs[@]} == 1 && -f ${debs[0]} ]] || fail "no pimbalo_*.deb in $out"
deb=${debs[0]}

listing=$(dpkg-deb -c "$deb" | awk '{ print $6 }')
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH)
for file in ./usr/games/pimbalo "./usr/lib/$multiarch/pimbalo/pimbalo-sound.so" \
    ./usr/share/games/pimbalo/Images/pimbalo.jpg \
    ./usr/share/games/pimbalo/Images/H_POINT.cur \
    ./usr/share/games/pimbalo/wav/click.wav \
    "./usr/share/games/pimbalo/icons/hicolor/48x48/apps/$id.png" \
    "./usr/share/applications/$id.desktop" \
    "./usr/share/icons/hicolor/256x256/apps/$id.png" \
    "./usr/share/icons/hicolor/scalable/apps/$id.svg" \
    "./usr/share/metainfo/$id.metainfo.xml" \
    ./usr/share/man/man6/pimbalo.6.gz \
    ./usr/share/doc/pimbalo/copyright; do
    grep -qxF "$file" <<<"$listing" || fail "the package lacks $file"
done
# Every translation the build made goes with the pictures and sounds.
for qm in "$build"/game/translations/pimbalo_*.qm; do
    [[ -e $qm ]] || continue
    file=./usr/share/games/pimbalo/translations/${qm##*/}
    grep -qxF "$file" <<<"$listing" || fail "the package lacks $file"
done
if grep -E '\.inf$|^\./usr/(bin|local)/' <<<"$listing"; then fail "the package holds files it must not"; fi

info=$(dpkg-deb -I "$deb")
echo "$info"
grep -qx ' Section: games' <<<"$info" || fail "section is not games"
depends=$(dpkg-deb -f "$deb" Depends)
for library in libc6 libqt6core6 libqt6gui6 libqt6widgets6 libqt6multimedia6; do
    grep -q "\b$library\b" <<<"$depends" || fail "Depends lacks $library: $depends"
done

# Filled for where the package puts things, not for the build's own prefix.
unpacked="$out/unpacked"
dpkg-deb -x "$deb" "$unpacked"
# The audio system comes with the sound module, at the first sound, and not
# with the program (the package still depends on it through the module).
if objdump -p "$unpacked/usr/games/pimbalo" | grep -q 'NEEDED.*Multimedia'; then
    fail "the program itself loads Qt Multimedia at start-up"
fi
grep -qx "Exec=/usr/games/pimbalo" "$unpacked/usr/share/applications/$id.desktop" ||
    fail "the menu entry does not start /usr/games/pimbalo"
zcat "$unpacked/usr/share/man/man6/pimbalo.6.gz" | grep -q '^\.I /usr/share/games/pimbalo$' ||
    fail "the manual page does not name /usr/share/games/pimbalo"
rm -rf "$unpacked"

# Informational tags are shown, not counted.
status=0
report=$(lintian --fail-on error,warning --display-info "$deb" 2>&1) || status=$?
echo "$report"
((status == 0)) || fail "lintian reports an error or a warning (above)"
echo "PASS: $(basename "$deb"), Depends: $depends"
