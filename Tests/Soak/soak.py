#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""soak.py RECORDER [PART...]: what takes longer than a gate may; prints a table at the end.

The parts are recordings, sound, kills and speed; all of them without any.
"""

import array
import concurrent.futures
import os
import random
import statistics
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../Benchmarks"))
import bm_Recorder  # noqa: E402
from display import (Recorder, Surroundings, decoding_errors, frames_in, memory_of,  # noqa: E402
                     open_files_of)

FRAMES_A_SECOND = 30
AREA = {"type": "x11", "x": 0, "y": 0, "w": 320, "h": 240}


def record_often(program, count=100):
    """One after the other in one process, of two seconds each."""
    wrong = []
    files = []
    memory = []
    with Surroundings("1280x720") as surroundings:
        recorder = Recorder(program, surroundings)
        for number in range(count):
            file = surroundings.path("%d.mkv" % number)
            recorder.send(cmd="prepare", id=number, file=file, source={"type": "x11"})
            recorder.send(cmd="start", durationUs=2000000)
            line = recorder.next("finished")
            if line["ms"] != 2000 or frames_in(file) != 2 * FRAMES_A_SECOND:
                wrong.append((number, line["ms"], frames_in(file), line["dropped"]))
            os.remove(file)
            files.append(open_files_of(recorder.process.pid))
            memory.append(memory_of(recorder.process.pid))
            print("recording %d: %d files, %.1f MB" % (number, files[-1], memory[-1]), flush=True)
        exit_code = recorder.close()
    return [("%d recordings of 2 s" % count, "%d not of 60 frames %s" % (len(wrong), wrong or "")),
            ("open files", "%d at first, %d at the end" % (files[0], files[-1])),
            ("memory", "%.0f MB at first, %.0f after half, %.0f at the end"
             % (memory[0], memory[count // 2], memory[-1])),
            ("exit code", str(exit_code))]


def rises(samples, threshold, apart):
    """Returns the indices at which the samples rise above a threshold, at least so far apart."""
    found = []
    is_above = True
    for index, sample in enumerate(samples):
        if sample > threshold and not is_above and (not found or index - found[-1] > apart):
            found.append(index)
        is_above = sample > threshold
    return found


def flashes_in(file):
    pixels = subprocess.run(["ffmpeg", "-v", "error", "-i", file, "-vf", "scale=1:1", "-f",
                             "rawvideo", "-pix_fmt", "gray", "-"], capture_output=True,
                            check=True).stdout
    return [index / FRAMES_A_SECOND for index in rises(pixels, 128, FRAMES_A_SECOND // 2)]


def beeps_in(file):
    rate = 8000
    samples = array.array("h", subprocess.run(
        ["ffmpeg", "-v", "error", "-i", file, "-map", "0:a:0", "-ac", "1", "-ar", str(rate), "-f",
         "s16le", "-"], capture_output=True, check=True).stdout)
    return [index / rate for index in rises([abs(sample) for sample in samples], 3000, rate // 2)]


def offsets_in(file):
    """Returns how much later than its beep each flash is, in milliseconds. Both come every 2 s."""
    beeps = beeps_in(file)
    offsets = []
    for flash in flashes_in(file):
        nearest = min(beeps, key=lambda beep: abs(beep - flash))
        if abs(nearest - flash) < 0.5:
            offsets.append(1000 * (flash - nearest))
    return offsets


def record_sound(program, seconds=600):
    """Flash and beep at the same time, every other second."""
    with Surroundings("1280x720") as surroundings:
        surroundings.start_sound("speakers")
        # The frames of this pattern are white and black in turn, the first one is black.
        surroundings.start(
            "gst-launch-1.0", "-q", "videotestsrc", "pattern=blink", "timestamp-offset=1000000000",
            "!", "video/x-raw,width=320,height=240,framerate=1/1", "!", "videoconvert", "!",
            "ximagesink", "audiotestsrc", "wave=ticks", "tick-interval=2000000000", "volume=0.8",
            "!", "audio/x-raw,rate=48000", "!", "pulsesink", "device=speakers",
            # Sound that is played late because the machine is busy would be late in the file, too.
            "buffer-time=1000000")
        time.sleep(5)
        file = surroundings.path("sound.mkv")
        recorder = Recorder(program, surroundings)
        recorder.send(cmd="prepare", id=1, file=file, source=AREA, audio=["speakers.monitor"])
        recorder.send(cmd="start", durationUs=seconds * 1000000)
        memory = []
        line = {}
        while line.get("event") != "finished":
            line = recorder.next("progress", "finished")
            memory.append(memory_of(recorder.process.pid))
        recorder.close()
        frames = frames_in(file)
        offsets = offsets_in(file)
    print("offsets: " + " ".join("%.0f" % offset for offset in offsets), flush=True)
    part = max(1, len(offsets) // 10)
    return [("%d s with sound" % seconds, "%d of %d frames, %d duplicated, %d dropped"
             % (frames, seconds * FRAMES_A_SECOND, line["duplicated"], line["dropped"])),
            ("flash after beep", "%d pairs, median %.0f ms (%.0f to %.0f); first tenth %.0f, last %.0f"
             % (len(offsets), statistics.median(offsets), min(offsets), max(offsets),
                statistics.median(offsets[:part]), statistics.median(offsets[-part:]))),
            ("memory", "%.0f MB at first, %.0f after half, %.0f at the end"
             % (memory[0], memory[len(memory) // 2], memory[-2]))]


def kill_once(program, surroundings, number):
    file = surroundings.path("kill%d.mkv" % number)
    recorder = Recorder(program, surroundings)
    recorder.send(cmd="prepare", id=1, file=file, source={"type": "test", "w": 640, "h": 360})
    recorder.send(cmd="start")
    recorder.next("recording")
    begin = time.monotonic()
    time.sleep(random.uniform(0.1, 4))
    recorder.process.kill()
    lasted = time.monotonic() - begin
    recorder.process.wait()
    frames = frames_in(file)
    errors = decoding_errors(file) if frames > 0 else ""
    os.remove(file)
    return lasted - frames / FRAMES_A_SECOND, errors


def kill_often(program, count=200):
    with Surroundings("640x480") as surroundings:
        with concurrent.futures.ThreadPoolExecutor(3) as pool:
            results = list(pool.map(lambda number: kill_once(program, surroundings, number),
                                    range(count)))
    lost = [seconds for seconds, _ in results]
    return [("%d kills" % count, "%d files do not decode" % sum(bool(text) for _, text in results)),
            ("lost", "median %.2f s, at most %.2f s; more than 1 s: %d"
             % (statistics.median(lost), max(lost), sum(seconds > 1 for seconds in lost)))]


PARTS = {"recordings": record_often, "sound": record_sound, "kills": kill_often,
         "speed": bm_Recorder.measure}


def main():
    program = sys.argv[1]
    table = []
    for name in sys.argv[2:] or PARTS:
        print("== " + name, flush=True)
        table += [(name, what, result) for what, result in PARTS[name](program)]
    print()
    for row in table:
        print("| %-10s | %-24s | %s |" % row)


main()
