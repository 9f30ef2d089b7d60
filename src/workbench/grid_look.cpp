#include "workbench/grid_look.h"

#include "platform/forms/tdb_grid.h"
#include "platform/runtime/twips.h"
#include "shell/mdiVelmar.h"

void WorkbenchGrid::setLook(TDBGrid &grid) {
    mdiVelmar &main = mdiVelmar::instance();
    main.SetRowColors(grid, false);
    grid.setAlternatingRowStyle(!main.bColoursOff);
    grid.setMarqueeStyle(MarqueeStyle::Row);
    grid.setRecordSelectors(false);
}

void WorkbenchGrid::setColumns(TDBGrid &grid, const QStringList &captions, const QStringList &samples) {
    while (grid.ColumnCount() > captions.size())
        grid.RemoveColumn(grid.ColumnCount() - 1);
    while (grid.ColumnCount() < captions.size())
        grid.AddColumn();
    constexpr int Margin = 14;
    for (int i = 0; i < captions.size(); ++i) {
        GridColumn &column = grid.Columns(i);
        column.setCaption(captions[i]);
        column.setWidth(toTwips(grid.fontMetrics().horizontalAdvance(samples[i]) + Margin));
    }
}

QString WorkbenchGrid::heading(const Grades::Grade &grade) {
    return QStringList{grade.name, grade.number, grade.standard}.join(QStringLiteral("\r\n"));
}

QColor WorkbenchGrid::markColour(const TDBGrid &grid) {
    // The program's own colours of rows are light in every theme.
    const bool dark =
        mdiVelmar::instance().bColoursOff && grid.palette().color(QPalette::Base).lightness() < 128;
    return dark ? QColor(0x6b, 0x4e, 0x0a) : QColor(0xff, 0xe0, 0x9a);
}
