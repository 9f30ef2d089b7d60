// The about window.
#pragma once

#include "platform/forms/form.h"

class ImageBox;
class QLabel;
class QPushButton;
class QTextEdit;

class frmAbout : public Form {
    Q_OBJECT
public:
    frmAbout();

    // controls
    ImageBox *imgLogo;
    QLabel *lblTitle;
    QLabel *lblVersion;
    QLabel *lblCopyright;
    QLabel *lblLastUpdated;
    QTextEdit *txtContact;
    QPushButton *cmdOK;

protected:
    void Form_Load() override;
};
