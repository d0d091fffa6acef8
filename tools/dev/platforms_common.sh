# The platforms that the library is tested on, each a preset, and what runs their programs here. For verbs, instead of
# common.sh.
# shellcheck shell=bash
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

# The first one's parity text is what the others are compared with.
# shellcheck disable=SC2034
platforms=(linux64 linux32 windows-i686 windows-x86_64 linux-arm64 linux-s390x)

# prepare PLATFORM: installs its compiler and what runs its programs.
prepare() {
    need "${build_tools[@]}" "${test_tools[@]}"
    case $1 in
        linux64) ;;
        linux32) need_32_bits ;;
        windows-i686)
            need g++-mingw-w64-i686-posix libz-mingw-w64-dev
            KRM_WINE=$(wine_command)
            ;;
        windows-x86_64)
            need g++-mingw-w64-x86-64-posix libz-mingw-w64-dev wine64
            KRM_WINE=$(wine64_command)
            ;;
        linux-arm64) need g++-aarch64-linux-gnu qemu-user ;;
        linux-s390x) need g++-s390x-linux-gnu qemu-user ;;
        clang) need clang ;;
        clang-newest) need clang-19 ;;
    esac
    export KRM_WINE WINEDEBUG=-all
    case $1 in
        windows-*)
            export LC_ALL=C.UTF-8 # else wine has no names for files with letters beyond ASCII
            keep_wine_awake
            ;;
    esac
}

# Wine's server ends with its last program. A program that starts while it ends is lost, and each start of the server takes
# seconds. So one program waits for input that comes only when this shell has ended.
keep_wine_awake() {
    local ready
    ready=$(mktemp -u)
    mkfifo "$ready"
    # shellcheck disable=SC2034
    exec {wine_input}> >(exec "$KRM_WINE" cmd /c "echo ready&set /p line=" >"$ready")
    read -r _ <"$ready" || { say "wine doesn't start: $KRM_WINE"; exit 1; }
    rm "$ready"
}

# run_on PLATFORM PROGRAM [ARGUMENT...]: runs a prepared platform's program in its build folder.
run_on() (
    platform=$1 program=$2
    shift 2
    cd "build/$platform" || exit
    case $platform in
        *windows-*) exec "$KRM_WINE" "bin/$program.exe" "$@" ;;
        linux-arm64) exec qemu-aarch64 -L /usr/aarch64-linux-gnu "bin/$program" "$@" ;;
        linux-s390x) exec qemu-s390x -L /usr/s390x-linux-gnu "bin/$program" "$@" ;;
        *) exec "bin/$program" "$@" ;;
    esac
)

# Prints a command that runs 32-bit Windows programs. Installs wine for i386 where apt can; where it can't (a mirror
# without i386, held packages), makes a small i386 root of its own in the cache and runs wine inside it.
wine_command() {
    if [ -x /usr/lib/i386-linux-gnu/wine/wine ] || [ -x /usr/lib/wine/wine ]; then
        :
    elif ! [ -e "$cache/wine-root/.complete" ]; then
        say "installing wine for 32-bit Windows programs" >&2
        (
            apt_alone
            as_root dpkg --add-architecture i386 && as_root apt-get update -qq &&
                as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends wine32:i386 || {
                as_root dpkg --remove-architecture i386 || true
                as_root apt-get update -qq || true
            }
        ) >/dev/null 2>&1
    fi
    local wine
    for wine in /usr/lib/i386-linux-gnu/wine/wine /usr/lib/wine/wine; do
        if [ -x "$wine" ]; then
            echo "$wine"
            return
        fi
    done
    i386_root "$cache/wine-root" wine32 >&2
    # A command of one word, as CMake's emulator setting takes it. The folders that a program may need are mounted for the
    # one run, in a namespace of its own, so that nothing stays mounted.
    cat >"$cache/wine" <<'WINE'
#!/bin/sh
as_root=
[ "$(id -u)" -eq 0 ] || as_root=sudo
exec $as_root unshare --mount /bin/sh -c '
    root=$0 directory=$1; shift
    # The whole top folder of the current one: a program may read what lies beside its checkout.
    for mounted in /proc /dev "/$(echo "$directory" | cut -d/ -f2)"; do
        mkdir -p "$root$mounted" && mount --bind "$mounted" "$root$mounted" || exit 127
    done
    exec chroot "$root" /bin/sh -c "cd \"\$0\" && exec env HOME=/root WINEDEBUG=-all LANG=C /usr/lib/wine/wine \"\$@\"" "$directory" "$@"
' "$(dirname "$0")/wine-root" "$PWD" "$@"
WINE
    chmod +x "$cache/wine"
    echo "$cache/wine"
}

# Prints a command that runs 64-bit Windows programs: wine with a prefix of its own, for one of 32 bits can't hold them.
wine64_command() {
    mkdir -p "$cache"
    cat >"$cache/wine64" <<'WINE'
#!/bin/sh
exec env WINEPREFIX="$(dirname "$0")/wine64-prefix" /usr/lib/wine/wine64 "$@"
WINE
    chmod +x "$cache/wine64"
    echo "$cache/wine64"
}
