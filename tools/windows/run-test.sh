#!/bin/sh
# run-test.sh <test program> [arguments]   runs a Qt Test program under Wine and shows what it prints.
# Windows programs of Qt Test do not always print to a pipe, so that the text goes by a file.
text=$(mktemp)
trap 'rm -f "$text"' EXIT
"$(dirname "$0")/run-wine.sh" "$@" -o "Z:$text,txt"
result=$?
tr -d '\r' <"$text"
exit $result
