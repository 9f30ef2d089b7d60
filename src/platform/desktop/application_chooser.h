// The window that asks which application is to open a file.
#pragma once

#include "platform/desktop/desktop_entry.h"
#include "platform/forms/form.h"

class QListWidget;
class QPushButton;

class ApplicationChooser : public Form {
    Q_OBJECT

public:
    explicit ApplicationChooser(const QString &file);

private:
    void choose();

    QString m_file;
    QList<DesktopEntry> m_applications;
    QListWidget *lstApplications;
    QPushButton *cmdOpen;
    QPushButton *cmdCancel;
};
