#!/usr/bin/env bash
#: ./dev docs                    make the documentation in build/docs, and test it: links, spelling, every page in Chromium
# What each step does says the head of its script, in docs/site/ and of tools/make_catalogue_pages.py.
. "$(dirname "$0")/common.sh"

[ $# -eq 0 ] || usage
need "${build_tools[@]}" nlohmann-json3-dev libcli11-dev zlib1g-dev
need doxygen doxygen-awesome-css libjs-lunr python3 chromium hunspell hunspell-en-gb
need_viewer_packages
out=build/docs source=build/docs-source bin=build/release/bin
build release krm_catalogue_examples diagnosis_session

say "making $out"
rm -rf $out $source
docs/site/pages.py $source
# Lists of every member of everything are what the search is for.
doxygen -l $source/layout.xml
sed -i -E 's/(<tab type="(classmembers|classindex|hierarchy|globals|namespacemembers|namespaces)" visible=)"yes"/\1"no"/' $source/layout.xml
version=$(sed -n 's/^#define KRM_VERSION_[A-Z]* \([0-9]*\)$/\1/p' krm/version.h | paste -sd .)
printf '@INCLUDE = docs/site/Doxyfile\nPROJECT_NUMBER = %s\nLAYOUT_FILE = %s\n' "$version" $source/layout.xml | doxygen -
rm $out/*-members.html
sed -i -e 's|<a href="[^"]*-members\.html">List of all members</a>||' -e '/<div class="summary">/,/<\/div>/d' $out/*.html
# A page on which nothing unfolds needs no scripts for it.
grep -LZ toggle $out/*.html | xargs -0 sed -i -E '/(jquery|dynsections)\.js/d'
[ ! -d $source/files ] || cp -r $source/files $out
tools/make_catalogue_pages.py --home ../index.html --nav Guide=../guide.html --nav Reference=../annotated.html \
    $bin/krm_catalogue_examples $out/catalogue
docs/site/search_entries.py $source/xml $out/catalogue/entries.json >$source/entries.json
node docs/site/make_search.mjs $source/entries.json $out/search

say "testing $out"
docs/site/tests/links.py $out
docs/site/tests/spelling.py $source/pages
$bin/diagnosis_session --operation-log $source/demo.log >/dev/null
tools/catalogue/test.sh $bin/krm_catalogue_examples $out/catalogue $source/demo.log
node --no-warnings --test docs/site/tests/*.test.mjs
