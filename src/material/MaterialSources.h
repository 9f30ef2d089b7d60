// The data sources of a material window.
#pragma once

#include "platform/forms/data_control.h"

class QString;

struct MaterialSources {
    explicit MaterialSources(QObject &window);

    /// Where all of them read from: the full path of the open database.
    void Aim(const QString &databaseName);

    /// Runs `sql` on `source`.
    static void Run(DataControl &source, const QString &sql);

    /// The page's main rows.
    DataControl *dtaTable;
    /// A page's second query.
    DataControl *dtaOther;
    DataControl *dtaNotes;
    DataControl *dtaTableNotes;
    DataControl *dtaColumns;
    DataControl *dtaUnits;
};
