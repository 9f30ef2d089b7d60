"""What tools/setup installs on which system, with a package manager that only takes notes."""

import os
import subprocess
import tempfile
import unittest
from pathlib import Path

SETUP = Path(__file__).resolve().parents[2] / "tools/setup"
TOOLS = {
    "dpkg-query": 'for name; do :; done; grep -qxF "$name" "$NOTES/missing" || printf installed',
    "apt-get": 'echo "$*" >>"$NOTES/calls"',
    "sudo": 'exec "$@"',
}


class Setup(unittest.TestCase):
    def run_on(self, system, missing):
        """The status, what was said, and the calls of the package manager."""
        with tempfile.TemporaryDirectory() as folder:
            notes = Path(folder)
            for name, body in TOOLS.items():
                (notes / name).write_text(f"#!/bin/sh\n{body}\n")
                (notes / name).chmod(0o755)
            (notes / "os-release").write_text(system)
            (notes / "missing").write_text("\n".join(missing))
            (notes / "calls").touch()
            environment = {**os.environ, "PATH": f"{folder}:{os.environ['PATH']}", "NOTES": folder,
                           "OS_RELEASE": str(notes / "os-release")}
            done = subprocess.run([SETUP], env=environment, capture_output=True, text=True)
            return done.returncode, done.stdout + done.stderr, (notes / "calls").read_text().splitlines()

    def test_a_known_system_gets_what_it_lacks(self):
        for version, lacking in (("12", ["ccache"]), ("13", ["ccache", "qt6-svg-plugins"])):
            with self.subTest(version):
                status, _, calls = self.run_on(f'ID=debian\nVERSION_ID="{version}"', ["qt6-svg-plugins", "ccache"])
                self.assertEqual(status, 0)
                self.assertEqual([call.split("--no-install-recommends ")[-1] for call in calls],
                                 ["-q -y update", " ".join(lacking)])

    def test_another_system_is_told_and_left_alone(self):
        for system in ('ID=fedora\nVERSION_ID=43', 'ID=debian\nVERSION_ID="14"', "ID=debian", ""):
            with self.subTest(system):
                status, said, calls = self.run_on(system, ["ninja-build", "qt6-svg-plugins"])
                self.assertEqual((status, calls), (1, []))
                self.assertIn("knows Debian 12 and Debian 13", said)
                self.assertIn("    ninja-build qt6-svg-plugins\n", said)
                self.assertEqual(self.run_on(system, [])[:2], (0, ""))


if __name__ == "__main__":
    unittest.main()
