# shellcheck shell=bash
# What each command needs from Debian, and how it gets there.
declare -A packages=(
    [build]="cmake ninja-build g++ g++-mingw-w64-i686-posix nasm make dpkg-dev ccache ca-certificates libgtest-dev libbenchmark-dev libgeographiclib-dev libpng-dev libjpeg62-turbo-dev libdeflate-dev zlib1g-dev"
    [wine]="wine wine32:i386 xvfb fonts-dejavu-core"
    [check]="git python3 hunspell hunspell-en-us clang clang-format clang-tidy libclang-rt-14-dev shellcheck"
    [oracle]="gdal-bin proj-bin shapelib libdbd-xbase-perl geographiclib-tools imagemagick netpbm giflib-tools libpng-tools libjpeg-turbo-progs" # about 45 MB to fetch
    [count]="valgrind"
    [peers]="npm" # where the benchmarks' peers come from that Debian does not have
    [docs]="doxygen graphviz"
)
as_root=() # how to get root's rights

# need_packages GROUP...: installs what is missing of the groups; nothing missing, nothing done.
need_packages() {
    local group missing list wanted=()
    for group in "$@"; do
        read -ra list <<< "${packages[$group]}"
        wanted+=("${list[@]}")
    done
    command -v dpkg-query > /dev/null || fail "this needs Debian 12, and dpkg is not here; install by hand: ${wanted[*]}"
    mapfile -t missing < <(missing_of "${wanted[@]}")
    [ "${#missing[@]}" -eq 0 ] || install_packages "${missing[@]}"
}

missing_of() {
    local package installed native
    native=$(dpkg --print-architecture)
    # shellcheck disable=SC2016 # the format is dpkg's
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}:${Architecture}\n' "${@%%:*}" 2> /dev/null || true)
    for package in "$@"; do
        grep -qxF -e "installed $package" -e "installed $package:$native" -e "installed $package:all" <<< "$installed" ||
            printf '%s\n' "$package"
    done
}

install_packages() {
    local still
    headline "Installing $# Debian packages: $*"
    check_distribution "$@"
    choose_root "$@"
    note "this takes some minutes"
    long_step apt-update prepare_apt || true
    long_step apt-install apt_install "$@" ||
        fail "the packages could not be installed; is the network up, and does the archive answer?"
    mapfile -t still < <(missing_of "$@")
    [ "${#still[@]}" -eq 0 ] || fail "still missing after installing: ${still[*]}"
}

check_distribution() {
    local here
    # shellcheck disable=SC1091
    here="$(. /etc/os-release && printf '%s' "${VERSION_CODENAME:-unknown}") $(dpkg --print-architecture)"
    [ "$here" = "bookworm amd64" ] ||
        fail "packages are missing and this is not Debian 12 on a PC (bookworm amd64) but $here; install by hand: $*"
}

choose_root() {
    [ "$(id -u)" -ne 0 ] || return 0
    command -v sudo > /dev/null ||
        fail "packages are missing, you are not root and there is no sudo; as root: apt-get install $*"
    note "asking for root's rights through sudo"
    sudo -v || fail "sudo gave no rights; as root: apt-get install $*"
    as_root=(sudo)
}

root_apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -y -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=300 "$@"
}

# An update may end non-zero because one index is being renewed, or because some other list of the
# machine is out of order. What counts is whether the packages can be had.
prepare_apt() {
    "${as_root[@]}" dpkg --configure -a || true # an earlier run may have been interrupted
    dpkg --print-foreign-architectures | grep -qx i386 || "${as_root[@]}" dpkg --add-architecture i386
    root_apt update || true
}

# The base suite comes first: otherwise the 32-bit and the 64-bit half of a shared library may be
# wanted in different versions. Where a newer version is already there, the plain order fits.
apt_install() {
    local suite
    for suite in -t=bookworm ""; do
        if root_apt ${suite:+"$suite"} --simulate --no-install-recommends install "$@" > /dev/null; then
            root_apt ${suite:+"$suite"} --no-install-recommends install "$@" && return
        fi
    done
    root_apt --no-install-recommends install "$@" # if this fails too, it says why
}
