#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""names_in_qt.py TAGS RESULT FILE...: the names in one of Qt's tag files that our documents link to.

All classes, and those of their members that one of the files names, as in QMessageBox::button.
Doxygen would list the 350 others of QWidget for each widget of ours, and find all of Qt by its search.
"""

import re
import sys


def main():
    source, result, *files = sys.argv[1:]
    texts = []
    for path in files:
        with open(path, encoding="utf-8") as file:
            texts.append(file.read())
    named = set(re.findall(r"\bQ\w+::\w+", "\n".join(texts)))

    def only_named(compound):
        scope = re.search(r"<name>(.*?)</name>", compound.group()).group(1)
        return re.sub(
            r"\s*<member .*?<name>(.*?)</name>.*?</member>",
            lambda member: member.group() if f"{scope}::{member.group(1)}" in named else "",
            compound.group(), flags=re.DOTALL)

    with open(source, encoding="utf-8") as tags:
        text = tags.read()
    with open(result, "w", encoding="utf-8") as names:
        names.write(re.sub(r"<compound .*?</compound>", only_named, text, flags=re.DOTALL))


main()
