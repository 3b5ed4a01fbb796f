# Sourced by the scripts: where the project is, and how a step is run.
# bash 3.2 (macOS) has to understand it.

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd -P)

say() { printf '%s\n' "$*" >&2; }

fail() {
    say "$*"
    exit 1
}

processors() { getconf _NPROCESSORS_ONLN 2>/dev/null || echo 2; }

# quietly <what> <command>...: the command's output is shown only if it fails; on
# a terminal its last line is shown while it runs. Everything goes to stderr.
quietly() {
    local what=$1 log status=0
    shift
    log=$(mktemp "${TMPDIR:-/tmp}/vantrel.XXXXXX")
    if [ -t 2 ]; then
        "$@" 2>&1 </dev/null | tee "$log" | while IFS= read -r line; do
            printf '\r\033[K%s: %.60s' "$what" "$line" >&2
        done || status=$?
        printf '\r\033[K' >&2
    else
        "$@" >"$log" 2>&1 </dev/null || status=$?
    fi
    if [ "$status" -ne 0 ]; then
        cat -- "$log" >&2
        say "$what failed."
    fi
    rm -f -- "$log"
    return "$status"
}

# configure <preset>. A cache that was made elsewhere (the folder was moved) or
# with other packages is made again.
configure() {
    (cd -- "$root" && quietly "Configuring ($1)" configure_or_renew "$1")
}

configure_or_renew() {
    cmake --preset "$1" && return
    [ -f "build/$1/CMakeCache.txt" ] && cmake --fresh --preset "$1"
}

# build <preset> [<cmake --build argument>...]
build() {
    local preset=$1
    shift
    quietly "Building ($preset)" cmake --build "$root/build/$preset" "$@"
}
