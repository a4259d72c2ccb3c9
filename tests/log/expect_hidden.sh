#!/bin/bash
# expect_hidden.sh LIB OFFERED HIDDEN: succeeds when the library offers the one name to others and the other not.
symbols=$(nm -DC --defined-only "$1") || exit 2
grep -F "$2" <<<"$symbols" || { echo "not offered: $2"; exit 1; }
! grep -F "$3" <<<"$symbols" || { echo "offered: $3"; exit 1; }
