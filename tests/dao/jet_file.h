// Makes small Access files of any version, byte by byte.
#pragma once

#include <iconv.h>

#include <QDateTime>
#include <QVariant>
#include <QVector>

#include "tests/dao/mdb_pages.h"

class JetFile {
public:
    enum class Version { Access97, Access2000, Access2007 };
    enum class Type {
        Boolean = 1,
        Byte,
        Integer,
        Long,
        Money,
        Single,
        Double,
        Date,
        Binary,
        Text,
        Ole,
        Memo,
        Guid = 15,
        Decimal,
        Complex = 18,
        LargeNumber,
        Unknown = 0x77
    };
    struct Column {
        QByteArray name;
        Type type = Type::Text;
        // Of a Decimal.
        quint8 precision = 0;
        quint8 scale = 0;
        bool calculated = false;
        /// Gone from the definition: its cells are still in the rows.
        bool deleted = false;
    };
    /// What the catalog lists besides the table.
    struct Object {
        QString name;
        int type = 0;
    };
    using Columns = QVector<Column>;
    using Rows = QVector<QVector<QVariant>>;

    /// How the file is written.
    struct Manner {
        int codePage = 1252; // of Access97
        QString password = {};
        quint32 pageKey = 0;
        /// Where the table's rows lie, if not behind its definition: the map then goes over pages of its own.
        int rowsPage = 0;
        /// The last column stands first in the definition.
        bool backwards = false;
    };

    explicit JetFile(Version version, const Manner &manner = {1252, {}, 0, 0, false})
        : m_version(version)
        , m_manner(manner) {}

    /// A file with one table, whose rows fit in a page. The cell of a Decimal is its text, that of a type
    /// without texts or numbers its bytes, as a Text's may be.
    QByteArray make(const QByteArray &table, const Columns &columns, const Rows &rows,
                    const QVector<Object> &others = {}) const {
        const Columns catalog = {{"Id", Type::Long},
                                 {"Name", Type::Text},
                                 {"Type", Type::Integer},
                                 {"Flags", Type::Long},
                                 {"LvProp", Type::Ole}};
        Rows objects = {{TablePage, QString(table), 1, 0, QVariant()}};
        for (const Object &other : others)
            objects.append({0, other.name, other.type, 0, QVariant()});
        QByteArray own = definition(columns, rows.size(), 1);
        const QByteArray further = furtherPages(own);
        QByteArray file = header() + usageMaps() + definition(catalog, objects.size(), 0) +
                          data(CatalogPage, catalog, objects) + own;
        const QByteArray content = data(TablePage, columns, rows);
        file += (m_manner.rowsPage == 0 ? content : mapPage()) + further;
        if (m_manner.rowsPage != 0) file = file.leftJustified(m_manner.rowsPage * pageSize(), '\0') + content;
        if (m_manner.pageKey == 0) return file;
        for (qsizetype page = 1; page < file.size() / pageSize(); ++page)
            mdbPages::cipher(file, page * pageSize(), pageSize(), m_manner.pageKey ^ quint32(page));
        return file;
    }

private:
    static constexpr int MapPage = 1;
    static constexpr int CatalogPage = 2; // by definition
    static constexpr int TablePage = 4;

    bool isJet3() const { return m_version == Version::Access97; }
    qsizetype pageSize() const { return isJet3() ? 2048 : 4096; }
    /// What counts rows, columns and cells.
    QByteArray count(qsizetype value) const { return word(quint16(value)).left(isJet3() ? 1 : 2); }

    template <typename Number>
    static QByteArray word(Number value) {
        QByteArray bytes(sizeof value, '\0');
        qToLittleEndian(value, bytes.data());
        return bytes;
    }

    QByteArray header() const {
        QByteArray page(pageSize(), '\0');
        page.replace(0, 20, QByteArray("\0\1\0\0Standard Jet DB\0", 20));
        if (m_version == Version::Access2007) page.replace(4, 15, "Standard ACE DB");
        page[0x14] = static_cast<char>(m_version);
        if (isJet3()) mdbPages::put(page, 0x3c, quint16(m_manner.codePage));
        mdbPages::put(page, 0x3e, m_manner.pageKey);
        const double creation = 35591.6; // a day, which is the mask of a password
        if (!isJet3()) mdbPages::put(page, 0x72, creation);
        for (qsizetype i = 0; !isJet3() && i < 40; i += 4)
            mdbPages::put(page, 0x42 + i, quint32(creation));
        const QByteArray password = text(m_manner.password);
        for (qsizetype i = 0; i < password.size(); ++i)
            page[0x42 + i] = static_cast<char>(page[0x42 + i] ^ password[i]);
        mdbPages::cipher(page, 0x18, isJet3() ? 126 : 128, mdbPages::HeaderKey);
        return page;
    }

