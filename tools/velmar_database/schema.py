"""The tables and columns that the program reads, and which column types it can read them from."""

from dataclasses import dataclass

INTEGER_TYPES = {"BYTE", "INT", "LONG"}
NUMBER_TYPES = INTEGER_TYPES | {"SINGLE", "DOUBLE", "CURRENCY"}
TEXT_TYPES = {"TEXT", "MEMO"}

# What a column is to the program, and the types that can hold it.
FITTING_TYPES = {
    "integer": INTEGER_TYPES,
    "number": NUMBER_TYPES,
    "text": TEXT_TYPES,
    "date": {"DATE"},
    "boolean": {"BOOLEAN"} | INTEGER_TYPES,
    "value": TEXT_TYPES | NUMBER_TYPES,
    "any": TEXT_TYPES | NUMBER_TYPES | {"DATE", "BOOLEAN"},
}

TYPE_RANGES = {"BYTE": (0, 255), "INT": (-32768, 32767), "LONG": (-2**31, 2**31 - 1)}

# The names that the program knows a type by when it opens an SQLite file; any other one is a text to it.
DECLARATIONS = {
    "BOOLEAN": "BOOLEAN", "BOOL": "BOOLEAN", "YES/NO": "BOOLEAN", "YESNO": "BOOLEAN", "BIT": "BOOLEAN",
    "LOGICAL": "BOOLEAN", "BYTE": "BYTE", "TINYINT": "BYTE", "INTEGER": "INT", "INT": "INT", "SMALLINT": "INT",
    "SHORT": "INT", "LONG": "LONG", "LONG INTEGER": "LONG", "BIGINT": "LONG", "MEDIUMINT": "LONG",
    "COUNTER": "LONG", "AUTOINCREMENT": "LONG", "CURRENCY": "CURRENCY", "MONEY": "CURRENCY",
    "SINGLE": "SINGLE", "DOUBLE": "DOUBLE", "DOUBLE PRECISION": "DOUBLE", "REAL": "DOUBLE", "FLOAT": "DOUBLE",
    "NUMERIC": "DOUBLE", "NUMBER": "DOUBLE", "DECIMAL": "DOUBLE", "DATE": "DATE", "DATETIME": "DATE",
    "DATE/TIME": "DATE", "TIMESTAMP": "DATE", "MEMO": "MEMO", "LONGTEXT": "MEMO", "LONG TEXT": "MEMO",
    "CLOB": "MEMO",
}


def type_of(declaration):
    """TEXT(80) is TEXT; a name that the program does not know is TEXT, too."""
    name = " ".join(declaration.split("(")[0].split()).upper()
    return DECLARATIONS.get(name, "TEXT")


@dataclass(frozen=True)
class Column:
    name: str
    kind: str
    declaration: str  # what the column becomes where its text names no type
    may_be_null: bool


