# Shared by the scripts in this folder; sourced, not run.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

say() { printf '%s: %s\n' "${0##*/}" "$*"; }

# One clear line and a non-zero exit.
die() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# Runs a command as root: directly, or by sudo where there is one.
as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        die "this needs root or sudo: $*"
    fi
}

# Configures (once) and builds a preset, quietly; the whole output goes to build/<preset>/build.log.
build_preset() { # preset, targets ...
    local preset=$1 log=build/$1/build.log
    shift
    mkdir -p "build/$preset"
    if [ ! -f "build/$preset/build.ninja" ]; then
        cmake --preset "$preset" >"$log" 2>&1 || die "configuring failed, see $log"
    fi
    local args=()
    [ $# = 0 ] || args=(--target "$@")
    cmake --build "build/$preset" -j "$(nproc)" "${args[@]}" >"$log" 2>&1 || {
        grep -E 'error|Error|FAILED' "$log" | head -n 5 >&2 || true
        die "the build failed, see $log"
    }
}

# Starts a private X server with a window manager and a compositor, as a desktop has them, and sets DISPLAY; all of it ends with this script.
start_xvfb() { # size, such as 1600x1000
    local number_file size=${1:-1600x1000}
    number_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp 3>"$number_file" >/dev/null 2>&1 &
    xvfb_pid=$!
    for _ in $(seq 100); do
        [ -s "$number_file" ] && break
        sleep 0.05
    done
    [ -s "$number_file" ] || die "Xvfb didn't start"
    export DISPLAY=":$(cat "$number_file")"
    rm -f "$number_file"
    unset WAYLAND_DISPLAY
    openbox >/dev/null 2>&1 &
    openbox_pid=$!
    picom --backend xrender >/dev/null 2>&1 &
    compositor_pid=$!
    trap stop_xvfb EXIT
}

stop_xvfb() { kill "$compositor_pid" "$openbox_pid" "$xvfb_pid" 2>/dev/null || true; }

# A machine that names no language gets English: the hub can't change languages where none of the system's is known.
name_a_language() {
    case "${LC_ALL:-${LC_MESSAGES:-${LANG:-C}}}" in
        C | C.* | POSIX) export LANGUAGE="${LANGUAGE:-en_US}" ;;
    esac
}

has_display() { [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; }
