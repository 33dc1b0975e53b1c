#!/usr/bin/env python3
"""Writes what the documentation takes from the sources: the colours with their readers, the list of the controls' pages,
and the public headers.

    docs/generate.py DIRECTORY

Run it in the root of the repository.
"""

import pathlib
import re
import sys

SOURCES = pathlib.Path("ZelCmnCtrl03")
TABLE = SOURCES / "UiGraphicsColors.h"

# What a function, a file or a folder paints, in words; the narrowest counts. What is not named is shown by its path.
PAINTED = {
    "ButtonEx": "CButtonEx",
    "CC4Styles/ComboBoxPainter.cpp": "combo boxes",
    "CC4Styles/CommonControlStylePolish.cpp polishMenu": "menus",
    "CC4Styles/CommonControlStylePolish.cpp polishSpinBox": "spin boxes",
    "CC4Styles/CommonControlStylePolish.cpp polishTextBox": "CTextBoxEx",
    "CC4Styles/CommonControlStyle.cpp": "the palette",
    "CC4Styles/FramePainters.cpp drawFrame": "frames",
    "CC4Styles/FramePainters.cpp drawFrameMenu": "menus",
    "CC4Styles/FramePainters.cpp drawPanelTipLabel": "tool tips",
    "CC4Styles/FramePainters.cpp drawSplitter": "splitters",
    "CC4Styles/HeaderPainters.cpp": "headers of tables and trees",
    "CC4Styles/IndicatorPainters.cpp": "arrows",
    "CC4Styles/MenuPainters.cpp": "menus",
    "CC4Styles/PushButtonPainters.cpp": "push buttons",
    "CC4Styles/SpinBoxPainter.cpp": "spin boxes",
    "CC4Styles/TabPainters.cpp": "tabs",
    "CC4Styles/TextBoxPainters.cpp": "text boxes",
    "CC4Styles/pixels/SliderPixels.h": "sliders",
    "CC4Styles/pixels/SpinBoxPixels.h": "spin boxes",
    "CC4Styles/pixels/TextBoxPixels.h": "text boxes",
    "CustomIconButton/CustomIconButton.cpp": "CCustomIconButton",
    "CustomIconButton/IconButtonPainting.h": "CTitleButton and the title bar of message boxes",
    "DropDownEx": "CDropDownEx",
    "ListBoxEx": "CListBoxEx",
    "MessageBoxEx": "CMessageBoxEx",
    "ProgressBarEx": "CProgressBarDialogEx",
    "ProgressDialogEx/DialogFace.cpp": "CProgressDialogEx and CRainbowProgressDialog",
    "ProgressDialogEx": "CProgressDialogEx",
    "RainbowProgressDialog": "CRainbowProgressDialog",
    "TextBoxEx": "CTextBoxEx",
}

INTRODUCTION = """# Colours

Every colour of the house look has a key. `UIGraphics.xml` gives a key another colour: see
[Changing the look](../../../docs/deployers.md). The values below are the built-in ones, as RRGGBB.

Two tables: the colours that this library reads, with what they are for, and those that it holds for the applications
that it serves. This page is generated from the table of the registry and a search of the sources.
"""


def colours():
    entry = re.compile(r'\{u"(UIGCLR_\w+)", 0x[0-9A-Fa-f]{2}([0-9A-Fa-f]{6})\}')
    return dict(entry.findall(TABLE.read_text(encoding="utf-8")))


def parts_of(text):
    """The name of each function with its text, by the house's layout: only its head and its braces stand at the edge."""
    name, part = "", []
    for line in text.splitlines():
        head = re.match(r"[\w:<>*& ]*?(\w+)\(", line)
        if head and not line[0].isspace():
            yield name, "\n".join(part)
            name, part = head.group(1), []
        part.append(line)
    yield name, "\n".join(part)


def literals_of(text):
    return set(re.findall(r'"(\w+)"', text))


def made_keys(text):
    """What the prefixes and the endings that stand in one file can make together."""
    literals = literals_of(text)
    prefixes = {literal for literal in literals if literal.startswith("UIGCLR_") and literal.endswith("_")}
    return {prefix + ending for prefix in prefixes for ending in literals}


def painted_by(path, function):
    name = path.relative_to(SOURCES)
    candidates = [f"{name.as_posix()} {function}", *(place.as_posix() for place in (name, *name.parents))]
    return next((PAINTED[place] for place in candidates if place in PAINTED), f"`{name.as_posix()}`")


def readers(keys):
    found = {key: set() for key in keys}
    for path in sorted(SOURCES.rglob("*")):
        if path.suffix not in (".h", ".cpp") or path == TABLE:
            continue
        text = path.read_text(encoding="utf-8")
        for key in made_keys(text) & found.keys():
            found[key].add(painted_by(path, ""))
        for function, part in parts_of(text):
            for key in literals_of(part) & found.keys():
                found[key].add(painted_by(path, function))
    return found


def swatch(colour):
    return f'<span class="swatch" style="background:#{colour}">&nbsp;</span>'


def table(head, rows):
    lines = [head, ["---"] * len(head), *rows]
    return "\n".join("| " + " | ".join(line) + " |" for line in lines) + "\n"


def colour_page():
    defaults = colours()
    if not defaults:
        sys.exit(f"generate.py: no colours in {TABLE}")
    read_by = readers(defaults)
    read = [[swatch(c), f"`{c}`", f"`{key}`", ", ".join(sorted(read_by[key]))]
            for key, c in defaults.items() if read_by[key]]
    held = [[swatch(c), f"`{c}`", f"`{key}`"] for key, c in defaults.items() if not read_by[key]]
    return "\n".join([
        INTRODUCTION,
        f"## Read by this library ({len(read)})\n", table(["", "Default", "Key", "Read by"], read),
        f"## Held for applications ({len(held)})\n", table(["", "Default", "Key"], held)])


def control_page():
    rows = []
    for path in sorted(pathlib.Path("docs/controls").glob("*.md"), key=lambda path: path.name.lower()):
        heading, paragraph, *_ = path.read_text(encoding="utf-8").split("\n\n")
        rows.append([f'\\subpage md_docs_controls_{path.stem} "{heading.lstrip("# ")}"', paragraph.replace("\n", " ")])
    return "# Controls\n\n" + table(["Control", "What it is"], rows)


def public_headers():
    lists = (SOURCES / "CMakeLists.txt").read_text(encoding="utf-8")
    named = re.findall(r"zel_public_class\(\w+ (\S+\.h)\)", lists)
    headers = [SOURCES / name for name in named] + sorted(pathlib.Path("ZelCUtil03/include").rglob("*.h"))
    return [path.as_posix() for path in headers if path.is_file()]


def doxyfile():
    version = re.search(r"project\(ZelCmnCtrl03 VERSION (\S+)", pathlib.Path("CMakeLists.txt").read_text(encoding="utf-8"))
    return "\n".join([f"PROJECT_NUMBER = {version.group(1)}", *(f"INPUT += {path}" for path in public_headers()), ""])


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    directory = pathlib.Path(sys.argv[1])
    directory.mkdir(parents=True, exist_ok=True)
    (directory / "colours.md").write_text(colour_page(), encoding="utf-8")
    (directory / "controls.md").write_text(control_page(), encoding="utf-8")
    (directory / "found.doxyfile").write_text(doxyfile(), encoding="utf-8")


if __name__ == "__main__":
    main()
