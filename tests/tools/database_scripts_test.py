"""The scripts that make and check a database, over the sample and over the sample with one thing broken."""

import os
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
SAMPLE = SOURCE / "sample"
sys.path.insert(0, str(SOURCE / "tools"))

from velmar_database.check import faults_of  # noqa: E402
from velmar_database.files import JOURNAL_MARK, connect, read_folder, write_file  # noqa: E402

# What is done to the sample, and the lines that must tell of it, no more and no fewer.
BROKEN_TABLES = [
    ("DROP TABLE Units", ["Units: the table is missing"]),
    ("ALTER TABLE Rm RENAME TO other; CREATE VIEW Rm AS SELECT matID, temp || '' AS temp, thickness, ordering, Rm FROM other",
     ["Rm: column temp is of type TEXT; it must be one of BYTE, CURRENCY, DOUBLE, INT, LONG, SINGLE"]),
    ("ALTER TABLE materials DROP COLUMN ss", ["materials: column ss is missing"]),
    ("ALTER TABLE Rp02 RENAME TO other; CREATE TABLE Rp02 AS SELECT cast(matID AS TEXT) AS matID, temp, thickness, "
     "ordering, Rp02 FROM other",
     ["Rp02: column matID is of type TEXT; it must be one of BYTE, INT, LONG",
      "Rp02: column temp is of type NUM; it must be one of BYTE, CURRENCY, DOUBLE, INT, LONG, SINGLE",
      "Rp02: column ordering is of type NUM; it must be one of BYTE, CURRENCY, DOUBLE, INT, LONG, SINGLE"]),
    ("DROP TABLE ImpEnergy; CREATE TABLE ImpEnergy (matID INT, temp INT, kvLong TEXT, kv TEXT, kvTrans TEXT)",
     ["ImpEnergy: column kv is column 4; the program reads it as column 3",
      "ImpEnergy: column kvLong is column 3; the program reads it as column 4"]),
]

BROKEN_CELLS = [
    ("UPDATE materials SET name = NULL WHERE matID = 2", ["materials: row 2, name: Null is not allowed here"]),
    ("UPDATE ModElast SET temp = 40000 WHERE rowid = 1",
     ["ModElast: row 1, temp: 40000 is beyond the range of INT, -32768 to 32767"]),
    ("DROP INDEX 'GetInfo by matid'; ALTER TABLE GetInfo RENAME COLUMN matID TO old; "
     "ALTER TABLE GetInfo ADD COLUMN matID LONG; UPDATE GetInfo SET matID = old; "
     "UPDATE GetInfo SET matID = 70000 WHERE rowid = 3",
     ["GetInfo: row 3, matID: 70000 is beyond 16 bits, -32768 to 32767"]),
    ("UPDATE SpecThermCap SET SpecThermCap = '0,5' WHERE rowid = 1",
     ["SpecThermCap: row 1, SpecThermCap: '0,5': a column of numbers takes a decimal point, no comma"]),
    ("UPDATE standard SET revision_date = '30.9.2017' WHERE stID = 1",
     ["standard: row 1, revision_date: '30.9.2017' is no date; 2017-09-30 is one"]),
    ("UPDATE standard SET revision_date = '20170930' WHERE stID = 1",
     ["standard: row 1, revision_date: 20170930 is no date; 2017-09-30 is one"]),
    ("UPDATE standard SET revision_date = '2017-W39-6' WHERE stID = 1",
     ["standard: row 1, revision_date: '2017-W39-6' is no date; 2017-09-30 is one"]),
    ("UPDATE standard SET otherElem = 'maybe' WHERE stID = 1", ["standard: row 1, otherElem: 'maybe' is no BOOLEAN"]),
    ("UPDATE standard SET revision_date = '09/30/17'",
     [f"standard: row {row}, revision_date: '09/30/17' is no date; 2017-09-30 is one" for row in range(1, 6)] +
     ["standard: 6 more cells of revision_date have such a fault"]),
    ("UPDATE ProdForm SET prodFID = 1.5 WHERE rowid = 1", ["ProdForm: row 1, prodFID: 1.5 is no whole number"]),
    ("UPDATE Units SET unitTxt = x'00' WHERE rowid = 2", ["Units: row 2, unitTxt: bytes, where a value belongs"]),
    ("CREATE TABLE n (notID LONG, tableName TEXT, notTxt MEMO); INSERT INTO n SELECT * FROM TableNotes; "
     "DROP TABLE TableNotes; ALTER TABLE n RENAME TO TableNotes; UPDATE TableNotes SET notTxt = '007' WHERE notID = 2",
     ["TableNotes: row 2, notTxt: 7 is stored as a number: a text like 007 loses its form so; declare the column "
      "TEXT or LONGTEXT"]),
]

