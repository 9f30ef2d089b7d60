#include "workbench/frmCard.h"

frmCard::frmCard()
    : WorkbenchWindow("frmCard", "Material Card", "Material_Card.htm") {}
