"""Installs the build into an empty folder and starts the program from there: installed_program_test.py BUILD-FOLDER."""

import os
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

BUILD = Path(sys.argv.pop(1)).resolve() if len(sys.argv) > 1 else Path()
PATIENCE = 60  # seconds


def awaited(condition):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        if condition():
            return True
        time.sleep(0.2)
    return False


def open_files(process):
    try:
        return {os.readlink(link) for link in Path(f"/proc/{process.pid}/fd").iterdir()}
    except OSError:
        return set()


def child_programs(process):
    programs = set()
    for folder in Path("/proc").glob("[0-9]*"):
        try:
            parent = (folder / "stat").read_text().rpartition(")")[2].split()[1]
            if int(parent) == process.pid:
                programs.add(os.readlink(folder / "exe"))
        except OSError:
            pass  # it has ended meanwhile
    return programs


class InstalledProgram(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.prefix = Path(folder.name).resolve() / "prefix"
        self.home = Path(folder.name).resolve() / "home"
        self.home.mkdir()
        subprocess.run(["cmake", "--install", BUILD, "--prefix", self.prefix], check=True, stdout=subprocess.DEVNULL)

    def start(self):
        environment = {key: value for key, value in os.environ.items()
                       if key not in ("APPDATA", "XDG_CONFIG_HOME", "DISPLAY", "WAYLAND_DISPLAY")}
        environment.update(HOME=str(self.home), QT_QPA_PLATFORM="offscreen")
        program = subprocess.Popen([self.prefix / "bin/velmar-ped"], env=environment, stderr=subprocess.DEVNULL)

        def end():
            program.send_signal(signal.SIGTERM)
            program.wait()
        self.addCleanup(end)
        return program

    def test_everything_is_found_and_nothing_is_written_into_it(self):
        before = {path: path.stat().st_mtime_ns for path in self.prefix.rglob("*")}
        program = self.start()
        database = str(self.prefix / "share/velmar-ped/Velmar_PED.mdb")
        self.assertTrue(awaited(lambda: database in open_files(program)), "the database is open")
        self.assertTrue(awaited(lambda: str(self.prefix / "libexec/velmar-ped/table_reader") in child_programs(program)))
        self.assertTrue((self.prefix / "share/velmar-ped/Velmar_PED_HELP.chm").exists(), "the help without the program")
        self.assertTrue((self.home / ".config/Harmotek/Velmar_PED/PathSet.vlp").exists())
        self.assertIsNone(program.poll())
        self.assertEqual({path: path.stat().st_mtime_ns for path in self.prefix.rglob("*")}, before)

    def test_a_database_of_ones_own_is_taken(self):
        data = self.prefix / "share/velmar-ped"
        database = self.home / "Velmar_PED.mdb"
        subprocess.run([sys.executable, "-B", data / "tools/make_database", data / "sample/csv", database], check=True,
                       stdout=subprocess.DEVNULL)
        own = self.home / ".config/Harmotek/Velmar_PED"
        own.mkdir(parents=True)
        (own / "PathSet.vlp").write_text(f"{database}\r\n")
        program = self.start()
        self.assertTrue(awaited(lambda: str(database) in open_files(program)))


if __name__ == "__main__":
    unittest.main()
