#include "values/value_table_reader.h"

#include <algorithm>
#include <limits>

#include "data/queries.h"
#include "data/table_vocabulary.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"
#include "platform/runtime/conversions.h"
#include "platform/runtime/runtime_error.h"
#include "values/grade_rows.h"
#include "values/property.h"

namespace {

const QString CreepTableKey = QStringLiteral("CreepProp");

constexpr qint64 RowsBetweenTellings = 4096;

struct CalledOff {};

/// The rows of all grades, first as they come and then grade by grade.
template <class Row>
class RowsOfGrades {
public:
    explicit RowsOfGrades(int grades)
        : m_ends(static_cast<std::size_t>(grades) + 1) {}

    void add(int grade, const Row &row) {
        m_rows.push_back({grade, row});
        ++m_ends[static_cast<std::size_t>(grade) + 1];
    }

    /// Calls `each` with a grade and its rows; forgets them all.
    template <class Each>
    void take(Each each) {
        for (std::size_t grade = 1; grade < m_ends.size(); ++grade)
            m_ends[grade] += m_ends[grade - 1];
        std::vector<Row> sorted(m_rows.size());
        std::vector<std::size_t> next = m_ends;
        for (const auto &[grade, row] : m_rows)
            sorted[next[static_cast<std::size_t>(grade)]++] = row;
        m_rows = {};
        for (std::size_t grade = 0; grade + 1 < m_ends.size(); ++grade)
            if (m_ends[grade] < m_ends[grade + 1])
                each(static_cast<int>(grade),
                     std::span(sorted).subspan(m_ends[grade], m_ends[grade + 1] - m_ends[grade]));
    }

private:
    std::vector<std::pair<int, Row>> m_rows;
    /// Where the rows of a grade end and those of the next one begin.
    std::vector<std::size_t> m_ends;
};

/// Null comes first.
double orderOf(const QVariant &cell) {
    return IsNull(cell) ? -std::numeric_limits<double>::infinity() : CDbl(cell);
}

class Reading {
public:
    Reading(Database &database, const GradeList &grades, const QString &key, const NumberFlags &flags,
            const ValueTables::Progress &progress)
        : m_database(database)
        , m_grades(grades)
        , m_key(key)
        , m_progress(progress)
        , m_table(std::make_unique<ValueTable>(grades.count(), flags)) {}

    std::unique_ptr<ValueTable> run() {
        if (m_key == CreepTableKey)
            readCreep();
        else
            readTemperatures();
        m_table->finish();
        return std::move(m_table);
    }

private:
    /// Calls `each` with the place of the grade in the list and the cells behind that of its identity.
    template <class Each>
    void rows(const QString &name, const QStringList &columns, Each each) {
        const qint64 count = m_progress ? m_database.RowCount(name) : 0;
        qint64 read = 0;
        m_database.ReadRows(name, QStringList{"matID"} + columns, [&](const RowCells &cells) {
            if (m_progress && read++ % RowsBetweenTellings == 0 && !m_progress(read, std::max(read, count)))
                throw CalledOff();
            const int grade = IsNull(cells[0]) ? -1 : m_grades.indexOf(CLng(cells[0]));
            if (grade >= 0) each(grade, cells);
        });
        if (m_progress && !m_progress(read, read)) throw CalledOff();
    }

    template <class Row, class Make>
    void set(RowsOfGrades<Row> &read, Make make) {
        read.take([&](int grade, std::span<Row> rows) {
            try {
                const GradeRows::Table table = make(grade, rows);
                if (!table.rows.empty()) m_table->set(grade, table.heads, table.rows);
            } catch (const RuntimeError &) {
                m_table->setFault(grade);
            }
        });
    }

    void readTemperatures() {
        const bool elevated = TableVocabulary::isElevated(m_key);
        QStringList fields;
        for (const TableVocabulary::Column &column : TableVocabulary::find(m_key)->columns)
            fields << QString::fromUtf16(column.field);
        RowsOfGrades<TemperatureRow> read(m_grades.count());
        CellTexts &texts = m_table->texts();
        bool areNumbers = false;
        const qsizetype first = elevated ? 4 : 2;
        const QStringList before =
            elevated ? QStringList{"temp", "thickness", "ordering"} : QStringList{"temp"};
        rows(m_key, before + fields, [&](int grade, const RowCells &cells) {
            TemperatureRow row;
            row.temperature = texts.id(cells, 1);
            if (elevated) {
                row.thickness = IsNull(cells[2]) ? TemperatureRow::NullThickness : CLng(cells[2]);
                row.ordering = orderOf(cells[3]);
            }
            for (qsizetype i = first; i < cells.size(); ++i)
                row.cells[i - first] = texts.id(cells, i);
            const qsizetype last = cells.size() - 1;
            areNumbers = areNumbers || (!cells.text(last) && !IsNull(cells[last]));
            read.add(grade, row);
        });
        set(read, [&](int, std::span<TemperatureRow> ofGrade) {
            return elevated ? GradeRows::elevated(ofGrade, m_key, areNumbers, texts)
                            : GradeRows::physical(ofGrade, fields, texts);
        });
    }

    void readCreep() {
        RowsOfGrades<CreepCell> read(m_grades.count());
        CellTexts &texts = m_table->texts();
        rows(Queries::cellTable(m_key), {"rowNo", "ordering", "val"}, [&](int grade, const RowCells &cells) {
            read.add(grade, {orderOf(cells[1]), orderOf(cells[2]), texts.id(cells, 3)});
        });
        set(read, [&](int grade, std::span<CreepCell> cells) {
            return GradeRows::creep(cells, creepColumns(m_grades.standardID(grade)), texts);
        });
    }

    const QStringList &creepColumns(int stID) {
        const auto known = m_creepColumns.constFind(stID);
        if (known != m_creepColumns.constEnd()) return *known;
        return *m_creepColumns.insert(stID, Properties::creepColumns(m_database, stID));
    }

    Database &m_database;
    const GradeList &m_grades;
    QString m_key;
    const ValueTables::Progress &m_progress;
    std::unique_ptr<ValueTable> m_table;
    /// By the standard.
    QHash<int, QStringList> m_creepColumns;
};

} // namespace

std::unique_ptr<ValueTable> ValueTables::read(Database &database, const GradeList &grades, const QString &key,
                                              const NumberFlags &flags, const Progress &progress) {
    try {
        return Reading(database, grades, key, flags, progress).run();
    } catch (const CalledOff &) {
        return nullptr;
    }
}
