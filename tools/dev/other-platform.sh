#!/usr/bin/env bash
#: ./dev other-platform          the tests on another platform than the stand-in, with Clang's sanitizers
# The library on the platform of tests/other_platform/.
. "$(dirname "$0")/common.sh"

need "${build_tools[@]}" "${test_tools[@]}" clang
say "building on another platform"
cmake -S tests/other_platform -B build/other-platform -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Debug \
    "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g1" -DCMAKE_UNITY_BUILD=ON -DKRM_SANITIZE=clang -DKRM_WERROR=ON >/dev/null
cmake --build build/other-platform --target krm_tests
say "testing on another platform"
ctest --test-dir build/other-platform --no-tests=error --output-on-failure -j 2 -R '^krm_tests'
