// The values of the sample, worked out from its texts by whole numbers and with nothing of the program.
#pragma once

#include <map>
#include <optional>

#include <QRegularExpression>

#include "tests/support/csv_table.h"

class PlainSample {
public:
    /// Of a temperature in tenths of a degree.
    struct Value {
        /// In thousandths.
        qint64 number = 0;
        /// The upper limit of the band, -1 without bands.
        int band = -1;
    };
    enum class Missing { BeginsAbove, EndsBelow, NoValue, NoTable, NoBand };
    struct Values {
        std::vector<Value> values;
        Missing missing = Missing::NoTable;
    };

    /// `name` is that of a property.
    Values at(const QString &name, int grade, int tenths, std::optional<double> thickness) {
        const std::map<int, Curve> &bands = curves(name)[grade];
        if (bands.empty()) return {};
        if (!thickness || bands.begin()->first == -1) return ofAll(bands, tenths);
        const auto band = bands.lower_bound(static_cast<int>(std::ceil(*thickness)));
        if (band == bands.end()) return {{}, Missing::NoBand};
        return ofAll({*band}, tenths);
    }

private:
    /// By the temperature in tenths; in thousandths, nothing for a cell without a number.
    using Curve = std::map<int, std::optional<qint64>>;
    /// By the upper limit.
    using Grade = std::map<int, Curve>;

    static CsvTable table(const QString &name) {
        return CsvTable::read(SOURCE_FOLDER "/sample/csv/" + name + ".csv");
    }

    static std::optional<qint64> thousandths(const QVariant &cell) {
        static const QRegularExpression form("([0-9]+)(?:[,.]([0-9]+))?");
        const auto match = form.match(cell.toString());
        if (!match.hasMatch()) return std::nullopt;
        return match.captured(1).toLongLong() * 1000 + match.captured(2).leftJustified(3, '0').toLongLong();
    }

    static int tenths(const QVariant &temperature) {
        return static_cast<int>(*thousandths(temperature) / 100);
    }

    static Values ofAll(const Grade &bands, int at) {
        Values found;
        for (const auto &[band, curve] : bands) {
            if (at < curve.begin()->first) return {{}, Missing::BeginsAbove};
            if (at > curve.rbegin()->first) return {{}, Missing::EndsBelow};
            if (const auto number = onCurve(curve, at)) found.values.push_back({*number, band});
        }
        found.missing = Missing::NoValue;
        return found;
    }

    static std::optional<qint64> onCurve(const Curve &curve, int at) {
        const auto upper = curve.lower_bound(at);
        if (upper->first == at) return upper->second;
        const auto lower = std::prev(upper);
        if (!lower->second || !upper->second) return std::nullopt;
        const qint64 width = upper->first - lower->first;
        // Hundredths, a half up: none of these values is negative.
        const qint64 sum = *lower->second * width + (at - lower->first) * (*upper->second - *lower->second);
        return (sum + 5 * width) / (10 * width) * 10;
    }

    std::map<int, Grade> &curves(const QString &name) {
        std::map<int, Grade> &kept = m_curves[name];
        if (kept.empty()) kept = name.startsWith("CreepProp") ? creep(name.section('/', 1)) : bound(name);
        return kept;
    }

    static std::map<int, Grade> bound(const QString &name) {
        const QString key = name.section('/', 0, 0);
        const QString column = name.contains('/') ? name.section('/', 1) : key;
        const CsvTable rows = table(key);
        const int value = fieldIndex(rows.fields, column);
        const int thickness = fieldIndex(rows.fields, "thickness");
        std::map<int, Grade> grades;
        for (const auto &row : rows.rows)
            grades[row[0].toInt()][thickness < 0 ? -1 : row[thickness].toInt()][tenths(row[1])] =
                thousandths(row[value]);
        // A band has a gap where only another one has a row.
        for (auto &[id, bands] : grades) {
            std::map<int, std::optional<qint64>> gaps;
            for (const auto &[band, curve] : bands)
                for (const auto &row : curve)
                    gaps[row.first] = std::nullopt;
            for (auto &[band, curve] : bands)
                curve.insert(gaps.begin(), gaps.end());
        }
        return grades;
    }

    static std::map<int, Grade> creep(const QString &text) {
        const CsvTable columns = table("Columns");
        std::map<int, QString> texts;
        for (const auto &row : columns.rows)
            texts[row[0].toInt()] = row[1].toString();
        std::map<std::pair<int, int>, int> temperatures;
        const CsvTable cells = table("CreepProperties");
        for (const auto &cell : cells.rows)
            if (texts[cell[3].toInt()] == "Temperature")
                temperatures[{cell[0].toInt(), cell[1].toInt()}] = tenths(cell[4]);
        std::map<int, Grade> grades;
        std::map<int, bool> any;
        for (const auto &cell : cells.rows) {
            if (texts[cell[3].toInt()] != text) continue;
            const int grade = cell[0].toInt();
            grades[grade][-1][temperatures[{grade, cell[1].toInt()}]] = thousandths(cell[4]);
            any[grade] = any[grade] || !(cell[4].toString().isEmpty() || cell[4].toString() == "-");
        }
        // A column of nothing is no column.
        std::erase_if(grades, [&](const auto &grade) { return !any[grade.first]; });
        return grades;
    }

    std::map<QString, std::map<int, Grade>> m_curves;
};
