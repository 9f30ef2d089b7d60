// What the page of a table must show of a grade, put together from the texts that the sample was made from.
#pragma once

#include <algorithm>
#include <functional>

#include <QHash>
#include <QMap>
#include <QStringList>

#include "tests/support/csv_table.h"

/// The columns that are seen, and the rows in the order of the screen.
struct SamplePage {
    QStringList headings;
    QList<QStringList> rows;

    bool operator==(const SamplePage &) const = default;
};

/// Reads each text once.
class SamplePages {
public:
    using Row = QMap<QString, QVariant>;
    using Rows = QList<Row>;
    /// `folder` holds a .csv for each table; `cell` makes the text of a value.
    SamplePages(const QString &folder, std::function<QString(const QVariant &)> cell)
        : m_folder(folder)
        , m_cell(std::move(cell)) {}

    Row grade(int matID) { return where("materials", {{"matID", matID}}).value(0); }
    Row standardOf(int matID) {
        return where("standard", {{"standard", grade(matID).value("standard")}}).value(0);
    }

    SamplePage page(int matID, const QString &key) {
        if (key == "ChemComp") return composition(matID);
        if (key == "MechProp")
            return unbound(matID, key, where("MechMatTable", {{"matID", matID}}), "MechPropData");
        if (key == "CreepProp")
            return withoutEmptyColumns(
                unbound(matID, key, where("CreepPropTable", {{"stID", standardOf(matID).value("stID")}}),
                        "CreepProperties"));
        return overTemperature(matID, key);
    }

    /// The texts of the notes panel, a line each.
    QString notes(int matID, const QString &key) {
        QStringList lines;
        for (const Row &row : sorted(notesOf(matID, key), {"ordering"}))
            lines << text(where("TableNotes", {{"notID", row["notID"]}, {"tableName", key}}).value(0),
                          "notTxt");
        const Row standard = standardOf(matID);
        if (key == "ChemComp" && standard.value("otherElem").toBool()) {
            const QString other =
                text(where("OtherElem", {{"mID", matID}, {"stID", standard["stID"]}}).value(0), "other");
            if (!other.isEmpty() && other != "-")
                lines = QStringList{"Other Elements - " + other, ""} + lines;
            if (lines.size() == 2) lines << "";
        }
        return lines.join('\n');
    }

    /// Titles with their paragraphs; those without a title come last.
    QString additionalInfo(int matID) {
        QString titled, loose;
        QVariant last = 0;
        QString title;
        const Rows rows = sorted(where("GetInfo", {{"matID", matID}}), {"titleID", "ordering"});
        for (const Row &row : rows) {
            if (row["titleID"] != last) {
                last = row["titleID"];
                title = text(where("InfoTitle", {{"titleID", last}}).value(0), "titleText");
                if (title == "[NoTitle]") title.clear();
                if (!title.isEmpty()) titled += (titled.isEmpty() ? "" : "\n\n") + title + '\n';
            }
            (title.isEmpty() ? loose : titled) += '\n' + text(row, "InfoText");
        }
        return rows.isEmpty() ? QString() : titled + "\n\n" + loose;
    }

    QStringList productForms(int matID) {
        QStringList names;
        for (const Row &row : where("StandProdForm", {{"stID", standardOf(matID).value("stID")}}))
            names << text(where("ProdForm", {{"prodFID", row["prodFID"]}}).value(0), "productForm");
        names.sort(Qt::CaseInsensitive);
        return names;
    }

    QString text(const Row &row, const QString &field) const { return m_cell(row.value(field)); }

private:
    Rows where(const QString &table, const Row &wanted) {
        Rows found;
        for (const Row &row : rowsOf(table))
            if (std::all_of(wanted.keyBegin(), wanted.keyEnd(),
                            [&](const QString &field) { return row[field] == wanted[field]; }))
                found << row;
        return found;
    }

    static Rows sorted(Rows rows, const QStringList &fields) {
        std::stable_sort(rows.begin(), rows.end(), [&](const Row &a, const Row &b) {
            for (const QString &field : fields)
                if (a[field] != b[field]) return a[field].toDouble() < b[field].toDouble();
            return false;
        });
        return rows;
    }

    Rows notesOf(int matID, const QString &key) {
        return where("MatNotes", {{"matID", matID}, {"tableName", key}});
    }

    SamplePage composition(int matID) {
        const Row of = grade(matID);
        const Rows limits = sorted(
            where("Chemical", {{"standard", of["standard"]}, {"name", of["name"]}, {"numbr", of["numbr"]}}),
            {"elemID"});
        const bool marked = !notesOf(matID, "ChemComp").isEmpty();
        SamplePage page{{""}, {{"min"}, {"max"}}};
        for (qsizetype i = 0; i + 1 < limits.size(); i += 2) {
            page.headings << text(limits[i + 1], "element") + "\r\n\r\n" +
                                 (marked ? text(limits[i + 1], "note") : QString());
            page.rows[0] << text(limits[i], "val");
            page.rows[1] << text(limits[i + 1], "val");
        }
        return limits.isEmpty() ? SamplePage{{""}, {}} : page;
    }

