#include "tests/damage/damage.h"

#include <algorithm>

#include <QMap>

const char *Damage::name() const {
    switch (kind) {
    case Kind::Bytes:
        return "single bytes";
    case Kind::Run:
        return "a run of bytes";
    case Kind::Truncation:
        return "truncation";
    case Kind::SwappedPages:
        return "swapped pages";
    }
    return "";
}

Damage Damager::damaged(const QByteArray &good, Damage::Kind kind) {
    Damage damage{good, kind, {}};
    switch (kind) {
    case Damage::Kind::Bytes:
        changeBytes(damage);
        break;
    case Damage::Kind::Run:
        changeRun(damage);
        break;
    case Damage::Kind::Truncation:
        truncate(damage);
        break;
    case Damage::Kind::SwappedPages:
        swapPages(damage);
        break;
    }
    return damage;
}

qsizetype Damager::anyPage(const QByteArray &good) {
    QMap<char, QList<qsizetype>> byKind;
    for (qsizetype page = 0; page < good.size() / PageSize; ++page)
        byKind[good[page * PageSize]].append(page);
    const QList<qsizetype> &pages = byKind[byKind.keys()[below(byKind.size())]];
    return pages[below(pages.size())];
}

qsizetype Damager::anyPlace(const QByteArray &good) {
    return anyPage(good) * PageSize + (below(2) == 0 ? below(160) : below(PageSize));
}

void Damager::changeBytes(Damage &damage) {
    for (qsizetype changes = 1 + below(8); changes > 0; --changes) {
        const qsizetype at = anyPlace(damage.file);
        damage.file[at] = static_cast<char>(m_random());
        damage.pages.insert(at / PageSize);
    }
}

void Damager::changeRun(Damage &damage) {
    const qsizetype begin = anyPlace(damage.file);
    const qsizetype end = std::min(begin + 2 + below(2 * PageSize), damage.file.size());
    const qsizetype fill = below(3); // zeros, ones, or anything: what media leave of lost sectors
    for (qsizetype at = begin; at < end; ++at) {
        damage.file[at] = fill == 0 ? '\0' : fill == 1 ? '\xff' : static_cast<char>(m_random());
        damage.pages.insert(at / PageSize);
    }
}

void Damager::truncate(Damage &damage) {
    const qsizetype size = below(damage.file.size());
    for (qsizetype page = size / PageSize; page < damage.file.size() / PageSize; ++page)
        damage.pages.insert(page);
    damage.file.truncate(size);
}

void Damager::swapPages(Damage &damage) {
    const qsizetype a = anyPage(damage.file);
    const qsizetype b = anyPage(damage.file);
    std::swap_ranges(damage.file.begin() + a * PageSize, damage.file.begin() + (a + 1) * PageSize,
                     damage.file.begin() + b * PageSize);
    damage.pages = {a, b};
}
