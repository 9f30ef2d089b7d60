// The lines of the table, by what they are about. Each call registers its benchmarks for one database.
#pragma once

#include <QString>

namespace Bench {

void addOpeningRows(const QString &database);
void addSearchRows(const QString &database);
void addTableRows(const QString &database);
void addDesignRows(const QString &database);
void addValueRows(const QString &database);
void addToolRows(const QString &database);
void addReportRows(const QString &database);
/// `sample` is the small database that the program comes with.
void addProcessRows(const QString &database, const QString &sample);

} // namespace Bench
