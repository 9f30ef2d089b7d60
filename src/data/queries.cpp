#include "data/queries.h"

namespace {

QString decimal(int number) {
    return QString::number(number);
}

// "head id", then "between id" for each further one
QString chain(const QString &head, const QString &between, const QVector<int> &ids) {
    QString sql = head;
    for (qsizetype i = 0; i < ids.size(); ++i)
        sql += (i > 0 ? between : QString()) + decimal(ids[i]);
    return sql;
}

QString pivot(const QString &aggregate, const QString &ordering, const QString &table, int matID) {
    return QStringLiteral("transform ") + aggregate + QLatin1Char('(') + table + QLatin1Char('.') + table +
           QStringLiteral(") select temp, ordering from ") + table + QStringLiteral(" where matID = ") +
           decimal(matID) + QStringLiteral(" group by temp, ordering order by ") + ordering +
           QStringLiteral(" pivot ") + table + QStringLiteral(".thickness");
}

} // namespace

QString Queries::sqlAllStandards() {
    return QStringLiteral("select * from standard order by standard");
}

QString Queries::sqlLatestRevision() {
    return QStringLiteral("select revision_date from standard order by revision_date desc");
}

QString Queries::sqlStandardForms(const QString &standard) {
    return QStringLiteral("select * from StandardProdForm where standard = '") + standard + QLatin1Char('\'');
}

QString Queries::sqlNoMaterial() {
    return QStringLiteral("select * from materials where matId = 0");
}

QString Queries::sqlNoMaterialCleared() {
    return QStringLiteral("select * from materials where matid = 0");
}

QString Queries::sqlInitialSelection() {
    return QStringLiteral("select * from Materials where matId = 0 order by matId");
}

QString Queries::sqlSelectedMaterials(const QVector<int> &ids) {
    return chain(QStringLiteral("select * from Materials where matId = "), QStringLiteral(" or matId = "),
                 ids);
}

QString Queries::sqlCompatibleGroups() {
    return QStringLiteral("SELECT * FROM CompatibleGroup ORDER BY groupName");
}

QString Queries::sqlStandardProdForms(int stID) {
    return QStringLiteral("select * from StandProdForm where stID = ") + decimal(stID);
}

QString Queries::sqlProdFormNames(const QVector<int> &prodFIDs) {
    return chain(QStringLiteral("select * from ProdForm where prodFID = "), QStringLiteral(" or prodFID = "),
                 prodFIDs) +
           QStringLiteral(" order by productForm");
}

QString Queries::sqlChemicalRows(const QString &standard, const QString &name, const QString &number) {
    return QStringLiteral("select * from Chemical where standard = '") + standard +
           QStringLiteral("' and name = '") + name + QStringLiteral("' and numbr = '") + number +
           QStringLiteral("' order by elemID");
}

QString Queries::sqlOtherElements(int matID, int stID) {
    return QStringLiteral("select other from OtherElem where mID = ") + decimal(matID) +
           QStringLiteral(" and stID = ") + decimal(stID);
}

QString Queries::sqlColumnDefinitions(const QString &table, const QString &key, int id) {
    return QStringLiteral("select * from ") + table + QStringLiteral(" where ") + key +
           QStringLiteral(" = ") + decimal(id) + QStringLiteral(" order by ordering");
}

QString Queries::cellTable(const QString &key) {
    return key == QLatin1String("CreepProp") ? QStringLiteral("CreepProperties")
                                             : QStringLiteral("MechPropData");
}

QString Queries::sqlCellRows(const QString &table, int matID) {
    return QStringLiteral("select * from ") + table + QStringLiteral(" where matID = ") + decimal(matID) +
           QStringLiteral(" order by rowNo, ordering");
}

QString Queries::sqlGraphColumnRows(const QString &table, int matID, int x, int y) {
    const auto column = [matID](int colID) {
        return QStringLiteral("matID = ") + decimal(matID) + QStringLiteral(" and  colID = ") +
               decimal(colID);
    };
    QString sql = QStringLiteral("select * from ") + table + QStringLiteral(" where ") + column(x);
    if (x == y) return sql + QStringLiteral(" order by rowNo");
    sql += QStringLiteral(" or ") + column(y);
    // the rows of x come first
    return sql +
           (x < y ? QStringLiteral(" order by colID, rowNo") : QStringLiteral(" order by colID DESC, rowNo"));
}

QString Queries::sqlTemperatureRows(const QString &table, int matID) {
    return QStringLiteral("select * from ") + table + QStringLiteral(" where matID = ") + decimal(matID) +
           QStringLiteral(" order by temp");
}

QString Queries::sqlElevatedRows(const QString &table, int matID) {
    return QStringLiteral("select * from ") + table + QStringLiteral(" where matID = ") + decimal(matID) +
           QStringLiteral(" order by thickness, ordering");
}

QString Queries::sqlElevatedPivot(const QString &table, int matID) {
    return pivot(QStringLiteral("max"), QStringLiteral("ordering"), table, matID);
}

QString Queries::sqlMaterialNotes(int matID, const QString &key) {
    return QStringLiteral("select * from MatNotes where matID = ") + decimal(matID) +
           QStringLiteral(" and tableName = '") + key + QStringLiteral("' order by ordering");
}

QString Queries::critTableNote(const QString &notID, const QString &key) {
    return QStringLiteral("notID=") + notID + QStringLiteral(" AND tableName='") + key + QLatin1Char('\'');
}

QString Queries::sqlAdditionalInfo(int matID) {
    return QStringLiteral("select * from GetInfo where matID = ") + decimal(matID) +
           QStringLiteral(" order by titleID, ordering");
}

QString Queries::sqlInfoTitles() {
    return QStringLiteral("select * from InfoTitle order by titleID");
}

QString Queries::sqlReportTemperatureRows(const QString &table, int matID) {
    return QStringLiteral("select * from ") + table + QStringLiteral(" where matID=") + decimal(matID) +
           QStringLiteral(" order by temp");
}

QString Queries::sqlReportPivot(const QString &table, int matID) {
    return pivot(QStringLiteral("MAX "), QStringLiteral("temp, ordering"), table, matID);
}

QString Queries::sqlPmaIndex() {
    return QStringLiteral("SELECT * FROM PMA_Index");
}

QString Queries::sqlPmaSorted(const QString &column, bool ascending) {
    return sqlPmaIndex() + QStringLiteral(" ORDER BY ") + column +
           (ascending ? QStringLiteral(" ASC") : QStringLiteral(" DESC"));
}

QString Queries::sqlPmaSearch(const QString &text) {
    static const QStringList columns = {
        QStringLiteral("Specification"),     QStringLiteral("Designationname"),
        QStringLiteral("Designationnumber"), QStringLiteral("Product"),
        QStringLiteral("Revision"),          QStringLiteral("Revisiondate"),
        QStringLiteral("Searchstring")};
    QStringList terms;
    for (const QString &column : columns)
        terms << column + QStringLiteral(" LIKE '*") + text + QStringLiteral("*'");
    return sqlPmaIndex() + QStringLiteral(" WHERE ") + terms.join(QStringLiteral(" OR "));
}
