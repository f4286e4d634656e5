#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""bm_Recorder.py RECORDER: processor time of a recording beside that of ffmpeg with like settings.

Both record the same moving desktop of 1920x1080 at 30 frames a second, in turns. The X server's time
is not counted.
"""

import os
import statistics
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../Tests/Soak"))
from display import Surroundings, frames_in  # noqa: E402

SECONDS = 12
ROUNDS = 4


def time_of(surroundings, command):
    """Returns the seconds of processor time that a command takes, of those of its children, too."""
    process = subprocess.Popen(command, env=surroundings.environment, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    _, _, usage = os.wait4(process.pid, 0)
    return usage.ru_utime + usage.ru_stime


def commands(program, surroundings, name):
    file = surroundings.path(name)
    return {
        "px-recorder": (file + "-px.mkv", [program, "--file", file + "-px.mkv", "--duration",
                                           str(SECONDS)]),
        "ffmpeg": (file + "-ff.mkv", [
            "ffmpeg", "-f", "x11grab", "-framerate", "30", "-video_size", "1920x1080", "-i",
            surroundings.environment["DISPLAY"], "-t", str(SECONDS), "-c:v", "libx264", "-preset",
            "superfast", "-crf", "23", "-maxrate", "12M", "-bufsize", "24M", "-bf", "0", "-g", "60",
            "-rc-lookahead", "0", "-pix_fmt", "yuv420p", file + "-ff.mkv"])}


def show_desktop(surroundings):
    surroundings.run("xsetroot", "-mod", "16", "16", "-fg", "gray60", "-bg", "gray80")
    for pattern in ("ball", "smpte horizontal-speed=3"):
        surroundings.start("gst-launch-1.0", "-q", "videotestsrc", *("pattern=" + pattern).split(),
                           "!", "video/x-raw,width=640,height=360,framerate=30/1", "!",
                           "videoconvert", "!", "ximagesink")
    time.sleep(3)


def measure(program):
    times = {"px-recorder": [], "ffmpeg": []}
    frames = {"px-recorder": [], "ffmpeg": []}
    with Surroundings() as surroundings:
        show_desktop(surroundings)
        for number in range(ROUNDS):
            for name, (file, command) in commands(program, surroundings, str(number)).items():
                seconds = time_of(surroundings, command)
                times[name].append(60 * seconds / SECONDS)
                frames[name].append(frames_in(file))
                print("%-12s %5.1f s a minute, %d frames, %d kB" % (
                    name, times[name][-1], frames[name][-1], os.path.getsize(file) // 1024),
                    flush=True)
    rows = [(name, "%.1f s a minute (%s), %s of %d frames" % (
        statistics.median(values), ", ".join("%.1f" % value for value in values),
        frames[name], 30 * SECONDS)) for name, values in times.items()]
    ratio = statistics.median(times["px-recorder"]) / statistics.median(times["ffmpeg"])
    return rows + [("px-recorder : ffmpeg", "%.2f" % ratio)]


if __name__ == "__main__":
    for what, result in measure(sys.argv[1]):
        print("| %-22s | %s |" % (what, result))
