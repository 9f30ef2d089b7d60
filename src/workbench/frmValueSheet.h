// Values over Temperature.
#pragma once

#include "workbench/WorkbenchWindow.h"

class frmValueSheet : public WorkbenchWindow {
    Q_OBJECT
public:
    frmValueSheet();
};
