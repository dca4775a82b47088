# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""A minute of somebody's use of the program, who keeps a diary."""
import os
import signal
import sys
import threading
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "system"))
import desktop
import notefile
from desktop import until
from diary import ANY, Note
from keyboard import Keyboard

PANEL, STACK = "Menu - Quillets", "NoteStack - Quillets"
BODY, TITLE, STACK_BODY = (60, 70), (60, 10), (60, 200)
DELETE_FROM_RIGHT = 24
BEAT = 0.02


class Lag:
    """The longest time for which this machine has kept somebody waiting who wanted to go on at once."""

    def __init__(self):
        self._longest, self._ended = 0, threading.Event()
        self._thread = threading.Thread(target=self._watch, daemon=True)
        self._thread.start()

    def _watch(self):
        begin = time.monotonic()
        while not self._ended.wait(BEAT):
            now = time.monotonic()
            self._longest, begin = max(self._longest, now - begin - BEAT), now

    def stop(self):
        self._ended.set()
        self._thread.join()
        return self._longest


class Session:
    def __init__(self, display, home, diary):
        self.display, self.home, self.diary = display, home, diary
        self.keyboard = Keyboard(display.environment["DISPLAY"])
        self.notes = {}
        for note in notefile.read(home.data_file):
            self.notes[note.title or note.text] = diary.add(Note(
                title=note.title, text=note.text, place=(note.left, note.top), size=(note.width, note.height),
                rolled=note.rolled, stack=note.on_stack))
        self.program = None

    def start(self):
        self.program = self.home.start()
        self.program.window(PANEL)

    def kill(self):
        """The time of the end."""
        self.program.end(signal.SIGKILL)
        return time.monotonic()

    def open_text(self, title):
        window = self.program.window(title)
        window.activate()
        window.click(*BODY)
        time.sleep(0.2)

    def type_into(self, title, text, gap):
        """At the end of a note, a key every `gap` seconds."""
        self.open_text(title)
        self.type_on(self.notes[title], text, gap)

    def type_on(self, note, text, gap, into="text"):
        next_key = time.monotonic()
        for key in text:
            time.sleep(max(0, next_key - time.monotonic()))
            next_key += gap
            since, settled = self.keyboard.press(key)
            note.set(into, note.now(into) + key.replace("\n", "\r\n"), since, settled)

    def new_note(self, name):
        known = {window.number for window in until(self.program.windows, "windows")}
        since, _ = self.keyboard.press("n", held="ctrl")
        new = (lambda: next((window for window in self.program.notes()
                             if window.number not in known and window.title().isdigit()), None))
        window = until(new, "a new note")
        settled = time.monotonic()
        self.notes[name] = self.diary.add(Note(since, settled, title="", text="", rolled=False, stack=False, place=ANY, size=ANY))
        window.activate()
        return self.notes[name]

    def drag(self, title, by_x, by_y):
        note, window = self.notes[title], self.program.window(title)
        left, top, *_ = window.place()
        target = (left + by_x, top + by_y)
        since = time.monotonic()
        note.set("place", ANY, since, float("inf"))
        window.activate()
        window.drag(*TITLE, by_x, by_y)
        until(lambda: window.place()[:2] == target, "a moved note")
        note.set("place", target, since, time.monotonic())

    def roll(self, title):
        window, since = self.program.window(title), time.monotonic()
        window.activate()
        window.click(*TITLE, times=2)
        until(lambda: window.place()[3] == notefile.ROLLED_HEIGHT, "a low window")
        self.notes[title].set("rolled", True, since, time.monotonic())
        self.notes[title].set("size", ANY, since, time.monotonic())

    def delete(self, title):
        window = self.program.window(title)
        window.activate()
        window.click(window.place()[2] - DELETE_FROM_RIGHT, TITLE[1])
        self.program.window("Note Deletion").activate()
        since, _ = self.keyboard.press("\n")
        until(lambda: window.place() is None, "a deleted note")
        self.notes[title].set("there", None, since, time.monotonic())

    def size(self, title, by_x, by_y):
        note, window = self.notes[title], self.program.window(title)
        _, _, width, height = window.place()
        target, since = (width + by_x, height + by_y), time.monotonic()
        note.set("size", ANY, since, float("inf"))
        window.activate()
        window.drag(width - 2, height - 2, by_x, by_y)
        until(lambda: window.place()[2:] == target, "a note of another size")
        note.set("size", target, since, time.monotonic())

    def retitle(self, note, title, gap):
        """Of the active note, which has none."""
        self.keyboard.press("F2")
        time.sleep(0.3)
        self.type_on(note, title, gap, "title")
        self.keyboard.press("\n")
        time.sleep(0.2)

    def panel_key(self, key):
        panel = self.program.window(PANEL)
        panel.activate()
        return self.keyboard.press(key, held="alt")

    def all_to_stack(self):
        since, _ = self.panel_key("a")
        until(lambda: all(note.on_stack for note in notefile.read(self.home.data_file)), "all notes on the stack")
        for note in self.notes.values():
            if note.now("there") and not note.now("stack"):
                note.set("stack", True, since, time.monotonic())

    def type_into_stack(self, title, text, gap):
        """Into its chosen note."""
        self.panel_key("v")
        window = self.program.window(STACK)
        window.activate()
        window.click(*STACK_BODY)
        time.sleep(0.2)
        self.type_on(self.notes[title], text, gap)
        self.program.window(PANEL).activate()

    def save_by_key(self):
        self.keyboard.press("s", held="ctrl")

    def save(self):
        written = os.stat(self.home.data_file).st_mtime_ns
        self.panel_key("s")
        until(lambda: os.stat(self.home.data_file).st_mtime_ns != written, "a save")

    def exit(self):
        self.panel_key("x")
        assert self.program.exit_code() == 0
        return time.monotonic()

    def close_panel(self, given_up):
        """Ends the program without saving a note that is new."""
        since = time.monotonic()
        self.program.window(PANEL).activate()

        def ends():
            self.keyboard.press("F4", held="alt")  # A window manager has none of its keys while it learns of a keyboard.
            return self.program.ends_within(5)

        until(ends, "the end of the program")
        assert self.program.exit_code() == 0
        given_up.set("there", None, since, time.monotonic())
        return time.monotonic()


def minute(session):
    """The time of the end. What is typed is in a note before the next thing is done, as it is with people."""
    session.start()
    session.type_into("Shopping", " twelve eggs and a loaf of rye\nalso apples", 0.04)
    time.sleep(0.7)
    session.type_into("Wi-Fi for guests", " changed today to nine owls", 0.03)
    time.sleep(0.3)
    session.drag("Café notes", -40, 330)
    session.roll("Release checklist")
    session.type_into("Shopping", " pears", 0.1)
    session.delete("Rolled up")
    session.size("Wi-Fi for guests", 30, 20)
    session.type_on(session.new_note("first"), "call ann about the boat before noon", 0.05)
    session.retitle(session.notes["first"], "the boat", 0.1)
    time.sleep(1.6)
    session.kill()
    session.start()
    session.type_into("Call the dentist", " moved to tuesday", 0.05)
    session.save()
    session.type_on(session.new_note("second"), "the second one", 0.05)
    session.all_to_stack()
    session.type_into_stack("second", " goes on as a tab of many", 0.05)
    session.new_note("third")
    session.type_on(session.notes["third"], "typed until the very last moment of it all", 0.05)
    session.exit()
    session.start()
    session.type_on(session.new_note("fourth"), "of no more use to anybody", 0.05)
    time.sleep(0.7)
    return session.close_panel(session.notes["fourth"])
