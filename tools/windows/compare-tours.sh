#!/usr/bin/env bash
# ./tools/windows/compare-tours.sh <tour of Windows> <tour of Linux> <folder for the result>
#
# Writes a page (index.html) that lays the pictures of two tours side by side, with the part of the points whose
# colour differs by more than a tenth.
set -euo pipefail
source "$(dirname "$0")/../common.sh"
print_help_if_asked "$@"
[ $# -eq 3 ] || fail "three folders are needed" "$0 --help"
need_packages imagemagick
windows=$1 linux=$2 out=$3
rm -rf "$out"
mkdir -p "$out/windows" "$out/linux"

# differing_points <picture> <picture>   prints the part of the points that differ, in percent.
differing_points() {
  local width height points
  read -r width height < <(identify -format '%w %h\n' "$1")
  [ "$(identify -format '%w %h' "$2")" = "$width $height" ] || { echo "another size"; return; }
  points=$(compare -metric AE -fuzz 10% "$1" "$2" null: 2>&1 || true)
  awk -v points="$points" -v all=$((width * height)) 'BEGIN { printf "%.1f %%", 100 * points / all }'
}

{
  printf '<!doctype html><meta charset="utf-8"><title>Windows and Linux</title>\n'
  printf '<style>body{font-family:sans-serif;background:#282828;color:#bbc7ce;margin:2em}'
  printf 'img{width:48%%;margin:0 1%% 2em 0;vertical-align:top}</style>\n<h1>Windows (left) and Linux (right)</h1>\n'
  # The captions, in the order of the tour.
  sed -nE 's|.*<img src="([^"]+)".*<figcaption>(.*)</figcaption>.*|\1 \2|p' "$windows/index.html" |
    while read -r picture caption; do
      cp "$windows/$picture" "$out/windows/"
      if [ ! -f "$linux/$picture" ]; then
        printf '<p>%s: on Windows only</p><img src="windows/%s" alt="">\n' "$caption" "$picture"
        continue
      fi
      cp "$linux/$picture" "$out/linux/"
      printf '<p>%s: %s</p>' "$caption" "$(differing_points "$windows/$picture" "$linux/$picture")"
      printf '<img src="windows/%s" alt=""><img src="linux/%s" alt="">\n' "$picture" "$picture"
    done
} >"$out/index.html"
echo "See $out/index.html"
