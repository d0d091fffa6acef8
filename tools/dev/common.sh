# What every verb of ./dev starts with: `. "$(dirname "$0")/common.sh"`, from the checkout's root on.
# shellcheck shell=bash
# shellcheck disable=SC2034
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

# Outside the checkout, so that a clean checkout needn't make it again.
cache=${XDG_CACHE_HOME:-$HOME/.cache}/krm

build_tools=(cmake ninja-build g++ make rapidjson-dev)
test_tools=(googletest gdb lldb lnav nlohmann-json3-dev libcli11-dev zlib1g-dev libpugixml-dev python3-minimal python3-jsonschema)

say() { printf '== %s\n' "$*"; }
as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# The verb's own lines of help, for who used it wrongly.
usage() {
    sed -n 's/^#: //p' "tools/dev/$(basename "$0")" >&2
    exit 2
}

# Installs those of the Debian packages that are not there yet.
need() {
    local package missing=()
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    say "installing ${missing[*]}"
    (
        apt_alone
        as_root apt-get update -qq
        as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
    )
}

# The subshell that calls it is the only one that uses apt until its end: two verbs may run at a time.
apt_alone() {
    mkdir -p "$cache"
    exec 9>"$cache/apt.lock"
    flock 9
}

# What compiles for 32-bit Linux: the package for this very version of g++. That for any version can't be installed beside
# the cross compilers.
need_32_bits() {
    need "g++-$(g++ -dumpversion | cut -d. -f1)-multilib"
}

# What builds and tests the page, and drives Chromium: the packages of viewer/package-lock.json.
need_viewer_packages() {
    # Whoever has Node.js from elsewhere has npm with it, and can't have Debian's beside it.
    command -v npm >/dev/null || need npm
    if [ viewer/package-lock.json -nt viewer/node_modules/.package-lock.json ]; then
        say "installing what builds and tests the page"
        npm ci --prefix viewer --no-audit --no-fund --ignore-scripts --loglevel=error
        touch viewer/node_modules/.package-lock.json
    fi
}

# build PRESET [TARGET...]: configures and builds.
build() {
    local preset=$1
    shift
    say "building $preset"
    cmake --preset "$preset" >/dev/null
    if [ $# -gt 0 ]; then
        cmake --build --preset "$preset" --target "$@"
    else
        cmake --build --preset "$preset"
    fi
}

run_tests() {
    say "testing $1"
    ctest --preset "$1"
}

# write_table NAME TABLE DOCUMENT: puts the file TABLE between the document's comments "NAME:" and "end of NAME".
write_table() {
    sed -i -e "/^<!-- $1:/,/^<!-- end of $1/{//!d}" -e "/^<!-- $1:/r $2" "$3"
    say "written to $3"
}

# debian_root FOLDER ARCHITECTURE PACKAGE[,PACKAGE...]: makes a small Debian with these packages, if it isn't there yet.
debian_root() {
    local root=$1 architecture=$2 packages=$3 mirror
    [ ! -e "$root/.complete" ] || return 0
    need debootstrap
    say "making a Debian for $architecture with $packages in $root"
    # shellcheck disable=SC2016
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Codename: bookworm' | head -n 1)
    mkdir -p "$(dirname "$root")"
    as_root rm -rf "$root"
    as_root debootstrap --arch="$architecture" --variant=minbase --include="$packages" bookworm "$root" "$mirror" >/dev/null
    as_root touch "$root/.complete"
}
i386_root() { debian_root "$1" i386 "$2"; }
