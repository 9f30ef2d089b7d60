#include "workbench/frmCompare.h"

frmCompare::frmCompare()
    : WorkbenchWindow("frmCompare", "Compare Grades", "Compare_Grades.htm") {}
