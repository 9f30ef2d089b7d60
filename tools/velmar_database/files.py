"""The two forms of a database without Access: a folder of texts, one for each table, and an SQLite file."""

import csv
import os
import re
import sqlite3
from pathlib import Path

from . import values
from .schema import schema_for, type_of

NULL = r"\N"
KEYS = ("matid", "mid", "stid")  # what the program asks for the rows of a table by
DECLARATION = re.compile(r"[A-Z][A-Z0-9/ _]*(\([0-9 ,]+\))?")
ROWS_AT_ONCE = 5000
HIDDEN, OF_A_VIRTUAL_TABLE = 6, 1  # in the rows of PRAGMA table_xinfo
LEAST_JOURNAL = 512  # its header fills a sector
JOURNAL_MARK = bytes.fromhex("d9d505f920a163d7")


class Unreadable(Exception):
    """There is nothing to check: the text says why."""


def read_folder(folder):
    """An SQLite database in memory with the tables of the folder's texts, and the faults of the texts themselves."""
    texts = sorted((path for path in Path(folder).glob("*") if path.suffix.lower() == ".csv" and path.is_file()),
                   key=lambda path: path.name.lower())
    if not texts:
        raise Unreadable(f"{folder}: no texts here; one NAME.csv for each table is expected")
    database = connect(":memory:")
    schema = schema_for(text.stem for text in texts)
    faults = []
    for text in texts:
        faults += _read_text(database, text, schema)
    return database, faults


def read_file(path):
    _check_regular(path)
    with open(path, "rb") as file:
        start = file.read(100)
    if start[4:19] in (b"Standard Jet DB", b"Standard ACE DB"):
        raise Unreadable(f"{path}: this is an Access file; export its tables to texts, with mdb-export for one, and check their folder")
    if not start.startswith(b"SQLite format 3\0"):
        raise Unreadable(f"{path}: this is no SQLite file")
    file = Path(path).resolve()
    _check_settled(file)
    _check_whole(file, start)
    return connect(file.as_uri() + "?mode=ro&immutable=1", uri=True)


def _check_regular(path):
    """What is no file of bytes may never end, or never begin."""
    if os.path.exists(path) and not os.path.isfile(path):
        raise Unreadable(f"{path}: this is no regular file")


def _check_settled(file):
    """What SQLite would first bring into the file, or take back out of it; read as it stands it is another edition."""
    wal, journal = Path(f"{file}-wal"), Path(f"{file}-journal")
    is_hot = journal.is_file() and journal.stat().st_size >= LEAST_JOURNAL and \
        journal.open("rb").read(len(JOURNAL_MARK)) == JOURNAL_MARK
    unsettled = wal if wal.is_file() and wal.stat().st_size else journal if is_hot else None
    if unsettled:
        raise Unreadable(f"{file}: changes to this file are still in {unsettled}; close the program that made them, "
                         "or open and close the file with it once more")


