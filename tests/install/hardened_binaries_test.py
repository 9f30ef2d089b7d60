"""Reads from the binaries what they are protected by: hardened_binaries_test.py FOLDER."""

import platform
import re
import subprocess
import sys
import unittest
from pathlib import Path

FOLDER = Path(sys.argv.pop(1)) if len(sys.argv) > 1 else Path()
BINARIES = ["velmar-ped", "velmar-values", "table_reader"]


class HardenedBinaries(unittest.TestCase):
    def check(self, words, pattern, is_there=True):
        """That what `words` tell of each binary has, or has not, a line of this form."""
        for name in BINARIES:
            told = subprocess.run([*words, FOLDER / name], capture_output=True, text=True, check=True).stdout
            with self.subTest(name, pattern=pattern):
                self.assertEqual(bool(re.search(pattern, told)), is_there)

    def test_lie_where_nobody_knows(self):
        self.check(["readelf", "-hW"], r"DYN \(Position-Independent Executable")

    def test_keep_their_tables_of_functions_and_their_stack_from_being_changed_or_run(self):
        self.check(["readelf", "-lW"], "GNU_RELRO")
        self.check(["readelf", "-dW"], r"FLAGS.*NOW")
        self.check(["readelf", "-lW"], "GNU_STACK.* RW ")
        self.check(["readelf", "-lW"], "LOAD.* RWE ", is_there=False)

    def test_watch_their_stacks_and_copies(self):
        self.check(["readelf", "--dyn-syms", "-W"], r"UND __stack_chk_fail@")
        self.check(["readelf", "--dyn-syms", "-W"], r"UND __\w+_chk@")

    @unittest.skipUnless("x86_64" in platform.machine(), "another processor")
    def test_mark_where_jumps_may_end(self):
        self.check(["objdump", "-d", "--no-show-raw-insn"], r"<main>:\n.*endbr64")


if __name__ == "__main__":
    unittest.main()
