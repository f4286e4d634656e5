#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""layers.py COMPILE_COMMANDS CORE_LIBRARY: proves who may include whom.

Takes how a source of each layer is compiled, and asks the compiler in its place which headers of the
other layers it finds. A header that is allowed is included, too. The host's core must not need a
library of Qt other than Qt Core.
"""

import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
LIBRARY = "Lib/UI/SchedulerWidgets"

# The folders of each layer, and what it may include besides its own: folders or headers.
DATA = [LIBRARY + "/HostData.h"]
CONTRACT = DATA + [LIBRARY + "/HostInterfaces.h"]
# What others may include: where the headers that are installed come from.
with open(os.path.join(ROOT, "Tests/Consumer/headers.txt"), encoding="utf-8") as file:
    PUBLIC = [line.strip().replace("PXUiSchedulerWidgets/ReferenceHost", "Host")
              .replace("PXUiSchedulerWidgets", LIBRARY) for line in file if line.startswith("PXUi")]
PANEL = [path for path in PUBLIC if path.startswith(LIBRARY)]
# What the static panel shows of itself besides.
CLASSES = ["%s/%s.h" % (LIBRARY, name) for name in (
    "CreateRecordTaskUi", "CreateRecordTaskWidget", "RecordSchedulerWidgetUi",
    "ScheduleRecordTableUi", "ScheduleRecordTableWidget")]
CORE = ["Host/CoreInt", "Host/CoreTime", "Host/PXScheduler", "Host/PXUserSettings"]
HOST = ["Host/Application", "Host/PXUtilUI", "Host/ZQtUtil", "Host/ZentorWidget"]
SCHEDULE = ["Schedule", "Schedule/System"]
SUPPORT = PANEL + CORE + HOST + SCHEDULE + ["App/Support"]
PAGES = SUPPORT + ["App/Appearance", "App/Panel", "App/Pages"]
LAYERS = [
    ([LIBRARY], CONTRACT),
    (CORE, DATA),
    (HOST, CONTRACT + CORE),
    (["Capture"], []),
    (SCHEDULE, DATA + CORE + ["Capture/Protocol.h"]),
    (["App/Support"], SUPPORT),
    (["App/Appearance"], SUPPORT),
    (["App/Panel"], SUPPORT),
    (["App/Pages"], PAGES),
    (["App/Window"], PAGES),
    (["App/Tour"], PAGES),
    (["App/Tray"], SUPPORT + ["App/Appearance"]),
    (["App/Notices"], SUPPORT),
    (["App/Start"], PAGES + ["App/Window", "App/Tour", "App/Tray", "App/Notices"]),
    # What a program of others finds, with the reference host and with a host of its own.
    (["Examples/Minimal"], PUBLIC),
    (["Examples/OwnHost"], PANEL + CLASSES),
]
# What a header's name in an #include is relative to, where that is not its own folder.
SEARCHED = dict({folder: "Host" for folder in CORE + HOST}, **{"Schedule/System": "Schedule"})


def headers():
    """Returns the path of each header, and fails for one in a folder of no layer."""
    found = []
    for top in ("Lib", "Host", "Capture", "Schedule", "App"):
        for folder, _, names in os.walk(os.path.join(ROOT, top)):
            found += [os.path.relpath(os.path.join(folder, name), ROOT)
                      for name in names if name.endswith(".h")]
    known = [folder for folders, _ in LAYERS for folder in folders]
    unknown = [path for path in found if os.path.dirname(path) not in known]
    if unknown:
        sys.exit("in a folder that belongs to no layer: " + ", ".join(unknown))
    return sorted(found)


def spellings(path):
    """Returns the names under which the header could be found, the usual one first."""
    folder = os.path.dirname(path)
    usual = os.path.relpath(path, SEARCHED.get(folder, folder))
    parts = path.split("/")
    return [usual] + [name for name in ("/".join(parts[i:]) for i in range(len(parts)))
                      if name != usual]


def compiler(commands, folders):
    """Returns where and with which arguments the compiler is called for a source in the folders."""
    for entry in commands:
        if os.path.dirname(os.path.relpath(entry["file"], ROOT)) in folders:
            break
    else:
        sys.exit("no source is compiled in " + " ".join(folders))
    # A precompiled header would be found whatever the folders are.
    command = re.sub(r" -Winvalid-pch -include \S+", "", entry["command"])
    command = re.sub(r" -(o|MF|MT|c) \S+| -MD\b", "", command)
    return entry["directory"], shlex.split(command)


def compile_text(commands, folders, text, *arguments):
    directory, command = compiler(commands, folders)
    return subprocess.run(command + list(arguments) + ["-x", "c++", "-"], cwd=directory, text=True,
                          input=text, capture_output=True, check=False)


def check_forbidden(commands, folders, forbidden):
    text = "".join('#if __has_include("%s")\nfound "%s"\n#endif\n' % (name, name)
                   for path in forbidden for name in spellings(path))
    result = compile_text(commands, folders, text, "-E", "-P")
    if result.returncode != 0:
        return [result.stderr]
    return ["%s finds %s" % (folders[0], name) for name in re.findall(r'found "(.*)"', result.stdout)]


def check_allowed(commands, folders, allowed):
    text = "".join('#include "%s"\n' % spellings(path)[0] for path in allowed)
    result = compile_text(commands, folders, text, "-fsyntax-only")
    return [] if result.returncode == 0 else ["%s is refused:\n%s" % (folders[0], result.stderr)]


def check_core(library):
    dynamic = subprocess.run(["readelf", "--dynamic", "--wide", library], text=True,
                             capture_output=True, check=True).stdout
    needed = re.findall(r"\(NEEDED\).*\[(.*)\]", dynamic)
    if not any(re.match(r"libQt\dCore\.", name) for name in needed):
        return ["the core does not say that it needs Qt Core"]
    return ["the core needs " + name for name in needed
            if re.match(r"libQt\d(?!Core\.)", name)]


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        commands = json.load(file)
    paths = headers()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        checks = [pool.submit(check_core, sys.argv[2])]
        for folders, may_include in LAYERS:
            allowed = [path for path in paths
                       if path in may_include or os.path.dirname(path) in may_include]
            forbidden = [path for path in paths
                         if path not in allowed and os.path.dirname(path) not in folders]
            checks.append(pool.submit(check_forbidden, commands, folders, forbidden))
            checks.append(pool.submit(check_allowed, commands, folders, allowed))
            print("%-26s %3d headers allowed, %3d forbidden"
                  % (folders[0], len(allowed), len(forbidden)))
    problems = [problem for check in checks for problem in check.result()]
    print("\n".join(problems) or "Each layer finds what it may include, and nothing else.")
    sys.exit(1 if problems else 0)


main()
