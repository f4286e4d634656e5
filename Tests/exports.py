#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""exports.py [--renew] NM LIBRARY LIST: proves what a shared library exports.

Compares the dynamic symbols that the library defines with the list, one demangled name a line. What
differs between compilers, optimisation levels and versions of Qt without a change of ours is brought
into one form: a class has one line for its virtual table and type information, and one for what moc
generates. --renew writes the list instead.
"""

import re
import subprocess
import sys

# Other spellings of the same type: of the standard library, and of Qt 5 and 6.
SPELLINGS = [
    (r"\[abi:cxx11\]", ""),
    (r"std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> ?>", "std::string"),
    (r"std::vector<([^<>]+), std::allocator<\1> ?>", r"std::vector<\1>"),
    (r"\bQList<QString>", "QStringList"),
    (r"> >", ">>"),
]
# Several symbols of a class, which come and go together or do not matter one by one.
GROUPS = [
    (r"(?:vtable|VTT|typeinfo|typeinfo name) for (.*)", r"type information of \1"),
    (r"(?:non-virtual|virtual) thunk to (.*)", r"\1"),
    (r"(.*)::(?:staticMetaObject|metaObject\(\) const|qt_metacast\(.*\)|qt_metacall\(.*\))",
     r"meta-object of \1"),
]


def exported(nm, library):
    output = subprocess.run([nm, "--dynamic", "--demangle", "--defined-only", library], text=True,
                            capture_output=True, check=True).stdout
    names = set()
    for line in output.splitlines():
        name = re.sub(r"^[0-9a-f]* +\w ", "", line)
        for pattern, replacement in SPELLINGS:
            name = re.sub(pattern, replacement, name)
        for pattern, replacement in GROUPS:
            name = re.sub("^%s$" % pattern, replacement, name)
        names.add(name)
    if not names:
        sys.exit(library + " exports nothing, or nm cannot read it.")
    return names


def main():
    arguments = [argument for argument in sys.argv[1:] if argument != "--renew"]
    nm, library, path = arguments
    names = exported(nm, library)
    with open(path, encoding="utf-8") as file:
        lines = file.read().splitlines()
    comments = [line for line in lines if line.startswith("#")]
    if "--renew" in sys.argv:
        with open(path, "w", encoding="utf-8") as file:
            file.write("\n".join(comments + sorted(names)) + "\n")
        return
    listed = set(lines) - set(comments)
    problems = ["exported, but not listed:  " + name for name in sorted(names - listed)]
    problems += ["listed, but not exported:  " + name for name in sorted(listed - names)]
    if problems:
        sys.exit("%s\nof %s, against %s.\nIf it is meant: cmake --build <build> --target update-exports"
                 % ("\n".join(problems), library, path))
    print("%s exports the %d entries of the list." % (library, len(names)))


main()
