# Sourced by the scripts: makes sure that the machine has what they call. Installs only what is missing.

packages_build="g++ cmake ninja-build qt6-base-dev libgl-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools librsvg2-bin optipng"
packages_test="libgtest-dev libgmock-dev faketime fonts-dejavu-core"
packages_desk="fonts-dejavu-core qt6-qpa-plugins faketime"
packages_bench="libbenchmark-dev"
packages_fuzz="clang libclang-rt-14-dev libgtest-dev"
packages_display="xvfb x11vnc"

# need_packages SET...: installs the packages of the sets named that are not on the machine.
need_packages() {
    local set package missing=()
    if ! command -v dpkg-query >/dev/null; then
        echo "This machine has no Debian packages; please install: Qt 6 (Widgets), CMake 3.22, Ninja, a C++20 compiler, GoogleTest, faketime, DejaVu fonts." >&2
        return 0
    fi
    for set in "$@"; do
        local list="packages_$set"
        for package in ${!list}; do
            [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
        done
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local asRoot=()
    [ "$(id -u)" -eq 0 ] || asRoot=(sudo -n)
    if ! { "${asRoot[@]}" apt-get update -qq && DEBIAN_FRONTEND=noninteractive "${asRoot[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"; } >/dev/null; then
        echo "Could not install them. Please install by hand: ${missing[*]}" >&2
        return 1
    fi
}
