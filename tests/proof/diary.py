# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""What a session did to its notes, and when; and whether a set of notes is what it may have left at an instant."""
import math
from collections import namedtuple

ANY = object()
# From `since` on a note may have the value, and once it is `settled` it may have none of the former ones much longer.
Entry = namedtuple("Entry", "since settled value")
Verdict = namedtuple("Verdict", "flaws age")
PLACE_PRECISION = 1  # Pixels.
TWIPS_PER_PIXEL = 15


class Note:
    def __init__(self, since=-math.inf, settled=-math.inf, **values):
        """There since a time; the values are all that can be told of it."""
        self.told = {name: [Entry(since, settled, value)] for name, value in values.items()}
        self.told["there"] = [Entry(-math.inf, -math.inf, None), Entry(since, settled, True)]

    def set(self, name, value, since, settled):
        self.told[name].append(Entry(since, settled, value))

    def now(self, name):
        return self.told[name][-1].value

    def name(self):
        return self.now("title") or self.now("text")[:20]

    def is_this(self, found):
        """Whether it has been so at any time."""
        return all(any(_same(entry.value, found[name]) for entry in self.told[name]) for name in ("title", "text"))

    def ages(self, found, last):
        """For each value: how long before the instant `last` it had been replaced; infinite when it never was so.
        Nothing is found of a note that is gone."""
        for name, entries in self.told.items() if found else [("there", self.told["there"])]:
            latest = max((i for i, entry in enumerate(entries) if _same(entry.value, found and found[name])), default=None)
            if latest is None:
                yield name, math.inf
            else:
                later = [entry.settled for entry in entries[latest + 1 :]]
                yield name, max(0, last - min(later, default=last))


def _same(value, found):
    if value is ANY:
        return True
    if isinstance(value, tuple):
        return all(abs(a - b) <= PLACE_PRECISION for a, b in zip(value, found))
    return value == found


def described(loaded):
    """A note of loadFolder's, as a diary tells of it."""
    place, size = [tuple(round(loaded[one] / TWIPS_PER_PIXEL) for one in both) for both in (("left", "top"), ("width", "height"))]
    return dict(loaded, place=place, size=size, there=True)


class Diary:
    def __init__(self, bound):
        """With the longest time for which something may be lost, in seconds."""
        self.bound, self.notes = bound, []

    def add(self, note):
        self.notes.append(note)
        return note

    def judge(self, loaded, last):
        """Of the notes that loadFolder has found in what was left at the instant `last`."""
        flaws, oldest = [], 0
        rest = [described(note) for note in loaded]
        for note in sorted(self.notes, key=lambda note: -len(note.now("text"))):
            found = max(filter(note.is_this, rest), key=lambda one: len(one["text"]), default=None)
            if found:
                rest.remove(found)
            for name, age in note.ages(found, last):
                if age > self.bound:
                    flaws.append(f"{note.name()!r}: {name} as it was {age:.2f} s ago")
                if name in ("text", "there"):
                    oldest = max(oldest, age)
        flaws += [f"strange or there twice: {one['title']!r} {one['text'][:40]!r}" for one in rest]
        return Verdict(flaws, oldest)
