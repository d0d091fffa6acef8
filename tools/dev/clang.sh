#!/usr/bin/env bash
#: ./dev clang [newest]          the tests built with Clang 14, or with the newest Clang of Debian 12
. "$(dirname "$0")/platforms_common.sh"

case ${1:-} in
    '') preset=clang ;;
    newest) preset=clang-newest ;;
    *) usage ;;
esac
prepare "$preset"
build "$preset"
run_tests "$preset"
