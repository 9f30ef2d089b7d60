#include "tests/damage/page_owners.h"

#include <algorithm>

#include <QtEndian>

namespace {

constexpr char DataKind = 1;
constexpr quint32 Catalog = 2;
constexpr quint32 LongValues = 0x4c41564c; // "LVAL"
constexpr qsizetype Slots = 14;
constexpr quint16 OffsetBits = 0x1fff;
// Places within a row of the catalog.
constexpr qsizetype Id = 2;
constexpr qsizetype Name = 32;

template <typename Number>
Number numberAt(const QByteArray &bytes, qsizetype at) {
    return qFromLittleEndian<Number>(bytes.constData() + at);
}

/// Behind a name come bytes that are no letters.
bool isNamed(const QByteArray &row, const QString &table) {
    const QByteArray name(reinterpret_cast<const char *>(table.utf16()), table.size() * 2);
    return row.mid(Name, name.size()) == name && row.mid(Name + name.size() + 1, 1) != QByteArray(1, '\0');
}

} // namespace

AccessPageOwners::AccessPageOwners(const QByteArray &file, const QStringList &tables) {
    for (qsizetype page = 0; page < file.size() / Damager::PageSize; ++page) {
        const QByteArray bytes = file.mid(page * Damager::PageSize, Damager::PageSize);
        if (bytes[0] != DataKind) continue;
        const DataPage data{numberAt<quint32>(bytes, 4), numberAt<quint16>(bytes, Slots - 2)};
        m_dataPages.insert(page, data);
        if (data.owner != Catalog) continue;
        qsizetype end = bytes.size();
        for (qsizetype slot = 0; slot < data.rows; ++slot) {
            const qsizetype begin = numberAt<quint16>(bytes, Slots + 2 * slot) & OffsetBits;
            const QByteArray row = bytes.mid(begin, end - begin);
            end = begin;
            for (const QString &table : tables)
                if (isNamed(row, table)) m_definitions.insert(table, numberAt<quint32>(row, Id));
        }
    }
    if (m_definitions.size() != tables.size()) qFatal("a catalog of another layout");
}

qsizetype AccessPageOwners::rowsInReach(const QString &table, bool hasMemos, qsizetype rows,
                                        const Damage &damage) const {
    const quint32 definition = m_definitions[table];
    const bool changesValues = damage.kind == Damage::Kind::Bytes || damage.kind == Damage::Kind::Run;
    qsizetype reach = 0;
    for (const qsizetype page : damage.pages) {
        const DataPage data = m_dataPages.value(page);
        if (hasMemos && data.owner == LongValues) return rows;
        if (changesValues && page == definition) return rows;
        if (changesValues && data.owner == definition) reach += data.rows;
    }
    return std::min(reach, rows);
}
