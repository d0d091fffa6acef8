#!/usr/bin/env bash
#: ./dev windows [i686|x86_64]   cross-build for Windows, 32 and 64 bits or one of them; run tests and demo in wine
. "$(dirname "$0")/platforms_common.sh"

case ${1:-} in
    '') machines=(i686 x86_64) ;;
    i686 | x86_64) machines=("$1") ;;
    *) usage ;;
esac
for machine in "${machines[@]}"; do
    platform=windows-$machine
    prepare "$platform"
    build "$platform"
    run_tests "$platform"
    say "the demo in wine"
    run_on "$platform" diagnosis_session --operation-log demo-operation.log --values demo-values.csv
    if [ "$machine" = i686 ]; then
        # The guide tells how to do this; the first thing that it tells is this verb.
        say "the guide's commands for Windows"
        python3 tests/guide/guide.py project docs/guide/windows.md "build/$platform/guide" "KRM_WINE=$KRM_WINE" -- "./dev windows i686"
    fi
done
