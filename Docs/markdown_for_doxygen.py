#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""markdown_for_doxygen.py FILE: a page of ours as Doxygen needs it, on standard output.

Our pages are written to be read where the repository is: links go to files, and to headings by the
anchors that such sites make of them. Doxygen knows pages and labels. A link to a file that is no page
becomes plain text, as does a link to a heading that is not there: Doxygen then fails.
"""

import os
import re
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
MAIN_PAGE = "Docs/Reference.md"
LABELS = {
    MAIN_PAGE: "index",
    "Docs/IntegratorsGuide.md": "IntegratorsGuide",
    "Docs/Architecture.md": "Architecture",
    "Host/README.md": "ReferenceHost",
}


def slug(title):
    """The anchor of a heading: lower case, without punctuation, blanks as hyphens."""
    return re.sub(r"[^\w\- ]", "", title.lower()).replace(" ", "-")


def link(match, path):
    """[text](target), or the same with ! for a picture."""
    mark, text, target = match.groups()
    if mark or re.match(r"\w+:", target):
        return match.group()
    file, _, anchor = target.partition("#")
    linked = os.path.normpath(os.path.join(os.path.dirname(path), file)) if file else path
    if linked not in LABELS:
        return text
    label = LABELS[linked] + ("-" + anchor if anchor else "")
    return f"[{text}](@ref {label})"


def convert(lines, path):
    is_code = False
    for line in lines:
        if line.startswith("```"):
            is_code = not is_code
        heading = re.match(r"(#+) (.+)", line)
        if is_code or line.startswith("    "):
            yield line
        elif heading:
            marks, title = heading.groups()
            label = LABELS[path] if marks == "#" else f"{LABELS[path]}-{slug(title)}"
            yield line if label == "index" else f"{marks} {title} {{#{label}}}"
        else:
            yield re.sub(r"(!?)\[([^\]]*)\]\(([^)\s]+)\)", lambda match: link(match, path), line)


def main():
    path = os.path.relpath(os.path.realpath(sys.argv[1]), ROOT)
    with open(sys.argv[1], encoding="utf-8") as page:
        print("\n".join(convert(page.read().split("\n"), path)))


main()
