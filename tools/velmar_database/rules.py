"""The rules that the rows of a materials database keep among themselves.

Each rule is a query for what breaks it, and the line that is told for each row of its result. The program counts on
these rules and does not test them: a row that breaks one shows a wrong place for a value, or an error.
"""

from dataclasses import dataclass

from .schema import MATERIALS, NOTED_TABLES, SEARCHED_TEXTS
from .values import shown


@dataclass(frozen=True)
class Rule:
    table: str
    query: str
    message: str  # {0}, {1}... are the columns of the query's result


def row_faults(database):
    """For a database whose tables, columns and cells are in order."""
    for rule in sorted(RULES, key=lambda rule: list(MATERIALS).index(rule.table)):
        for row in database.execute(rule.query):
            yield f"{rule.table}: {rule.message.format(*map(shown, row))}"


def _kinds(table):
    return {column.name: column.kind for column in MATERIALS[table]}


def _key(table, column, alias=None):
    """Texts are compared whatever their capitals."""
    name = f"{alias}.{column}" if alias else column
    return f"fold({name})" if _kinds(table)[column] == "text" else name


def _labels(columns):
    return ", ".join(f"{column} {{{place}}}" for place, column in enumerate(columns))


def reference(table, columns, target, target_columns=None, where="1"):
    target_columns = target_columns or columns
    keys = ", ".join(_key(table, column) for column in columns)
    targets = ", ".join(_key(target, column) for column in target_columns)
    present = " AND ".join(f"{column} IS NOT NULL" for column in target_columns)
    named = f"{target}.{target_columns[0]}" if len(columns) == 1 else target
    return Rule(table, f"SELECT DISTINCT {', '.join(columns)} FROM {table} WHERE {where} AND "
                       f"({keys}) NOT IN (SELECT {targets} FROM {target} WHERE {present})",
                f"{_labels(columns)} is not in {named}")


def unique(table, columns, reason):
    keys = ", ".join(_key(table, column) for column in columns)
    return Rule(table, f"SELECT {', '.join(columns)}, count(*) FROM {table} GROUP BY {keys} HAVING count(*) > 1",
                f"{_labels(columns)}: {{{len(columns)}}} rows; {reason}")


def searched_text(table, column):
    return Rule(table, f"SELECT DISTINCT {column} FROM {table} WHERE instr({column}, '''') OR instr({column}, '[')",
                f"{column} {{0}}: a single quote or an opening bracket breaks the search for it")


def not_empty(table, column):
    return Rule(table, f"SELECT DISTINCT {column} FROM {table} WHERE trim({column}) = ''",
                f"{column} is empty in a row")


# Grades and standards.
GRADES = [
    Rule("materials", "SELECT 1 WHERE NOT EXISTS (SELECT 1 FROM materials)", "no row; at least one grade is needed"),
    Rule("materials", "SELECT matID FROM materials WHERE matID = 0", "matID {0} stands for no grade at all"),
    unique("materials", ["matID"], "one grade has one row"),
    unique("materials", ["standard", "name", "numbr"], "they would share one composition"),
    reference("materials", ["standard"], "standard"),
    not_empty("materials", "name"),
    unique("standard", ["stID"], "one standard has one row"),
    unique("standard", ["standard"], "one standard has one row"),
    not_empty("standard", "standard"),
]

