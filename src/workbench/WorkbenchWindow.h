// What the windows of the tools have in common.
#pragma once

#include <QSettings>
#include <QVector>

#include "data/grades.h"
#include "platform/forms/form.h"

/// It keeps its place, its size and what it remembers in a file of the user's own, Workbench.ini; a file that
/// cannot be read or written is none.
class WorkbenchWindow : public Form {
    Q_OBJECT
public:
    /// `topic` is the page of the help that F1 opens.
    WorkbenchWindow(const QString &name, const QString &caption, const QString &topic);

    /// Writes what it remembers, as its end does.
    void keepSettings();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool &cancel) override;

    /// The selected materials are others than before, also at the first showing.
    virtual void selectionChanged() {}
    /// Reads or writes what the window remembers. Values may be anything that a hand-edited file holds.
    virtual void restore(const QSettings & /*settings*/) {}
    virtual void keep(QSettings & /*settings*/) const {}

    /// In the order of selection.
    const QVector<Grades::Grade> &selected() const { return m_selected; }

private:
    void readSelection();

    QVector<Grades::Grade> m_selected;
    bool m_everRead = false;
};
