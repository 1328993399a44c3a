#!/bin/sh
# qmlcachegen-sorted.sh <qmlcachegen> <argument>...
#
# Runs Qt's QML compiler and sorts the declarations at the top of each function that it writes. Before Qt 6.8
# their order follows addresses in memory, so that no two builds give the same program and the compiler cache
# misses.
set -eu
"$@"
file=
for argument; do
  [ "${previous:-}" = -o ] && file=$argument
  previous=$argument
done
[ -n "$file" ] || exit 0
LC_ALL=C awk '
  function write_sorted(  i, j, line) {
    for (i = 2; i <= count; i++) {
      line = lines[i]
      for (j = i - 1; j > 0 && lines[j] > line; j--) lines[j + 1] = lines[j]
      lines[j + 1] = line
    }
    for (i = 1; i <= count; i++) print lines[i]
    count = 0
  }
  /^[A-Za-z].*[ *]r[0-9]+_[0-9]+;$/ { lines[++count] = $0; next }
  { write_sorted(); print }
  END { write_sorted() }' "$file" >"$file.sorted"
mv "$file.sorted" "$file"
