#!/usr/bin/env python3
"""Puts what `./dev bench` measured on every build together to the second table of docs/performance.md.

    bench_table.py FOLDER    FOLDER/BUILD.tsv for each of the builds below: what krm_bench_platform wrote there, and rows
                             "size: LIBRARY", bytes, and "header", seconds, seconds of the standard headers alone;
                             of a row that is there more than once, the least of each number counts

A build without a file is left out, and so is each goal that needs it.
"""

import os
import sys

BUILDS = {
    "linux64": "64-bit Linux",
    "linux32": "32-bit Linux",
    "windows-i686": "32-bit Windows",
    "windows-x86_64": "64-bit Windows",
}
LIST_OPERATIONS = ("append", "copy", "walk", "clear")
SLOW_LIST = 1.05
WORST = 5


def read(folder):
    """The numbers of each build by what they are of."""
    measured = {}
    for build in BUILDS:
        path = os.path.join(folder, build + ".tsv")
        if os.path.exists(path):
            rows = measured[build] = {}
            with open(path, encoding="utf-8") as lines:
                for line in lines:
                    what, *cells = line.rstrip("\r\n").split("\t")
                    numbers = [float(cell) for cell in cells]
                    rows[what] = [min(pair) for pair in zip(rows.get(what, numbers), numbers)]
    return measured


def time(nanoseconds):
    if nanoseconds < 1000:
        return f"{nanoseconds:.{1 if nanoseconds < 100 else 0}f} ns"
    return f"{nanoseconds / 1000:.1f} µs"


def print_row(cells):
    print("| " + " | ".join(cells) + " |")


def print_times(measured):
    print_row(["what"] + [BUILDS[build] for build in measured])
    print("|---" + "|---:" * len(measured) + "|")
    first = next(iter(measured.values()))
    for what in first:
        if what.startswith("list: "):
            continue
        cells = []
        for rows in measured.values():
            numbers = rows.get(what)
            if numbers is None:
                cells.append("–")
            elif what == "header":
                cells.append(f"{numbers[0]:.2f} s ({numbers[0] / numbers[1]:.2f})")
            elif what.startswith("size: "):
                cells.append(f"{numbers[0] / 1024:,.0f} KiB")
            elif len(numbers) >= 2:
                cells.append(f"{time(numbers[0])} ({numbers[0] / numbers[1]:.2f})")
            else:
                cells.append(time(numbers[0]))
        shown = {"header": "compile `krm/adaptation_data.h`, beside the standard headers that it includes"}
        print_row([shown.get(what, what)] + cells)
    print()


def peer_ratios(rows, start):
    """(share of the peer's time, what) of what begins so and has a peer, the worst first."""
    return sorted(((numbers[0] / numbers[1], what) for what, numbers in rows.items()
                   if what.startswith(start) and len(numbers) >= 2), reverse=True)


def list_ratios(rows, operation):
    """(ratio, class), the worst first."""
    start = f"list: {operation}: "
    return [(ratio, what[len(start):]) for ratio, what in peer_ratios(rows, start)]


def print_lists(measured):
    print(f"Lists of every class beside `std::list` with the same elements: how many are above {SLOW_LIST}, and the worst.\n")
    print_row(["operation", "build", "above", "the worst"])
    print("|---|---|---:|---|")
    for operation in LIST_OPERATIONS:
        for build, rows in measured.items():
            ratios = list_ratios(rows, operation)
            slow = sum(round(ratio, 2) > SLOW_LIST for ratio, _ in ratios)
            worst = ", ".join(f"{name} {ratio:.2f}" for ratio, name in ratios[:WORST])
            print_row([operation, BUILDS[build], f"{slow} of {len(ratios)}", worst])
    print()


def ratios_to(measured, build, other, start):
    """The times of a build as shares of another's, the worst first; no lines where one of them wasn't measured."""
    if build not in measured or other not in measured:
        return []
    ours, theirs = measured[build], measured[other]
    return sorted(((ours[what][0] / theirs[what][0], what) for what in ours
                   if what.startswith(start) and what in theirs), reverse=True)


def goals(measured):
    """(what, ratio, at most or None, of which)."""
    for ratio, what in ratios_to(measured, "windows-i686", "linux32", "convert: ")[:1]:
        yield "conversions on 32-bit Windows, beside 32-bit Linux", ratio, 1.5, what
    for build in ("windows-i686", "windows-x86_64"):
        for ratio, what in peer_ratios(measured.get(build, {}), "convert: base")[:1]:
            yield f"base conversion on {BUILDS[build]}, beside `snprintf`", ratio, 0.33, what
        for ratio, what in ratios_to(measured, build, "linux32", "answer: a line"):
            yield f"line of the log on {BUILDS[build]}, beside 32-bit Linux", ratio, 1.3, what
    for build, rows in measured.items():
        for ratio, what in peer_ratios(rows, "convert: ")[:1]:
            yield f"any conversion on {BUILDS[build]}, beside `snprintf`", ratio, None, what
        for operation in LIST_OPERATIONS:
            for ratio, name in list_ratios(rows, operation)[:1]:
                yield f"lists on {BUILDS[build]}, {operation}, beside `std::list`", ratio, SLOW_LIST, name
        if "header" in rows:
            yield (f"`krm/adaptation_data.h` on {BUILDS[build]}, beside the standard headers",
                   rows["header"][0] / rows["header"][1], 1.4, "")


def print_goals(measured):
    print_row(["what", "worst", "ratio", "goal", "met"])
    print("|---|---|---:|---:|:---:|")
    for what, ratio, most, of_which in goals(measured):
        goal, met = "–", ""
        if most is not None:
            goal, met = f"≤ {most:.2f}", "yes" if round(ratio, 2) <= most else "**no**"
        print_row([what, of_which, f"{ratio:.2f}", goal, met])
    print()


def main():
    measured = read(sys.argv[1])
    if not measured:
        sys.exit(f"{sys.argv[1]}: nothing was measured")
    for build, rows in measured.items():
        if "answer: copy" not in rows or not list_ratios(rows, "append"):
            sys.exit(f"{sys.argv[1]}: {build} has no times")
    print()
    print("Least time of many rounds; in brackets the share of the peer's, which is `snprintf` with the conversions.\n")
    print_times(measured)
    print_lists(measured)
    print_goals(measured)


if __name__ == "__main__":
    main()
