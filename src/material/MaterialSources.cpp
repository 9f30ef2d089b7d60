#include "material/MaterialSources.h"

MaterialSources::MaterialSources(QObject &window) {
    const auto make = [&window](DataControl *&source, const QString &name, const QString &table = {}) {
        source = new DataControl(&window);
        source->setObjectName(name);
        source->setRecordSource(table);
    };
    make(dtaTable, "dtaTable");
    make(dtaOther, "dtaOther", "OtherElem");
    make(dtaNotes, "dtaNotes");
    make(dtaTableNotes, "dtaTableNotes", "TableNotes");
    make(dtaColumns, "dtaColumns", "Columns");
    make(dtaUnits, "dtaUnits", "Units");
}

void MaterialSources::Aim(const QString &databaseName) {
    for (DataControl *source : {dtaTable, dtaOther, dtaNotes, dtaTableNotes, dtaColumns, dtaUnits})
        source->setDatabaseName(databaseName);
}

void MaterialSources::Run(DataControl &source, const QString &sql) {
    source.setRecordSource(sql);
    source.Refresh();
}
