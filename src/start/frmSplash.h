// The start window: the object that the program starts with.
#pragma once

#include "platform/forms/form.h"

class ImageBox;
class QFrame;
class QLabel;
class QTimer;

class frmSplash : public Form {
    Q_OBJECT
public:
    frmSplash();

    /// "Version 4.0.1"
    static QString versionText();
    /// The copyright sign and the legal notice.
    static QString copyrightText();

    // controls
    QFrame *Frame1;
    ImageBox *imgLogo;
    ImageBox *imgVelmar;
    QLabel *lblProductName;
    QLabel *lblPlatform;
    QLabel *lblVersion;
    QLabel *lblCopyright;
    QLabel *lblPress;
    QTimer *Timer1;
    QTimer *Timer2;

protected:
    void Form_Load() override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLabel *addLabel(const QString &name, const QString &text, int left, int top, int width, int height);
    void startProgram();
};
