# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""Every state of a folder that a kill or a power cut can leave at any instant of a recording.

A kill leaves what was done. Of a power cut this is taken for granted, and no more: the bytes of a file are there after
the file was synced, and names are there after their folder was synced; what was done to the names of one folder comes
to the disk in its order, what was written to a file in any."""
import hashlib
import itertools
import os
import time
from collections import namedtuple

from os import O_APPEND, O_TMPFILE, O_TRUNC

MOST_SUBSETS = 3  # Unsynced writes to one file of which all subsets are tried.
# `files` maps a path to bytes, None for a folder; `last` is the last instant at which it can be left, `key` the same for
# equal files alone.
State = namedtuple("State", "key files last")


class _File:
    """Bytes on the disk and what was written since."""

    def __init__(self, contents=b""):
        self.now, self.synced, self.pending = contents, contents, []

    def change(self, change):
        self.now = change(self.now)
        self.pending.append(change)

    def sync(self):
        self.synced, self.pending = self.now, []

    def after_a_power_cut(self):
        count = len(self.pending)
        kept = itertools.product((False, True), repeat=count) if count <= MOST_SUBSETS else (
            [i < limit for i in range(count)] for limit in (0, count // 2, count))
        possible = {self.now, self.synced}
        for subset in kept:
            contents = self.synced
            for change, is_kept in zip(self.pending, subset):
                contents = change(contents) if is_kept else contents
            possible.add(contents)
        if self.pending:
            common = len(os.path.commonprefix([self.synced, self.now]))
            possible.add(self.now[: (common + len(self.now)) // 2])  # Torn.
            possible.add(self.now[:common] + bytes(len(self.now) - common))  # Long enough, and nothing in it.
        return possible


class _Folder:
    """Names on the disk and what was done to them since."""

    def __init__(self, names=None):
        self.now, self.synced, self.pending = dict(names or {}), dict(names or {}), []

    def change(self, **names):
        self.pending.append(names)
        self._apply(self.now, names)

    @staticmethod
    def _apply(into, names):
        for name, item in names.items():
            into.pop(name, None) if item is None else into.__setitem__(name, item)

    def sync(self):
        self.synced, self.pending = dict(self.now), []

    def after_a_power_cut(self):
        names = dict(self.synced)
        yield dict(names)
        for change in self.pending:
            self._apply(names, change)
            yield dict(names)


class Disk:
    def __init__(self, folder):
        """With what the folder holds, all of it synced."""
        self._root = _Folder(self._taken_in(folder))
        self._handles = {}

    def _taken_in(self, path):
        found = {}
        for entry in os.scandir(path):
            if entry.is_dir():
                found[entry.name] = _Folder(self._taken_in(entry.path))
            else:
                with open(entry.path, "rb") as file:
                    found[entry.name] = _File(file.read())
        return found

    def _find(self, path):
        """The folder of a path and the last name of it."""
        *folders, name = path.split("/")
        at = self._root
        for folder in folders:
            at = at.now[folder]
        return at, name

    def _item(self, path):
        if not path:
            return self._root
        folder, name = self._find(path)
        return folder.now.get(name)

    def apply(self, step):
        getattr(self, "_" + step.kind)(step)

    def _start(self, _):
        self._handles.clear()

    def _open(self, step):
        if step.flags & O_TMPFILE == O_TMPFILE:
            self._handles[step.handle] = [_File(), 0, step.flags]
            return
        item = self._item(step.path)
        if item is None:
            item = _File()
            folder, name = self._find(step.path)
            folder.change(**{name: item})
        elif step.flags & O_TRUNC and item.now:
            item.change(lambda contents: b"")
        self._handles[step.handle] = [item, 0, step.flags]

    _openfolder = _open

    def _close(self, step):
        self._handles.pop(step.handle, None)

    def _write(self, step):
        item, at, flags = self._handles[step.handle]
        start = step.flags if step.flags >= 0 else len(item.now) if flags & O_APPEND else at
        data = step.data

        def change(contents):
            return contents[:start].ljust(start, b"\0") + data + contents[start + len(data):]

        item.change(change)
        if step.flags < 0:
            self._handles[step.handle][1] = start + len(data)

    def _truncate(self, step):
        self._handles[step.handle][0].change(lambda contents: contents[: step.flags].ljust(step.flags, b"\0"))

    def _sync(self, step):
        self._handles[step.handle][0].sync()

    _foldersync = _sync

    def _link(self, step):
        is_handle = step.path.startswith("/proc/self/fd/")
        item = self._handles[int(step.path.rsplit("/", 1)[-1])][0] if is_handle else self._item(step.path)
        folder, name = self._find(step.data)
        folder.change(**{name: item})

    def _rename(self, step):
        source, old = self._find(step.path)
        target, new = self._find(step.data)
        assert source is target, "a name that goes from one folder to another has no model here"
        item = source.now[old]
        source.change(**{old: None, new: item})

    def _unlink(self, step):
        folder, name = self._find(step.path)
        folder.change(**{name: None})

    def _mkdir(self, step):
        folder, name = self._find(step.path)
        folder.change(**{name: _Folder()})

    def held(self):
        return self._listed(self._root, "")

    def _listed(self, folder, prefix):
        files = {}
        for name, item in folder.now.items():
            if isinstance(item, _Folder):
                files[prefix + name] = None
                files.update(self._listed(item, prefix + name + "/"))
            else:
                files[prefix + name] = item.now
        return files

    def after_a_power_cut(self):
        return self._possible(self._root, "")

    def _possible(self, folder, prefix):
        for names in folder.after_a_power_cut():
            choices = []
            for name, item in names.items():
                path = prefix + name
                if isinstance(item, _Folder):
                    choices.append([{path: None, **inner} for inner in self._possible(item, path + "/")])
                else:
                    choices.append([{path: contents} for contents in item.after_a_power_cut()])
            for chosen in itertools.product(*choices):
                yield {path: contents for part in chosen for path, contents in part.items()}


def _key(files):
    digest = hashlib.sha256()
    for path in sorted(files):
        contents = files[path]
        digest.update(f"{path}\0{-1 if contents is None else len(contents)}\0".encode() + (contents or b""))
    return digest.digest()


class States:
    """The different states, by what they hold."""

    def __init__(self):
        self.seen, self.explored = {}, 0

    def add(self, files, last):
        self.explored += 1
        key = _key(files)
        former = self.seen.get(key)
        self.seen[key] = State(key, files, max(last, former.last) if former else last)


def explore(before, operations, end):
    """(after a kill, after a power cut, the folder at the end): what a recording over a folder like `before` can leave
    until the time `end`. A state can be left until the next operation is over."""
    disk, killed, cut = Disk(before), States(), States()
    operations = list(operations)
    for step, following in zip([None] + operations, operations + [None]):
        if step:
            disk.apply(step)
        last = following.end if following else end
        killed.add(disk.held(), last)
        for files in disk.after_a_power_cut():
            cut.add(files, last)
    return killed, cut, disk.held()


def held(folder):
    return Disk(folder).held()


def put(files, folder):
    """Makes a folder of that state, as it would be found a minute later."""
    os.mkdir(folder, 0o700)
    for path in sorted(files):
        full = os.path.join(folder, path)
        if files[path] is None:
            os.mkdir(full, 0o700)
            continue
        with open(full, "wb") as file:
            file.write(files[path])
        os.utime(full, (time.time() - 60,) * 2)
