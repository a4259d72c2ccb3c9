#!/bin/bash
# consumer.sh BUILD PROJECT: what is installed from BUILD builds a plugin in a project of its own, and the installed
# pendant shows it.
set -eu
build=$1
project=$2
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT

quietly() {
    "$@" >"$place/log" 2>&1 || { cat "$place/log" >&2; echo "failed: $*" >&2; exit 1; }
}

quietly cmake --install "$build" --prefix "$place/kite"
cp -r "$project/tests/consumer" "$place/source"
quietly cmake -S "$place/source" -B "$place/build" -G Ninja -DCMAKE_PREFIX_PATH="$place/kite"
quietly cmake --build "$place/build"
quietly env QT_QPA_PLATFORM=offscreen "$place/kite/bin/kite-pendant" --plugins "$place/build/plugins" \
    --work "$place/work" --tour "$place/tour"
grep -q "Hello from outside" "$place/tour/tour.md" || { cat "$place/tour/tour.md" >&2; exit 1; }
