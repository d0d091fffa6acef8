#!/usr/bin/env bash
#: ./dev valgrind                the 32-bit tests under valgrind's memcheck, but for the longest
# The 32-bit suite under memcheck. Valgrind needs the debug information of the very C library that it runs, which Debian
# has for its i386 packages, not for the 32-bit C library of amd64: so both run in a small i386 root of their own.
# Left out is what would take hours there and runs under the address sanitizer: sweeps, large trees and lists. And what
# needs the processor's 80-bit numbers, which valgrind computes in 64 bits.
. "$(dirname "$0")/common.sh"

need "${build_tools[@]}" g++-multilib "${test_tools[@]}"
root=$cache/valgrind-root
i386_root "$root" valgrind,libc6-dbg,libstdc++6
build linux32 krm_tests
say "testing linux32 under valgrind"
# The checkout's parent: tests read recordings beside the checkout where there are any. The synonym keeps valgrind from
# replacing the allocation of the test program, which fails on demand.
# shellcheck disable=SC2016
as_root unshare --mount /bin/sh -c '
    root=$0 parent=$1 directory=$2; shift 2
    for mounted in /proc /dev "$parent"; do
        mkdir -p "$root$mounted" && mount --bind "$mounted" "$root$mounted" || exit 127
    done
    exec chroot "$root" /bin/sh -c "cd \"\$0\" && exec \"\$@\"" "$directory" "$@"
' "$root" "$(dirname "$PWD")" "$PWD" \
    valgrind -q --soname-synonyms=somalloc=nouserintercepts --error-exitcode=9 --leak-check=full \
    --errors-for-leak-kinds=definite,indirect build/linux32/bin/krm_tests --gtest_brief=1 "$@" \
    --gtest_filter='-*EveryType*:*HostileValues*:*RoundTrip*:*LargeTree*:AMillion*:*Random*:PrintfTest*:SoftExtended*:*AHundredKilobyte*:LogicalValue.Brings*:*FromExtendedPrecision'
