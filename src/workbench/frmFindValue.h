// Find by Value.
#pragma once

#include "workbench/WorkbenchWindow.h"

class frmFindValue : public WorkbenchWindow {
    Q_OBJECT
public:
    frmFindValue();
};
