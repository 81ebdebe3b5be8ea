# What the project needs of Debian 12, and how it gets it. Sourced by run, test and .ci/run.

BUILD_PACKAGES="g++ cmake ninja-build pkg-config ccache qt6-base-dev qt6-svg-dev libftdi1-dev libgtest-dev python3"
RUN_PACKAGES="fonts-inter fonts-liberation"
CHECK_PACKAGES="clang-format qpdf poppler-utils"

# Installs those of the named packages that are missing; nothing to do costs a fraction of a second.
install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^ii' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    echo "installing: ${missing[*]}" >&2
    $sudo apt-get update -qq >&2
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# Configures a preset once and builds it. The log is shown only when something fails.
build_preset() {
    local preset=$1 log
    shift
    log=$(mktemp)
    if [ ! -f "build/$preset/build.ninja" ]; then
        cmake --preset "$preset" >"$log" 2>&1 || { cat "$log" >&2; rm -f "$log"; return 1; }
    fi
    cmake --build --preset "$preset" "$@" >"$log" 2>&1 || { cat "$log" >&2; rm -f "$log"; return 1; }
    rm -f "$log"
}
