# shellcheck shell=bash
# Packages of 64-bit Arm beside this machine's own. Sourced after packages.sh.

# allow_arm64: the step that lets the package manager install packages of 64-bit Arm.
allow_arm64() {
    [ "$(dpkg --print-architecture)" != arm64 ] || die "this machine is 64-bit Arm itself: use the preset dev"
    if dpkg --print-foreign-architectures | grep -qx arm64; then
        step architecture "packages of arm64 are allowed"
        return
    fi
    can_be_root || die "packages of arm64 are not allowed here yet, and allowing them needs root or sudo. Let an
administrator run:
    dpkg --add-architecture arm64 && apt-get update"
    step architecture "dpkg --add-architecture arm64"
    quietly as_root dpkg --add-architecture arm64
}
