# Shared by the scripts in the folders below; sourced, not run.
. "$(dirname "${BASH_SOURCE[0]}")/../scripts/lib.sh"

# The version that the project has in CMakeLists.txt.
project_version() { sed -n 's/^project(OrbeHub VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt; }

# Installs those of some packages that are missing.
need_packages() { # package ...
    local package missing=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    command -v apt-get >/dev/null || die "no apt-get here; install these by hand: ${missing[*]}"
    say "installing ${missing[*]}"
    local install=(env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}")
    # The second time with fresh lists: a machine may have none, or old ones.
    as_root "${install[@]}" >/dev/null 2>&1 || { as_root apt-get update >/dev/null && as_root "${install[@]}" >/dev/null; } ||
        die "can't install ${missing[*]}"
}

# step TEXT COMMAND...: one line on the screen, all else in the file $log.
step() {
    local text=$1 status
    shift
    printf '\n== %s\n' "$text" >>"$log"
    set +e
    (set -e; "$@") >>"$log" 2>&1 </dev/null
    status=$?
    set -e
    [ $status = 0 ] || die "$text: failed, see ${log#"$root"/}"
    say "$text: ok"
}
