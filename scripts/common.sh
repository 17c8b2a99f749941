# shellcheck shell=bash
# What the commands and the scripts share: sourced, never run.

tree=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)

say() {
    printf '%s: %s\n' "${0##*/}" "$*"
}

die() {
    say "$@" >&2
    exit 1
}

# on_every_exit <function>: calls it once, however the script ends. A second
# signal, of somebody who is impatient, does not stop it half way.
on_every_exit() {
    # shellcheck disable=SC2064
    trap "trap '' HUP INT TERM; $1" EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM
}

groups=()

# start_group <command...>: starts it in the background as a process group of
# its own, whose id goes to the end of $groups. A signal to the script can then
# be answered at once, and what the command leaves behind can be ended with it.
start_group() {
    set -m
    "$@" &
    groups+=("$!")
    set +m
}

# wait_for_group: waits for the one started last, and gives its exit code.
wait_for_group() {
    wait "${groups[-1]}"
}

# stop_groups <seconds>: ends all groups, the last one first. A group's first
# process has that long to clean up, the others only as long as it takes.
stop_groups() {
    local index id tries
    for ((index = ${#groups[@]} - 1; index >= 0; --index)); do
        id=${groups[index]}
        tries=$(($1 * 20))
        {
            kill -TERM -- "-$id" || true
            while kill -0 "$id" && ((tries-- > 0)); do
                sleep 0.05
            done
            kill -KILL -- "-$id" || true
            wait "$id" || true
        } 2>/dev/null
    done
}

# wait_until <seconds> <command...>: polls until the command succeeds.
wait_until() {
    local tries=$(($1 * 20))
    shift
    while ! "$@" >/dev/null 2>&1; do
        ((tries-- > 0)) || return 1
        sleep 0.05
    done
}

# provide_environment <folder>: makes up for what a bare machine's environment
# lacks, inside a folder that the caller removes.
provide_environment() {
    if [[ ! -d ${HOME:-} || ! -w $HOME ]]; then
        export HOME=$1/home
        mkdir -p "$HOME"
    fi
    if [[ ! -d ${XDG_RUNTIME_DIR:-} || ! -O $XDG_RUNTIME_DIR ]]; then
        export XDG_RUNTIME_DIR=$1/runtime
        mkdir -m 0700 "$XDG_RUNTIME_DIR"
    fi
    # Chromium's sandbox refuses to work for root, and ends the program where
    # the system gives it no user namespace of its own.
    if ((EUID == 0)) || ! unshare --user true 2>/dev/null; then
        export QTWEBENGINE_DISABLE_SANDBOX=1
    fi
}

# build_preset <preset> <folder> [target...]: configures where that is still to
# be done, and builds what is not up to date.
build_preset() {
    local preset=$1 folder=$2
    shift 2
    if [[ ! -e $tree/$folder/build.ninja ]]; then
        (cd "$tree" && cmake --preset "$preset")
    fi
    cmake --build "$tree/$folder" ${1:+--target "$@"}
}
