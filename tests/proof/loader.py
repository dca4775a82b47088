# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""The program's own load of a data folder, in a process that does nothing else."""
import json
import os
import shutil
import subprocess

import replay


class Loader:
    def __init__(self, tool, folder):
        self._process = subprocess.Popen([tool], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self._home, self._known = os.path.join(folder, "loaded"), {}

    def load(self, home):
        self._process.stdin.write(home + "\n")
        self._process.stdin.flush()
        return json.loads(self._process.stdout.readline())

    def judge(self, diary, state):
        """(flaws, age of the oldest thing lost)"""
        if state.key not in self._known:
            os.mkdir(self._home)
            replay.put(state.files, os.path.join(self._home, "Data"))
            self._known[state.key] = self.load(self._home)
            shutil.rmtree(self._home)
        loaded = self._known[state.key]
        flaws, age = diary.judge(loaded["notes"], state.last)
        flaws += [f"told: {loaded['told']}"] if loaded["told"] else []
        flaws += [] if loaded["again"] else ["another load finds something else"]
        return flaws, age

    def close(self):
        self._process.stdin.close()
        self._process.stdout.close()
        assert self._process.wait() == 0
