#!/usr/bin/env bash
#: ./dev parity                  compare what the builds for all platforms compute and dump, byte for byte
# The program's text must be the same bytes everywhere: with plain char signed or not, whatever long double is, and
# whichever byte comes first.
. "$(dirname "$0")/platforms_common.sh"

for platform in "${platforms[@]}"; do
    prepare "$platform"
    build "$platform" krm_parity
    run_on "$platform" krm_parity parity.txt
    [ "$platform" != linux64 ] || continue
    cmp build/linux64/parity.txt "build/$platform/parity.txt"
    say "$platform gives the $(wc -l <build/linux64/parity.txt) lines of linux64"
done
