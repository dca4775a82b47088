#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""Proves what is left of a session by a kill or a power cut at any instant: proof.py PROGRAM TOOLS_FOLDER DATA_FOLDER

With --all the program itself starts on every different state, not on some of them."""
import os
import random
import shutil
import signal
import sys
import tempfile
import threading
import time
import unittest

import recording
import replay
from diary import Diary
from loader import Loader
from session import PANEL, Lag, Session, minute
import desktop

SKIPPED = 77
BOUND = 1.0
SAMPLE = 4
LONG_AFTER = 60
ROUNDS = 4
WITHIN = 5  # Seconds more than usual that a start and an end may take.
WORDS = "a word and then another one while the file is being written again and again".split()


class TestProof(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.display = desktop.Display()
        cls.addClassCleanup(cls.display.close)
        cls.folder = tempfile.mkdtemp(prefix="quillets-proof-", dir="/dev/shm" if os.path.isdir("/dev/shm") else None)
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.loader = Loader(os.path.join(TOOLS, "loadFolder"), cls.folder)
        cls.addClassCleanup(cls.loader.close)
        cls.record()

    @classmethod
    def record(cls):
        home, log, before = cls.home(), os.path.join(cls.folder, "log"), os.path.join(cls.folder, "before")
        data = os.path.dirname(home.data_file)
        shutil.copytree(data, before)
        home.environment.update(LD_PRELOAD=os.path.join(TOOLS, "recorder.so"), RECORDER_FOLDER=data, RECORDER_LOG=log,
                                ASAN_OPTIONS=os.environ.get("ASAN_OPTIONS", "") + ":verify_asan_link_order=0")
        cls.diary, lag = Diary(BOUND), Lag()
        try:
            cls.end = minute(Session(cls.display, home, cls.diary))
            cls.diary.bound += lag.stop()
            cls.operations, cls.left = list(recording.read(log, data)), replay.held(data)
        finally:
            home.close()
        cls.before = before
        cls.end += LONG_AFTER
        cls.killed, cls.cut, cls.last = replay.explore(before, cls.operations, cls.end)

    @classmethod
    def home(cls):
        return desktop.Home(cls.display, PROGRAM, os.path.join(DATA, "household.dat"))

    def check(self, what, states):
        judged = [(state, *self.loader.judge(self.diary, state)) for state in states.seen.values()]
        bad = sorted(((age, flaws) for _, flaws, age in judged if flaws), key=lambda one: -one[0])
        worst = max(age for _, _, age in judged)
        print(f"\n{what}: {states.explored} states, {len(states.seen)} different, {len(bad)} bad; "
              f"the oldest key lost was typed {worst:.2f} s before, the bound is {self.diary.bound:.2f} s", flush=True)
        self.assertEqual(bad[:5], [])

    def test_recording_is_whole(self):
        self.assertEqual(self.last, self.left)
        self.assertGreater(len(self.operations), 100)

    def test_a_kill_at_any_instant(self):
        self.check("kill", self.killed)

    def test_a_power_cut_at_any_instant(self):
        self.check("power cut", self.cut)

    def test_worse_savers_are_caught(self):
        for worse in (recording.in_place, recording.without_file_sync, recording.without_folder_sync):
            with self.subTest(worse.__name__):
                _, cut, _ = replay.explore(self.before, worse(self.operations), self.end)
                self.assertTrue(any(self.loader.judge(self.diary, state)[0] for state in cut.seen.values()))

    def seconds_up_and_down(self, home):
        begin = time.monotonic()
        program = home.start()
        program.window(PANEL)
        self.assertNotIn("Error", [window.title() for window in program.windows()])
        self.assertEqual(program.end(signal.SIGTERM), 0)
        return time.monotonic() - begin

    def test_the_program_starts_on_what_is_left(self):
        states = sorted(self.cut.seen.values(), key=lambda state: state.last)
        locks = {state.files.get("quillets.lock"): state for state in states}  # The load knows nothing of them.
        chosen = states if ALL else [*locks.values(), *states[:: len(states) // SAMPLE]]
        usual = None
        for state in chosen:
            home = self.home()
            try:
                usual = usual or self.seconds_up_and_down(home)
                shutil.rmtree(os.path.dirname(home.data_file))
                replay.put(state.files, os.path.dirname(home.data_file))
                self.assertLess(self.seconds_up_and_down(home), usual + WITHIN)
                self.assertEqual(self.diary.judge(self.loader.load(home.folder)["notes"], state.last).flaws, [])
            finally:
                home.close()

    def test_killed_at_random(self):
        dice = random.Random(12)
        for moment in (dice.uniform(0.3, 5) for _ in range(ROUNDS)):
            with self.subTest(moment=moment):
                self.kill_in_the_middle(moment)

    def kill_in_the_middle(self, moment):
        home, diary, lag, ends = self.home(), Diary(BOUND), Lag(), []
        try:
            session = Session(self.display, home, diary)
            session.start()
            killer = threading.Timer(moment, lambda: ends.append(session.kill()))
            session.open_text("Shopping")
            killer.start()
            for word in WORDS:
                session.type_on(session.notes["Shopping"], " " + word, 0.03)
                session.save_by_key()
            killer.join()
            diary.bound += lag.stop()
            loaded = self.loader.load(home.folder)
            self.assertEqual((diary.judge(loaded["notes"], ends[0]).flaws, loaded["told"]), ([], ""))
        finally:
            home.close()


if __name__ == "__main__":
    ALL = "--all" in sys.argv
    arguments = [one for one in sys.argv if one != "--all"]
    PROGRAM, TOOLS, DATA = map(os.path.abspath, arguments[1:4])
    if not all(map(shutil.which, desktop.TOOLS)):
        sys.exit(SKIPPED)
    unittest.main(argv=arguments[:1] + arguments[4:], verbosity=2)
