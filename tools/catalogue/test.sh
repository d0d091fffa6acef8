#!/usr/bin/env bash
# Tests the catalogue's pages: tools/catalogue/test.sh EXAMPLES OUT DEMO_LOG
#
# EXAMPLES and OUT are those that tools/make_catalogue_pages.py was given, DEMO_LOG the operation log that the example
# diagnosis_session writes. Needs python3, Chromium, Node.js and what `npm ci --prefix viewer` installs.
set -euo pipefail
here=$(dirname "$0")
python3 "$here/tests/content.py" "$2" "$1"
KRM_CATALOGUE=$(realpath "$2") KRM_DEMO_LOG=$(realpath "$3") node --no-warnings --test "$here"/tests/*.test.mjs
