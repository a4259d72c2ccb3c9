# shellcheck shell=bash
# Debian packages: which of a list are missing, and installing those. Sourced after steps.sh.

# package_names PURPOSE...: the packages that tools/packages/PURPOSE.txt lists.
package_names() {
    local purpose
    for purpose in "$@"; do
        sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "$kite_root/tools/packages/$purpose.txt"
    done
}

# missing_packages PURPOSE...: those of the lists that are not installed. "name" is of this machine's architecture,
# "name:arch" of another one.
missing_packages() {
    local native
    native=$(dpkg --print-architecture)
    package_names "$@" | awk -v native="$native" '
        FNR == NR { if ($1 == "installed") has[$2] = 1; next }
        index($0, ":") { if (!has[$0]) print; next }
        !has[$0 ":" native] && !has[$0 ":all"] { print }
    ' <(dpkg-query -W -f='${db:Status-Status} ${Package}:${Architecture}\n') -
}

can_be_root() {
    [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null
}

# as_root COMMAND...: runs it as root.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

apt_get() {
    as_root env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 apt-get -q -y -o DPkg::Lock::Timeout=300 "$@"
}

# install_packages PURPOSE...: the step that brings what is missing. It touches neither network nor package manager when
# nothing is.
install_packages() {
    command -v dpkg-query >/dev/null ||
        die "this needs a Debian system; elsewhere install what tools/packages lists and use the CMake presets"
    local missing status
    missing=$(missing_packages "$@" | tr '\n' ' ')
    if [ -z "$missing" ]; then
        step set-up "every package is there"
        return
    fi
    can_be_root || die "packages are missing, and installing them needs root or sudo. Let an administrator run:
    apt-get install --no-install-recommends $missing"
    step set-up "installing ${missing% }"
    # One repository that cannot be reached need not matter; the installation tells when it does.
    apt_get update >>"$step_log" 2>&1 || echo "the package lists could not be brought up to date" >>"$step_log"
    status=0
    # shellcheck disable=SC2086 # one word a package
    apt_get install --no-install-recommends $missing >>"$step_log" 2>&1 || status=$?
    [ "$status" -ne 0 ] || return 0
    # shellcheck disable=SC2086
    name_version_clashes $missing >>"$step_log" 2>&1
    step_failed "$status"
}

# name_version_clashes PACKAGE...: tells of each "name:arch" that apt offers in another version than that of the same
# package which is installed for this machine; Debian allows the two only side by side in one version.
name_version_clashes() {
    local package here there
    for package in "$@"; do
        case $package in *:*) ;; *) continue ;; esac
        here=$(dpkg-query -W -f='${Version}' "${package%:*}:$(dpkg --print-architecture)" 2>/dev/null)
        there=$(apt-cache policy "$package" | sed -n 's/^ *Candidate: //p')
        if [ -n "$here" ] && [ "$here" != "$there" ]; then
            echo "$package is offered as ${there:-nothing}, but ${package%:*} is installed here as $here:" \
                "the two must be of one version. Upgrade ${package%:*} first."
        fi
    done
}
