# shellcheck shell=bash
# What a shared library imports and exports. Sourced by the tools in the folder above.

# dynamic_symbols LIB: one line a symbol: binding, "UND" or its section, its name and, behind a blank, its version.
dynamic_symbols() {
    readelf --dyn-syms --wide "$1" | awk '
        $1 ~ /^[0-9]+:$/ && $8 != "" {
            split($8, part, /@+/)
            print $5, $7, part[1], part[2]
        }'
}

# debian_architecture LIB: what Debian calls the architecture that the library is for.
debian_architecture() {
    case $(readelf --file-header "$1" | sed -n 's/^ *Machine: *//p') in
    AArch64) echo arm64 ;;
    *X86-64) echo amd64 ;;
    *) return 1 ;;
    esac
}

# imports LIB: name and version of each symbol that the library takes from elsewhere.
imports() {
    dynamic_symbols "$1" | awk '$2 == "UND" { print $3, $4 }'
}

# exports LIB: the mangled names that the library offers, sorted. A weak one counts only in the namespace kite: the others
# are copies of inline functions and templates of std and Qt, which come and go with the optimiser. The linker's own marks
# do not count.
exports() {
    dynamic_symbols "$1" | awk '
        $2 == "UND" || $3 ~ /^_+(bss_start|bss_end|edata|end|init|fini)_*$/ { next }
        $1 == "GLOBAL" || $3 ~ /^_Z(T[VTIS]|Th[n0-9]+_|Tv[n0-9]+_[n0-9]+_|GV|Z)*N[VKRO]*4kite/ { print $3 }
    ' | LC_ALL=C sort -u
}