P265GH = "'EN 10028-2', 'P265GH', '1.0425'"

BROKEN_ROWS = [
    # grades and standards
    ("INSERT INTO materials SELECT 38, 'twin', '0', NULL, NULL, revision_date, 'EN 10213', NULL, NULL, NULL "
     "FROM materials WHERE matID = 2", ["materials: matID 38: 2 rows; one grade has one row"]),
    ("INSERT INTO materials SELECT 99, lower(name), numbr, NULL, NULL, revision_date, standard, NULL, NULL, NULL "
     "FROM materials WHERE matID = 36",
     ["materials: standard 'EN 10213', name 'GP240GH', numbr '1.0619': 2 rows; they would share one composition"]),
    ("UPDATE materials SET matID = 0 WHERE matID = 38", ["materials: matID 0 stands for no grade at all"]),
    ("UPDATE materials SET standard = 'EN 1' WHERE matID = 38",
     ["materials: standard 'EN 1' is not in standard.standard"]),
    ("UPDATE materials SET name = ' ' WHERE matID = 38", ["materials: name is empty in a row"]),
    ("UPDATE materials SET name = 'Cupid''s' WHERE matID = 38",
     ["materials: name 'Cupid's': a single quote or an opening bracket breaks the search for it"]),
    ("UPDATE materials SET groups = '[1.1' WHERE matID = 38",
     ["materials: groups '[1.1': a single quote or an opening bracket breaks the search for it"]),
    # product forms
    ("INSERT INTO StandProdForm VALUES (11, 77)", ["StandProdForm: prodFID 77 is not in ProdForm.prodFID"]),
    ("DELETE FROM StandProdForm WHERE stID = 1 AND prodFID = 2",
     ["StandProdForm: stID 1, prodFID 2 is missing; StandardProdForm has 'EN 10028-2', 'Sheet'"]),
    ("DELETE FROM StandardProdForm WHERE standard = 'EN 10273'",
     ["StandardProdForm: standard 'EN 10273', productForm 'Bar' is missing; StandProdForm has it"]),
    # composition
    ("DELETE FROM Chemical WHERE name = 'P265GH' AND standard = 'EN 10028-2' AND elemID = 101",
     [f"Chemical: {P265GH}: 27 rows; each element has two, its minimum before its maximum"]),
    ("UPDATE Chemical SET element = 'Xx' WHERE name = 'P265GH' AND standard = 'EN 10028-2' AND elemID = 101",
     [f"Chemical: {P265GH}: elemID 100 is of 'C' and 101 of 'Xx'; the two rows of a pair are of one element"]),
    ("UPDATE Chemical SET element = 'C' WHERE name = 'P265GH' AND standard = 'EN 10028-2' AND element = 'Si'",
     [f"Chemical: {P265GH}: element 'C' has 4 rows; two belong to it"]),
    ("UPDATE Chemical SET elemID = 100 WHERE name = 'P265GH' AND standard = 'EN 10028-2' AND elemID = 101",
     ["Chemical: standard 'EN 10028-2', name 'P265GH', numbr '1.0425', elemID 100: 2 rows; their order is left open"]),
    ("UPDATE Chemical SET numbr = '9.9' WHERE name = 'P265GH' AND standard = 'EN 10028-2'",
     ["Chemical: standard 'EN 10028-2', name 'P265GH', numbr '9.9' is not in materials"]),
    ("DELETE FROM OtherElem WHERE mID = 2",
     ["OtherElem: no row for mID 2, stID 1, but otherElem of 'EN 10028-2' is True"]),
    ("INSERT INTO OtherElem VALUES (2, 3, 'Nb')",
     ["OtherElem: mID 2, stID 3: the grade is of stID 1, so that the row is never read"]),
    ("INSERT INTO OtherElem VALUES (8, 2, 'Nb')",
     ["OtherElem: mID 8, stID 2: 'Nb' is never shown, because otherElem of the standard is False"]),
    # tables with columns of their own
    ("DELETE FROM MechPropData WHERE matID = 1 AND rowNo = 10 AND ordering = 5",
     ["MechPropData: matID 1, rowNo 10: 4 cells, but MechMatTable has 5 columns"]),
    ("DELETE FROM CreepPropTable WHERE stID = 6",
     [f"CreepProperties: matID {grade}, rowNo {row}: 5 cells, but CreepPropTable has 0 columns"
      for grade in (30, 31, 32) for row in range(1, 10)]),
    ("UPDATE MechPropData SET colID = 9 WHERE matID = 1 AND rowNo = 10 AND ordering = 2",
     ["MechPropData: matID 1, rowNo 10: cell 2 is of colID 9, but column 2 of MechMatTable is of colID 2"]),
    ("UPDATE MechMatTable SET ordering = 2 WHERE matID = 1 AND ordering = 3",
     ["MechMatTable: matID 1, ordering 2: 2 rows; the order of the columns is left open"]),
    ("INSERT INTO Columns VALUES (50, 'rM', 4)",
     ["Columns: colTxt 'rM' has the units 3 and 4; the unit goes by the text, so that the first serves both"]),
    ("UPDATE CreepProperties SET val = '-' WHERE matID = 2 AND rowNo = 2 AND ordering = 1",
     ["CreepProperties: matID 2, rowNo 2: '-' is no temperature, and the first column is read as one"]),
    ("UPDATE CreepProperties SET val = '1000' WHERE matID = 2 AND rowNo = 1 AND ordering = 1",
     ["CreepProperties: matID 2, rowNo 2: temperature 390 follows 1000; temperatures ascend"]),
    # tables over temperature
    ("UPDATE Rp02 SET thickness = -1 WHERE matID = 1 AND thickness = 16",
     ["Rp02: matID 1: thickness -1 is for no bands, but there is also a band to 250 mm"]),
    ("UPDATE Rm SET Rm = NULL, temp = NULL WHERE matID = 11 AND temp = 50",
     ["Rm: matID 11, thickness -1, ordering 1: no temp; the design values cannot be found without one"]),
    ("UPDATE Rm SET thickness = 0 WHERE matID = 11",
     ["Rm: matID 11: thickness 0 is neither the limit of a band nor -1, which is for no bands"]),
    ("UPDATE Rp10 SET ordering = 300 - ordering WHERE matID = 11 AND temp < 150",
     ["Rp10: matID 11: by their ordering temp 100 follows 550; temperatures ascend",
      "Rp10: matID 11: by their ordering temp 50 follows 100; temperatures ascend"]),
    ("UPDATE Rp02 SET ordering = 2, Rp02 = NULL WHERE matID = 1 AND thickness = 16 AND temp = 50",
     ["Rp02: matID 1, temp 50: ordering 1 and 2; one temperature has one in all bands, or it shows as two rows",
      "Rp02: matID 1, ordering 2: temp 50 and 100; each temperature has an ordering of its own"]),
    ("INSERT INTO Rm VALUES (11, 50, -1, 1, '500')",
     ["Rm: matID 11, thickness -1, temp 50: 2 rows; a temperature has one value in each band"]),
    ("UPDATE Rm SET Rm = '490-510' WHERE matID = 11 AND temp = 50",
     ["Rm: matID 11, temp 50: the number in '490-510' of Rm cannot be read"]),
    ("UPDATE ModElast SET temp = 20 WHERE matID = 1 AND temp = 100",
     ["ModElast: matID 1, temp 20: 2 rows; one temperature has one row"]),
    ("UPDATE ThermExp SET matID = 88 WHERE matID = 1", ["ThermExp: matID 88 is not in materials.matID"]),
    # notes and texts
    ("UPDATE MatNotes SET notID = 99 WHERE matID = 1 AND tableName = 'ImpEnergy'",
     ["MatNotes: notID 99, tableName 'ImpEnergy' is not in TableNotes"]),
    ("INSERT INTO TableNotes VALUES (70, 'Impact', 'x'); INSERT INTO MatNotes VALUES (1, 'Impact', 1, 70)",
     ["MatNotes: matID 1: no table has the key 'Impact'; the keys are ChemComp, MechProp, ImpEnergy, Rp02, Rp10, Rm, "
      "ModElast, ThermExp, ThermCond, SpecThermCap, SpecElecRes, CreepProp"]),
    ("UPDATE GetInfo SET titleID = 9 WHERE rowid = 1", ["GetInfo: titleID 9 is not in InfoTitle.titleID"]),
]

