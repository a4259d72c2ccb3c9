#!/bin/bash
# expect_refusal.sh TEXT COMMAND...: succeeds when the command ends with 1 and its output holds the text.
text=$1
shift
output=$("$@" 2>&1)
status=$?
printf '%s\n' "$output"
[ "$status" -eq 1 ] || { echo "exit $status where a refusal is 1"; exit 1; }
case $output in
*"$text"*) ;;
*) echo "the refusal does not tell of: $text"; exit 1 ;;
esac