    SamplePage unbound(int matID, const QString &key, const Rows &definitions, const QString &cells) {
        const Rows values = sorted(where(cells, {{"matID", matID}}), {"rowNo", "ordering"});
        if (values.isEmpty()) return {};
        const bool marked = !notesOf(matID, key).isEmpty();
        SamplePage page;
        for (const Row &column : sorted(definitions, {"ordering"})) {
            const Row named = where("Columns", {{"colID", column["colID"]}}).value(0);
            const QString unit = text(where("Units", {{"unitID", named["unitID"]}}).value(0), "unitTxt");
            page.headings << QStringList{text(named, "colTxt"), marked ? text(column, "note") : QString(),
                                         unit == "[NoUnit]" ? QString() : unit, text(column, "minMax")}
                                 .join("\r\n");
        }
        for (const Row &value : values) {
            if (page.rows.isEmpty() || page.rows.last().size() == page.headings.size())
                page.rows << QStringList();
            page.rows.last() << text(value, "val");
        }
        return page;
    }

    static SamplePage withoutEmptyColumns(SamplePage page) {
        for (qsizetype column = page.headings.size() - 1; column >= 0; --column) {
            if (std::any_of(page.rows.begin(), page.rows.end(), [&](const QStringList &row) {
                    return !QStringList{"", " ", "-"}.contains(row[column]);
                }))
                continue;
            page.headings.removeAt(column);
            for (QStringList &row : page.rows)
                row.removeAt(column);
        }
        return page;
    }

    SamplePage overTemperature(int matID, const QString &key) {
        Rows rows = where(key, {{"matID", matID}});
        if (rows.isEmpty()) return {};
        const bool elevated = rows[0].contains("thickness");
        rows = sorted(rows, elevated ? QStringList{"thickness", "ordering"} : QStringList{"temp"});
        if (elevated && rows[0]["thickness"] != -1) return banded(key, rows);
        static const QHash<QString, QList<std::pair<QString, QString>>> Columns = {
            {"ImpEnergy",
             {{"kv", "KV\r\n\r\n[Joule]"},
              {"kvLong", "KVL\r\n\r\n[Joule]"},
              {"kvTrans", "KVT\r\n\r\n[Joule]"}}},
            {"Rp02", {{"Rp02", "Rp0,2 \r\n\r\n[MPa]"}}},
            {"Rp10", {{"Rp10", "Rp1,0 \r\n\r\n[MPa]"}}},
            {"Rm", {{"Rm", "Rm \r\n\r\n[MPa]"}}},
            {"ModElast", {{"ModElast", "KN \r\n\r\n/ mm²"}}},
            {"ThermExp",
             {{"ThermExp", "ß20, t\r\n\r\n[E-6/K]"}, {"ThermExpDiff", "ßdiff, t\r\n\r\n[E-6/K]"}}},
            {"ThermCond", {{"ThermCond", "W \r\n\r\n/ (m x K)"}}},
            {"SpecThermCap",
             {{"SpecThermCap", "Cp20, t\r\n\r\n[J/kgK]"}, {"SpecThermCapDiff", "Cp diff, t\r\n\r\n[J/kgK]"}}},
            {"SpecElecRes", {{"SpecElecRes", "Ohm x mm² \r\n\r\n/ m"}}},
        };
        SamplePage page{{TemperatureHeading}, {}};
        for (const Row &row : rows)
            page.rows << QStringList{text(row, "temp")};
        for (const auto &[field, heading] : Columns[key]) {
            const bool empty = std::all_of(rows.begin(), rows.end(), [&, name = field](const Row &row) {
                return text(row, name).isEmpty() || text(row, name) == "-";
            });
            if (key == "ImpEnergy" && empty) continue;
            page.headings << heading;
            for (qsizetype i = 0; i < rows.size(); ++i)
                page.rows[i] << text(rows[i], field);
        }
        return page;
    }

    SamplePage banded(const QString &key, const Rows &rows) {
        QList<int> limits;
        for (const Row &row : rows)
            if (!limits.contains(row["thickness"].toInt())) limits << row["thickness"].toInt();
        QMap<int, QStringList> byOrdering;
        for (const Row &row : rows) {
            QStringList &cells = byOrdering[row["ordering"].toInt()];
            if (cells.isEmpty()) cells = QStringList{text(row, "temp")} + QStringList(limits.size());
            cells[1 + limits.indexOf(row["thickness"].toInt())] = text(row, key);
        }
        SamplePage page{{TemperatureHeading}, byOrdering.values()};
        for (qsizetype i = 0; i < limits.size(); ++i)
            page.headings << QStringLiteral("(%1) - \r\n\r\n%2mm")
                                 .arg(i == 0 ? QStringLiteral("   ") : QString::number(limits[i - 1]))
                                 .arg(limits[i]);
        return page;
    }

    const Rows &rowsOf(const QString &table) {
        Rows &rows = m_tables[table];
        if (!rows.isEmpty()) return rows;
        const CsvTable read = CsvTable::read(m_folder + '/' + table + ".csv");
        for (const QVector<QVariant> &values : read.rows) {
            Row row;
            for (qsizetype i = 0; i < values.size(); ++i)
                row[read.fields[i].name] = values[i];
            rows << row;
        }
        return rows;
    }

    inline static const QString TemperatureHeading = QStringLiteral("Temperature \r\n\r\n[°C]");
    QString m_folder;
    std::function<QString(const QVariant &)> m_cell;
    QHash<QString, Rows> m_tables;
};
