#!/usr/bin/env bash
#: ./dev valgrind                the 32-bit tests under valgrind's memcheck, but for the longest
# The 32-bit suite under memcheck. Valgrind needs the debug information of the very C library that it runs, which Debian
# has for its i386 packages, not for the 32-bit C library of amd64: so both run in a small i386 root of their own.
# Tests that memcheck can't run, or would take hours with, know it by KRM_UNDER and skip themselves with their reason.
. "$(dirname "$0")/common.sh"

need "${build_tools[@]}" "${test_tools[@]}"
need_32_bits
root=$cache/valgrind-root
i386_root "$root" valgrind,libc6-dbg,libstdc++6
build linux32 krm_tests
say "testing linux32 under valgrind"
# The synonym keeps valgrind from replacing the allocation of the test program, which fails on demand.
# shellcheck disable=SC2016
as_root unshare --mount /bin/sh -c '
    root=$0 directory=$1; shift
    for mounted in /proc /dev "$directory"; do
        mkdir -p "$root$mounted" && mount --bind "$mounted" "$root$mounted" || exit 127
    done
    exec chroot "$root" /bin/sh -c "cd \"\$0\" && exec \"\$@\"" "$directory" "$@"
' "$root" "$PWD" \
    env KRM_UNDER=memcheck valgrind -q --soname-synonyms=somalloc=nouserintercepts --error-exitcode=9 --leak-check=full \
    --errors-for-leak-kinds=definite,indirect build/linux32/bin/krm_tests --gtest_brief=1 "$@"
