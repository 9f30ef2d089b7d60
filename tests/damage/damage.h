// Ways in which a file can come to harm on its medium.
#pragma once

#include <random>

#include <QByteArray>
#include <QSet>

struct Damage {
    enum class Kind { Bytes, Run, Truncation, SwappedPages };
    static constexpr int Kinds = 4;

    QByteArray file;
    Kind kind = Kind::Bytes;
    /// Numbers of the pages that are not what they were; of a truncated file, those that are gone.
    QSet<qsizetype> pages;

    const char *name() const;
};

/// Damages files of 4096 byte pages whose first byte tells their kind.
class Damager {
public:
    static constexpr qsizetype PageSize = 4096;

    explicit Damager(unsigned seed)
        : m_random(seed) {}

    Damage damaged(const QByteArray &good, Damage::Kind kind);

private:
    qsizetype below(qsizetype limit) { return static_cast<qsizetype>(m_random() % std::size_t(limit)); }
    /// Each kind of page as likely as any other: nearly all of a database is rows, and the few pages that
    /// they are found by are where harm is done.
    qsizetype anyPage(const QByteArray &good);
    /// Half of the time among the page's first bytes, which say what the others mean.
    qsizetype anyPlace(const QByteArray &good);

    void changeBytes(Damage &damage);
    void changeRun(Damage &damage);
    void truncate(Damage &damage);
    void swapPages(Damage &damage);

    std::mt19937 m_random;
};
