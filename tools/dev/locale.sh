#!/usr/bin/env bash
#: ./dev locale                  the tests in a locale with a decimal comma
# The suite in a locale with a decimal comma. The locale is made in build/; the system's own stay as they are.
. "$(dirname "$0")/common.sh"

need "${build_tools[@]}" locales "${test_tools[@]}"
locale=de_DE.UTF-8 directory=$PWD/build/locales
if ! [ -e "$directory/$locale" ]; then
    say "making the locale $locale in build/locales"
    mkdir -p "$directory"
    localedef -i "${locale%%.*}" -f "${locale##*.}" "$directory/$locale"
fi
build linux64
say "testing linux64 in $locale"
LOCPATH=$directory LC_ALL=$locale KRM_TEST_LOCALE=1 build/linux64/bin/krm_tests --gtest_brief=1
