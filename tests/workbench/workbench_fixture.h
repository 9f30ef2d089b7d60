// The windows of the tools over the sample, with grades selected.
#pragma once

#include <QLineEdit>
#include <QTableView>

#include "data/Material.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/form.h"
#include "platform/forms/tdb_grid.h"
#include "shell/mdiVelmar.h"
#include "tests/support/gui.h"
#include "tests/support/program_fixture.h"

class WorkbenchFixture : public ProgramFixture {
protected:
    void select(const QList<int> &ids) {
        Materials &selected = main().colMaterials;
        while (selected.Count() > 0)
            selected.Remove(1);
        for (const int id : ids)
            selected.Add(program().material(id));
    }

    /// By its menu entry, in front.
    template <class Window>
    Window &open(int entry) {
        main().menu.mnuToolsElem(entry).trigger();
        QCoreApplication::processEvents();
        return *LoadedInstance<Window>();
    }
    /// Goes to the main window and comes back.
    void comeBack(Form &window) {
        main().SetFocus();
        QCoreApplication::processEvents();
        window.SetFocus();
        QCoreApplication::processEvents();
    }

    static void retype(QLineEdit *box, const QString &text) {
        box->selectAll();
        QTest::keyClick(box, Qt::Key_Delete);
        QTest::keyClicks(box, text);
    }

    static QVariant cellRole(const TDBGrid &grid, int row, int column, int role) {
        const auto *model = grid.findChild<QTableView *>()->model();
        return model->index(row, column).data(role);
    }
    static QString tipOf(const TDBGrid &grid, int row, int column) {
        return cellRole(grid, row, column, Qt::ToolTipRole).toString();
    }
    static bool isMarked(const TDBGrid &grid, int row, int column) {
        return cellRole(grid, row, column, Qt::BackgroundRole).isValid();
    }
    static QStringList columnTexts(const TDBGrid &grid, int column) {
        QStringList texts;
        for (int row = 0; row < grid.RowCount(); ++row)
            texts << grid.CellText(row, column);
        return texts;
    }
};