    /// The pages behind each definition, and no free ones.
    QByteArray usageMaps() const {
        const auto map = [](quint32 first, char bits) {
            return QByteArray(1, '\0') + word(first) + QByteArray(1, bits) + QByteArray(63, '\0');
        };
        QByteArray own = map(TablePage + 1, 1);
        if (m_manner.rowsPage != 0) {
            own.fill('\0');
            own[0] = 1;
            mdbPages::put(own, 1 + 4 * (m_manner.rowsPage / pagesOfMapPage()), quint32(TablePage + 1));
        }
        return pageOfRows(0, {map(CatalogPage + 1, 1), own, map(0, 0)});
    }

    qsizetype pagesOfMapPage() const { return (pageSize() - 4) * 8; }

    QByteArray mapPage() const {
        QByteArray page = QByteArray("\5\1\0\0", 4).leftJustified(pageSize(), '\0');
        const qsizetype bit = m_manner.rowsPage % pagesOfMapPage();
        page[4 + bit / 8] = static_cast<char>(1 << bit % 8);
        return page;
    }

    QByteArray pageOfRows(int owner, const QVector<QByteArray> &rows) const {
        QByteArray head = QByteArray("\1\1\0\0", 4) + word(quint32(owner)) +
                          QByteArray(isJet3() ? 0 : 4, '\0') + word(quint16(rows.size()));
        QByteArray content;
        for (const QByteArray &row : rows) {
            content = row + content;
            head += word(quint16(pageSize() - content.size()));
        }
        if (head.size() + content.size() > pageSize()) throw std::runtime_error("rows do not fit in a page");
        return head + QByteArray(pageSize() - head.size() - content.size(), '\0') + content;
    }

    /// Cuts a definition off at its first page. Gives the pages in which it goes on, for the end of the file.
    QByteArray furtherPages(QByteArray &definition) const {
        QByteArray pages;
        QByteArray rest = definition.mid(pageSize());
        definition.resize(pageSize());
        quint32 next = TablePage + 2;
        if (!rest.isEmpty()) mdbPages::put(definition, 4, next);
        while (!rest.isEmpty()) {
            QByteArray page = QByteArray("\2\1\0\0\0\0\0\0", 8) + rest.left(pageSize() - 8);
            rest.remove(0, pageSize() - 8);
            if (!rest.isEmpty()) mdbPages::put(page, 4, ++next);
            pages += page.leftJustified(pageSize(), '\0');
        }
        return pages;
    }

    static bool isFixed(const Column &column) {
        if (column.calculated) return false;
        switch (column.type) {
        case Type::Guid:
        case Type::Decimal:
        case Type::Complex:
        case Type::LargeNumber:
            return true;
        default:
            return column.type < Type::Binary;
        }
    }

    quint16 sizeOf(const Column &column) const {
        switch (column.type) {
        case Type::Byte:
            return 1;
        case Type::Integer:
            return 2;
        case Type::Long:
        case Type::Single:
        case Type::Complex:
            return 4;
        case Type::Money:
        case Type::Double:
        case Type::Date:
        case Type::LargeNumber:
            return 8;
        case Type::Guid:
            return 16;
        case Type::Decimal:
            return 17;
        case Type::Text:
            return isJet3() ? 255 : 510;
        default:
            return 0;
        }
    }

    QByteArray definition(const Columns &columns, qsizetype rows, int map) const {
        quint16 variable = 0;
        quint16 offset = 0;
        QByteArray entries;
        QByteArray names;
        qsizetype present = 0;
        for (qsizetype i = 0; i < columns.size(); ++i) {
            const Column &column = columns[i];
            const quint16 place = isFixed(column) ? offset : variable;
            if (isFixed(column))
                offset = static_cast<quint16>(offset + sizeOf(column));
            else
                ++variable;
            if (column.deleted) continue;
            ++present;
            const QByteArray ownEntry = entry(column, quint16(i), place);
            entries = m_manner.backwards ? ownEntry + entries : entries + ownEntry;
            const QByteArray name = text(column.name);
            const QByteArray ownName = count(name.size()) + name;
            names = m_manner.backwards ? ownName + names : names + ownName;
        }
        const qsizetype at = isJet3() ? 12 : 16;     // of the number of rows
        const qsizetype counts = isJet3() ? 21 : 41; // of columns
        const qsizetype maps = isJet3() ? 35 : 55;
        QByteArray page(isJet3() ? 43 : 63, '\0');
        page[0] = 2;
        page[1] = 1;
        mdbPages::put(page, at, quint32(rows));
        page[counts - 1] = 'N';
        mdbPages::put(page, counts, quint16(columns.size()));
        mdbPages::put(page, counts + 2, variable);
        mdbPages::put(page, counts + 4, quint16(present));
        mdbPages::put(page, maps, quint32(MapPage << 8 | map));
        mdbPages::put(page, maps + 4, quint32(MapPage << 8 | 2));
        page += entries + names;
        return page.leftJustified(pageSize(), '\0');
    }

