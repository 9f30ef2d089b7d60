// Material Card.
#pragma once

#include "workbench/WorkbenchWindow.h"

class frmCard : public WorkbenchWindow {
    Q_OBJECT
public:
    frmCard();
};
