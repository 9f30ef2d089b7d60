// Takes values from the front of a frame.
#pragma once

#include <cstring>

#include <QByteArray>
#include <QString>

/// The frame was shorter than its content claims, or holds what it cannot mean.
struct MalformedFrame {};

/// Raises MalformedFrame, from any call.
class FrameReader {
public:
    explicit FrameReader(const QByteArray &frame)
        : m_at(frame.constData())
        , m_end(m_at + frame.size()) {}

    bool atEnd() const { return m_at == m_end; }

    template <typename Number>
    Number number() {
        Number value;
        std::memcpy(&value, take(sizeof value), sizeof value);
        return value;
    }
    /// Its number of bytes in 16 bits, and its UTF-8.
    QString name() {
        const auto size = number<quint16>();
        return QString::fromUtf8(take(size), size);
    }
    /// Its number of UTF-16 units in 32 bits, and the units.
    QString text() {
        const qsizetype units = number<quint32>();
        if (units == 0) return QString(QLatin1String(""));
        const char *at = take(units * qsizetype(sizeof(QChar)));
        QString value(units, Qt::Uninitialized);
        std::memcpy(value.data(), at, static_cast<std::size_t>(units) * sizeof(QChar));
        return value;
    }
    /// All that is left, as UTF-8.
    QString rest() {
        const qsizetype size = m_end - m_at;
        return QString::fromUtf8(take(size), size);
    }
    const char *take(qsizetype size) {
        if (size > m_end - m_at) throw MalformedFrame();
        const char *taken = m_at;
        m_at += size;
        return taken;
    }

private:
    const char *m_at;
    const char *m_end;
};
