# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""What recorder.c wrote down, and what a saver would have done that takes less care."""
import os
from collections import namedtuple

# Times in seconds of the monotonic clock, paths inside the folder; `data` is a second path or bytes.
Operation = namedtuple("Operation", "begin end kind result handle flags path data")


def read(log, folder):
    """All operations that succeeded, in their order."""
    with open(log, "rb") as file:
        while line := file.readline():
            begin, end, kind, result, handle, flags, length, more = line.split()
            path, data = file.read(int(length)).decode(), file.read(int(more))
            kind = kind.decode()
            if int(result) >= 0:
                data = _inside(data.decode(), folder) if kind in ("rename", "link") else data
                yield Operation(int(begin) / 1e9, int(end) / 1e9, kind, int(result), int(handle), int(flags),
                                _inside(path, folder), data)


def _inside(path, folder):
    path = os.path.normpath(path) if path else folder
    return path.removeprefix(folder).removeprefix("/") if f"{path}/".startswith(f"{folder}/") else path


def _before(operations, at, wanted):
    return next(i for i in range(at - 1, -1, -1) if wanted(operations[i]))


def _replacements(operations):
    """For each file that was written under another name: where it is opened, where it gets that name, and its own."""
    for renamed, step in enumerate(operations):
        if step.kind != "rename":
            continue
        named = _before(operations, renamed, lambda one: step.path in (one.path, one.data) and one.kind in ("open", "link"))
        opened = named
        if operations[named].kind == "link":
            handle = int(operations[named].path.rsplit("/", 1)[-1])
            opened = _before(operations, named, lambda one: one.kind == "open" and one.handle == handle)
        yield opened, named, renamed


def in_place(operations):
    """The new contents go straight into the file."""
    changed = list(operations)
    for opened, named, renamed in _replacements(operations):
        step = changed[opened]
        changed[named] = changed[renamed] = None
        changed[opened] = step._replace(path=operations[renamed].data, flags=os.O_WRONLY | os.O_CREAT | os.O_TRUNC)
    return [step for step in changed if step]


def without_file_sync(operations):
    changed = list(operations)
    for opened, _, renamed in _replacements(operations):
        for i in range(opened, renamed):
            if operations[i].kind == "sync" and operations[i].handle == operations[opened].handle:
                changed[i] = None
    return [step for step in changed if step]


def without_folder_sync(operations):
    return [step for step in operations if step.kind != "foldersync"]
