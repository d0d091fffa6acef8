#!/usr/bin/env bash
#: ./dev coverage [--write]      which lines and branches the tests reach; --write puts it into docs/reliability.md
# The goals fail it when they are missed.
. "$(dirname "$0")/common.sh"

need "${build_tools[@]}" gcovr "${test_tools[@]}"
build coverage krm_tests
find build/coverage -name '*.gcda' -delete # of earlier runs
say "testing coverage"
ctest --preset coverage -R '^krm_tests'
say "counting"
# Branches that the compiler makes for exceptions, which every call may throw, say nothing about the tests.
status=0
gcovr --root . --filter krm/ --filter platform/ --exclude-throw-branches --exclude-unreachable-branches \
    --fail-under-line 100 --fail-under-branch 95 --csv build/coverage/coverage.csv \
    --txt build/coverage/coverage.txt --html-details build/coverage/coverage.html --print-summary \
    build/coverage/krm build/coverage/tests/CMakeFiles build/coverage/examples || status=$?
awk -F, '
    function percent(part, all) { return all ? int(1000 * part / all) / 10 : 100 } # cut: 100 means all
    function row(name, l, lt, b, bt) {
        printf "| %s | %d of %d | %.1f %% | %d of %d | %.1f %% |\n", name, l, lt, percent(l, lt), b, bt, percent(b, bt)
    }
    NR > 1 {
        folder = $1
        sub(/\/[^\/]*$/, "", folder)
        if (!(folder in lines)) order[++folders] = folder
        lines[folder] += $2; run[folder] += $3; branches[folder] += $5; taken[folder] += $6
        l += $3; lt += $2; b += $6; bt += $5
    }
    END {
        print "\n| folder | lines run | | branches taken | |\n|---|---|---|---|---|"
        for (i = 1; i <= folders; ++i) {
            f = order[i]
            row("`" f "`", run[f], lines[f], taken[f], branches[f])
        }
        row("all", l, lt, b, bt)
        print ""
    }' build/coverage/coverage.csv >build/coverage/table.md
cat build/coverage/table.md
say "by line: build/coverage/coverage.html"
if [ "${1:-}" = --write ]; then
    write_table coverage build/coverage/table.md docs/reliability.md
fi
exit $status
