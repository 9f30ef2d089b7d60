// The distinct texts of a table's cells, each taken apart once: a table of a million cells has a few
// thousand.
#pragma once

#include <vector>

#include <QByteArray>
#include <QHash>
#include <QString>

#include "design/number_flags.h"
#include "platform/dao/row_cells.h"

/// What the arithmetic of the design values needs of a cell.
struct CellText {
    QString text;
    /// There is a number in it, were it one that does not convert.
    bool hasNumber = false;
    /// The number as it shows at a row's own temperature; NaN where there is none, or more than one.
    double shown = 0;
    /// The number that a line is drawn from; NaN where it does not convert.
    double converted = 0;
    /// The text as a temperature in °C, in both precisions that are computed with; NaN where it is none.
    float celsius = 0;
    double exactCelsius = 0;
    /// It counts as no value in a creep table.
    bool isEmptyCreep = false;
};

class CellTexts {
public:
    using Id = quint32;
    /// Of the empty text, which Null is.
    static constexpr Id Empty = 0;

    explicit CellTexts(const NumberFlags &flags);

    /// No cell has it.
    static constexpr Id Unknown = ~Id(0);

    Id id(const RowCells &row, qsizetype position);
    Id known(const QString &text) const { return m_ids.value(text, Unknown); }
    const CellText &operator[](Id id) const { return m_texts[id]; }

private:
    Id idOf(const QString &text);
    Id idOfNumber(const QVariant &cell);

    NumberFlags m_flags;
    std::vector<CellText> m_texts;
    QHash<QString, Id> m_ids;
    /// Of texts in UTF-8 and of numbers by their bits: making a text of each cell would take longer than
    /// reading it.
    QHash<QByteArray, Id> m_stored;
    QHash<quint64, Id> m_singles;
    QHash<quint64, Id> m_doubles;
};