PRODUCT_FORMS = [
    unique("ProdForm", ["prodFID"], "one form has one row"),
    unique("StandProdForm", ["stID", "prodFID"], "the form would show twice"),
    unique("StandardProdForm", ["standard", "productForm"], "the form would show twice"),
    reference("StandProdForm", ["stID"], "standard"),
    reference("StandProdForm", ["prodFID"], "ProdForm"),
    reference("StandardProdForm", ["standard"], "standard"),
    reference("StandardProdForm", ["productForm"], "ProdForm"),
    Rule("StandardProdForm", """
        SELECT standard.standard, productForm FROM StandProdForm JOIN standard USING (stID) JOIN ProdForm USING (prodFID)
        WHERE (fold(standard.standard), fold(productForm)) NOT IN
              (SELECT fold(standard), fold(productForm) FROM StandardProdForm)""",
         "standard {0}, productForm {1} is missing; StandProdForm has it"),
    Rule("StandProdForm", """
        SELECT stID, prodFID, standard.standard, ProdForm.productForm
        FROM StandardProdForm AS named JOIN standard ON fold(standard.standard) = fold(named.standard)
                                       JOIN ProdForm ON fold(ProdForm.productForm) = fold(named.productForm)
        WHERE (stID, prodFID) NOT IN (SELECT stID, prodFID FROM StandProdForm)""",
         "stID {0}, prodFID {1} is missing; StandardProdForm has {2}, {3}"),
]

_GRADE = "fold(standard), fold(name), fold(numbr)"
_EVEN_GRADES = f"SELECT {_GRADE} FROM Chemical GROUP BY {_GRADE} HAVING count(*) % 2 = 0"

COMPOSITION = [
    reference("Chemical", ["standard", "name", "numbr"], "materials"),
    Rule("Chemical", f"SELECT standard, name, numbr, count(*) FROM Chemical GROUP BY {_GRADE} HAVING count(*) % 2",
         "{0}, {1}, {2}: {3} rows; each element has two, its minimum before its maximum"),
    Rule("Chemical", f"""
        WITH ordered AS (SELECT *, row_number() OVER (PARTITION BY {_GRADE} ORDER BY elemID) AS place FROM Chemical
                         WHERE ({_GRADE}) IN ({_EVEN_GRADES})),
             paired AS (SELECT *, lead(element) OVER grade AS other, lead(elemID) OVER grade AS otherID FROM ordered
                        WINDOW grade AS (PARTITION BY {_GRADE} ORDER BY place))
        SELECT standard, name, numbr, elemID, element, otherID, other FROM paired
        WHERE place % 2 AND fold(element) <> fold(other)""",
         "{0}, {1}, {2}: elemID {3} is of {4} and {5} of {6}; the two rows of a pair are of one element"),
    Rule("Chemical", f"""
        SELECT standard, name, numbr, element, count(*) FROM Chemical GROUP BY {_GRADE}, fold(element)
        HAVING count(*) > 2 AND count(*) % 2 = 0""",
         "{0}, {1}, {2}: element {3} has {4} rows; two belong to it"),
    unique("Chemical", ["standard", "name", "numbr", "elemID"], "their order is left open"),
    unique("OtherElem", ["mID", "stID"], "only one is read"),
    reference("OtherElem", ["mID"], "materials", ["matID"]),
    reference("OtherElem", ["stID"], "standard"),
    Rule("OtherElem", """
        SELECT matID, stID, standard.standard FROM materials JOIN standard
               ON fold(standard.standard) = fold(materials.standard)
        WHERE truth(otherElem) AND (matID, stID) NOT IN (SELECT mID, stID FROM OtherElem)""",
         "no row for mID {0}, stID {1}, but otherElem of {2} is True"),
    Rule("OtherElem", """
        SELECT mID, OtherElem.stID, standard.stID FROM OtherElem JOIN materials ON mID = matID
               JOIN standard ON fold(standard.standard) = fold(materials.standard)
        WHERE OtherElem.stID <> standard.stID AND OtherElem.stID IN (SELECT stID FROM standard)""",
         "mID {0}, stID {1}: the grade is of stID {2}, so that the row is never read"),
    Rule("OtherElem", """
        SELECT mID, stID, other FROM OtherElem JOIN standard USING (stID)
        WHERE NOT truth(otherElem) AND other NOT IN ('', '-')""",
         "mID {0}, stID {1}: {2} is never shown, because otherElem of the standard is False"),
]


