"""The folder of the help files: one provider, and a .chm project that says what the program's own help says."""

import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml
from html.parser import HTMLParser
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
NAME = "Velmar_PED_HELP"


class Sitemap(HTMLParser):
    """The entries of a contents or index file as (depth, title, topic)."""

    def __init__(self, path):
        super().__init__()
        self.entries, self.depth = [], 0
        self.feed(path.read_text(encoding="cp1252"))

    def handle_starttag(self, tag, attributes):
        self.depth += tag == "ul"
        if tag == "param":
            given = dict(attributes)
            if given["name"] == "Name":
                self.title = given["value"]
            else:
                self.entries.append((self.depth, self.title, given["value"]))

    def handle_endtag(self, tag):
        self.depth -= tag == "ul"


def sections(parent, depth=1):
    for section in parent.findall("section"):
        yield depth, section.get("title"), section.get("ref")
        yield from sections(section, depth + 1)


PROVIDER = """# not shown: this line
Maker: Smith & Sons
Address: 1 Dock Road
Address: Hull
Mail:
Page: https://smith.example/ped?a=1&b=2
"""


class HelpProject(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.temporary = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.temporary.cleanup)
        cls.folder = Path(cls.temporary.name) / "chm"
        provider = Path(cls.temporary.name) / "provider.txt"
        provider.write_text(PROVIDER)
        subprocess.run([sys.executable, "-B", SOURCE / "tools/make_help_project", SOURCE / "help/velmar.qhp", provider,
                        cls.folder], check=True)
        cls.help = xml.parse(SOURCE / "help/velmar.qhp").getroot().find("filterSection")

    def test_contents_and_index_are_those_of_the_help(self):
        self.assertEqual(Sitemap(self.folder / f"{NAME}.hhc").entries, list(sections(self.help.find("toc"))))
        keywords = {(1, word.get("name"), word.get("ref")) for word in self.help.find("keywords")}
        index = Sitemap(self.folder / f"{NAME}.hhk").entries
        self.assertEqual(set(index), keywords)
        self.assertEqual(index, sorted(index, key=lambda entry: entry[1].lower()))

    def test_every_file_is_copied_and_listed(self):
        listed = (self.folder / f"{NAME}.hhp").read_text(encoding="cp1252").split("[FILES]\n")[1].split()
        copied = {path.relative_to(self.folder).as_posix() for path in self.folder.rglob("*")
                  if path.suffix in (".htm", ".css", ".png")}
        self.assertEqual(set(listed), copied)
        for topic in self.folder.glob("*.htm"):
            for picture in re.findall('src="([^"]+)"', topic.read_text(encoding="utf-8")):
                self.assertIn(picture, copied, topic.name)

    def test_the_provider_stands_in_the_contact_topic(self):
        topic = (self.folder / "How_To_Contact_Us.htm").read_text(encoding="utf-8")
        self.assertIn('<p>Smith &amp; Sons<br>\n1 Dock Road<br>\nHull<br>\n'
                      '<a href="https://smith.example/ped?a=1&amp;b=2">https://smith.example/ped?a=1&amp;b=2</a></p>',
                      topic)

    def test_it_compiles(self):
        subprocess.run(["chmcmd", "--no-html-scan", f"{NAME}.hhp"], cwd=self.folder, check=True, capture_output=True)
        held = subprocess.run(["chmls", "list", f"{NAME}.chm"], cwd=self.folder, check=True, capture_output=True,
                              text=True).stdout
        for file in ("Cant_Start.htm", "help.css", "pictures/graph.png", "$FIftiMain"):
            self.assertIn("/" + file, held)


if __name__ == "__main__":
    unittest.main()
