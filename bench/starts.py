#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""Measures whole starts, beside a bare Qt program with as many windows: starts.py PROGRAM BARE

Medians of five: CPU seconds, seconds from exec to the last window on the screen, MB (PSS) after settling; then the
context switches of half a minute in which nothing happens."""
import os
import statistics
import struct
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "system"))
sys.dont_write_bytecode = True
import desktop  # noqa: E402

RUNS = 5
SETTLE = 2.0  # Seconds.
IDLE = 30


def record(number):
    """In the layout of docs/file-formats.md, as is the file."""
    flags = [0] * 13
    flags[6] = flags[8] = -1
    place = (9.0, 2520.0, 0.0, 15.0 + number % 10 * 1500, 15.0 + number // 10 * 1200, 3300.0)
    texts = (f"Note {number}", "11/22/2026 12:00:00", "", "", "DejaVu Sans", "2 l milk\r\nBread & butter\r\n" * 5, "", "")
    encoded = [text.encode("utf-16le") for text in texts]
    return (struct.pack("<13h6hii6f", *flags, *[0] * 6, 0, 0xC8FFFF, *place)
            + b"".join(struct.pack("<i", len(text)) + text for text in encoded))


def data_file(count):
    records = [record(number) for number in range(count)]
    at, entries = 8 + 12 * count, []
    for tag, one in enumerate(records, 1):
        entries.append(struct.pack("<iii", tag, at + 1, len(one)))
        at += len(one)
    return struct.pack("<ii", at, count) + b"".join(reversed(entries)) + b"".join(records)


def field(path, name):
    with open(path) as file:
        return sum(int(line.split()[1]) for line in file if line.startswith(name))


def cpu(pid):
    with open(f"/proc/{pid}/stat") as file:
        ticks = file.read().rpartition(")")[2].split()[11:13]
    return sum(map(int, ticks)) / os.sysconf("SC_CLK_TCK")


def switches(pid):
    """By thread."""
    return {task: field(f"/proc/{pid}/task/{task}/status", "voluntary_ctxt")
            + field(f"/proc/{pid}/task/{task}/status", "nonvoluntary_ctxt") for task in os.listdir(f"/proc/{pid}/task")}


def mapped(display, pid):
    return len(display.run("xdotool", "search", "--all", "--onlyvisible", "--pid", str(pid), "--name", ".").split())


def measure(display, command, notes, windows, idle=False):
    """CPU, wall and memory of one start, or the context switches of an idle program."""
    with tempfile.TemporaryDirectory() as folder:
        os.mkdir(os.path.join(folder, "Data"), 0o700)
        with open(os.path.join(folder, "Data", "quillets.dat"), "wb") as file:
            file.write(data_file(notes))
        environment = dict(display.environment, XDG_RUNTIME_DIR=folder)
        begin = time.monotonic()
        process = subprocess.Popen(command, cwd=folder, env=environment)
        try:
            desktop.until(lambda: mapped(display, process.pid) >= windows, f"{windows} windows")
            wall = time.monotonic() - begin
            time.sleep(SETTLE)
            if idle:
                time.sleep(IDLE)  # Threads that serve the start have ended then.
                before = switches(process.pid)
                time.sleep(IDLE)
                return sum(count - before.get(task, 0) for task, count in switches(process.pid).items())
            return cpu(process.pid), wall, field(f"/proc/{process.pid}/smaps_rollup", "Pss:") / 1024
        finally:
            process.kill()
            process.wait()


def main():
    program, bare = map(os.path.abspath, sys.argv[1:3])
    display = desktop.Display()
    try:
        print(f"{'windows':>7}  {'':8} {'CPU s':>7} {'wall s':>7} {'PSS MB':>7}")
        for count in (1, 10, 100):
            results = {"quillets": [], "bare": []}
            for _ in range(RUNS):
                # The main panel is one window more.
                results["quillets"].append(measure(display, [program], count, count + 1))
                results["bare"].append(measure(display, [bare, str(count)], count, count))
            for name, runs in results.items():
                print(f"{count:7}  {name:8} " + " ".join(f"{statistics.median(column):7.2f}" for column in zip(*runs)), flush=True)
        print(f"context switches in {IDLE} s, 100 notes:", measure(display, [program], 100, 101, idle=True))
    finally:
        display.close()


if __name__ == "__main__":
    main()
