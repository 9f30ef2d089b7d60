#include "exchange/card_source.h"

#include <QFileInfo>

#include "data/GradeTables.h"
#include "data/Material.h"
#include "platform/dao/database.h"
#include "values/thickness_bands.h"

namespace {

const QStringList YieldKeys{"Rp02", "Rp10"};

} // namespace

const LoadedTable *CardSource::table(const QString &key) const {
    for (const LoadedTable &table : tables)
        if (table.key == key && table.source) return &table;
    return nullptr;
}

QStringList CardSource::yieldKeys() const {
    QStringList keys;
    for (const QString &key : YieldKeys)
        if (table(key)) keys << key;
    return keys;
}

QStringList CardSource::bands(const QString &key) const {
    QStringList headings;
    const LoadedTable *banded = table(key);
    for (int band = 1; banded && band < banded->bands.size(); ++band)
        headings << banded->columns[band].heading.simplified();
    return headings;
}

int CardSource::bandOf(const QString &key, double thickness) const {
    const LoadedTable *banded = table(key);
    return banded ? ThicknessBands{banded->bands}.of(thickness) : 0;
}

CardSource CardSource::read(Database &database, qint16 id) {
    const auto material = Grades::material(database, id);
    CardSource source;
    source.grade = Grades::of(*material);
    source.standardRevision = material->StandardRevisionDate().date();
    const QFileInfo file(database.Name());
    source.database = file.fileName();
    source.databaseDate = file.lastModified().date();
    GradeTables tables(database);
    for (const QString &key : QStringList{"ModElast", "ThermExp", "ThermCond", "SpecThermCap"} + YieldKeys)
        source.tables << tables.load(*material, key);
    return source;
}
