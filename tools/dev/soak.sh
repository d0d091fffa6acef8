#!/usr/bin/env bash
#: ./dev soak [MINUTES]          a session that runs for long (default 30), on a full disk, without its folder, killed
. "$(dirname "$0")/common.sh"

need "${build_tools[@]}" nlohmann-json3-dev libcli11-dev zlib1g-dev python3-minimal
build release diagnosis_session krm_cli
say "soaking"
as_root unshare --mount python3 tools/soak.py "${1:-30}" build/release/bin/diagnosis_session build/release/bin/krm examples/data
