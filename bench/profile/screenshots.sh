#!/usr/bin/env bash
# Screenshots of the computer profile, one per page, as a user sees it: Fenwold run under Xvfb
# with openbox on the demo ledger of make_demo.sh, the first computer double-clicked in the main
# list, then each tab clicked. Writes docs/screenshots/profile-<page>.png, and the first page of
# that computer's printed sheet as profile-sheet.png.
#
#   bench/profile/screenshots.sh BUILD_DIR
set -euo pipefail

build=$(realpath "$1")
here=$(cd "$(dirname "$0")" && pwd)
out=$here/../../docs/screenshots
demo=$(mktemp -d)
trap 'rm -rf "$demo"' EXIT
"$here/make_demo.sh" "$build" "$demo" >/dev/null

cat >"$demo/shoot.sh" <<'EOF'
#!/bin/sh
cd "$(dirname "$0")"
openbox & sleep 1
./fenwold & sleep 3
# the first row of the main list, double-clicked
xdotool mousemove 150 76 click --repeat 2 --delay 80 1
sleep 2
for tab in 40:cpu 115:network 228:applications 348:devices 430:printers 510:environment 593:drives 665:maintenance; do
  xdotool mousemove "${tab%%:*}" 233 click 1
  sleep 1
  if [ "${tab#*:}" = devices ]; then
    # two categories opened, the lower one first
    xdotool mousemove 30 371 click 1 mousemove 30 349 click 1
    sleep 1
  fi
  import -window root -crop 812x600+0+0 +repage "shot-${tab#*:}.png"
done
EOF
chmod +x "$demo/shoot.sh"
xvfb-run -a -s '-screen 0 1600x1200x24' "$demo/shoot.sh" >/dev/null 2>&1 || true
mkdir -p "$out"
for page in cpu network applications devices printers environment drives maintenance; do
  convert "$demo/shot-$page.png" -strip -colors 256 "PNG8:$out/profile-$page.png"
done
# the printed sheet of the same computer, its first page
"$build/src/app/fenwold-admin" sheet --ledger "$demo/pcdb.mdb" 1 "$demo/sheet.pdf" >/dev/null
pdftoppm -r 90 -gray -png -f 1 -l 1 "$demo/sheet.pdf" "$demo/sheet"
convert "$demo"/sheet-*1.png -colors 16 "PNG8:$out/profile-sheet.png"
ls -l "$out"/profile-*.png