def _cell_rules(cells, definitions, owners):
    """`owners` gives the grade (matID) and what its column definitions go by (owner)."""
    key = MATERIALS[definitions][0].name
    counted = f"""
        widths AS (SELECT {key} AS owner, count(*) AS width FROM {definitions} GROUP BY {key}),
        counts AS (SELECT matID, owner, rowNo, count(*) AS cells FROM {cells} JOIN ({owners}) USING (matID)
                   GROUP BY matID, rowNo),
        compared AS (SELECT *, coalesce(width, 0) AS columns FROM counts LEFT JOIN widths USING (owner))"""
    return [
        reference(cells, ["matID"], "materials"),
        reference(cells, ["colID"], "Columns"),
        reference(definitions, [key], "materials" if key == "matID" else "standard"),
        reference(definitions, ["colID"], "Columns"),
        unique(definitions, [key, "ordering"], "the order of the columns is left open"),
        unique(cells, ["matID", "rowNo", "ordering"], "the order of the cells is left open"),
        Rule(definitions, f"SELECT {key}, colID, colSize FROM {definitions} WHERE colSize < 0",
             f"{key} {{0}}, colID {{1}}: colSize {{2}} is no width"),
        Rule(cells, f"WITH {counted} SELECT matID, rowNo, cells, columns FROM compared WHERE cells <> columns",
             f"matID {{0}}, rowNo {{1}}: {{2}} cells, but {definitions} has {{3}} columns"),
        Rule(cells, f"""
            WITH {counted},
                 heads AS (SELECT {key} AS owner, colID, row_number() OVER (PARTITION BY {key} ORDER BY ordering)
                           AS place FROM {definitions}),
                 placed AS (SELECT matID, rowNo, colID, row_number() OVER (PARTITION BY matID, rowNo ORDER BY ordering)
                            AS place FROM {cells})
            SELECT placed.matID, placed.rowNo, place, placed.colID, heads.colID
            FROM compared JOIN placed USING (matID, rowNo) JOIN heads USING (owner, place)
            WHERE cells = columns AND placed.colID <> heads.colID ORDER BY 1, 2, 3""",
             f"matID {{0}}, rowNo {{1}}: cell {{2}} is of colID {{3}}, but column {{2}} of {definitions} "
             "is of colID {4}"),
    ]


_FIRST_CREEP_CELLS = """
    SELECT matID, rowNo, val FROM (SELECT *, row_number() OVER (PARTITION BY matID, rowNo ORDER BY ordering) AS place
                                   FROM CreepProperties) WHERE place = 1"""

UNBOUND_TABLES = [
    unique("Columns", ["colID"], "one heading has one row"),
    Rule("Columns", """
        SELECT colTxt, min(unitID), max(unitID) FROM Columns GROUP BY fold(colTxt)
        HAVING min(unitID) <> max(unitID)""",
         "colTxt {0} has the units {1} and {2}; the unit goes by the text, so that the first serves both"),
    reference("Columns", ["unitID"], "Units"),
    unique("Units", ["unitID"], "one unit has one row"),
    *_cell_rules("MechPropData", "MechMatTable", "SELECT matID, matID AS owner FROM materials"),
    *_cell_rules("CreepProperties", "CreepPropTable", """
        SELECT matID, stID AS owner FROM materials JOIN standard
               ON fold(standard.standard) = fold(materials.standard)"""),
    Rule("CreepProperties", f"SELECT * FROM ({_FIRST_CREEP_CELLS}) WHERE number(val) IS NULL",
         "matID {0}, rowNo {1}: {2} is no temperature, and the first column is read as one"),
    Rule("CreepProperties", f"""
        SELECT * FROM (SELECT matID, rowNo, number(val) AS temp, lag(number(val)) OVER (PARTITION BY matID ORDER BY
                              rowNo) AS before FROM ({_FIRST_CREEP_CELLS})) WHERE temp <= before""",
         "matID {0}, rowNo {1}: temperature {2} follows {3}; temperatures ascend"),
    Rule("CreepProperties", """
        SELECT matID, rowNo, colID, val FROM CreepProperties
        WHERE trim(val) NOT IN ('', '-') AND NOT calculable(val)""",
         "matID {0}, rowNo {1}, colID {2}: the number in {3} cannot be read"),
]


