#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""consume.py SOURCE_DIR BUILD_DIR QT_MAJOR_VERSION [--all]: uses the libraries as integrators do.

Builds and runs a small project with the libraries of BUILD_DIR: installed, moved after that, from the
build tree, by pkg-config and a plain Makefile; with gcc and clang, in C++17 and C++20, shared and
static. With --all in every combination, and as a subfolder of each kind, too.
"""

import functools
import itertools
import os
import subprocess
import sys
import tempfile
import time

SOURCE, BUILD, QT = (os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2]), sys.argv[3])
PROJECT = os.path.join(SOURCE, "Tests", "Consumer", "Installed")
GCC, CLANG = "g++", "clang++-14"


class Failure(Exception):
    pass


def run(*command, **options):
    result = subprocess.run(command, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                            check=False, **options)
    if result.returncode != 0:
        raise Failure("%s\n%s" % (" ".join(command), result.stdout))
    return result.stdout


def needed(program):
    return [line.split("[")[1].rstrip("]\n") for line in run("readelf", "-dW", program).splitlines()
            if "(NEEDED)" in line]


def check_libraries(program, static):
    ours = [name for name in needed(program) if "PXUi" in name]
    if bool(ours) == static:
        raise Failure("needs %s" % (ours or "none of the shared libraries"))


def by_cmake(project, folder, *options):
    run("cmake", "-S", project, "-B", folder, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
        "-DQT_MAJOR_VERSION=" + QT, *options)
    run("cmake", "--build", folder)
    run("ctest", "--test-dir", folder, "--output-on-failure", "--no-tests=error")


def with_reference_host(folder, compiler, standard, kind, place):
    by_cmake(PROJECT, folder, "-DCMAKE_CXX_COMPILER=" + compiler, "-DCMAKE_CXX_STANDARD=" + standard,
             "-DSTATIC=" + ("ON" if kind == "static" else "OFF"), place)
    check_libraries(os.path.join(folder, "consumer"), kind == "static")


def with_own_host(folder, place):
    by_cmake(os.path.dirname(PROJECT), folder, place)
    check_libraries(os.path.join(folder, "consumer_static"), True)


def by_make(folder, compiler, prefix):
    """The linker and the loader are told where the libraries lie, as a prefix of one's own needs."""
    libraries = os.path.join(prefix, "lib")
    environment = dict(os.environ, PKG_CONFIG_PATH=os.path.join(libraries, "pkgconfig"),
                       LD_LIBRARY_PATH=libraries, QT_QPA_PLATFORM="offscreen")
    moc = run("pkg-config", "--variable=host_bins", "Qt5Core").strip() + "/moc" if QT == "5" \
        else run("pkg-config", "--variable=libexecdir", "Qt6Core").strip() + "/moc"
    os.makedirs(folder)
    run("make", "-C", folder, "-f", os.path.join(PROJECT, "Makefile"), "SOURCE_DIR=" + PROJECT,
        "CXX=" + compiler, "MOC=" + moc, env=environment)
    run(os.path.join(folder, "consumer"), env=environment)


def check_headers(prefix):
    """No header is installed but those that are meant for others."""
    found = []
    for top, _, names in os.walk(os.path.join(prefix, "include")):
        found += [os.path.relpath(os.path.join(top, name), os.path.join(prefix, "include"))
                  for name in names]
    with open(os.path.join(SOURCE, "Tests", "Consumer", "headers.txt"), encoding="utf-8") as file:
        expected = [line.strip() for line in file if not line.startswith("#") and line.strip()]
    if sorted(found) != sorted(expected):
        raise Failure("installed headers:\n" + "\n".join(sorted(found)))


def check_translations(prefix):
    """Each language is there for hosts that load the texts from files."""
    languages = {name[:-3] for name in os.listdir(os.path.join(SOURCE, "Host", "Translations"))}
    found = os.listdir(os.path.join(prefix, "share", "PXUiSchedulerWidgets", "translations"))
    if {name[:-3] for name in found} != languages or not all(name.endswith(".qm") for name in found):
        raise Failure("installed translations: " + " ".join(sorted(found)))


