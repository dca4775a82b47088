# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""Reads data files by their layout (docs/file-formats.md), apart from the program's own code."""
import struct
from collections import namedtuple

Note = namedtuple("Note", "on_top on_stack rolled left top width height text title")
TWIPS_PER_PIXEL = 15
ROLLED_HEIGHT = 20


def _text(data, at):
    (length,) = struct.unpack_from("<i", data, at)
    assert 0 <= length <= len(data) - at - 4
    return data[at + 4 : at + 4 + length].decode("utf-16le", "surrogatepass"), at + 4 + length


def _note(data, at):
    flags = struct.unpack_from("<13h", data, at)
    _, height, _, left, top, width = struct.unpack_from("<6f", data, at + 46)
    texts = []
    at += 70
    for _ in range(8):
        text, at = _text(data, at)
        texts.append(text)
    pixels = [round(twips / TWIPS_PER_PIXEL) for twips in (left, top, width, height)]
    return Note(flags[1] != 0, flags[7] != 0, flags[9] != 0, *pixels, text=texts[5], title=texts[0])


def read(path):
    """All notes of a file; any flaw of it is an error."""
    with open(path, "rb") as file:
        data = file.read()
    total, count = struct.unpack_from("<ii", data, 0)
    assert total == len(data), f"{total} of {len(data)} bytes"
    entries = [struct.unpack_from("<iii", data, 8 + 12 * i) for i in range(count)]
    return [_note(data, start - 1) for _, start, _ in entries]


def place(note):
    return (note.left, note.top, note.width, ROLLED_HEIGHT if note.rolled else note.height)
