#!/usr/bin/env bash
#: ./dev other-platform          the tests on another platform than the stand-in
# The library on the platform of tests/other_platform/. Without optimisation: all the time goes into compiling.
. "$(dirname "$0")/common.sh"

need "${build_tools[@]}" "${test_tools[@]}"
say "building on another platform"
cmake -S tests/other_platform -B build/other-platform -G Ninja -DKRM_WERROR=ON >/dev/null
cmake --build build/other-platform --target krm_tests
say "testing on another platform"
ctest --test-dir build/other-platform --no-tests=error --output-on-failure -j 2 -R '^krm_tests'
