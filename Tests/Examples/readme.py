#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""readme.py README SOURCE: proves that the README shows the source, apart from its licence lines."""

import difflib
import re
import sys


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


shown = re.findall(r"^```cpp\n(.*?)^```$", read(sys.argv[1]), re.DOTALL | re.MULTILINE)
if len(shown) != 1:
    sys.exit("%s has %d examples in C++" % (sys.argv[1], len(shown)))
built = re.sub(r"^(// SPDX-.*\n)+\n", "", read(sys.argv[2]))
difference = "".join(difflib.unified_diff(shown[0].splitlines(True), built.splitlines(True),
                                          sys.argv[1], sys.argv[2]))
if difference:
    sys.exit(difference)
