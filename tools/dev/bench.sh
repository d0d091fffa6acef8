#!/usr/bin/env bash
#: ./dev bench [--quick]         build and run the benchmarks, print the table; --write puts it into docs/performance.md
# Further arguments are options of Google Benchmark.
. "$(dirname "$0")/common.sh"

quick='' write='' options=()
while [ $# -gt 0 ]; do
    case $1 in
        --quick) quick=yes ;;
        --write) write=yes ;;
        *) options+=("$1") ;;
    esac
    shift
done
if [ -n "$quick" ] && [ -n "$write" ]; then
    echo "bench: what --quick measures is not worth writing down" >&2
    exit 2
fi
need "${build_tools[@]}" libbenchmark-dev libfmt-dev libprotobuf-dev protobuf-compiler libpugixml-dev nlohmann-json3-dev \
    libcli11-dev zlib1g-dev
build bench krm_bench
# Briefly once, to see that all of it works; else as often as a median needs, the sides in turn: what else the machine does
# comes to all of them.
if [ -n "$quick" ]; then
    options=(--benchmark_min_time=0.01 "${options[@]}")
else
    options=(--benchmark_min_time=0.1 --benchmark_repetitions=5 --benchmark_enable_random_interleaving=true "${options[@]}")
fi
say "running the benchmarks"
# One locale, so that the converters that follow the user's print the same everywhere.
LC_ALL=C build/bench/bin/krm_bench --tables=build/bench/tables.md "${options[@]}" 2>build/bench/progress.txt || {
    tail -n 30 build/bench/progress.txt >&2
    exit 1
}
if [ -n "$write" ]; then
    write_table tables build/bench/tables.md docs/performance.md
fi
