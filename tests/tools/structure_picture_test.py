"""The picture of the structure is that of the sources, and the check of circles finds one."""

import importlib.machinery
import importlib.util
import subprocess
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "tools/make_structure_picture"


def load():
    loader = importlib.machinery.SourceFileLoader("make_structure_picture", str(SCRIPT))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


class StructurePicture(unittest.TestCase):
    def test_the_sources_have_no_circle_and_the_picture_is_theirs(self):
        done = subprocess.run([SCRIPT, "--check"], capture_output=True, text=True)
        self.assertEqual((done.stdout, done.returncode), ("", 0))

    def test_circles_are_told(self):
        picture = load()
        ring = {f"shell/{i}": {f"shell/{(i + 1) % 7}"} for i in range(7)}
        self.assertRegex(picture.faults(ring, {"shell": set()})[0], "More than 6 files .*shell/6")
        ring.pop("shell/6")  # the ring is open now
        self.assertEqual(picture.faults(ring, {"data": {"design"}, "design": set()}), [])
        self.assertRegex(picture.faults({}, {"data": {"design"}, "design": {"data"}})[0], "Folders .*data, design")


if __name__ == "__main__":
    unittest.main()
