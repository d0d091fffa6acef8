#!/usr/bin/env bash
#: ./dev bench [--quick]         build and run the benchmarks, print the tables; --write puts them into docs/performance.md
# Further arguments are options of Google Benchmark. With a filter, the other builds are left out.
. "$(dirname "$0")/platforms_common.sh"

quick='' write='' filter='' options=()
while [ $# -gt 0 ]; do
    case $1 in
        --quick) quick=yes ;;
        --write) write=yes ;;
        --benchmark_filter=*)
            filter=yes
            options+=("$1")
            ;;
        *) options+=("$1") ;;
    esac
    shift
done
if [ -n "$write" ] && [ -n "$quick$filter" ]; then
    echo "bench: what --quick or a filter measures is not worth writing down" >&2
    exit 2
fi
need "${build_tools[@]}" libbenchmark-dev libfmt-dev libprotobuf-dev protobuf-compiler libpugixml-dev nlohmann-json3-dev \
    libcli11-dev zlib1g-dev python3-minimal
build bench krm_bench krm_bench_platform krm_exchange
# Briefly once, to see that all of it works; else in rounds.
if [ -n "$quick" ]; then
    options=(--benchmark_min_time=0.01 "${options[@]}")
    seconds=0.001 rounds=1 compilations=1
else
    options=(--benchmark_min_time=0.03 --rounds=15 "${options[@]}")
    seconds=0.03 rounds=3 compilations=3
fi
say "running the benchmarks"
# One locale, so that the converters that follow the user's print the same everywhere.
export LC_ALL=C
build/bench/bin/krm_bench --tables=build/bench/tables.md "${options[@]}" 2>build/bench/progress.txt || {
    tail -n 30 build/bench/progress.txt >&2
    exit 1
}
[ -z "$filter" ] || exit 0

# cached PRESET NAME: a setting of the preset's build.
cached() {
    sed -n "s/^$2:[A-Z]*=//p" "build/$1/CMakeCache.txt"
}

compiler() {
    sed -n 's/^set(CMAKE_CXX_COMPILER "\(.*\)")$/\1/p' "build/$1"/CMakeFiles/*/CMakeCXXCompiler.cmake
}

# compile PRESET HEADER: the processor time that the preset's compiler takes for a file that includes just that.
compile() {
    local flags TIMEFORMAT=%U
    flags=$(cached "$1" CMAKE_CXX_FLAGS)
    # shellcheck disable=SC2086
    { time "$(compiler "$1")" $flags -std=c++20 -O2 -c -I. -Iplatform -x c++ "$2" -o /dev/null; } 2>&1
}

# The standard headers that the umbrella header includes, itself or by the library's own headers, where they are there.
standard_headers() {
    "$(compiler bench)" -std=c++20 -MM -I. -Iplatform -x c++ krm/adaptation_data.h | grep -o '[^ ]*\.h\>' |
        xargs sed -n 's/^#include \(<.*>\)$/#if __has_include(\1)\n#include \1\n#endif/p'
}

# measure PRESET BUILD: writes what there is of a build for tools/bench_table.py.
measure() {
    local preset=$1 measured=build/bench/builds/$2.tsv library i
    say "measuring $preset"
    run_on "$preset" krm_bench_platform "$seconds" >>"$measured"
    for library in platform adaptation_data exchange; do
        "$(cached "$preset" CMAKE_STRIP)" -o build/bench/builds/stripped "$(library_file "$preset" "$library")"
        printf 'size: %s\t%s\n' "$library" "$(stat -c %s build/bench/builds/stripped)" >>"$measured"
    done
    # In turn, so that both meet the same machine.
    for ((i = 0; i < compilations; ++i)); do
        printf 'header\t%s\t%s\n' "$(compile "$preset" krm/adaptation_data.h)" \
            "$(compile "$preset" build/bench/builds/standard.h)" >>"$measured"
    done
}

# library_file PRESET LIBRARY: where the preset has put it.
library_file() {
    case $1 in
        *windows-*) echo "build/$1/bin/krmc_$2.dll" ;;
        *) echo "build/$1/krm/libkrmc_$2.so" ;;
    esac
}

rm -rf build/bench/builds
mkdir -p build/bench/builds
standard_headers >build/bench/builds/standard.h
builds=(bench:linux64)
for platform in linux32 windows-i686 windows-x86_64; do
    prepare "$platform"
    # Optimised like the first; where the times say nothing, the builds that the tests run on will do.
    preset=bench-$platform
    [ -z "$quick" ] || preset=$platform
    say "building $preset"
    cmake --preset "$preset" -DKRM_BUILD_BENCHMARKS=ON >/dev/null
    cmake --build --preset "$preset" --target krm_bench_platform krm_exchange
    builds+=("$preset:$platform")
done
for ((round = 0; round < rounds; ++round)); do
    for each in "${builds[@]}"; do
        prepare "${each#*:}" # which wine runs the programs
        measure "${each%:*}" "${each#*:}"
    done
done
tools/bench_table.py build/bench/builds | tee build/bench/builds.md
if [ -n "$write" ]; then
    write_table tables build/bench/tables.md docs/performance.md
    write_table builds build/bench/builds.md docs/performance.md
fi