    /// `place` is the offset of a cell of fixed size, or its number among the others.
    QByteArray entry(const Column &column, quint16 number, quint16 place) const {
        QByteArray entry(isJet3() ? 18 : 25, '\0');
        entry[0] = static_cast<char>(column.type);
        mdbPages::put(entry, isJet3() ? 1 : 5, number);
        mdbPages::put(entry, isJet3() ? 3 : 7, isFixed(column) ? quint16(0) : place);
        mdbPages::put(entry, isJet3() ? 5 : 9, number);
        if (!isJet3()) {
            entry[11] = static_cast<char>(column.precision);
            entry[12] = static_cast<char>(column.scale);
            entry[16] = static_cast<char>(column.calculated ? 0xc0 : 0);
        }
        entry[isJet3() ? 13 : 15] = static_cast<char>(isFixed(column));
        mdbPages::put(entry, isJet3() ? 14 : 21, isFixed(column) ? place : quint16(0));
        mdbPages::put(entry, isJet3() ? 16 : 23, quint16(sizeOf(column) + (column.calculated ? 31 : 0)));
        return entry;
    }

    QByteArray data(int owner, const Columns &columns, const Rows &rows) const {
        QVector<QByteArray> stored;
        for (const QVector<QVariant> &row : rows)
            stored.append(rowBytes(columns, row));
        return pageOfRows(owner, stored);
    }

    QByteArray cellBytes(const Column &column, const QVariant &cell) const {
        switch (column.type) {
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
        case Type::Decimal:
            return decimal(cell.toString(), column.scale);
        case Type::Text:
            return cell.typeId() == QMetaType::QByteArray ? cell.toByteArray() : text(cell.toString());
        case Type::Memo:
            return word(quint32(text(cell.toString()).size()) | 0x80000000u) + QByteArray(8, '\0') +
                   text(cell.toString());
        default:
            return cell.toByteArray();
        }
    }

    /// A sign, and the number without its decimal sign in four words of 32 bits, the highest first.
    static QByteArray decimal(const QString &text, int scale) {
        quint32 words[4] = {};
        QString digits = text.section('.', 0, 0).remove('-');
        digits += text.section('.', 1).leftJustified(scale, '0');
        for (const QChar digit : digits) {
            quint64 carry = quint64(digit.digitValue());
            for (int i = 3; i >= 0; --i) {
                carry += quint64(words[i]) * 10;
                words[i] = quint32(carry);
                carry >>= 32;
            }
        }
        return QByteArray(1, text.startsWith('-') ? '\x80' : '\0') + word(words[0]) + word(words[1]) +
               word(words[2]) + word(words[3]);
    }

    QByteArray text(const QString &text) const { return isJet3() ? codePage(text) : units(text); }

    static QByteArray units(const QString &text) {
        return QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
    }

    QByteArray codePage(QString text) const {
        const iconv_t converter =
            iconv_open(qPrintable("CP" + QString::number(m_manner.codePage)), "UTF-16LE");
        if (converter == iconv_t(-1)) return text.toLatin1(); // a code page that nobody knows
        QByteArray bytes(text.size(), '\0');
        char *from = reinterpret_cast<char *>(text.data());
        char *to = bytes.data();
        std::size_t left = std::size_t(text.size()) * 2;
        std::size_t room = std::size_t(bytes.size());
        const std::size_t failed = iconv(converter, &from, &left, &to, &room);
        iconv_close(converter);
        if (failed != 0) throw std::runtime_error("not of the code page");
        return bytes;
    }

    QByteArray rowBytes(const Columns &columns, const QVector<QVariant> &row) const {
        QByteArray mask((columns.size() + 7) / 8, '\0');
        QByteArray fixed = count(columns.size());
        QByteArray variable;
        QVector<qsizetype> starts;
        for (qsizetype i = 0; i < columns.size(); ++i) {
            const Column &column = columns[i];
            const bool set = column.type == Type::Boolean ? row[i].toBool() : row[i].isValid();
            if (set) mask[i / 8] = static_cast<char>(mask[i / 8] | 1 << i % 8);
            const QByteArray cell = set ? cellBytes(column, row[i]) : QByteArray();
            if (isFixed(column)) {
                fixed += cell.left(sizeOf(column)).leftJustified(sizeOf(column), '\0');
                continue;
            }
            starts.append(variable.size());
            variable += cell;
        }
        starts.append(variable.size());
        const QByteArray offsets =
            isJet3() ? offsetTable(fixed.size(), starts, mask.size()) : wideOffsetTable(fixed.size(), starts);
        return fixed + variable + offsets + mask;
    }

    static QByteArray wideOffsetTable(qsizetype base, const QVector<qsizetype> &starts) {
        QByteArray offsets;
        for (const qsizetype start : starts)
            offsets = word(quint16(base + start)) + offsets;
        return offsets + word(quint16(starts.size() - 1));
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

    Version m_version;
    Manner m_manner;
};
