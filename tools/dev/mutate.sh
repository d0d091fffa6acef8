#!/usr/bin/env bash
#: ./dev mutate [COUNT]          change the code at COUNT places (default 200), one at a time: does a test notice?
# Further arguments are options of tools/mutate.py.
. "$(dirname "$0")/common.sh"

need "${build_tools[@]}" python3 "${test_tools[@]}"
build linux64
say "changing the code at one place at a time"
python3 tools/mutate.py "$@"
