#!/bin/sh
# run-test.sh <test program> [arguments]   runs a Qt Test program under Wine and shows what it prints.
# Windows programs of Qt Test do not always print to a pipe, so that the text goes by a file.
# So does what its child processes print: one that outlives the test would keep the runner waiting.
text=$(mktemp)
trap 'rm -f "$text" "$text.other"' EXIT
"$(dirname "$0")/run-wine.sh" "$@" -o "Z:$text,txt" >"$text.other" 2>&1 </dev/null
result=$?
cat "$text" "$text.other" | tr -d '\r'
exit $result
