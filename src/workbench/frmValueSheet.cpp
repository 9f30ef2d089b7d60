#include "workbench/frmValueSheet.h"

frmValueSheet::frmValueSheet()
    : WorkbenchWindow("frmValueSheet", "Values over Temperature", "Value_Sheet.htm") {}
