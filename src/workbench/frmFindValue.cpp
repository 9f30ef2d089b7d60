#include "workbench/frmFindValue.h"

frmFindValue::frmFindValue()
    : WorkbenchWindow("frmFindValue", "Find by Value", "Find_By_Value.htm") {}
