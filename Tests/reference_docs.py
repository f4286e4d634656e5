#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""reference_docs.py DOXYGEN DOXYFILE OUTPUT HEADER...: proves that the reference documents are whole.

Writes them into the folder OUTPUT, and fails when Doxygen warns, when a symbol of the headers that
others can use has no description, when a header is missing, when a link or a picture of a page leads
nowhere, when nothing links to Qt's documents though their names are known, when the guide's contents
lack a section, and when its tables of what a host provides are not the contract.
"""

import os
import re
import shutil
import subprocess
import sys
import urllib.parse
import xml.etree.ElementTree as ElementTree

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
GUIDE = os.path.join(ROOT, "Docs", "IntegratorsGuide.md")
# The headings above the tables of what a host defines and of what it hands over.
CONTRACT_TABLES = ["### Functions that a host defines", "### Objects that a host hands over"]
# And the one that says what may be done inside of them: by function, or by class.
PERMISSION_TABLE = "## What a host may do inside its functions"
CONTRACT_HEADERS = {"HostData.h", "HostInterfaces.h"}
KINDS = {"class", "struct", "union", "namespace", "file"}


def is_described(element):
    texts = [element.find(name) for name in ("briefdescription", "detaileddescription")]
    return any("".join(text.itertext()).strip() for text in texts if text is not None)


def name_of(element):
    for tag in ("qualifiedname", "compoundname", "name"):
        name = element.findtext(tag)
        if name:
            return name + (element.findtext("argsstring") or "")
    return "?"


def symbols(compound):
    """The compound itself, its members and the values of its enumerations."""
    yield compound
    for member in compound.iter("memberdef"):
        if member.get("prot") == "private" or member.get("kind") == "friend":
            continue
        yield member
        yield from member.iter("enumvalue")


def compounds(folder):
    index = ElementTree.parse(os.path.join(folder, "index.xml")).getroot()
    for entry in index.iter("compound"):
        if entry.get("kind") in KINDS:
            path = os.path.join(folder, entry.get("refid") + ".xml")
            compound = ElementTree.parse(path).getroot().find("compounddef")
            is_page = compound.get("kind") == "file" and name_of(compound).endswith(".md")
            # Of namespaces of others only what ours refer to is listed.
            if not is_page and name_of(compound) != "std":
                yield compound


def undocumented(folder, headers):
    """What is wrong, and how many symbols there are."""
    problems = []
    files = set()
    seen = set()
    for compound in compounds(folder):
        if compound.get("prot") == "private":
            continue
        if compound.get("kind") == "file":
            files.add(os.path.basename(name_of(compound)))
        for symbol in symbols(compound):
            if symbol.get("id") in seen:
                continue
            seen.add(symbol.get("id"))
            if not is_described(symbol):
                problems.append("no description: " + name_of(symbol))
    missing = sorted({os.path.basename(header) for header in headers} - files)
    return problems + ["not in the documents: " + header for header in missing], len(seen)


def host_functions(folder):
    """The functions of the contract that have no definition in its headers, with the names of their
    class and of those derived from it. A constructor or a destructor has the name of its class."""
    for compound in compounds(folder):
        if compound.get("kind") == "file":
            continue
        derived = [base.text for base in compound.iter("derivedcompoundref")]
        classes = {name.split("::")[-1] for name in [name_of(compound), *derived]}
        for member in compound.iter("memberdef"):
            header = os.path.basename(member.find("location").get("file"))
            is_defined = member.get("inline") == "yes" or re.search(
                r"=\s*(default|delete)$", member.findtext("argsstring") or "")
            if member.get("kind") == "function" and header in CONTRACT_HEADERS and not is_defined:
                yield member.findtext("name").lstrip("~"), classes


def guide_text():
    with open(GUIDE, encoding="utf-8") as guide:
        return guide.read()


def unlisted_sections():
    text = guide_text()
    contents = text.split("\n## ")[0]
    for title in re.findall(r"^## (.+)$", text, re.MULTILINE):
        if f"[{title}](#" not in contents:
            yield "not in the guide's contents: " + title


def names_in_table(heading):
    """The names in the first column of the table below a heading of the guide."""
    table = guide_text().split(f"\n{heading}\n")[1].split("\n#")[0]
    for cell in re.findall(r"^\| (.*?) \|", table, re.MULTILINE):
        for name in re.findall(r"`([^`]+)`", cell):
            yield name.rstrip("()").split("::")[-1]
            yield from name.split("::")[:-1] if heading == PERMISSION_TABLE else []


def contract_problems(folder):
    functions = list(host_functions(folder))
    contract = {name for name, classes in functions}
    guide = {name for heading in CONTRACT_TABLES for name in names_in_table(heading)}
    yield from ("not in the guide's tables: " + name for name in sorted(contract - guide))
    yield from ("only in the guide's tables: " + name for name in sorted(guide - contract))
    permissions = set(names_in_table(PERMISSION_TABLE))
    for name, classes in functions:
        if not permissions & {name, *classes}:
            yield "not told what it may do: " + name


def broken_links(folder):
    pages = {}
    for name in os.listdir(folder):
        if name.endswith(".html"):
            with open(os.path.join(folder, name), encoding="utf-8") as page:
                pages[name] = page.read()
    ids = {name: set(re.findall(r'(?:id|name)="([^"]+)"', text)) for name, text in pages.items()}
    for name, text in sorted(pages.items()):
        for target in set(re.findall(r'(?:href|src)="([^"]+)"', text)):
            if re.match(r"\w+:", target):
                continue
            path, _, anchor = urllib.parse.unquote(target).partition("#")
            if path and not os.path.exists(os.path.join(folder, path)):
                yield f"{name}: no file {path}"
            elif anchor and anchor not in ids.get(path or name, {anchor}):
                yield f"{name}: no anchor {target}"


def missing_qt_links(doxyfile, folder):
    with open(doxyfile, encoding="utf-8") as settings:
        known = re.search(r"^TAGFILES.*=(https://doc\.qt\.io/[^\"]+)", settings.read(), re.MULTILINE)
    with open(os.path.join(folder, "classZentor_1_1ZFrame.html"), encoding="utf-8") as page:
        if known and known.group(1) + "qframe.html" not in page.read():
            yield "no link from ZFrame to QFrame"


def main():
    doxygen, doxyfile, output, *headers = sys.argv[1:]
    for folder in ("html", "xml"):
        shutil.rmtree(os.path.join(output, folder), ignore_errors=True)
    written = subprocess.run([doxygen, doxyfile], check=False)
    problems, count = undocumented(os.path.join(output, "xml"), headers)
    problems += missing_qt_links(doxyfile, os.path.join(output, "html"))
    problems += unlisted_sections()
    problems += contract_problems(os.path.join(output, "xml"))
    problems += broken_links(os.path.join(output, "html"))
    print("\n".join(problems))
    print(f"{count} symbols, {len(problems)} problems")
    sys.exit(written.returncode != 0 or bool(problems))


main()
