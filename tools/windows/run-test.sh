#!/bin/sh
# run-test.sh <test program> [arguments]   runs a Qt Test program under Wine and prints its output.
#
# On Windows, Qt Test does not always write to a pipe, so the test writes to a file. The output of its child
# processes goes to a file as well, because a child that outlives the test would keep a pipe open and the
# test runner waiting.
text=$(mktemp)
trap 'rm -f "$text" "$text.other"' EXIT
"$(dirname "$0")/run-wine.sh" "$@" -o "Z:$text,txt" >"$text.other" 2>&1 </dev/null
result=$?
cat "$text" "$text.other" | tr -d '\r'
exit $result
