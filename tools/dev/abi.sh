#!/usr/bin/env bash
#: ./dev abi [--release]         compare the interface with the released one; --release replaces that
# Compares the 64-bit Linux libraries with the descriptions in abi/, or replaces those.
. "$(dirname "$0")/common.sh"

need "${build_tools[@]}" abigail-tools xz-utils "${test_tools[@]}"
build linux64 krm_adaptation_data krm_exchange # what install takes
# The installed headers are the public ones; types of others are nobody's business.
rm -rf build/abi
for component in krm_runtime krm_development; do
    cmake --install build/linux64 --component $component --prefix "$PWD/build/abi" >/dev/null
done
for library in krmc_adaptation_data krmc_platform krmc_exchange; do
    # Without paths, lines and running numbers, so that only a change of the interface changes the description.
    abidw --no-corpus-path --no-comp-dir-path --no-show-locs --type-id-style hash --exported-interfaces-only \
        --drop-private-types --headers-dir build/abi/include --out-file build/abi/$library.xml \
        "$(find build/abi -name "lib$library.so")"
    if [ "${1:-}" = --release ]; then
        mkdir -p abi
        xz -9 --stdout build/abi/$library.xml >abi/$library.xml.xz
        say "abi/$library.xml.xz now describes what is built"
        continue
    fi
    say "comparing $library with the released interface"
    released=build/abi/$library.released.xml
    xz --decompress --stdout abi/$library.xml.xz >"$released"
    # Additions are shown and pass. All else that abidiff reports fails, not only what it is sure of: it leaves the
    # verdict on layouts to the reader.
    abidiff --leaf-changes-only "$released" build/abi/$library.xml || true
    status=0
    abidiff --no-added-syms "$released" build/abi/$library.xml >build/abi/$library.txt || status=$?
    if [ $status -ne 0 ]; then
        cat >&2 <<CHANGED
abi: the interface of $library is not the released one (abidiff: $status).
CONTRIBUTING.md, "Interface guard", says how such a change is released on purpose.
CHANGED
        exit 1
    fi
done
