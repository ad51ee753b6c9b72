# shellcheck shell=bash
# What the scripts share: installing what is missing, and saying what happens. Sourced, not run.

mkdir -p build
say() { printf '\n== %s\n' "$*"; }
fail() {
    printf '\nvantor: %s\n' "$*" >&2
    exit 1
}

. scripts/lib/timing.sh

# Those who source this use them.
# shellcheck disable=SC2034
{
    build_packages=(g++ cmake ninja-build libicu-dev libxcb1-dev qt6-base-dev qt6-l10n-tools)
    screen_packages=(xvfb x11-utils imagemagick fonts-inter fonts-dejavu-core fonts-droid-fallback)
    test_packages=(mold nlohmann-json3-dev qt6-svg-dev libgtest-dev libgmock-dev libbenchmark-dev xdotool openbox trayer weston qt6-wayland qt6-gtk-platformtheme procps iproute2 dbus-daemon at-spi2-core python3-jsonschema strace)
    clang_packages=(clang libclang-rt-14-dev)
    macos_packages=(cmake ninja-build nlohmann-json3-dev binutils file llvm-14)
    packaging_packages=(git dpkg-dev debhelper lintian nlohmann-json3-dev qt6-svg-dev libgtest-dev libgmock-dev fonts-inter fonts-dejavu-core)
    lint_packages=(git clang-format clang-tidy shellcheck)
}

is_debian() { command -v apt-get >/dev/null && command -v dpkg-query >/dev/null; }

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "this needs root or sudo: $*"
    fi
}

# install_missing PACKAGE...: installs those that are not there. On other systems it names them and
# goes on; what is really missing shows when it is needed.
install_missing() {
    local missing=() package
    if ! is_debian; then
        echo "This system is not Debian. Please have these, by whatever names it gives them: $*"
        return
    fi
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    stage install "Installing ${missing[*]}"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get update -q ||
        fail "the list of packages could not be fetched"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends \
        "${missing[@]}" || fail "these packages could not be installed: ${missing[*]}"
}

need_command() {
    command -v "$1" >/dev/null || fail "$1 is missing; please install ${2:-$1}"
}

# build PRESET [TARGET...]: configures where needed and builds, showing progress.
build() {
    local preset=$1 status
    shift
    need_command cmake
    need_command ninja ninja-build
    stage "configure-$preset" "Configuring ($preset)"
    cmake --preset "$preset" >build/configure.log 2>&1
    status=$?
    [ $status = 0 ] || cat build/configure.log
    [ $status = 0 ] || fail "configuring the $preset build failed"
    # What is up to date is not worth a time.
    stage "build-$preset${1:+-$1}" "Building ($preset)"
    cmake --build --preset "$preset" ${1:+--target "$@"} || fail "the $preset build failed"
    end_stage
}

# test_built PRESET OPTION...: runs ctest with these options on what is built, and counts the tests.
test_built() {
    local preset=$1 status
    shift
    rm -rf "build/$preset/test_results"
    ctest --preset "$preset" "$@"
    status=$?
    scripts/lib/count-tests "$preset"
    return $status
}
