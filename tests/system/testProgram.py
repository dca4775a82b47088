#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""Drives the real program with a real window manager: testProgram.py PROGRAM DATA_FOLDER"""
import os
import shutil
import signal
import socket
import sys
import time
import unittest

import desktop
import notefile
from desktop import until

SKIPPED = 77
BODY = (60, 70)
TITLE = (60, 10)
SEND = (70, 31)
PANEL = "Menu - Quillets"


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def is_open(port):
    with socket.socket() as probe:
        return probe.connect_ex(("127.0.0.1", port)) == 0


class TestProgram(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.display = desktop.Display()
        cls.addClassCleanup(cls.display.close)

    def setUp(self):
        self.home = desktop.Home(self.display, BINARY, os.path.join(DATA, "household.dat"))
        self.addCleanup(self.home.close)

    def stored(self):
        return notefile.read(self.home.data_file)

    def stored_note(self, title):
        return next(note for note in self.stored() if note.title == title)

    def expected_places(self):
        return sorted(notefile.place(note) for note in self.stored() if not note.on_stack)

    def started(self):
        """A program whose notes all stand where the file has them."""
        expected = self.expected_places()
        program = self.home.start()
        seen = []

        def settled():
            seen[:] = sorted(filter(None, (note.place() for note in program.notes())))
            return seen == expected

        try:
            until(settled, f"notes at {expected}")
        except AssertionError:
            self.assertEqual(seen, expected)
        program.window(PANEL)
        return program

    def ends_by_key(self, program, key):
        """False when it had no effect: a window manager has none of its keys while it learns of a new keyboard."""
        self.display.do("key", key)
        return program.ends_within(5)

    def test_notes_stand_where_they_were_left(self):
        program = self.started()
        above = [note.title() for note in program.notes() if "_NET_WM_STATE_ABOVE" in note.state()]
        self.assertEqual(above, [note.title for note in self.stored() if note.on_top and not note.on_stack])
        titles = [note.title() for note in program.notes()]
        self.assertTrue(any(title.startswith("A very long title") for title in titles), titles)
        self.assertNotIn("SKIP_TASKBAR", program.window(PANEL).state())
        self.assertEqual(program.end(signal.SIGTERM), 0)

    def test_what_a_person_does_to_notes_is_kept(self):
        program = self.started()
        note = program.window("Shopping")
        left, top, width, height = note.place()
        note.activate()
        note.click(*BODY)
        self.display.do("type", "--delay", "20", " and 12 eggs")
        note.drag(*TITLE, 130, 360)
        until(lambda: note.place() == (left + 130, top + 360, width, height), "a moved note")
        note.drag(width - 2, height - 2, 35, 25)
        until(lambda: note.place() == (left + 130, top + 360, width + 35, height + 25), "a larger note")
        # Rolling is written at once, and with it all that was done before.
        note.click(*TITLE, times=2)
        until(lambda: self.stored_note("Shopping").rolled, "a rolled-up note")
        self.assertTrue(self.stored_note("Shopping").text.endswith(" and 12 eggs"))
        until(lambda: note.place()[3] == notefile.ROLLED_HEIGHT, "a low window")
        other = program.window("Wi-Fi for guests")
        other.activate()
        other.click(*BODY)
        self.display.do("type", "--delay", "20", "!")
        program.window("Café notes").click(*TITLE, times=2)
        until(lambda: self.stored_note("Café notes").rolled, "another rolled-up note")
        self.assertEqual(program.end(signal.SIGTERM), 0)
        self.assertTrue(self.stored_note("Wi-Fi for guests").text.endswith("!"))
        self.assertEqual(notefile.place(self.stored_note("Shopping")), (left + 130, top + 360, width + 35, notefile.ROLLED_HEIGHT))
        self.assertEqual(len(self.stored()), 10)
        again = self.started()
        program = again.window("Shopping")
        program.activate()
        program.click(*TITLE, times=2)
        until(lambda: program.place() == (left + 130, top + 360, width + 35, height + 25), "the former height")

    def test_nothing_drifts(self):
        before = sorted(self.stored())
        for with_signal in (signal.SIGTERM, None, signal.SIGINT):
            program = self.started()
            if with_signal is None:
                program.window(PANEL).activate()
                until(lambda: self.ends_by_key(program, "alt+F4"), "the end of the program")
                self.assertEqual(program.exit_code(), 0)
            else:
                self.assertEqual(program.end(with_signal), 0)
            self.assertEqual(sorted(self.stored()), before)

    def test_killed_programs_leave_a_whole_file(self):
        titles = sorted(note.title for note in self.stored())
        for moment in range(4):
            program = self.started()
            written = os.stat(self.home.data_file).st_mtime_ns
            note = program.window("Release checklist")
            note.activate()
            note.click(*TITLE, times=2)
            until(lambda: os.stat(self.home.data_file).st_mtime_ns != written, "a write")
            for _ in range(moment):
                note.click(*TITLE, times=2)
            self.assertEqual(program.end(signal.SIGKILL), -signal.SIGKILL)
            self.assertEqual(sorted(note.title for note in self.stored()), titles)

    def test_what_a_killed_program_had_not_saved_comes_back(self):
        journal = os.path.join(os.path.dirname(self.home.data_file), "quillets.jnl")
        texts = {note.title: note.text for note in self.stored()}
        for turn in range(3):
            program = self.home.start()
            program.window(PANEL)
            note = program.window("Shopping")
            note.activate()
            note.click(*BODY)
            self.display.do("type", "--delay", "20", f" turn {turn}")
            texts["Shopping"] += f" turn {turn}"
            time.sleep(1)
            self.assertEqual(program.end(signal.SIGKILL), -signal.SIGKILL)
            self.assertTrue(os.path.exists(journal))
        program = self.home.start()
        program.window(PANEL)
        self.assertEqual(program.end(signal.SIGTERM), 0)
        self.assertEqual({note.title: note.text for note in self.stored()}, texts)
        self.assertEqual(len(self.stored()), 10)
        self.assertFalse(os.path.exists(journal))

    def test_display_that_goes_takes_no_note_along(self):
        display = desktop.Display()
        try:
            home = desktop.Home(display, BINARY, os.path.join(DATA, "household.dat"))
            self.addCleanup(home.close)
            program = home.start()
            program.window(PANEL)
            for title in ("Wi-Fi for guests", "Shopping"):
                note = program.window(title)
                note.activate()
                note.click(*BODY)
                display.do("type", "--delay", "20", "!")
            time.sleep(1)
        finally:
            display.close()
        program.exit_code()
        ends = {note.title: note.text[-1] for note in notefile.read(home.data_file)}
        self.assertEqual((ends["Wi-Fi for guests"], ends["Shopping"]), ("!", "!"))

    def test_told_to_end_at_a_box_of_the_start(self):
        with open(self.home.data_file, "rb+") as file:
            file.truncate(os.path.getsize(self.home.data_file) - 10)
        program = self.home.start()
        program.window("Error")
        self.assertEqual(program.end(signal.SIGTERM), 0)

    def test_second_program_ends(self):
        first = self.started()
        with open(self.home.data_file, "rb") as file:
            before = file.read()
        for session in ("session", "another session"):
            second = self.home.start(session)
            box = second.window("Fatal Program Error")
            box.activate()
            self.display.do("key", "Return")
            self.assertEqual(second.exit_code(), 1)
            with open(self.home.data_file, "rb") as file:
                self.assertEqual(file.read(), before)
        self.assertEqual(len(first.notes()), 8)
        self.assertEqual(first.end(signal.SIGTERM), 0)


    def test_keys_of_all_programs(self):
        with open(os.path.join(os.path.dirname(self.home.data_file), "keys.set"), "w") as file:
            file.write("New Note = Ctrl+Alt+N\r\nShow Or Hide All = Meta+H\r\nOther\r\n")
        program = self.started()
        shown = len(program.notes())

        def press(key, expected):
            self.display.do("key", key)
            if not program.shows_within(5, expected):  # A window manager may just be learning of a new keyboard.
                self.display.do("key", key)
            until(lambda: len(program.notes()) == expected, f"{expected} notes after {key}")

        press("ctrl+alt+n", shown + 1)
        press("super+h", 0)
        press("super+h", shown + 1)
        self.assertEqual(program.end(signal.SIGTERM), 0)

    def test_notes_travel(self):
        port = free_port()
        other = desktop.Home(self.display, BINARY, os.path.join(DATA, "household.dat"), port)
        self.addCleanup(other.close)
        receiver = other.start()
        receiver.window(PANEL)
        until(lambda: len(receiver.notes()) == 8, "the notes of the receiver")
        until(lambda: is_open(port), "a receiver that listens")
        sender = self.started()
        note = sender.window("Shopping")
        note.activate()
        note.click(*SEND)
        dialog = sender.window("Send 'Shopping' - Quillets")
        dialog.activate()
        self.display.do("type", "--delay", "20", f"127.0.0.1@{port},  127.0.0.1@{port} (again)")
        self.display.do("key", "Return")

        def arrived():
            return [note for note in notefile.read(other.data_file) if note.title == "Shopping"]

        until(lambda: len(arrived()) == 3, "two more notes on the disk of the receiver")
        self.assertEqual({note.text for note in arrived()}, {self.stored_note("Shopping").text})
        until(lambda: len(receiver.notes()) == 10, "the notes on the desktop of the receiver")
        # What arrives while a dialog is open waits for its end.
        options = receiver.window(PANEL)
        options.activate()
        self.display.do("key", "alt+o")
        options = receiver.window("Program Options - Quillets")
        dialog.activate()
        self.display.do("key", "Return")
        until(lambda: len(arrived()) == 5, "more notes on the disk of the receiver")
        self.assertEqual(len(receiver.notes()), 10)
        options.activate()
        self.display.do("key", "Escape")
        until(lambda: len(receiver.notes()) == 12, "the notes that have waited")
        # Whoever is ended while a window is open ends all the same.
        self.assertEqual(sender.end(signal.SIGTERM), 0)
        self.assertEqual(receiver.end(signal.SIGTERM), 0)
        self.assertEqual(len(arrived()), 5)


if __name__ == "__main__":
    BINARY, DATA = map(os.path.abspath, sys.argv[1:3])
    if not all(map(shutil.which, desktop.TOOLS)):
        sys.exit(SKIPPED)
    unittest.main(argv=sys.argv[:1] + sys.argv[3:], verbosity=2)
