#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""public_headers.py COMPILER... -- FLAG...: proves that the public headers compile in any project.

All are compiled by each compiler as C++17 and as C++20, with the strictest warnings that a project
may have; and each alone, before anything else, by the last compiler as C++17, whose standard library
includes less of itself. The flags find Qt.
"""

import concurrent.futures
import os
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
LIBRARY = os.path.join(ROOT, "Lib/UI/SchedulerWidgets")
HOST = os.path.join(ROOT, "Host")
# Besides these, the headers of the host that export something.
PANEL = ["HostData.h", "HostInterfaces.h", "RecordSchedulerWidget.h", "SchedulerWidgetsExport.h"]

COMMON = ["-Werror", "-fsyntax-only", "-fPIC", "-I", LIBRARY, "-I", HOST, "-DQT_NO_KEYWORDS",
          "-DQT_NO_CAST_FROM_ASCII", "-DQT_NO_CAST_TO_ASCII", "-DQT_NO_CAST_FROM_BYTEARRAY",
          "-DQT_NO_URL_CAST_FROM_STRING", "-DQT_NO_NARROWING_CONVERSIONS_IN_CONNECT",
          "-DQT_NO_FOREACH", "-DQT_NO_JAVA_STYLE_ITERATORS", "-DQT_STRICT_ITERATORS",
          "-DQT_USE_QSTRINGBUILDER", "-DQT_DEPRECATED_WARNINGS",
          "-DQT_DISABLE_DEPRECATED_BEFORE=0x060000"]
GCC = ["-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wsign-conversion", "-Wshadow",
       "-Wold-style-cast", "-Wuseless-cast", "-Wnon-virtual-dtor", "-Woverloaded-virtual",
       "-Wsuggest-override", "-Wdouble-promotion", "-Wcast-qual", "-Wcast-align", "-Wundef",
       "-Wredundant-decls", "-Wextra-semi", "-Wzero-as-null-pointer-constant", "-Wformat=2",
       "-Wduplicated-cond", "-Wlogical-op", "-Wnull-dereference", "-Wmissing-declarations"]
# An interface all of whose members are inline has its tables wherever it is used (weak-vtables).
CLANG = ["-Weverything", "-Wno-c++98-compat", "-Wno-c++98-compat-pedantic", "-Wno-padded",
         "-Wno-weak-vtables"]


def public_headers():
    found = list(PANEL)
    for folder, _, names in os.walk(HOST):
        for name in names:
            path = os.path.join(folder, name)
            if name.endswith(".h"):
                with open(path, encoding="utf-8") as file:
                    if "ZENTOR_HOST_API" in file.read():
                        found.append(os.path.relpath(path, HOST))
    return sorted(found)


def check(compiler, standard, headers, flags):
    warnings = CLANG if "clang" in os.path.basename(compiler) else GCC
    command = [compiler, "-std=" + standard] + warnings + COMMON + flags + ["-x", "c++", "-"]
    text = "".join('#include "%s"\n' % header for header in headers)
    result = subprocess.run(command, input=text, text=True, capture_output=True, check=False)
    if result.returncode == 0:
        return []
    what = headers[0] + " alone" if len(headers) == 1 else "all headers"
    return ["%s, by %s as %s:\n%s" % (what, compiler, standard, result.stderr)]


def main():
    border = sys.argv.index("--")
    compilers = sys.argv[1:border]
    flags = sys.argv[border + 1:]
    headers = public_headers()
    jobs = [(compiler, standard, headers) for compiler in compilers for standard in ("c++17", "c++20")]
    jobs += [(compilers[-1], "c++17", [header]) for header in headers]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        checks = [pool.submit(check, *job, flags) for job in jobs]
    problems = [problem for result in checks for problem in result.result()]
    print("\n".join(problems) or "%d headers compile without a warning by %s."
          % (len(headers), " and ".join(compilers)))
    sys.exit(1 if problems else 0)


main()
