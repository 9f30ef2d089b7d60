// Makes small Access 97 files.
#pragma once

#include <QDateTime>
#include <QPair>
#include <QVariant>
#include <QVector>

#include "tests/dao/mdb_pages.h"

class Jet3File {
public:
    enum class Type { Boolean = 1, Byte, Integer, Long, Money, Single, Double, Date, Text = 10, Ole, Memo };
    using Columns = QVector<QPair<QByteArray, Type>>;
    using Rows = QVector<QVector<QVariant>>;

    /// A file with one table, which fits in a page.
    static QByteArray make(const QByteArray &table, const Columns &columns, const Rows &rows) {
        const Columns catalog = {{"Id", Type::Long},
                                 {"Name", Type::Text},
                                 {"Type", Type::Integer},
                                 {"Flags", Type::Long},
                                 {"LvProp", Type::Ole}};
        const Rows objects = {{TablePage, QString(table), 1, 0, QVariant()}};
        return header() + usageMaps() + definition(catalog, objects.size(), 0) +
               data(CatalogPage, catalog, objects) + definition(columns, rows.size(), 1) +
               data(TablePage, columns, rows);
    }

private:
    static constexpr qsizetype PageSize = 2048;
    static constexpr int MapPage = 1;
    static constexpr int CatalogPage = 2; // by definition
    static constexpr int TablePage = 4;

    template <typename Number>
    static QByteArray word(Number value) {
        QByteArray bytes(sizeof value, '\0');
        qToLittleEndian(value, bytes.data());
        return bytes;
    }

    static QByteArray header() {
        QByteArray page(PageSize, '\0');
        page.replace(0, 20, QByteArray("\0\1\0\0Standard Jet DB\0", 20));
        mdbPages::put(page, 0x3c, quint16(1252));
        mdbPages::cipher(page, 0x18, 126, mdbPages::HeaderKey);
        return page;
    }

    /// The pages behind each definition, and no free ones.
    static QByteArray usageMaps() {
        const auto map = [](quint32 first, char bits) {
            return QByteArray(1, '\0') + word(first) + QByteArray(1, bits) + QByteArray(63, '\0');
        };
        return pageOfRows(0, {map(CatalogPage + 1, 1), map(TablePage + 1, 1), map(0, 0)});
    }

    static QByteArray pageOfRows(int owner, const QVector<QByteArray> &rows) {
        QByteArray head = QByteArray("\1\1\0\0", 4) + word(quint32(owner)) + word(quint16(rows.size()));
        QByteArray content;
        for (const QByteArray &row : rows) {
            content = row + content;
            head += word(quint16(PageSize - content.size()));
        }
        if (head.size() + content.size() > PageSize) throw std::runtime_error("rows do not fit in a page");
        return head + QByteArray(PageSize - head.size() - content.size(), '\0') + content;
    }

    static bool isFixed(Type type) { return type < Type::Text; }

    static quint16 sizeOf(Type type) {
        static constexpr quint16 sizes[] = {0, 0, 1, 2, 4, 8, 4, 8, 8, 0, 255, 0, 0};
        return sizes[static_cast<int>(type)];
    }

    static QByteArray definition(const Columns &columns, qsizetype rows, int map) {
        quint16 variable = 0;
        quint16 offset = 0;
        QByteArray entries;
        QByteArray names;
        for (qsizetype i = 0; i < columns.size(); ++i) {
            const Type type = columns[i].second;
            QByteArray entry(18, '\0');
            entry[0] = static_cast<char>(type);
            mdbPages::put(entry, 1, quint16(i));
            mdbPages::put(entry, 3, isFixed(type) ? quint16(0) : variable++);
            mdbPages::put(entry, 5, quint16(i));
            entry[13] = static_cast<char>(isFixed(type));
            mdbPages::put(entry, 14, isFixed(type) ? offset : quint16(0));
            mdbPages::put(entry, 16, sizeOf(type));
            if (isFixed(type)) offset = static_cast<quint16>(offset + sizeOf(type));
            entries += entry;
            names += static_cast<char>(columns[i].first.size()) + columns[i].first;
        }
        QByteArray page(43, '\0');
        page[0] = 2;
        page[1] = 1;
        mdbPages::put(page, 12, quint32(rows));
        page[20] = 'N';
        mdbPages::put(page, 21, quint16(columns.size()));
        mdbPages::put(page, 23, variable);
        mdbPages::put(page, 25, quint16(columns.size()));
        mdbPages::put(page, 35, quint32(MapPage << 8 | map));
        mdbPages::put(page, 39, quint32(MapPage << 8 | 2));
        page += entries + names;
        page.resize(PageSize, '\0');
        return page;
    }

