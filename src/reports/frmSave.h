// Asks for the file format in which the design values are saved.
#pragma once

#include "platform/forms/form.h"
#include "reports/FormatChoice.h"

class QPushButton;

class frmSave : public Form, public FormatChoice {
    Q_OBJECT
public:
    frmSave();

    /// 0 saves, 1 cancels.
    ControlArray<QPushButton> cmdSave{"cmdSave"};

protected:
    void Form_Load() override;
    void Form_Unload(bool &cancel) override;

private:
    void save();
    void cancel();
};
