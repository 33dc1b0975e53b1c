#!/usr/bin/env python3
"""Writes new figures into the tables of docs/performance.md, in place:

./dev bench --json > qt5.json; QT=6 ./dev bench --json > qt6.json; benchmarks/tables.py qt5.json qt6.json
"""
import json
import pathlib
import re
import sys

PAGE = pathlib.Path(__file__).resolve().parent.parent / "docs" / "performance.md"
STYLES = {5: ["Fusion", "Windows", "Plastique"], 6: ["Fusion", "Windows"]}
SHORT_NAMES = {
    "the look registry": "start-up of the look registry",
    "CButtonEx, default": "CButtonEx, default: its pulse",
    "CButtonEx, glowing": "CButtonEx, glowing, the pointer coming and going",
    "CMenuEx, QMenu: opening": "CMenuEx, QMenu, opening seven times a second",
}


def load(path):
    """The comparisons of a run by group and name, in their order."""
    groups = {}
    for program in json.loads(pathlib.Path(path).read_text()):
        for comparison in program["comparisons"]:
            comparison["of"] = {contender["name"]: contender for contender in comparison["contenders"]}
            groups.setdefault(comparison["group"], {})[comparison["name"]] = comparison
    return groups


def digits(number):
    return f"{number:.2f}" if number < 10 else f"{number:.1f}" if number < 100 else f"{number:.0f}"


def time(nanoseconds):
    return f"{digits(nanoseconds)} ns" if nanoseconds < 1000 else f"{digits(nanoseconds / 1000)} µs"


def ratio(comparison, name, limit=None):
    number = comparison["of"].get(name, {}).get("ratio")
    if number is None:
        return ""
    text = f"{number:.2f}" if number < 10 else f"{number:.1f}"
    return f"**{text}**" if limit is not None and number > limit else text


def median(comparison, name="ours"):
    return comparison["of"][name]["median"]


def both(runs, group, cells):
    """A row per comparison: its name, and what cells(comparison, major) gives for either Qt."""
    for name, comparison in runs[5][group].items():
        row = [SHORT_NAMES.get(name, name)]
        for major in (5, 6):
            row += cells(runs[major][group][name], major)
        yield row, comparison


def painting(runs, group):
    def cells(comparison, major):
        limit = comparison.get("ratioLimit")
        return [time(median(comparison))] + [
            ratio(comparison, style, limit if style == "Fusion" else None) for style in STYLES[major]
        ]

    return [row + [str(comparison.get("ratioLimit", ""))] for row, comparison in both(runs, group, cells)]


def controls(runs):
    def cells(comparison, _):
        return [time(median(comparison)), time(median(comparison, "Fusion")), ratio(comparison, "Fusion")]

    return [row for row, _ in both(runs, "controls beside those of Qt", cells)]


def least(runs):
    def cells(comparison, _):
        return [time(contender["median"]) for contender in comparison["contenders"]]

    return [row for row, _ in both(runs, "limits of painting", cells)]


def registry(runs):
    def cells(comparison, _):
        difference = median(comparison) - median(comparison, "bare")
        apart = f"{difference:+.2f} ns" if "differenceLimit" in comparison else ratio(comparison, "bare", 1.1)
        return [time(median(comparison)), time(median(comparison, "bare")), apart]

    def alone(comparison, _):
        return [time(median(comparison)), "", ""]

    return [row for row, _ in both(runs, "registry", cells)] + [row for row, _ in both(runs, "start-up", alone)]


def processes(runs):
    def cells(comparison, major):
        def show(amount):
            return f"{amount / 1000:.0f} µs" if comparison["unit"] == "ns" else f"{amount / 1024:.3g} MiB"

        def over(style):
            amount = median(comparison) - median(comparison, style)
            is_kept = style != "Fusion" or amount <= comparison["differenceLimit"]
            return show(amount) if is_kept else f"**{show(amount)}**"

        return [show(median(comparison))] + [over(style) for style in STYLES[major]]

    return [row for row, _ in both(runs, "a process with a form of 40", cells)]


def animations(runs):
    def cells(comparison, _):
        row = [f"{median(comparison):.1f}"]
        for name in ("plain", "Fusion"):
            known = name in comparison["of"]
            limit = comparison.get("ratioLimit") if name == "plain" else None
            row += [f"{median(comparison, name):.1f}", ratio(comparison, name, limit)] if known else ["", ""]
        return row

    return [row for row, _ in both(runs, "CPU per second of animation", cells)]


def main(paths):
    if len(paths) != 2:
        sys.exit(__doc__)
    runs = dict(zip((5, 6), map(load, paths)))
    tables = {
        "Standard widgets, everything warm": painting(runs, "painting"),
        "Standard widgets, cache cleared before each painting": painting(runs, "painting, cache cleared"),
        "House controls": controls(runs),
        "The least": least(runs),
        "Registry": registry(runs),
        "Whole processes": processes(runs),
        "Animations": animations(runs),
    }
    text = PAGE.read_text()
    for heading, rows in tables.items():
        body = "".join(f"| {' | '.join(row)} |\n" for row in rows)
        # The first table below the heading, after its head and the line below that.
        table = re.compile(rf"(^### {re.escape(heading)}\n.*?^\|[-|]+\n)(?:^\|[^\n]*\n)+", re.DOTALL | re.MULTILINE)
        text, count = table.subn(lambda found: found[1] + body, text)
        if count != 1:
            sys.exit(f"{PAGE}: there is no table below '### {heading}'. Give it one, with a head and a line below it.")
    PAGE.write_text(text)


main(sys.argv[1:])
