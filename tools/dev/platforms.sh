#!/usr/bin/env bash
#: ./dev platforms [--write]     test every platform, print the table; --write puts it into docs/platforms.md
. "$(dirname "$0")/platforms_common.sh"

# macro PRESET NAME: what the preset's compiler defines NAME as.
macro() {
    local compiler flags
    compiler=$(sed -n 's/^set(CMAKE_CXX_COMPILER "\(.*\)")$/\1/p' "build/$1"/CMakeFiles/*/CMakeCXXCompiler.cmake)
    flags=$(sed -n 's/^CMAKE_CXX_FLAGS:[A-Z]*=//p' "build/$1/CMakeCache.txt")
    # shellcheck disable=SC2086
    "$compiler" $flags -dM -E -x c++ /dev/null | sed -n "s/^#define $2 //p"
}

# counted PRESET PASSED|SKIPPED: the tests of which the last run of the preset said so, in all its processes together.
counted() {
    sed -n "s/^\[ *$2 *\] \([0-9]*\) tests*[.,].*/\1/p" "build/$1/Testing/Temporary/LastTest.log" |
        awk '{ all += $1 } END { print all + 0 }'
}

rows=()
for platform in "${platforms[@]}" clang clang-newest; do
    prepare "$platform"
    build "$platform"
    run_tests "$platform"
    run_on "$platform" krm_parity parity.txt
    compiler="GCC $(macro "$platform" __GNUC__)"
    if [ -n "$(macro "$platform" __clang__)" ]; then compiler="Clang $(macro "$platform" __clang_major__)"; fi
    order=lowest
    if [ "$(macro "$platform" __BYTE_ORDER__)" = __ORDER_BIG_ENDIAN__ ]; then order=highest; fi
    character=signed
    if [ -n "$(macro "$platform" __CHAR_UNSIGNED__)" ]; then character=unsigned; fi
    digest=$(sha256sum "build/$platform/parity.txt" | cut -c1-16)
    rows+=("| \`$platform\` | $compiler | $((8 * $(macro "$platform" __SIZEOF_POINTER__))) | $order | $character \
| $((8 * $(macro "$platform" __SIZEOF_LONG_DOUBLE__))), $(macro "$platform" __LDBL_MANT_DIG__) of mantissa \
| $(counted "$platform" PASSED) | $(counted "$platform" SKIPPED) | \`$digest\` |")
done
{
    echo
    echo "| platform | compiler | word | first byte | \`char\` | bits of \`long double\` | passed | skipped | parity |"
    echo "|---|---|---:|---|---|---|---:|---:|---|"
    printf '%s\n' "${rows[@]}"
    echo
} >build/platforms.md
cat build/platforms.md
if [ "${1:-}" = --write ]; then
    write_table platforms build/platforms.md docs/platforms.md
fi
