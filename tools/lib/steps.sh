# shellcheck shell=bash
# Steps of a tool: one line each on the screen, the whole output in a log, and the log's end when a step fails.
# Sourced by the tools in the folder above.

kite_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
kite_logs=""
step_number=0
step_count=0
step_log=""

# begin_steps JOB COUNT: how many steps are to come; JOB becomes the name of the folder of logs.
begin_steps() {
    kite_logs="$kite_root/build/logs/$1"
    step_count=$2
    mkdir -p "$kite_logs" || die "cannot make the folder $kite_logs"
}

# step NAME TEXT: announces a step; NAME becomes its log's name.
step() {
    step_number=$((step_number + 1))
    step_log="$kite_logs/$1.log"
    : >"$step_log" || die "cannot write $step_log"
    printf '[%d/%d] %s: %s\n' "$step_number" "$step_count" "$1" "$2"
}

# quietly COMMAND...: runs it with its output in the step's log; ends the tool when it fails.
quietly() {
    "$@" >>"$step_log" 2>&1 || step_failed $?
}

# aloud COMMAND...: the same, with the output on the screen as well.
aloud() {
    "$@" 2>&1 | tee -a "$step_log"
    local status=${PIPESTATUS[0]}
    [ "$status" -eq 0 ] || die "step $step_number of $step_count failed (exit $status); whole log: $step_log"
}

# step_failed STATUS: shows why, which a build that had other jobs at work does not end with, and ends the tool.
step_failed() {
    printf '\n--- from %s\n' "$step_log" >&2
    if grep -q '^FAILED: ' "$step_log"; then
        sed -n '/^FAILED: /,$p' "$step_log" | cut -c 1-300 | head -n 40 >&2
    else
        tail -n 40 "$step_log" >&2
    fi
    printf '%s\n' '---' >&2
    die "step $step_number of $step_count failed (exit $1); whole log: $step_log"
}

die() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}