    static QByteArray data(int owner, const Columns &columns, const Rows &rows) {
        QVector<QByteArray> stored;
        for (const QVector<QVariant> &row : rows)
            stored.append(rowBytes(columns, row));
        return pageOfRows(owner, stored);
    }

    static QByteArray cellBytes(Type type, const QVariant &cell) {
        switch (type) {
        case Type::Byte:
            return word(quint8(cell.toInt()));
        case Type::Integer:
            return word(qint16(cell.toInt()));
        case Type::Long:
            return word(qint32(cell.toInt()));
        case Type::Money:
            return word(qint64(qRound64(cell.toDouble() * 10000)));
        case Type::Single:
            return word(cell.toFloat());
        case Type::Double:
            return word(cell.toDouble());
        case Type::Date: {
            const qint64 days = QDate(1899, 12, 30).daysTo(cell.toDate());
            const double part = cell.toTime().msecsSinceStartOfDay() / 86400000.0;
            return word(days < 0 ? double(days) - part : double(days) + part);
        }
        case Type::Memo:
            return word(quint32(codePage(cell.toString()).size()) | 0x80000000u) + QByteArray(8, '\0') +
                   codePage(cell.toString());
        default:
            return codePage(cell.toString());
        }
    }

    static QByteArray codePage(const QString &text) {
        return QString(text).replace(QChar(0x20ac), QChar(0x80)).toLatin1(); // the euro sign in Windows-1252
    }

    static QByteArray rowBytes(const Columns &columns, const QVector<QVariant> &row) {
        QByteArray mask((columns.size() + 7) / 8, '\0');
        QByteArray fixed(1, static_cast<char>(columns.size()));
        QByteArray variable;
        QVector<qsizetype> starts;
        for (qsizetype i = 0; i < columns.size(); ++i) {
            const Type type = columns[i].second;
            const bool set = type == Type::Boolean ? row[i].toBool() : row[i].isValid();
            if (set) mask[i / 8] = static_cast<char>(mask[i / 8] | 1 << i % 8);
            if (isFixed(type))
                fixed += set ? cellBytes(type, row[i]).left(sizeOf(type)) : QByteArray(sizeOf(type), 0);
            if (isFixed(type)) continue;
            starts.append(variable.size());
            if (set) variable += cellBytes(type, row[i]);
        }
        starts.append(variable.size());
        return fixed + variable + offsetTable(fixed.size(), starts, mask.size()) + mask;
    }

    /// Offsets of one byte from last to first, the jumps of those that begin again at zero, the number of
    /// cells.
    static QByteArray offsetTable(qsizetype base, const QVector<qsizetype> &starts, qsizetype maskSize) {
        QByteArray offsets;
        QByteArray jumps;
        for (qsizetype i = 0; i < starts.size(); ++i) {
            const qsizetype offset = base + starts[i];
            offsets = static_cast<char>(offset) + offsets;
            while (jumps.size() < offset / 256)
                jumps = static_cast<char>(i) + jumps;
        }
        // Their number goes by the row's whole size, itself among it.
        const qsizetype rest = base + starts.last() + offsets.size() + 1 + maskSize;
        while (jumps.size() < (rest + jumps.size() - 1) / 256)
            jumps = '\xff' + jumps;
        return offsets + jumps + static_cast<char>(starts.size() - 1);
    }
};
