# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""In which folder quillets-desktop starts the program that lies beside it: desktopStart.py ROOT"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

WRAPPER = pathlib.Path(sys.argv[1]) / "packaging" / "quillets-desktop"


class TestDesktopStart(unittest.TestCase):
    def setUp(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="quillets-start-")).resolve()
        self.addCleanup(shutil.rmtree, self.home)
        folder = self.home / "a prefix" / "bin"
        folder.mkdir(parents=True)
        self.start = pathlib.Path(shutil.copy(WRAPPER, folder))
        program = folder / "quillets"
        program.write_text("#!/bin/sh\npwd\n")
        program.chmod(0o755)

    def folder_of(self, data_home, command=None):
        environment = {"HOME": str(self.home), "PATH": os.environ["PATH"]}
        if data_home is not None:
            environment["XDG_DATA_HOME"] = data_home
        return subprocess.run([command or self.start], cwd=self.home, env=environment, capture_output=True, text=True,
                              check=True).stdout.strip()

    def test_folder(self):
        usual, other = self.home / ".local/share/quillets", self.home / "my data"
        for data_home, expected in ((None, usual), ("", usual), ("relative", usual), (str(other), other / "quillets")):
            with self.subTest(data_home):
                self.assertEqual(self.folder_of(data_home), str(expected))
                self.assertEqual(expected.stat().st_mode & 0o777, 0o700)

    def test_by_a_link_from_elsewhere(self):
        (self.home / "link").symlink_to("a prefix/bin/quillets-desktop")
        self.assertEqual(self.folder_of(None, "./link"), str(self.home / ".local/share/quillets"))

    def test_no_other_folder_where_that_one_cannot_be(self):
        (self.home / "a file").touch()
        self.assertEqual(self.folder_of(str(self.home / "a file")), "/")


unittest.main(argv=sys.argv[:1])
