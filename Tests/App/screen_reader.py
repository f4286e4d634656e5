#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""screen_reader.py PROGRAM: uses PROGRAM through the accessibility bus, as a screen reader does.

Finds everything by role and name alone: chooses the schedule mode, adds a task, is told about a
duplicate, corrects it, deletes it. Runs itself in a session of its own, on a display that nobody
sees. Ends with 77 where what it needs is not installed.
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile
import time

SKIPPED = 77
PATIENCE_SECONDS = 60
# How long to wait for an answer on the bus, and for one of a program that has just started.
BUS_MILLISECONDS = 2000
START_MILLISECONDS = 15000
HEAD_START_SECONDS = 5
HOUR_SECONDS = 3600
INSIDE = "PX_SCREEN_READER_SESSION"


def skip(reason):
    print("skipped: " + reason)
    sys.exit(SKIPPED)


try:
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError):
    skip("python3-gi or gir1.2-atspi-2.0 is not installed")


def wait_for(what, find):
    """Returns what find() returns, as soon as that is something."""
    end = time.monotonic() + PATIENCE_SECONDS
    while time.monotonic() < end:
        try:
            found = find()
            if found:
                return found
        except GLib.Error:
            # What was looked at has just gone.
            pass
        # The bus is served meanwhile.
        GLib.MainContext.default().iteration(False)
        time.sleep(0.05)
    sys.exit("not found: " + what)


def descendants(node):
    node.clear_cache()
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield child
            yield from descendants(child)


def is_showing(node):
    return node.get_state_set().contains(Atspi.StateType.SHOWING)


class Application:
    """The program as the accessibility bus shows it."""

    def __init__(self, process_id):
        self.process_id = process_id

    def _root(self):
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child is not None and child.get_process_id() == self.process_id:
                return child
        return None

    def all(self, role, name):
        root = self._root()
        if root is None:
            return []
        return [node for node in descendants(root)
                if node.get_role() == role and node.get_name() == name and is_showing(node)]

    def find(self, role, name):
        nodes = wait_for(f"{role.value_nick} {name!r}", lambda: self.all(role, name))
        if len(nodes) > 1:
            sys.exit(f"more than one {role.value_nick} {name!r}")
        return nodes[0]

    def press(self, role, name):
        # Qt's first action of a button is its press or its check.
        Atspi.Action.do_action(self.find(role, name), 0)

    def press_and_be_asked(self, role, name):
        try:
            self.press(role, name)
        except GLib.Error:
            # The press ends, and is answered on the bus, only when the question is answered.
            pass

    def write(self, name, text):
        Atspi.EditableText.set_text_contents(self.find(Atspi.Role.TEXT, name), text)

    def wait_for_status(self, text):
        self.find(Atspi.Role.STATUS_BAR, text)

    def wait_for_no(self, role, name):
        wait_for(f"no {role.value_nick} {name!r}", lambda: not self.all(role, name))


def run_scenario(app):
    button, radio, text = Atspi.Role.PUSH_BUTTON, Atspi.Role.RADIO_BUTTON, Atspi.Role.TEXT
    app.press(radio, "Record on schedule")

    app.press(button, "Add record event")
    app.write("File name:", "Standup")
    app.press(button, "Create")
    app.wait_for_status("Task added: Standup")
    app.find(button, "Delete Standup")

    duplicate = "A task with this name already exists."
    app.press(button, "Add record event")
    app.write("File name:", "Standup")
    app.wait_for_status(duplicate)
    field = app.find(text, "File name:")
    wait_for("the problem at the field", lambda: field.get_description() == duplicate)

    # The start that the form still shows is taken until it has passed and the form moves it on.
    app.write("File name:", "Review")
    wait_for("a task that can be created",
             lambda: app.find(button, "Create").get_state_set().contains(Atspi.StateType.ENABLED))
    app.press(button, "Create")
    app.wait_for_status("Task added: Review")

    app.press_and_be_asked(button, "Delete Review")
    app.press(button, "Delete")
    app.wait_for_status("Task deleted: Review")
    app.wait_for_no(button, "Delete Review")
    app.find(button, "Delete Standup")


def write_settings(folder):
    """Plans a task that runs all day: what the scenario adds is tomorrow, and not recorded."""
    path = os.path.join(folder, "settings.json")
    lecture = {"title": "Lecture", "start": int(time.time() - HOUR_SECONDS) * 1000000,
               "duration": 23 * HOUR_SECONDS * 1000000, "screenIndex": 0}
    with open(path, "w", encoding="utf-8") as file:
        json.dump({"version": 1, "paths": {"resultsFolder": folder},
                   "scheduledCapture": {"enabled": True, "tasks": [lecture]}}, file)
    return path


def main():
    program = sys.argv[1]
    Atspi.set_timeout(BUS_MILLISECONDS, START_MILLISECONDS)
    with tempfile.TemporaryDirectory() as folder:
        process = subprocess.Popen(
            [program, "--language", "en", "--settings", write_settings(folder)])
        # A list of programs that is looked at before the program is in it stays without it.
        time.sleep(HEAD_START_SECONDS)
        try:
            run_scenario(Application(process.pid))
        finally:
            process.terminate()
            process.wait()
    print("The scenario works by role and name alone.")


def run_in_session():
    for tool in ("xvfb-run", "dbus-run-session"):
        if shutil.which(tool) is None:
            skip(tool + " is not installed")
    if not os.path.exists("/usr/share/dbus-1/services/org.a11y.Bus.service"):
        skip("at-spi2-core is not installed")
    environment = dict(os.environ, QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
    environment[INSIDE] = "1"
    command = ["xvfb-run", "-a", "dbus-run-session", "--", sys.executable] + sys.argv
    sys.exit(subprocess.run(command, env=environment, check=False).returncode)


if INSIDE in os.environ:
    main()
else:
    run_in_session()
