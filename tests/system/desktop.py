# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""A virtual display with a window manager, and the program running on it in a home of its own."""
import os
import re
import shutil
import signal
import subprocess
import tempfile
import time

TOOLS = ("Xvfb", "openbox", "xdotool", "xprop", "xwininfo")
PATIENCE = 90  # Seconds; a busy machine with a sanitized program is slow.


def until(condition, what):
    """Waits until the condition gives something true and returns that."""
    end = time.monotonic() + PATIENCE
    while True:
        found = condition()
        if found:
            return found
        assert time.monotonic() < end, f"in vain: {what}"
        time.sleep(0.05)


class Display:
    def __init__(self, size="1280x1024", dpi=96):
        self._folder = tempfile.mkdtemp(prefix="quillets-display-")
        reader, writer = os.pipe()
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", size + "x24", "-dpi", str(dpi), "-nolisten",
             "tcp", "-noreset"],  # A reset, as its first client leaves, takes a window manager along that has just come.
            pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as number:
            self.environment = dict(os.environ, DISPLAY=":" + number.readline().strip(), HOME=self._folder, LC_ALL="C.UTF-8")
        for name in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR"):
            self.environment.pop(name, None)
        self._manager = subprocess.Popen(["openbox", "--sm-disable"], env=self.environment,
                                         stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            until(lambda: "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "a window manager")
        except AssertionError:
            self.close()
            raise

    def close(self):
        for process in (self._manager, self._server):
            process.terminate()
            process.wait()
        shutil.rmtree(self._folder)

    def run(self, *command):
        """Output of a tool; empty when it failed, as for a window that has just gone."""
        result = subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=PATIENCE)
        return result.stdout if result.returncode == 0 else ""

    def do(self, *arguments):
        self.run("xdotool", *map(str, arguments))


class Home:
    """A working folder and its login sessions."""

    def __init__(self, display, binary, data_file, port=0):
        self.display, self._binary = display, binary
        self.environment = {}  # Beside that of the display.
        self.folder = tempfile.mkdtemp(prefix="quillets-home-")
        self.data_file = os.path.join(self.folder, "Data", "quillets.dat")
        os.mkdir(os.path.dirname(self.data_file))
        shutil.copy(data_file, self.data_file)
        with open(os.path.join(self.folder, "Data", "quillets.set"), "w") as options:
            options.write(f"Listening Port = {port}\nName = Ann\n")
        self._programs = []

    def start(self, session="session"):
        runtime = os.path.join(self.folder, session)
        os.makedirs(runtime, 0o700, exist_ok=True)
        environment = dict(self.display.environment, XDG_RUNTIME_DIR=runtime, **self.environment)
        program = Program(self.display, subprocess.Popen([self._binary], cwd=self.folder, env=environment))
        self._programs.append(program)
        return program

    def close(self):
        for program in self._programs:
            program.end(signal.SIGKILL)
        shutil.rmtree(self.folder)


class Program:
    def __init__(self, display, process):
        self._display, self._process = display, process

    def end(self, with_signal):
        if self._process.poll() is None:
            self._process.send_signal(with_signal)
        return self.exit_code()

    def exit_code(self):
        if not self.ends_within(PATIENCE):
            self._process.send_signal(signal.SIGABRT)  # The sanitizer tells where it was.
        return self._process.wait(PATIENCE)

    def ends_within(self, seconds):
        try:
            self._process.wait(seconds)
        except subprocess.TimeoutExpired:
            return False
        return True

    def windows(self):
        found = self._display.run("xdotool", "search", "--all", "--onlyvisible", "--pid", str(self._process.pid), "--name", ".")
        return [Window(self._display, number) for number in found.split()]

    def shows_within(self, seconds, count):
        end = time.monotonic() + seconds
        while len(self.notes()) != count and time.monotonic() < end:
            time.sleep(0.05)
        return len(self.notes()) == count

    def notes(self):
        return [window for window in self.windows() if "_NET_WM_STATE_SKIP_TASKBAR" in window.state()]

    def window(self, title):
        return until(lambda: next((w for w in self.windows() if w.title() == title), None), f"a window '{title}'")


class Window:
    def __init__(self, display, number):
        self._display, self.number = display, number

    def title(self):
        name = self._display.run("xdotool", "getwindowname", self.number)
        return name.removesuffix("\n")

    def state(self):
        return self._display.run("xprop", "-id", self.number, "_NET_WM_STATE")

    def place(self):
        """Left, top, width, height; None when the window has gone."""
        told = self._display.run("xwininfo", "-id", self.number)
        found = re.findall(r"(?:Absolute upper-left [XY]|Width|Height): +(-?\d+)", told)
        return tuple(map(int, found)) if len(found) == 4 else None

    def click(self, x, y, times=1):
        left, top, _, _ = self.place()
        self._display.do("mousemove", left + x, top + y)
        self._display.do("click", "--repeat", times, "--delay", 60, 1)

    def activate(self):
        self._display.do("windowactivate", self.number)
        until(lambda: self._display.run("xdotool", "getactivewindow").strip() == self.number, "an active window")

    def drag(self, x, y, by_x, by_y):
        left, top, _, _ = self.place()
        self._display.do("mousemove", left + x, top + y)
        self._display.do("mousedown", 1)
        for step in (0.3, 0.7, 1):
            self._display.do("mousemove", left + x + round(by_x * step), top + y + round(by_y * step))
            time.sleep(0.15)  # A hand is not faster; the window manager answers meanwhile.
        self._display.do("mouseup", 1)
