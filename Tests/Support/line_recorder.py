#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""line_recorder.py --lines: speaks the recorder's lines, and writes a file without a picture.

Counts time like the recorder. LINE_RECORDER in the environment has it fail or die: "fail CODE" after
"prepare", "die" a quarter of a second after the first frame.
"""

import json
import os
import select
import sys
import time

behaviour = os.environ.get("LINE_RECORDER", "").split()
recording = {}


def say(event, **members):
    if "id" in recording:
        members["id"] = recording["id"]
    print(json.dumps(dict(members, event=event)), flush=True)


def finish(reason):
    length = int((time.monotonic() - recording["since"]) * 1000)
    say("finished", file=recording["file"], reason=reason, ms=length, bytes=7, frames=length // 33,
        duplicated=0, dropped=0)
    sys.exit(0)


def obey(line):
    command = line["cmd"]
    if command == "prepare":
        recording.update(line)
        if behaviour[:1] == ["fail"]:
            say("failed", code=behaviour[1], text="it fails")
            recording.clear()
            return
        with open(line["file"], "x", encoding="ascii") as file:
            file.write("a video")
        say("ready", tookMs=1)
    elif command == "start":
        recording["begin"] = max(line.get("atUs", 0) / 1e6, time.time())
        recording["length"] = line.get("durationUs", 0) / 1e6
    elif command == "stop":
        finish("stopped")
    elif command == "cancel":
        os.remove(recording["file"])
        say("cancelled")
        sys.exit(0)
    elif command == "quit":
        sys.exit(0)


def pass_time():
    if "begin" in recording and "since" not in recording and time.time() >= recording["begin"]:
        recording["since"] = time.monotonic()
        recording["next"] = 0
        say("recording", wallUs=int(recording["begin"] * 1e6))
    if "since" in recording:
        passed = time.monotonic() - recording["since"]
        if behaviour == ["die"] and passed > 0.25:
            os.abort()
        if recording["length"] and passed >= recording["length"]:
            finish("duration")
        if passed >= recording["next"]:
            recording["next"] += 1
            say("progress", ms=int(passed * 1000), bytes=7, free=10 ** 12, frames=int(passed * 30),
                duplicated=0, dropped=0)


# Without a buffer, in which select() would not see the next line.
lines = open(0, "rb", buffering=0)  # pylint: disable=consider-using-with
say("hello", version=1)
while True:
    pass_time()
    if select.select([lines], [], [], 0.005)[0]:
        text = lines.readline()
        if not text:
            sys.exit(0)
        obey(json.loads(text))
