#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""The recorder and the replay over small programs of which it is known what they can leave: testReplay.py RECORDER"""
import os
import subprocess
import sys
import tempfile
import unittest

import recording
import replay

OLD, NEW = b"old", b"new bytes"
PROGRAM = """
import ctypes, os
def write(name, bytes, sync=True, flags=os.O_CREAT | os.O_TRUNC):
    handle = os.open(name, os.O_WRONLY | flags)
    os.write(handle, bytes)
    if sync:
        os.fsync(handle)
    os.close(handle)
def sync_folder(name="."):
    handle = os.open(name, os.O_RDONLY | os.O_DIRECTORY)
    os.fsync(handle)
    os.close(handle)
def unnamed(name, bytes):
    handle = os.open(".", os.O_WRONLY | os.O_TMPFILE, 0o600)
    os.write(handle, bytes)
    os.fsync(handle)
    assert ctypes.CDLL(None).linkat(-100, b"/proc/self/fd/%d" % handle, -100, name.encode(), 0x400) == 0
new = b"new bytes"
"""
TORN = [b"", b"new ", bytes(len(NEW))]
# Program, what "f" holds after a kill, after a power cut, and after one that comes when all was done. None: no file.
CASES = {
    "replaced": ("write('g', new); os.rename('g', 'f'); sync_folder()", [OLD, NEW], [OLD, NEW], [NEW]),
    "by a file without a name": ("unnamed('g', new); os.rename('g', 'f'); sync_folder()", [OLD, NEW], [OLD, NEW], [NEW]),
    "in place": ("write('f', new)", [OLD, b"", NEW], [OLD, b"", NEW, NEW, *TORN], [NEW]),
    "file not synced": ("write('g', new, False); os.rename('g', 'f'); sync_folder()", [OLD, NEW], [OLD, NEW, *TORN], [NEW, *TORN]),
    "folder not synced": ("write('g', new); os.rename('g', 'f')", [OLD, NEW], [OLD, NEW], [OLD, NEW]),
    "removed": ("os.unlink('f'); sync_folder()", [OLD, None], [OLD, None], [None]),
    "names in their order": ("os.rename('f', 'g'); write('f', new); sync_folder()", [OLD, None, b"", NEW], [OLD, None, b"", NEW, *TORN], [NEW]),
    "in a folder of its own": ("os.mkdir('d'); write('d/f', new); sync_folder('d'); sync_folder(); os.unlink('f')", [OLD, None], [OLD, None], [OLD, None]),
}


class TestReplay(unittest.TestCase):
    def recorded(self, home, program):
        folder, log = os.path.join(home, "Data"), os.path.join(home, "log")
        os.mkdir(folder)
        replay.put({"f": OLD}, os.path.join(home, "before"))
        with open(os.path.join(folder, "f"), "wb") as file:
            file.write(OLD)
        environment = dict(os.environ, LD_PRELOAD=RECORDER, RECORDER_FOLDER=folder, RECORDER_LOG=log)
        subprocess.run([sys.executable, "-c", PROGRAM + program], cwd=folder, env=environment, check=True)
        return os.path.join(home, "before"), list(recording.read(log, folder))

    def test_states(self):
        for name, (program, after_kill, after_cut, at_the_end) in CASES.items():
            with self.subTest(name), tempfile.TemporaryDirectory() as home:
                before, operations = self.recorded(home, program)
                killed, cut, last = replay.explore(before, operations, end=1e12)
                self.assertEqual({state.files.get("f") for state in killed.seen.values()}, set(after_kill))
                self.assertEqual({state.files.get("f") for state in cut.seen.values()}, set(after_cut))
                final = {state.files.get("f") for state in cut.seen.values() if state.last == 1e12}
                self.assertEqual(final, set(at_the_end))
                self.assertEqual(last, replay.held(os.path.join(home, "Data")))

    def test_worse_savers(self):
        program = "unnamed('quillets.dat.x', new); os.rename('quillets.dat.x', 'quillets.dat'); sync_folder()"
        for worse, possible in ((recording.in_place, [None, b"", NEW, *TORN]),
                                (recording.without_file_sync, [None, NEW, *TORN]),
                                (recording.without_folder_sync, [None, NEW])):
            with self.subTest(worse.__name__), tempfile.TemporaryDirectory() as home:
                before, operations = self.recorded(home, program)
                _, cut, _ = replay.explore(before, worse(operations), end=1e12)
                self.assertEqual({state.files.get("quillets.dat") for state in cut.seen.values()}, set(possible))


if __name__ == "__main__":
    RECORDER = os.path.abspath(sys.argv[1])
    unittest.main(argv=sys.argv[:1] + sys.argv[2:], verbosity=2)
