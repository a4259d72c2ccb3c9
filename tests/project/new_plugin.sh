#!/bin/bash
# new_plugin.sh PROJECT: tools/new-plugin makes a plugin that nothing of the example is left in, and refuses bad names.
set -eu
project=$1
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
mkdir "$copy/examples"
cp -r "$project/tools" "$copy"
cp -r "$project/examples/hello" "$project/examples/CMakeLists.txt" "$copy/examples"
tool="$copy/tools/new-plugin"

fail() {
    echo "$*" >&2
    exit 1
}

"$tool" spot_weld
cd "$copy/examples"
for file in spot_weld.cpp tst_spot_weld.cpp CMakeLists.txt; do
    [ -s "spot_weld/$file" ] || fail "spot_weld/$file is missing"
done
! grep -ri hello spot_weld || fail "something of the example is left"
grep -q 'KITE_PLUGIN(SpotWeldPlugin, "spot_weld");' spot_weld/spot_weld.cpp || fail "the plugin is not registered"
grep -q 'kite_add_plugin(spot_weld SOURCES spot_weld.cpp)' spot_weld/CMakeLists.txt || fail "the plugin is not built"
grep -qx 'add_subdirectory(spot_weld)' CMakeLists.txt || fail "the folder is not added"
[ "$(wc -l <hello/hello.cpp)" = "$(wc -l <spot_weld/spot_weld.cpp)" ] || fail "lines were lost"

before=$(ls)
for name in spot_weld "" Spot 9lives a-b a.b hello ../x; do
    ! "$tool" "$name" 2>/dev/null || fail "\"$name\" was taken"
done
! "$tool" one two 2>/dev/null || fail "two names were taken"
[ "$before" = "$(ls)" ] || fail "a refused name left something behind"
