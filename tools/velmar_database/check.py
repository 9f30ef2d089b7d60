"""All checks of a database, in the order in which one depends on another."""

from .rules import row_faults
from .shape import cell_faults, is_materials, shape_faults


def faults_of(database):
    """What does not lie there cannot be compared: a later check runs when the earlier ones find nothing."""
    faults = list(shape_faults(database)) or list(cell_faults(database))
    if not faults and is_materials(database):
        faults = list(row_faults(database))
    return faults
