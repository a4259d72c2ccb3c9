# shellcheck shell=bash
# The C++ files of the project. Sourced by the tools in the folder above.

# cpp_files NAME-PATTERN...: the project's own C++ files of these names, below the folder that the tool stands in.
cpp_files() {
    local patterns=() pattern
    for pattern in "$@"; do
        patterns+=(-o -name "$pattern")
    done
    find . \( -path ./build -o -path ./out -o -path ./.git \) -prune -o \
        -type f \( "${patterns[@]:1}" \) -print | LC_ALL=C sort
}
