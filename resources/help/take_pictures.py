#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""Takes all pictures of the help: take_pictures.py PROGRAM [FOLDER]

The real program on a virtual display of 192 dpi, with the notes of tests/data/household.dat and a window manager, moved
by keys and the mouse. A second run gives the same pictures, byte for byte, so that a difference is one of the program.
Needs the TEST_PACKAGES and PICTURE_PACKAGES of packaging/setup.sh."""
import glob
import os
import re
import shutil
import signal
import struct
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.join(HERE, "..", "..")
sys.path.insert(0, os.path.join(ROOT, "tests", "system"))
sys.dont_write_bytecode = True
import desktop  # noqa: E402
from desktop import until  # noqa: E402

SCALE = 2
SCREEN = (3200, 1500)
BESIDE_NOTES = (1980, 120)
DESKTOP = (84, 84, 1832, 1172)
STACK_SIZE = (1086, 650)
TRAY_MENU = (380, 550)
GROUND = "#4a6b80"
MARGIN = 10 * SCALE
MENU_MARGIN = 30 * SCALE  # At the right, for what a menu has beside its note.
SETTLED = 0.7  # Seconds; menus fade in.
PANEL = "Menu - Quillets"
TO_NOTESTACK, PROPERTIES, ACTIONS = 1, 4, 5  # Rows of a note's menu, lines not counted.


class Photographer:
    def __init__(self, display, folder):
        self.display, self.folder = display, folder

    def keys(self, *names):
        for name in names:
            self.display.do("key", name)
            time.sleep(0.15)

    def take(self, name, left, top, width, height, caret=False):
        """A part of the screen, of whole pixels of a page. Few colours and no dates: small files, the same each time."""
        width, height = width + width % SCALE, height + height % SCALE
        time.sleep(SETTLED)
        if caret:
            self.keys("End")  # It stays for half a second after a press.
        subprocess.run(
            ["import", "-window", "root", "-crop", f"{width}x{height}+{left}+{top}", "+repage", "-strip",
             "-define", "png:exclude-chunks=date,time", "+dither", "-colors", "128",
             "png8:" + os.path.join(self.folder, name + ".png")],
            env=self.display.environment, check=True)

    def around(self, name, window, left=MARGIN, top=MARGIN, right=MARGIN, bottom=MARGIN, **more):
        x, y, width, height = window.place()
        self.take(name, x - left, y - top, left + width + right, top + height + bottom, **more)

    def framed(self, name, window):
        told = self.display.run("xprop", "-id", window.number, "_NET_FRAME_EXTENTS")
        left, right, top, bottom = (int(extent) + MARGIN for extent in re.findall(r"\d+", told))
        self.around(name, window, left, top, right, bottom)

    def inside(self, name, window, **more):
        self.around(name, window, 0, 0, 0, 0, **more)


def opened(program, act):
    """The window that the action opens."""
    before = {window.title() for window in program.windows()}
    act()
    return until(lambda: next((w for w in program.windows() if w.title() not in before), None), "a new window")


def gone(program, window):
    title = window.title()
    until(lambda: title not in (one.title() for one in program.windows()), f"the end of '{title}'")


def menu(camera, row, sub=0):
    """Opens the menu of the active note and walks to a row, or to one of its submenu."""
    camera.keys("shift+F10", *["Down"] * row, *["Right"] * (sub > 0), *["Down"] * (sub - 1))


def activated(program, title):
    window = program.window(title)
    window.activate()
    return window


def moved(camera, window):
    """Onto the empty part of the screen, and the pointer away from it."""
    window.activate()
    camera.display.do("windowmove", "--sync", window.number, *BESIDE_NOTES)
    camera.display.do("mousemove", SCREEN[0] - 1, SCREEN[1] - 1)


def take_notes(camera, program):
    dentist = activated(program, "Call the dentist")
    camera.keys("F2")
    camera.around("title", dentist, right=MENU_MARGIN)
    camera.keys("Escape")
    menu(camera, PROPERTIES, 1)
    camera.around("menu-properties", dentist, right=MENU_MARGIN, bottom=MARGIN + 45 * SCALE)
    camera.keys("Escape", "Escape")
    menu(camera, ACTIONS, 1)
    camera.around("menu-actions", dentist, right=MENU_MARGIN, bottom=MARGIN + 30 * SCALE)
    settings = opened(program, lambda: camera.keys("Return"))
    camera.inside("settings", settings)
    camera.keys("Escape")
    gone(program, settings)
    dentist.activate()
    left, top, _, _ = dentist.place()
    camera.display.do("mousemove", left + 110 * SCALE, top + 70 * SCALE)
    camera.display.do("click", 3)
    camera.around("short-menu", dentist, right=MENU_MARGIN)
    camera.keys("Escape")
    camera.display.do("mousemove", SCREEN[0] - 1, SCREEN[1] - 1)
    alarm = opened(program, lambda: (menu(camera, PROPERTIES, 2), camera.keys("Return")))
    camera.inside("alarm", alarm)
    camera.keys("Escape")
    gone(program, alarm)
    wifi = program.window("Wi-Fi for guests")
    camera.around("rolled", wifi, bottom=MARGIN + 50 * SCALE)


def prepare_exchange(home):
    """Books, and what the options need for mail."""
    data = os.path.dirname(home.data_file)
    with open(os.path.join(data, "host.txt"), "w") as book:
        book.write("alias lab desk.lan, 192.168.1.20@1500 (upstairs)\nalias bob bob.lan\nalias everybody lab, bob\n")
    with open(os.path.join(data, "quillets.set"), "a") as options:
        options.write("SMTP Server = mail.home.example\nE-mail Address = ann@home.example\n")
        options.write("Send Book = Data/host.txt\nAddress Book = Data/address.txt\n")


def take_exchange(camera, program):
    activated(program, "Shopping")
    send = opened(program, lambda: (menu(camera, ACTIONS, 2), camera.keys("Return")))
    camera.display.do("type", "lab, desk.lan@1500 (upstairs)")
    camera.inside("send", send, caret=True)
    book = opened(program, lambda: camera.keys("Down", "Home", "Return"))
    camera.inside("send-book", book)
    camera.keys("Escape")
    gone(program, book)
    camera.keys("Escape")
    gone(program, send)
    activated(program, "Shopping")
    email = opened(program, lambda: (menu(camera, ACTIONS, 3), camera.keys("Return")))
    camera.display.do("type", "Ann Lee <ann@home.example>, family")
    camera.inside("email", email, caret=True)
    camera.keys("Escape")
    gone(program, email)


def take_passwords(camera, program):
    shopping = activated(program, "Shopping")
    camera.keys("Return", "ctrl+End")
    camera.around("editing", shopping, caret=True)
    camera.keys("Escape")
    settings = opened(program, lambda: (menu(camera, PROPERTIES, 1), camera.keys("Return")))
    new = opened(program, lambda: camera.keys("space"))
    camera.inside("new-password", new, caret=True)
    camera.display.do("type", "open")
    camera.keys("Tab")
    camera.display.do("type", "open")
    camera.keys("Return")
    gone(program, new)
    camera.keys("Tab", "space")
    camera.inside("password", settings)
    camera.keys("Return")
    gone(program, settings)
    shopping.activate()
    menu(camera, PROPERTIES, 6)
    camera.keys("Return")
    camera.around("locked", shopping)
    enter = opened(program, lambda: camera.keys("Return"))
    camera.inside("enter-password", enter, caret=True)
    refusal = opened(program, lambda: camera.keys("Escape"))
    camera.keys("Return")
    gone(program, refusal)


def take_search(camera, program):
    activated(program, "Call the dentist")
    search = opened(program, lambda: camera.keys("ctrl+f"))
    camera.display.do("type", "for")
    camera.inside("find", search, caret=True)
    camera.keys("Escape")
    gone(program, search)


def take_options(camera, program):
    activated(program, PANEL)
    options = opened(program, lambda: camera.keys("alt+o"))
    camera.inside("options-general", options, caret=True)
    camera.keys("ctrl+Tab")
    camera.inside("options-appearance", options)
    camera.keys("ctrl+Tab", "ctrl+Tab", "alt+l")
    camera.display.do("type", "1420")  # The usual one, which may be in use here.
    camera.inside("options-networking", options, caret=True)
    camera.keys("Escape")
    gone(program, options)


def take_stack(camera, program):
    for title in ("Café notes", "Wi-Fi for guests", "3"):
        window = activated(program, title)
        menu(camera, TO_NOTESTACK)
        camera.keys("Return")
        gone(program, window)
    activated(program, PANEL)
    stack = opened(program, lambda: camera.keys("alt+v"))
    moved(camera, stack)
    camera.display.do("windowsize", "--sync", stack.number, *STACK_SIZE)
    camera.keys("ctrl+Next", "ctrl+Next", "ctrl+Next", "ctrl+Next")
    camera.framed("notestack", stack)
    menu(camera, PROPERTIES, 1)
    camera.framed("notestack-menu", stack)
    camera.keys("Escape", "Escape")


def take_tray(camera, program):
    tray = subprocess.Popen(["trayer", "--edge", "bottom", "--align", "right", "--widthtype", "request", "--height", "48"],
                            env=camera.display.environment, stderr=subprocess.DEVNULL)
    try:
        panel = activated(program, PANEL)
        time.sleep(SETTLED)
        camera.display.do("windowminimize", panel.number)
        gone(program, panel)
        camera.display.do("mousemove", SCREEN[0] - 24, SCREEN[1] - 24)
        time.sleep(SETTLED)
        camera.display.do("click", 3)
        width, height = TRAY_MENU
        camera.take("tray", SCREEN[0] - width, SCREEN[1] - height, width, height)
        camera.keys("Escape")
    finally:
        tray.terminate()
        tray.wait()


def fit_pages(folder):
    """Says in the pages how large the pictures are."""
    def fitted(image):
        with open(os.path.join(folder, image[1] + ".png"), "rb") as file:
            width, height = struct.unpack(">II", file.read(24)[16:])
        return f'pictures/{image[1]}.png" width="{width // SCALE}" height="{height // SCALE}"'

    for page in glob.glob(os.path.join(HERE, "*.html")):
        with open(page, encoding="utf-8") as file:
            text = file.read()
        with open(page, "w", encoding="utf-8") as file:
            file.write(re.sub(r'pictures/([\w-]+)\.png" width="\d+" height="\d+"', fitted, text))


def main():
    program_file = os.path.abspath(sys.argv[1])
    folder = sys.argv[2] if len(sys.argv) > 2 else os.path.join(HERE, "pictures")
    missing = [tool for tool in (*desktop.TOOLS, "import", "xsetroot", "trayer") if not shutil.which(tool)]
    if missing:
        sys.exit("not found: " + ", ".join(missing))
    display = desktop.Display("x".join(map(str, SCREEN)), 96 * SCALE)
    display.environment["QT_SCALE_FACTOR"] = str(SCALE)
    camera = Photographer(display, folder)
    home = desktop.Home(display, program_file, os.path.join(ROOT, "tests", "data", "household.dat"))
    try:
        display.run("xsetroot", "-solid", GROUND)
        prepare_exchange(home)
        program = home.start()
        panel = program.window(PANEL)
        moved(camera, panel)
        camera.framed("panel", panel)
        camera.take("desktop", *DESKTOP)
        take_notes(camera, program)
        take_exchange(camera, program)
        take_passwords(camera, program)
        take_search(camera, program)
        take_options(camera, program)
        take_stack(camera, program)
        take_tray(camera, program)
        program.end(signal.SIGTERM)
    finally:
        home.close()
        display.close()
    if len(sys.argv) == 2:
        fit_pages(folder)


if __name__ == "__main__":
    main()
