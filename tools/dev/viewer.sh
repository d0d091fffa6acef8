#!/usr/bin/env bash
#: ./dev viewer [--write]        test the page that shows logs, in Chromium; --write makes page, catalogue and pictures anew
# Without --write it fails where viewer/krm-viewer.html or viewer/catalogue.json is not what the sources give.
. "$(dirname "$0")/common.sh"

case ${1:-} in
    '') check=--check ;;
    --write) check= ;;
    *) usage ;;
esac
need chromium python3-minimal
need_viewer_packages
say "building viewer/krm-viewer.html${check:+ and comparing}"
tools/make_catalogue.py $check
node viewer/build.mjs $check
if [ -z "$check" ]; then
    build release diagnosis_session
    build/release/bin/diagnosis_session --operation-log build/viewer-demo.log >/dev/null
    node viewer/screenshots.mjs build/viewer-demo.log docs/images
fi
say "testing the viewer"
node --no-warnings --test viewer/tests/*.test.mjs
