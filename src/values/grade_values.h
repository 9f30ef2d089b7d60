// The tables over temperature of one grade, and any cell of its design values.
#pragma once

#include <map>
#include <memory>

#include <QVector>

#include "data/grades.h"
#include "data/source_array.h"
#include "design/number_flags.h"
#include "values/design_row.h"
#include "values/property.h"
#include "values/thickness_bands.h"

class Database;

/// One cell of the design values.
struct ValueCell {
    /// The heading of its thickness band; empty without bands.
    QString band;
    /// With its decoration; "-" below and "+" above the table's temperatures, "x" without a value.
    QString text;
    /// The number in the text, if there is one.
    std::optional<double> value;
};

/// What one property has at one temperature: a cell, or one for each thickness band.
struct ValueCells {
    QVector<ValueCell> cells;
    /// A sentence that tells why there is none, or that further ones cannot be computed.
    QString reason;

    /// A line a cell, with the band's heading before it where there are several.
    QString text() const;
};

/// A column of a grade: a property, and where the table has bands one of these.
struct ValueColumn {
    Property property;
    /// In the source array of its table.
    int column = 0;
    /// The heading of its thickness band; empty without bands.
    QString band;
};

/// A table over temperature as it was loaded.
struct ValueSource {
    SourceArray source;
    /// A row each, as they are in the database; those of a creep table are texts.
    QVector<QVariant> temperatures;
    /// The same in °C, NaN for what is no number.
    QVector<float> celsius;
    ThicknessBands bands;
    /// Of each column of the source from 1, as Property::column has it; one for all bands.
    QStringList columns;
};

class GradeValues {
public:
    /// Loads all tables that may have design values, once. `flags` are those of the system.
    ///
    /// Raises what Grades::material and GradeTables::load raise.
    GradeValues(Database &database, const Grades::Grade &grade,
                const NumberFlags &flags = NumberFlags::fromSystem());

    const Grades::Grade &grade() const { return m_grade; }

    /// nullptr where the grade has no such table.
    const ValueSource *source(const Property &property) const;
    /// Those of the thickness, or of all bands without one; none where the grade does not have the property.
    QVector<ValueColumn> columns(const Property &property,
                                 std::optional<double> thickness = std::nullopt) const;

    /// Why there are none.
    QString missing(const Property &property, std::optional<double> thickness) const;

    /// `temperature` as TypedTexts::temperature gives it, `thickness` in mm. A cell that cannot be computed
    /// is told as the reason. Raises 6 for a temperature beyond a single.
    ValueCells at(const Property &property, const QString &temperature,
                  std::optional<double> thickness = std::nullopt) const;
    /// Without a text where it cannot be computed.
    ValueCell cell(const ValueColumn &column, const QString &temperature) const;

    /// One of the table's rows has this temperature.
    bool hasRow(const Property &property, const QString &temperature) const;

private:
    const DesignRow &row(const QString &key, const QString &temperature) const;

    Grades::Grade m_grade;
    NumberFlags m_flags;
    std::map<QString, ValueSource> m_tables;
    /// The last one asked for of each table.
    struct KeptRow {
        QString temperature;
        DesignRow row;
    };
    mutable std::map<QString, KeptRow> m_rows;
};