# One line a table, one entry a column: name, kind and usual type; "?" where Null is allowed.
_MATERIALS = {
    "materials": "matID integer INT, name text TEXT(80), numbr text TEXT(40), description text TEXT(255)?, "
                 "groups text TEXT(80)?, revision_date date DATE, standard text TEXT(80), "
                 "asmestandard text TEXT(80)?, asmegrade text TEXT(80)?, ss text TEXT(40)?",
    "standard": "stID integer INT, standard text TEXT(80), description text TEXT(255)?, revision_date date DATE, "
                "otherElem boolean BOOLEAN",
    "ProdForm": "prodFID integer INT, productForm text TEXT(80)",
    "StandProdForm": "stID integer INT, prodFID integer INT",
    "StandardProdForm": "standard text TEXT(80), productForm text TEXT(80)",
    "Chemical": "standard text TEXT(80), name text TEXT(80), numbr text TEXT(40), elemID number LONG, "
                "element text TEXT(20), val value TEXT(40)?, note text TEXT(20)?",
    "OtherElem": "mID integer INT, stID integer INT, other text TEXT(255)?",
    "Columns": "colID integer INT, colTxt text TEXT(80), unitID integer INT",
    "Units": "unitID integer INT, unitTxt text TEXT(40)",
    "MechMatTable": "matID integer INT, colID integer INT, ordering number INT, note text TEXT(20)?, "
                    "minMax text TEXT(20)?, colSize number SINGLE",
    "CreepPropTable": "stID integer INT, colID integer INT, ordering number INT, note text TEXT(20)?, "
                      "minMax text TEXT(20)?, colSize number SINGLE",
    "MechPropData": "matID integer INT, rowNo number LONG, ordering number INT, colID integer INT, "
                    "val value TEXT(80)?",
    "CreepProperties": "matID integer INT, rowNo number LONG, ordering number INT, colID integer INT, "
                       "val value TEXT(80)?",
    "Rp02": "matID integer INT, temp number SINGLE?, thickness integer INT, ordering number LONG, "
            "Rp02 value TEXT(40)?",
    "Rp10": "matID integer INT, temp number SINGLE?, thickness integer INT, ordering number LONG, "
            "Rp10 value TEXT(40)?",
    "Rm": "matID integer INT, temp number SINGLE?, thickness integer INT, ordering number LONG, "
          "Rm value TEXT(40)?",
    "ModElast": "matID integer INT, temp number INT, ModElast value DOUBLE?",
    "ThermExp": "matID integer INT, temp number INT, ThermExp value TEXT(20)?, ThermExpDiff value TEXT(20)?",
    "ThermCond": "matID integer INT, temp number INT, ThermCond value TEXT(20)?",
    "SpecThermCap": "matID integer INT, temp number INT, SpecThermCap value SINGLE?, "
                    "SpecThermCapDiff value SINGLE?",
    "SpecElecRes": "matID integer INT, temp number INT, SpecElecRes value TEXT(20)?",
    "ImpEnergy": "matID integer INT, temp number INT, kv value TEXT(20)?, kvLong value TEXT(20)?, "
                 "kvTrans value TEXT(20)?",
    "MatNotes": "matID integer INT, tableName text TEXT(40), ordering number INT, notID number LONG",
    "TableNotes": "notID number LONG, tableName text TEXT(40), notTxt text MEMO",
    "GetInfo": "matID integer INT, titleID integer INT, ordering number INT, InfoText text MEMO",
    "InfoTitle": "titleID integer INT, titleText text TEXT(120)",
    "CompatibleGroup": "groupID integer INT, groupName text TEXT(80), source text TEXT(120)?",
}

_PMA_INDEX = {
    "PMA_Index": "Specification text TEXT(80)?, Designationname text TEXT(80)?, Designationnumber text TEXT(40)?, "
                 "Product text TEXT(80)?, RevisionDate any TEXT(20)?, Revision any TEXT(10)?, "
                 "Searchstring text TEXT(255)?",
}


def _columns(line):
    for entry in line.split(", "):
        name, kind, declaration = entry.rstrip("?").split(" ")
        yield Column(name, kind, declaration, entry.endswith("?"))


MATERIALS = {table: list(_columns(line)) for table, line in _MATERIALS.items()}
PMA_INDEX = {table: list(_columns(line)) for table, line in _PMA_INDEX.items()}

# Columns that the program reads by their place, counted from 1.
FIXED_PLACES = {("ImpEnergy", "kv"): 3, ("ImpEnergy", "kvLong"): 4, ("ImpEnergy", "kvTrans"): 5}

# The tables that a grade's notes can belong to, by the key that the program has for each.
NOTED_TABLES = ["ChemComp", "MechProp", "ImpEnergy", "Rp02", "Rp10", "Rm", "ModElast", "ThermExp", "ThermCond",
                "SpecThermCap", "SpecElecRes", "CreepProp"]

# Searches put these texts between quotes and wildcards as they stand.
SEARCHED_TEXTS = {
    "materials": ["standard", "name", "numbr", "description", "groups", "asmestandard", "asmegrade", "ss"],
    "standard": ["standard"],
    "StandardProdForm": ["standard", "productForm"],
    "Columns": ["colTxt"],
}


def schema_for(tables):
    """The database that a folder or file with tables of these names is meant to be."""
    names = {name.lower() for name in tables}
    return PMA_INDEX if "pma_index" in names and "materials" not in names else MATERIALS
