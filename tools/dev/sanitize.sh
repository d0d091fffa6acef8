#!/usr/bin/env bash
#: ./dev sanitize [WHICH [SUITES]]  the tests under sanitizers: address (and undefined behaviour), thread, clang
# SUITES is an expression: only the suites are built and run whose path it matches.
. "$(dirname "$0")/common.sh"

case ${1:-address} in
    address) preset=sanitize ;;
    thread) preset=thread ;;
    clang) preset=sanitize-clang ;;
    *) usage ;;
esac
need "${build_tools[@]}" "${test_tools[@]}"
case $preset in
    sanitize-clang) need clang ;;
    thread) need libc6-dbg ;; # names of the C library's functions, for what tests/main.cpp suppresses
esac
say "building $preset"
cmake --preset "$preset" ${2:+"-DKRM_TEST_SOURCES_MATCHING=$2"} >/dev/null
cmake --build --preset "$preset"
run_tests "$preset"
