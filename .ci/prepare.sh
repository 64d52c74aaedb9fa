# shellcheck shell=bash disable=SC2034
# Shared by ./run, ./test and ./check, which source it: what a build needs, and when it needs it.

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)

packages=(
    g++ lld cmake ninja-build ccache python3 xsdcxx
    qtbase5-dev qttools5-dev qttools5-dev-tools libxerces-c-dev libexpat1-dev liblog4cplus-dev libboost-iostreams-dev libopenscenegraph-dev
    libgoogle-perftools-dev pkg-config libgdal-dev
    libegl-dev libegl1 libgl1-mesa-dri xvfb xauth
)

# What the hosts of examples/ need besides.
host_packages=(
    pkg-config qtdeclarative5-dev qml-module-qtquick2 qml-module-qtquick-controls python3-pyqt5
)

# Everything said goes to standard error, so that standard output is the job's alone.
say() {
    printf '%s: %s\n' "$(basename -- "$0")" "$*" >&2
}

fail() {
    say "$*"
    exit 1
}

# Installs those of the named packages that are not there.
install_packages() {
    local missing=() package as_root=()
    if ! command -v dpkg-query >/dev/null; then
        say "not a Debian system; going on as if these were installed: $*"
        return
    fi
    for package; do
        if [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
            missing+=("$package")
        fi
    done
    if ((${#missing[@]} == 0)); then
        return
    fi
    if ((EUID != 0)); then
        command -v sudo >/dev/null || fail "not root and no sudo; please install: ${missing[*]}"
        as_root=(sudo)
    fi
    say "installing ${missing[*]}"
    "${as_root[@]}" apt-get update >&2 || fail "apt-get update failed"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}" >&2 ||
        fail "could not install ${missing[*]}"
}

# Configures the build directory of a preset once; a build configures it again by itself when it has to.
configure() {
    local preset=$1 directory=$2
    if [[ -e $directory/build.ninja ]]; then
        return
    fi
    say "configuring $directory"
    (cd "$root" && cmake --preset "$preset" >&2) || fail "the configuration failed"
}

# Builds the named targets, or everything.
build() {
    local directory=$1
    shift
    say "building in $directory"
    # By itself ninja runs two compilers more than there are processors, which on two of them takes a sixth longer.
    ninja -C "$directory" -j "$(nproc)" "$@" >&2 || fail "the build failed"
}
