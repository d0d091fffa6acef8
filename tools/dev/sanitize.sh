#!/usr/bin/env bash
#: ./dev sanitize [WHICH]        the tests under sanitizers: address (and undefined behaviour), thread, clang
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
build "$preset"
run_tests "$preset"
