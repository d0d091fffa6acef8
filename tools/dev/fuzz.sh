#!/usr/bin/env bash
#: ./dev fuzz [SECONDS]          run each fuzz target for a while (default 20) with Clang's libFuzzer and sanitizers
# Every fuzz target for SECONDS each, from its corpus in fuzz/corpus/ and from what earlier runs found worth keeping in
# build/fuzz/corpus/. Goes on after a finding, and fails at the end.
. "$(dirname "$0")/common.sh"

seconds=${1:-20} failed=()
if ! [[ $seconds =~ ^[1-9][0-9]*$ ]]; then
    usage
fi
need "${build_tools[@]}" clang libclang-rt-14-dev nlohmann-json3-dev libcli11-dev zlib1g-dev
build fuzz
for name in fuzz/corpus/*/; do
    name=$(basename "$name")
    say "fuzzing $name for $seconds s"
    mkdir -p build/fuzz/corpus/"$name" build/fuzz/found
    arguments=(-max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -artifact_prefix="$PWD"/build/fuzz/found/"$name"-)
    if [ -e fuzz/"$name".dict ]; then arguments+=(-dict=fuzz/"$name".dict); fi
    if build/fuzz/bin/fuzz_"$name" "${arguments[@]}" build/fuzz/corpus/"$name" fuzz/corpus/"$name" \
        >build/fuzz/"$name".log 2>&1; then
        grep -a 'DONE  *cov:' build/fuzz/"$name".log || true
    else
        failed+=("$name")
        tail -n 60 build/fuzz/"$name".log
    fi
done
if [ ${#failed[@]} -gt 0 ]; then
    say "found something: ${failed[*]}; the inputs are in build/fuzz/found, the whole reports in build/fuzz/*.log"
    exit 1
fi
