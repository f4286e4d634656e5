# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""An X server that nobody sees, a private sound server, and how recordings are judged."""

import json
import os
import subprocess
import tempfile
import time


class Surroundings:
    """Programs that run until the end of the `with`, in an environment of their own."""

    def __init__(self, size="1920x1080"):
        self.folder = tempfile.TemporaryDirectory()
        self.environment = {
            name: value for name, value in os.environ.items()
            if name not in ("WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "PULSE_SERVER")}
        self.environment["XDG_RUNTIME_DIR"] = self.folder.name
        self.programs = []
        self.size = size

    def __enter__(self):
        reader, writer = os.pipe()
        self.start("Xvfb", "-displayfd", str(writer), "-screen", "0", self.size + "x24",
                   "-nolisten", "tcp", "-noreset", pass_fds=[writer])
        os.close(writer)
        with os.fdopen(reader) as number:
            self.environment["DISPLAY"] = ":" + number.readline().strip()
        return self

    def __exit__(self, *_):
        for program in reversed(self.programs):
            program.terminate()
            try:
                program.wait(5)
            except subprocess.TimeoutExpired:
                program.kill()
                program.wait()
        self.folder.cleanup()

    def path(self, name):
        return os.path.join(self.folder.name, name)

    def start(self, *command, **options):
        program = subprocess.Popen(command, env=self.environment, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL, **options)
        self.programs.append(program)
        return program

    def run(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True,
                              check=False)

    def start_sound(self, output):
        """Starts a PipeWire without devices and adds an output to it."""
        bus = self.path("bus")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=" + bus
        self.start("dbus-daemon", "--session", "--nofork", "--address=unix:path=" + bus)
        wait_for(lambda: os.path.exists(bus))
        self.start("pipewire")
        wait_for(lambda: os.path.exists(self.path("pipewire-0")))
        self.start("wireplumber")
        self.start("pipewire-pulse")
        wait_for(lambda: self.run("pactl", "info").returncode == 0)
        self.run("pactl", "load-module", "module-null-sink", "sink_name=" + output)
        wait_for(lambda: output + ".monitor" in self.run("pactl", "list", "short", "sources").stdout)


class Recorder:
    """px-recorder, driven by lines."""

    def __init__(self, program, surroundings):
        self.process = subprocess.Popen([program, "--lines"], env=surroundings.environment,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.next("hello")

    def send(self, **line):
        self.process.stdin.write(json.dumps(line) + "\n")
        self.process.stdin.flush()

    def next(self, *events):
        """Returns the next event of these names; fails when the recording does."""
        for text in self.process.stdout:
            line = json.loads(text)
            if line["event"] in events:
                return line
            if line["event"] == "failed":
                raise RuntimeError(text)
        raise RuntimeError("the recorder has ended")

    def close(self):
        self.process.stdin.close()
        return self.process.wait()


def wait_for(condition, seconds=60):
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            raise TimeoutError(condition)
        time.sleep(0.05)


def frames_in(file):
    output = subprocess.run(
        ["ffprobe", "-v", "error", "-count_packets", "-select_streams", "v", "-show_entries",
         "stream=nb_read_packets", "-of", "csv=p=0", file],
        capture_output=True, text=True, check=False).stdout.strip().strip(",")
    return int(output or 0)


def decoding_errors(file):
    return subprocess.run(["ffmpeg", "-v", "error", "-i", file, "-f", "null", "-"],
                          capture_output=True, text=True, check=False).stderr


def memory_of(pid):
    """Returns the megabytes of memory that a process uses."""
    with open("/proc/%d/status" % pid, encoding="ascii") as file:
        return next(int(line.split()[1]) for line in file if line.startswith("VmRSS")) / 1024


def open_files_of(pid):
    return len(os.listdir("/proc/%d/fd" % pid))