def _calculable(table, column):
    return Rule(table, f"SELECT matID, temp, {column} FROM {table} WHERE NOT calculable({column})",
                f"matID {{0}}, temp {{1}}: the number in {{2}} of {column} cannot be read")


def _elevated_rules(table):
    return [
        reference(table, ["matID"], "materials"),
        _calculable(table, table),
        Rule(table, f"SELECT matID, thickness, ordering FROM {table} WHERE temp IS NULL",
             "matID {0}, thickness {1}, ordering {2}: no temp; the design values cannot be found without one"),
        unique(table, ["matID", "thickness", "temp"], "a temperature has one value in each band"),
        Rule(table, f"SELECT DISTINCT matID, thickness FROM {table} WHERE thickness < 1 AND thickness <> -1",
             "matID {0}: thickness {1} is neither the limit of a band nor -1, which is for no bands"),
        Rule(table, f"""
            SELECT matID, max(thickness) FROM {table} GROUP BY matID
            HAVING min(thickness) = -1 AND max(thickness) <> -1""",
             "matID {0}: thickness -1 is for no bands, but there is also a band to {1} mm"),
        Rule(table, f"""
            SELECT matID, temp, min(ordering), max(ordering) FROM {table} GROUP BY matID, temp
            HAVING min(ordering) <> max(ordering)""",
             "matID {0}, temp {1}: ordering {2} and {3}; one temperature has one in all bands, or it shows as two rows"),
        Rule(table, f"""
            SELECT * FROM (SELECT matID, temp, lag(temp) OVER (PARTITION BY matID ORDER BY place, temp) AS before FROM
                           (SELECT matID, temp, min(ordering) AS place FROM {table} WHERE temp IS NOT NULL
                            GROUP BY matID, temp)) WHERE temp < before""",
             "matID {0}: by their ordering temp {1} follows {2}; temperatures ascend"),
        Rule(table, f"""
            SELECT matID, ordering, min(temp), max(temp) FROM {table} GROUP BY matID, ordering
            HAVING min(temp) <> max(temp)""",
             "matID {0}, ordering {1}: temp {2} and {3}; each temperature has an ordering of its own"),
    ]


def _temperature_rules(table):
    values = [column.name for column in MATERIALS[table] if column.kind == "value"]
    return [
        reference(table, ["matID"], "materials"),
        unique(table, ["matID", "temp"], "one temperature has one row"),
        *(_calculable(table, value) for value in values if table != "ImpEnergy"),
    ]


TEMPERATURE_TABLES = [
    *(rule for table in ("Rp02", "Rp10", "Rm") for rule in _elevated_rules(table)),
    *(rule for table in ("ModElast", "ThermExp", "ThermCond", "SpecThermCap", "SpecElecRes", "ImpEnergy")
      for rule in _temperature_rules(table)),
]

TEXTS = [
    reference("MatNotes", ["matID"], "materials"),
    Rule("MatNotes", "SELECT DISTINCT matID, tableName FROM MatNotes WHERE fold(tableName) NOT IN "
                     f"({', '.join(f'fold({key!r})' for key in NOTED_TABLES)})",
         f"matID {{0}}: no table has the key {{1}}; the keys are {', '.join(NOTED_TABLES)}"),
    reference("MatNotes", ["notID", "tableName"], "TableNotes"),
    unique("MatNotes", ["matID", "tableName", "notID"], "the note would show twice"),
    unique("TableNotes", ["notID", "tableName"], "one note has one text"),
    reference("GetInfo", ["matID"], "materials"),
    reference("GetInfo", ["titleID"], "InfoTitle", where="titleID <> 0"),
    unique("InfoTitle", ["titleID"], "one title has one row"),
    unique("CompatibleGroup", ["groupID"], "one group has one row"),
]

SEARCHES = [searched_text(table, column) for table, columns in SEARCHED_TEXTS.items() for column in columns]

RULES = GRADES + PRODUCT_FORMS + COMPOSITION + UNBOUND_TABLES + TEMPERATURE_TABLES + TEXTS + SEARCHES