def check_components(folder):
    """Each file belongs to one part, and together they are all."""
    parts = {}
    for part in ("runtime", "development", "application", ""):
        prefix = os.path.join(folder, part or "all")
        run("cmake", "--install", BUILD, "--prefix", prefix,
            *(["--component", part] if part else []))
        parts[part] = {os.path.relpath(os.path.join(top, name), prefix)
                       for top, _, names in os.walk(prefix) for name in names}
    whole = parts.pop("")
    counted = sum(len(files) for files in parts.values())
    if set.union(*parts.values()) != whole or counted != len(whole):
        raise Failure("files of no part or of several: %s" % sorted(
            whole.symmetric_difference(set.union(*parts.values()))))


def check_refusals(folder, place):
    """What cannot work is refused where it is asked for, and the reason said."""
    other_qt = "find_package(Qt%d REQUIRED COMPONENTS Core)" % (11 - int(QT))
    find = "find_package(PXUiSchedulerWidgets REQUIRED COMPONENTS %s)"
    for number, (commands, reason) in enumerate((
            ((other_qt, find % "ReferenceHost"), "this project uses Qt"),
            ((other_qt, 'add_subdirectory("%s" panel)' % SOURCE), "This project uses Qt"),
            (("set(CMAKE_DISABLE_FIND_PACKAGE_glog ON)", find % "Static"), "needs the development files"),
            ((find % "Recorder",), "not Recorder"))):
        project = os.path.join(folder, str(number))
        os.makedirs(project)
        with open(os.path.join(project, "CMakeLists.txt"), "w", encoding="utf-8") as file:
            file.write("\n".join(("cmake_minimum_required(VERSION 3.25)",
                                  "project(Refused LANGUAGES CXX)") + commands))
        result = subprocess.run(
            ["cmake", "-S", project, "-B", os.path.join(project, "build"), "-G", "Ninja", place]
            + (["-DQT_MAJOR_VERSION=" + QT] if "subdirectory" in commands[-1] else []),
            text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        if result.returncode == 0 or reason not in " ".join(result.stdout.split()):
            raise Failure("not refused with the reason '%s':\n%s" % (reason, result.stdout))


def rows(everything, work):
    installed = os.path.join(work, "prefix")
    moved = os.path.join(work, "moved")

    def install():
        run("cmake", "--install", BUILD, "--prefix", installed)
        check_headers(installed)
        check_translations(installed)

    yield "install", install
    yield "parts", lambda: check_components(os.path.join(work, "parts"))

    places = {"installed": "-DCMAKE_PREFIX_PATH=" + installed, "moved": "-DCMAKE_PREFIX_PATH=" + moved,
              "build tree": "-DPXUiSchedulerWidgets_DIR=" + BUILD,
              "subfolder": "-DPANEL_SOURCE_DIR=" + SOURCE}
    usual = [("installed", CLANG, "20", "static"), ("moved", GCC, "20", "shared"),
             ("build tree", CLANG, "17", "static")]
    every = itertools.product(places, (GCC, CLANG), ("17", "20"), ("shared", "static"))
    for row in every if everything else usual:
        place, compiler, standard, kind = row
        if place == "moved" and os.path.isdir(installed):
            os.rename(installed, moved)
        folder = os.path.join(work, "-".join(row).replace(" ", "-"))
        yield "%s, %s, C++%s, %s" % row, functools.partial(
            with_reference_host, folder, compiler, standard, kind, places[place])
    yield "moved, own host", functools.partial(
        with_own_host, os.path.join(work, "own-host"), places["moved"])
    yield "moved, refusals", functools.partial(
        check_refusals, os.path.join(work, "refused"), places["moved"])
    for compiler in (GCC, CLANG) if everything else (GCC,):
        yield "pkg-config, " + compiler, functools.partial(
            by_make, os.path.join(work, "make-" + compiler), compiler, moved)


def main():
    failed = 0
    with tempfile.TemporaryDirectory() as work:
        for name, check in rows("--all" in sys.argv, work):
            begin = time.monotonic()
            try:
                check()
                result = "passed"
            except Failure as failure:
                failed += 1
                result = "FAILED: %s" % failure
            print("%-44s %5.1f s  %s" % (name, time.monotonic() - begin, result), flush=True)
    sys.exit(1 if failed else 0)


main()
