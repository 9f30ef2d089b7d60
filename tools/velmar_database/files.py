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


class Unreadable(Exception):
    """There is nothing to check: the text says why."""


def read_folder(folder):
    """An SQLite database in memory with the tables of the folder's texts, and the faults of the texts themselves."""
    texts = sorted((path for path in Path(folder).glob("*") if path.suffix.lower() == ".csv"),
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
    with open(path, "rb") as file:
        start = file.read(32)
    if start[4:19] in (b"Standard Jet DB", b"Standard ACE DB"):
        raise Unreadable(f"{path}: this is an Access file; export its tables to texts, with mdb-export for one, and check their folder")
    if not start.startswith(b"SQLite format 3\0"):
        raise Unreadable(f"{path}: this is no SQLite file")
    address = Path(path).resolve().as_uri() + "?mode=ro&immutable=1"
    return connect(address, uri=True)


def write_file(database, path):
    """Nothing stands at `path` until all of it is there."""
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
    """Every table's name, by the name in small letters."""
    query = "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite~_%' ESCAPE '~'"
    return {name.lower(): name for (name,) in database.execute(query)}


def columns_of(database, table):
    """Name and declared type of each column, in order."""
    return [(row[1], row[2]) for row in database.execute(f"PRAGMA table_info({quoted(table)})")]


def counted(count, thing):
    return f"{count} {thing}" if count == 1 else f"{count} {thing}s"


def size_of(database):
    names = table_names(database).values()
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
