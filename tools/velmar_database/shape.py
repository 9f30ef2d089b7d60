"""Whether every table and column is there and holds what the program can read."""

from collections import Counter

from .files import columns_of, quoted, table_names
from .schema import FITTING_TYPES, FIXED_PLACES, MATERIALS, PMA_INDEX, TYPE_RANGES, schema_for, type_of
from .values import misfit

FAULTS_OF_A_COLUMN = 5  # a column exported in a wrong form is one mistake, not thousands
DOCUMENT_PLACE = 7  # the path of a PMA document is read by its place, whatever the column's name


def shape_faults(database):
    tables = table_names(database)
    for table, columns in schema_for(tables).items():
        if table.lower() not in tables:
            yield f"{table}: the table is missing"
            continue
        found = columns_of(database, tables[table.lower()])
        places = {name.lower(): place for place, (name, _) in enumerate(found, 1)}
        if table in PMA_INDEX and len(found) < DOCUMENT_PLACE:
            yield f"{table}: the path of the document belongs in column {DOCUMENT_PLACE}"
        for column in columns:
            place = places.get(column.name.lower())
            yield from _column_faults(table, column, place, found[place - 1][1] if place else "")


def cell_faults(database):
    """For a database whose tables and columns are all there."""
    tables = table_names(database)
    for table, columns in schema_for(tables).items():
        name = tables[table.lower()]
        declared = {column.lower(): type_of(declaration) for column, declaration in columns_of(database, name)}
        types = [declared[column.name.lower()] for column in columns]
        listed = ", ".join(quoted(column.name) for column in columns)
        faults = Counter()
        for number, row in enumerate(database.execute(f"SELECT {listed} FROM {quoted(name)}"), 1):
            for value, column, type_name in zip(row, columns, types):
                fault = _cell_fault(value, column, type_name)
                if fault:
                    faults[column.name] += 1
                    if faults[column.name] <= FAULTS_OF_A_COLUMN:
                        yield f"{table}: row {number}, {column.name}: {fault}"
        for column, count in faults.items():
            if count > FAULTS_OF_A_COLUMN:
                yield f"{table}: {count - FAULTS_OF_A_COLUMN} more cells of {column} have such a fault"


def _column_faults(table, column, place, declaration):
    if not place:
        yield f"{table}: column {column.name} is missing"
        return
    fitting = FITTING_TYPES[column.kind]
    if type_of(declaration) not in fitting:
        yield f"{table}: column {column.name} is of type {declaration or 'TEXT'}; it must be one of " \
              f"{', '.join(sorted(fitting))}"
    fixed = FIXED_PLACES.get((table, column.name))
    if fixed and place != fixed:
        yield f"{table}: column {column.name} is column {place}; the program reads it as column {fixed}"


def _cell_fault(value, column, type_name):
    is_empty = value is None or (isinstance(value, str) and not value.strip() and type_name not in ("TEXT", "MEMO"))
    if is_empty:
        return None if column.may_be_null else "Null is not allowed here"
    fault = misfit(value, type_name)
    if fault or column.kind != "integer":
        return fault
    low, high = TYPE_RANGES["INT"]
    return None if low <= float(value) <= high else f"{value} is beyond 16 bits, {low} to {high}"


def is_materials(database):
    return schema_for(table_names(database)) is MATERIALS
