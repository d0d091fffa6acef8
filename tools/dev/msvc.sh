#!/usr/bin/env bash
#: ./dev msvc                    prove slots and layouts on MSVC, with Clang instead of it
. "$(dirname "$0")/common.sh"

need clang g++ python3-minimal
need_32_bits
say "compiling the public headers for MSVC's targets"
python3 tests/msvc/check.py clang++ g++
