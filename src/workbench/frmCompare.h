// Compare Grades.
#pragma once

#include "workbench/WorkbenchWindow.h"

class frmCompare : public WorkbenchWindow {
    Q_OBJECT
public:
    frmCompare();
};
