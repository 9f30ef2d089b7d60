"""One cell: from a text to a value of its column's type, and whether a stored value is one."""

import datetime
import math
import re

from .schema import INTEGER_TYPES, TYPE_RANGES

PLAIN_NUMBER = re.compile(r"[+-]?([0-9]+(\.[0-9]*)?|\.[0-9]+)([eE][+-]?[0-9]+)?")
PLAIN_DATE = re.compile(r"\d{4}-\d\d-\d\d([T ]\d\d:\d\d(:\d\d(\.\d+)?)?(Z|[+-]\d\d:?\d\d)?)?")
LARGEST_WHOLE = 2**63 - 1  # of SQLite
FIRST_DAY, LAST_DAY = -657434, 2958465  # of the years 100 to 9999, counted from 1899-12-30
LARGEST_SINGLE = 3.4028234663852886e38
TRUTHS = {"1": 1, "-1": 1, "true": 1, "yes": 1, "0": 0, "false": 0, "no": 0}

# What stands before the first number of a cell and behind it is decoration to the arithmetic.
FIRST_NUMBER = re.compile(r"[^0-9.,-]*([0-9.,-]*)", re.DOTALL)
READABLE_NUMBER = re.compile(r"-?([0-9]+([.,][0-9]*)?|[.,][0-9]+)")


def fold(text):
    """Capitals do not count in the program's comparisons. Sign by sign, so that the German sharp s stays one."""
    if not isinstance(text, str):
        return text
    return "".join(low if len(low := sign.casefold()) == 1 else sign for sign in text)


def value_of(text, type_name):
    """The text itself where it is no value of the type, so that the check can quote it."""
    if type_name in ("TEXT", "MEMO"):
        return text
    text = text.strip()
    if not text:
        return None
    if type_name == "BOOLEAN":
        return TRUTHS.get(text.lower(), text)
    if type_name == "DATE":
        return text
    if not PLAIN_NUMBER.fullmatch(text):
        return text
    number = float(text)
    is_whole = type_name in INTEGER_TYPES and number.is_integer() and abs(number) < LARGEST_WHOLE
    return int(number) if is_whole else number


def number_of(value):
    """A decimal point or a decimal comma; None for anything else."""
    if isinstance(value, (int, float)):
        return float(value)
    if isinstance(value, str) and READABLE_NUMBER.fullmatch(value.strip()):
        return float(value.strip().replace(",", "."))
    return None


def is_calculable(value):
    """Whether the design values can take the number out of a cell; a cell without any number is a gap."""
    if not isinstance(value, str):
        return 1
    number = FIRST_NUMBER.match(value).group(1)
    return 1 if not number or READABLE_NUMBER.fullmatch(number) else 0


def is_true(value):
    if isinstance(value, str):
        return TRUTHS.get(value.strip().lower(), 0)
    return 1 if value else 0


def shown(value):
    if value is None:
        return "Null"
    if isinstance(value, float) and value.is_integer():
        return str(int(value))
    return f"'{value}'" if isinstance(value, str) else str(value)


def misfit(value, type_name):
    """Why a stored value is none of the column's type, or None."""
    if value is None:
        return None
    if isinstance(value, bytes):
        return "bytes, where a value belongs"
    if type_name in ("TEXT", "MEMO"):
        return None if isinstance(value, str) else \
            f"{value} is stored as a number: a text like 007 loses its form so; declare the column TEXT or LONGTEXT"
    if isinstance(value, str):
        return _text_misfit(value, type_name)
    if isinstance(value, float) and not math.isfinite(value):
        return f"{value} is no number"
    if type_name in INTEGER_TYPES:
        if value != int(value):
            return f"{value} is no whole number"
        low, high = TYPE_RANGES[type_name]
        if not low <= value <= high:
            return f"{value} is beyond the range of {type_name}, {low} to {high}"
    if type_name == "DATE" and not FIRST_DAY <= value < LAST_DAY + 1:
        return f"{value} is no date; 2017-09-30 is one"
    if type_name == "SINGLE" and abs(value) > LARGEST_SINGLE:
        return f"{value} is beyond the range of SINGLE"
    return None


def _text_misfit(text, type_name):
    if not text.strip():
        return None  # Null to the program
    if type_name == "DATE":
        try:
            if PLAIN_DATE.fullmatch(text.strip()):
                datetime.datetime.fromisoformat(text.strip())
                return None
        except ValueError:
            pass  # a day that no month has
        return f"'{text}' is no date; 2017-09-30 is one"
    if type_name == "BOOLEAN" and text.strip().lower() in TRUTHS:
        return None
    if PLAIN_NUMBER.fullmatch(text.strip()):
        return misfit(float(text), type_name)
    if number_of(text) is not None:
        return f"'{text}': a column of numbers takes a decimal point, no comma"
    return f"'{text}' is no {type_name}"