# What the program takes in its stride is no fault.
HARMLESS = [
    "UPDATE materials SET standard = upper(standard), name = lower(name)",
    "UPDATE GetInfo SET titleID = 0 WHERE rowid = 1",
    "UPDATE MatNotes SET tableName = lower(tableName)",
    "UPDATE CreepProperties SET val = '-' WHERE ordering = 3",
    "UPDATE Rm SET Rm = '(' || Rm || ') *' WHERE matID = 11",
    "UPDATE Rm SET Rm = NULL WHERE matID = 11 AND temp = 50",
    "UPDATE standard SET otherElem = 'Yes' WHERE otherElem",
    "ALTER TABLE Rp02 ADD COLUMN remark TEXT",
    "CREATE TABLE Remarks (a)",
    "CREATE VIEW Remarks AS SELECT * FROM nowhere",
    "ALTER TABLE Rm RENAME TO other; CREATE VIEW Rm AS SELECT matID, temp + 0 AS temp, thickness, ordering, Rm FROM other",
    "ALTER TABLE Units DROP COLUMN unitTxt; ALTER TABLE Units ADD COLUMN unitTxt TEXT AS ('[' || unitID || ']')",
    "DELETE FROM CompatibleGroup",
]


class Rules(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.sample, _ = read_folder(SAMPLE / "csv")

    def faults(self, statements):
        database = connect(":memory:")
        self.sample.backup(database)
        database.executescript(statements)
        return faults_of(database)

    def test_sample_has_no_fault(self):
        for folder in ("csv", "pma-csv"):
            database, faults = read_folder(SAMPLE / folder)
            self.assertEqual(faults + faults_of(database), [])

    def test_each_fault_is_told(self):
        for statements, expected in BROKEN_TABLES + BROKEN_CELLS + BROKEN_ROWS:
            with self.subTest(statements):
                self.assertEqual(self.faults(statements), expected)

    def test_what_the_program_accepts_is_no_fault(self):
        for statements in HARMLESS:
            with self.subTest(statements):
                self.assertEqual(self.faults(statements), [])


class Scripts(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.texts = self.folder / "csv"
        shutil.copytree(SAMPLE / "csv", self.texts)

    def run_script(self, name, *arguments):
        done = subprocess.run([sys.executable, SOURCE / "tools" / name, *arguments], cwd=self.folder,
                              capture_output=True, text=True, check=False)
        return done.returncode, (done.stdout + done.stderr).splitlines()

    def change(self, table, old, new):
        path = self.texts / f"{table}.csv"
        text = path.read_text(encoding="utf-8")
        self.assertIn(old, text)
        path.write_text(text.replace(old, new, 1), encoding="utf-8")

    def test_made_file_passes_the_check(self):
        self.assertEqual(self.run_script("make_database", "csv"),
                         (0, ["Velmar_PED.mdb: 27 tables, 4679 rows"]))
        self.assertEqual(self.run_script("check_database", "Velmar_PED.mdb"),
                         (0, ["Velmar_PED.mdb: no faults in 27 tables, 4679 rows"]))
        self.assertEqual(self.run_script("make_database", SAMPLE / "pma-csv"),
                         (0, ["PMA_Index.mdb: 1 table, 12 rows"]))

    def test_file_that_is_there_is_kept(self):
        made = self.folder / "Velmar_PED.mdb"
        made.write_text("mine")
        status, _ = self.run_script("make_database", "csv")
        self.assertEqual((status, made.read_text()), (2, "mine"))
        self.assertEqual(self.run_script("make_database", "--replace", "csv")[0], 0)

    def test_nothing_is_written_with_a_fault_unless_asked_for(self):
        self.change("Rm", "11,50,-1,1,494", "11,50,-1,1,4-9-4")
        fault = "Rm: matID 11, temp 50: the number in '4-9-4' of Rm cannot be read"
        status, lines = self.run_script("make_database", "csv")
        self.assertEqual((status, lines[0]), (1, fault))
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()), ["csv"])
        self.assertEqual(self.run_script("make_database", "--anyway", "csv"),
                         (1, [fault, "Velmar_PED.mdb: 27 tables, 4679 rows"]))
        self.assertEqual(self.run_script("check_database", "csv")[1],
                         [fault, "csv: 1 fault in 27 tables, 4679 rows"])

    def test_faults_of_the_texts_themselves(self):
        self.change("Units", "1,[NoUnit]", "1,[NoUnit],3")
        self.change("ProdForm", "productForm:TEXT(80)", "prodFID:TEXT(80)")
        (self.texts / "InfoTitle.csv").write_bytes("titleID:INT,titleText\n1,W\xe4rme\n".encode("cp1252"))
        status, lines = self.run_script("check_database", "csv")
        self.assertEqual(status, 1)
        self.assertEqual(lines[:3], ["InfoTitle.csv: not in UTF-8",
                                     "ProdForm.csv: the first line must name each column once, as name:TYPE",
                                     "Units.csv, line 2: 3 cells under 2 columns"])

    def test_text_of_another_form_is_told_and_not_guessed_at(self):
        for old, new, told in (
                ("matID:INT,temp:SINGLE,thickness:INT,ordering:LONG,Rm:TEXT(40)", "matID;temp;thickness;ordering;Rm",
                 "Rm.csv: semicolons or tabs stand between the cells; commas are expected"),
                ("temp:SINGLE", "temp:SINGLE(1",
                 "Rm.csv: the first line has a type SINGLE(1; INT and TEXT(80) are types"),
                ("11,50,-1", "11,nan,-1", "Rm: row 1, temp: 'nan' is no SINGLE"),
                ("11,50,-1", "11,5_0,-1", "Rm: row 1, temp: '5_0' is no SINGLE"),
                ("11,50,-1", "1" + "0" * 30 + ",50,-1",
                 "Rm: row 1, matID: 1e+30 is beyond the range of INT, -32768 to 32767")):
            with self.subTest(new):
                shutil.copy(SAMPLE / "csv" / "Rm.csv", self.texts)
                self.change("Rm", old, new)
                status, lines = self.run_script("make_database", "csv")
                self.assertEqual((status, lines[0]), (1, told))

    def test_second_text_for_a_table_is_told(self):
        shutil.copy(self.texts / "Rm.csv", self.texts / "rM.CSV")
        status, lines = self.run_script("check_database", "csv")
        self.assertEqual((status, lines[0].lower()), (1, 'rm.csv: table "rm" already exists'))

    def test_types_may_be_left_out_and_marks_of_spreadsheets_are_taken(self):
        heads = "matID:INT,temp:INT,ModElast:DOUBLE"
        self.change("ModElast", heads, "matid,Temp,modelast")
        path = self.texts / "ModElast.csv"
        path.write_text(path.read_text(encoding="utf-8"), encoding="utf-8-sig", newline="\r\n")
        self.assertEqual(self.run_script("make_database", "csv")[0], 0)
        database = sqlite3.connect(self.folder / "Velmar_PED.mdb")
        self.assertEqual([row[2] for row in database.execute("PRAGMA table_info(ModElast)")], ["INT", "INT", "DOUBLE"])

    def test_what_is_no_database_is_told_apart(self):
        (self.folder / "letter.txt").write_text("Dear all")
        (self.folder / "empty").mkdir()
        damaged = self.folder / "damaged.mdb"
        write_file(read_folder(self.texts)[0], damaged)
        whole = damaged.read_bytes()
        damaged.write_bytes(whole[:6000] + bytes(len(whole) - 6000))
        for name, bytes_of in {"cut": whole[:-1], "open": whole, "open-wal": b"x", "half": whole,
                               "half-journal": JOURNAL_MARK + bytes(504)}.items():
            (self.folder / name).write_bytes(bytes_of)
        os.mkfifo(self.folder / "pipe")
        for given, told in ((SAMPLE / "Velmar_PED.mdb", "Access file"), ("letter.txt", "no SQLite file"),
                            ("empty", "no texts"), ("none", "No such file"), (damaged, "malformed"),
                            ("cut", "cut off"), ("open", "open-wal"), ("half", "half-journal"), ("pipe", "no regular")):
            status, lines = self.run_script("check_database", given)
            self.assertEqual((status, len(lines)), (2, 1), lines)
            self.assertIn(told, lines[0])
        (self.folder / "half-journal").write_bytes(bytes(512))
        (self.folder / "open-wal").write_bytes(b"")
        for given in ("half", "open"):
            self.assertEqual(self.run_script("check_database", given)[0], 0)
        (self.folder / "new.mdb-wal").write_bytes(b"x")
        for given, told in (("pipe", "no regular"), ("new.mdb", "new.mdb-wal")):
            status, lines = self.run_script("make_database", "--replace", "csv", given)
            self.assertEqual(status, 2)
            self.assertIn(told, lines[0])


if __name__ == "__main__":
    unittest.main()