def _check_whole(file, header):
    """SQLite takes what is missing at the end for empty."""
    size = file.stat().st_size
    page, changes, pages, counted_at = (int.from_bytes(header[at:at + length], "big")
                                        for at, length in ((16, 2), (24, 4), (28, 4), (92, 4)))
    page = 65536 if page == 1 else page
    is_counted = pages and changes == counted_at
    expected = pages * page if is_counted else -(-size // page) * page if page else size
    if len(header) < 100 or size < expected:
        raise Unreadable(f"{file}: the file is cut off: it has {size} bytes, and {max(expected, 100)} belong to it")


def write_file(database, path):
    """Nothing stands at `path` until all of it is there. A link stays one, to another file."""
    _check_regular(path)
    path = Path(path).resolve()
    _check_settled(path)
    temporary = Path(f"{path}.part")
    temporary.unlink(missing_ok=True)
    try:
        target = sqlite3.connect(temporary)
        database.backup(target)
        target.execute("VACUUM")
        target.close()
        os.replace(temporary, path)
    finally:
        temporary.unlink(missing_ok=True)


def connect(address, uri=False):
    database = sqlite3.connect(address, uri=uri)
    for name, function in {"fold": values.fold, "number": values.number_of, "truth": values.is_true,
                           "calculable": values.is_calculable, "shown": values.shown}.items():
        database.create_function(name, 1, function, deterministic=True)
    return database


def quoted(name):
    return '"' + name.replace('"', '""') + '"'


def table_names(database):
    """The name of every table and view, by the name in small letters."""
    query = "SELECT name FROM sqlite_schema WHERE type IN ('table', 'view') AND name NOT LIKE 'sqlite~_%' ESCAPE '~'"
    return {name.lower(): name for (name,) in database.execute(query)}


def columns_of(database, table):
    """Name and declared type of each column, in order; a generated one is a column like any other."""
    (is_view,) = database.execute("SELECT type = 'view' FROM sqlite_schema WHERE name = ?", (table,)).fetchone()
    columns = [(row[1], row[2]) for row in database.execute(f"PRAGMA table_xinfo({quoted(table)})")
               if row[HIDDEN] != OF_A_VIRTUAL_TABLE]
    return [(name, declaration or (_type_of_values(database, table, name) if is_view else ""))
            for name, declaration in columns]


def _type_of_values(database, view, column):
    """What a view calculates has no declared type: it is what its values are."""
    types = {kind for (kind,) in database.execute(f"SELECT DISTINCT typeof({quoted(column)}) FROM {quoted(view)}")}
    types.discard("null")
    if not types or types & {"text", "blob"}:
        return "TEXT"
    return "DOUBLE" if "real" in types else "LONG"


def counted(count, thing):
    return f"{count} {thing}" if count == 1 else f"{count} {thing}s"


def size_of(database):
    views = {name for (name,) in database.execute("SELECT name FROM sqlite_schema WHERE type = 'view'")}
    tables = table_names(database)
    expected = {table.lower() for table in schema_for(tables)}
    names = [name for key, name in tables.items() if key in expected or name not in views]
    rows = sum(database.execute(f"SELECT count(*) FROM {quoted(name)}").fetchone()[0] for name in names)
    return f"{counted(len(names), 'table')}, {counted(rows, 'row')}"


def _read_text(database, path, schema):
    table = next((name for name in schema if name.lower() == path.stem.lower()), path.stem)
    usual = {column.name.lower(): column.declaration for column in schema.get(table, [])}
    try:
        with open(path, encoding="utf-8-sig", newline="") as file:
            return _read_lines(database, table, path.name, usual, csv.reader(file, strict=True))
    except UnicodeDecodeError:
        return [f"{path.name}: not in UTF-8"]
    except csv.Error as error:
        return [f"{path.name}: {error}"]


def _read_lines(database, table, file_name, usual, lines):
    heads = next(lines, [])
    if len(heads) == 1 and re.search("[;\t]", heads[0]):
        return [f"{file_name}: semicolons or tabs stand between the cells; commas are expected"]
    columns = [_column(head, usual) for head in heads]
    names = [name.lower() for name, _ in columns]
    if not all(names) or len(set(names)) < len(names) or not names:
        return [f"{file_name}: the first line must name each column once, as name:TYPE"]
    unclear = [f"{file_name}: the first line has a type {declaration}; INT and TEXT(80) are types"
               for _, declaration in columns if not DECLARATION.fullmatch(declaration)]
    if unclear:
        return unclear

    # Memo texts are declared so that SQLite does not take a number-like one for a number.
    declared = ", ".join(f"{quoted(name)} {re.sub('^MEMO$', 'LONGTEXT', declaration)}"
                         for name, declaration in columns)
    try:
        database.execute(f"CREATE TABLE {quoted(table)} ({declared})")
    except sqlite3.Error as error:  # a second text for one table, a name that SQLite keeps for itself
        return [f"{file_name}: {error}"]
    insert = f"INSERT INTO {quoted(table)} VALUES ({', '.join('?' * len(columns))})"
    types = [type_of(declaration) for _, declaration in columns]
    faults, rows = [], []
    for line in lines:
        if not line:
            continue
        if len(line) != len(columns):
            faults.append(f"{file_name}, line {lines.line_num}: {len(line)} cells under {len(columns)} columns")
            continue
        rows.append([None if cell == NULL else values.value_of(cell, kind) for cell, kind in zip(line, types)])
        if len(rows) == ROWS_AT_ONCE:
            database.executemany(insert, rows)
            rows.clear()
    database.executemany(insert, rows)
    for key in set(KEYS) & {name.lower() for name, _ in columns}:
        database.execute(f"CREATE INDEX {quoted(f'{table} by {key}')} ON {quoted(table)} ({key})")
    database.commit()
    return faults


def _column(head, usual):
    name, _, declaration = head.strip().partition(":")
    return name.strip(), declaration.strip().upper() or usual.get(name.strip().lower(), "TEXT")
