#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""night.py PROGRAM: a schedule of six tasks, kept by PROGRAM and its recorder while nobody looks.

One task records an area, one follows it at once, of one the recorder is killed, one is due while the
program is stopped, one quits the program and one shuts the machine down. Files, list, settings,
notifications and calls to logind are compared with what should be. Everything around the program is
private: X server, sound server, buses, logind and the notifications. Ends with 77 where what it needs is
not installed.
"""

import json
import os
import re
import shutil
import signal
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../Soak"))
from display import Surroundings, frames_in, wait_for  # noqa: E402

SKIPPED = 77
FRAMES_A_SECOND = 30
LONGEST_GAP_SECONDS = 1
COUNTDOWN_SECONDS = 3
AREA = {"x": 100, "y": 50, "width": 320, "height": 240}
SPEAKERS = "speakers"
# What the desktop tells of each task, in this order.
WHOLE = ["is about to be recorded", "is being recorded", "has been recorded"]
NOTIFICATIONS = {
    "Area": WHOLE,
    "Back to back": WHOLE,
    "Killed": ["is about to be recorded", "is being recorded", "has been recorded in part",
               "is being recorded", "has been recorded in part"],
    # It is announced before the program is stopped.
    "Missed": ["is about to be recorded", "has not been recorded"],
    "Quit": WHOLE,
    "Shut down": WHOLE}


class Night:
    """The program on settings of its own, and what it does."""

    def __init__(self, program, surroundings):
        self.program = program
        self.surroundings = surroundings
        self.settings = surroundings.path("settings.json")
        self.videos = surroundings.path("Videos")
        self.process = None
        # When the recorder of the task "Killed" was killed.
        self.killed = 0
        self.problems = []

    def write_settings(self, tasks):
        fields = {
            "version": 1,
            "scheduledCapture": {"enabled": True, "tasks": tasks},
            "paths": {"resultsFolder": self.videos},
            "recording": {"area": AREA, "countdownSeconds": COUNTDOWN_SECONDS,
                          "soundDevices": [SPEAKERS + ".monitor"]}}
        with open(self.settings, "w", encoding="utf-8") as file:
            json.dump(fields, file)

    def read(self, name):
        with open(self.surroundings.path(name), encoding="utf-8") as file:
            return file.read()

    def start(self):
        log = open(self.surroundings.path("program.log"), "ab")  # pylint: disable=consider-using-with
        self.process = subprocess.Popen(
            [self.program, "--hidden", "--settings", self.settings], stdout=log, stderr=log,
            env=dict(self.surroundings.environment, LC_ALL="C.UTF-8", LANGUAGE="en"))
        log.close()

    def wait_for_end(self, what):
        self.check(what + ": the program ends with 0", self.process.wait(60), 0)

    def recorders(self):
        """Returns the process ids of the recorders that the program has started."""
        found = subprocess.run(["pgrep", "-P", str(self.process.pid), "px-recorder"],
                               capture_output=True, text=True, check=False).stdout
        return [int(line) for line in found.split()]

    def entries(self, title):
        recordings = json.loads(self.read("recordings.json"))["recordings"]
        return [entry for entry in recordings if entry["title"] == title]

    def tasks(self):
        return [task["title"]
                for task in json.loads(self.read("settings.json"))["scheduledCapture"]["tasks"]]

    def logind_calls(self):
        """Returns what the machine was told to do."""
        return re.findall(r"^\S+ ((?:PowerOff|Reboot|Suspend|Hibernate)\b.*)$",
                          self.read("logind.log"), re.MULTILINE)

    def notifications(self, title):
        """Returns the headings of the notifications about a task, without its title."""
        headings = re.findall(r'^\S+ Notify "[^"]*" \d+ "[^"]*" "([^"]*)"',
                              self.read("notifications.log"), re.MULTILINE)
        # Titles are isolated from the text around them.
        quoted = "\u201c\u2068%s\u2069\u201d " % title if title else ""
        return [text[len(quoted):] for text in headings if text.startswith(quoted)]

    def check(self, what, found, expected):
        print("%-60s %s" % (what, found), flush=True)
        if found != expected:
            self.problems.append("%s: %s instead of %s" % (what, found, expected))

    def check_outcomes(self, title, *outcomes):
        self.check(title + ": outcomes", tuple(e["outcome"] for e in self.entries(title)), outcomes)

    def check_frames(self, entry, least, most):
        frames = frames_in(entry["file"])
        self.check("%s: %d frames are %d to %d" % (entry["title"], frames, least, most),
                   least <= frames <= most, True)


def task(title, start, seconds, screen=0, action="doNothing"):
    return {"title": title, "start": start * 1000000, "duration": seconds * 1000000,
            "screenIndex": screen, "finishAction": action}


def sleep_until(moment):
    """The tasks have their times by the clock; so has what is done to them."""
    time.sleep(max(0, moment - time.time()))


def run_first_half(night, first):
    night.start()
    wait_for(lambda: night.entries("Killed")[:1] if os.path.exists(
        night.surroundings.path("recordings.json")) else None)
    sleep_until(first + 16)
    night.check("one recorder runs", len(night.recorders()), 1)
    os.kill(night.recorders()[0], signal.SIGKILL)
    night.killed = time.time()
    wait_for(lambda: len(night.entries("Killed")) == 2 and
             night.entries("Killed")[1]["outcome"] != "recording")
    wait_for(lambda: "Killed" not in night.tasks())
    night.process.send_signal(signal.SIGTERM)
    night.wait_for_end("SIGTERM")


def run_second_half(night, first):
    sleep_until(first + 33)
    night.start()
    night.wait_for_end("the action Quit")
    night.start()
    wait_for(night.logind_calls)
    night.process.send_signal(signal.SIGTERM)
    night.wait_for_end("SIGTERM after the action Shut down")


def check_recordings(night, first):
    night.check_outcomes("Area", "complete")
    night.check_outcomes("Back to back", "complete")
    night.check_outcomes("Killed", "partial", "partial")
    night.check_outcomes("Missed", "missed")
    night.check_outcomes("Quit", "complete")
    night.check_outcomes("Shut down", "complete")
    night.check("tasks that are left", night.tasks(), [])

    for title, seconds in (("Area", 5), ("Quit", 4), ("Shut down", 4)):
        frames = seconds * FRAMES_A_SECOND
        night.check_frames(night.entries(title)[0], frames, frames)
    gap = LONGEST_GAP_SECONDS * FRAMES_A_SECOND
    night.check_frames(night.entries("Back to back")[0], 5 * FRAMES_A_SECOND - gap,
                       5 * FRAMES_A_SECOND)
    before = int((night.killed - (first + 12)) * FRAMES_A_SECOND)
    night.check_frames(night.entries("Killed")[0], before - gap, before)
    night.check_frames(night.entries("Killed")[1], 12 * FRAMES_A_SECOND - before - gap,
                       12 * FRAMES_A_SECOND - before)
    area = subprocess.run(
        ["ffprobe", "-v", "error", "-select_streams", "v", "-show_entries", "stream=width,height",
         "-of", "csv=p=0", night.entries("Area")[0]["file"]],
        capture_output=True, text=True, check=False).stdout.strip()
    night.check("Area: size of the picture", area, "320,240")
    late = night.entries("Area")[0]["start"] / 1e6 - first
    night.check("Area: it starts %.3f s late, at most 0.1" % late, abs(late) <= 0.1, True)
    files = sorted(os.listdir(night.videos))
    night.check("number of files", len(files), 6)
    night.check("names of the files", [name for name in files if not re.fullmatch(
        r"(Area|Back to back|Killed|Quit|Shut down) \d{4}-\d\d-\d\d \d\d-\d\d-\d\d\.mkv", name)], [])


def check_services(night):
    night.check("calls to logind", night.logind_calls(), ["PowerOff True"])
    for title, expected in NOTIFICATIONS.items():
        night.check(title + ": notifications", night.notifications(title), expected)
    night.check("countdowns", [text for text in night.notifications("") if "shuts down" in text],
                ["The computer shuts down in %d s" % COUNTDOWN_SECONDS])
    held = night.surroundings.run("gdbus", "call", "--system", "--dest", "org.freedesktop.login1",
                                  "--object-path", "/org/freedesktop/login1", "--method",
                                  "org.freedesktop.login1.Manager.ListInhibitors").stdout
    night.check("inhibitors that are left", held.strip() in ("([],)", "(@a(ssssuu) [],)"), True)


def start_services(surroundings):
    surroundings.start_sound(SPEAKERS)
    surroundings.environment["DBUS_SYSTEM_BUS_ADDRESS"] = \
        surroundings.environment["DBUS_SESSION_BUS_ADDRESS"]
    for template, log, bus in (("logind", "logind.log", "--system"),
                               ("notification_daemon", "notifications.log", "--session")):
        surroundings.start("/usr/bin/python3", "-m", "dbusmock", bus, "--template", template,
                           "--logfile", surroundings.path(log), "--parameters",
                           '{"capabilities": "body actions"}')
    for name in ("org.freedesktop.login1", "org.freedesktop.Notifications"):
        wait_for(lambda name=name: name in surroundings.run(
            "dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus",
            "/org/freedesktop/DBus", "org.freedesktop.DBus.ListNames").stdout)


def main():
    for needed in ("Xvfb", "pipewire", "ffprobe", "pgrep", "gdbus"):
        if shutil.which(needed) is None:
            print("skipped: %s is not installed" % needed)
            sys.exit(SKIPPED)
    with Surroundings("1280x720") as surroundings:
        start_services(surroundings)
        night = Night(sys.argv[1], surroundings)
        first = int(time.time()) + 15
        night.write_settings([
            task("Area", first, 5, screen=-1),
            task("Back to back", first + 5, 5),
            task("Killed", first + 12, 12),
            task("Missed", first + 27, 4),
            task("Quit", first + 46, 4, action="quitApplication"),
            task("Shut down", first + 64, 4, action="shutDown")])
        run_first_half(night, first)
        run_second_half(night, first)
        check_recordings(night, first)
        check_services(night)
        if night.problems:
            print(night.read("program.log"))
            print("\n".join(night.problems))
            sys.exit(1)


main()
