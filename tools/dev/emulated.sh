#!/usr/bin/env bash
#: ./dev emulated [arm64|s390x]  cross-build for ARM64 and s390x Linux or one of them; run the tests in qemu
. "$(dirname "$0")/platforms_common.sh"

case ${1:-} in
    '') machines=(arm64 s390x) ;;
    arm64 | s390x) machines=("$1") ;;
    *) usage ;;
esac
for machine in "${machines[@]}"; do
    platform=linux-$machine
    prepare "$platform"
    build "$platform"
    run_tests "$platform"
done
