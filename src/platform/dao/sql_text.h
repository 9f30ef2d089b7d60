// A piece of SQL for the store in memory, with the values that its question marks stand for.
#pragma once

#include <QByteArray>
#include <QVariant>
#include <QVector>

struct SqlText {
    QByteArray text;
    /// qlonglong, double, QString, or invalid for Null.
    QVector<QVariant> parameters;

    SqlText() = default;
    SqlText(const char *sql)
        : text(sql) {}
    SqlText(QByteArray sql, QVector<QVariant> values = {})
        : text(std::move(sql))
        , parameters(std::move(values)) {}

    SqlText &operator+=(const SqlText &more) {
        text += more.text;
        parameters += more.parameters;
        return *this;
    }
    friend SqlText operator+(SqlText left, const SqlText &right) { return left += right; }
    friend bool operator==(const SqlText &left, const SqlText &right) {
        return left.text == right.text && left.parameters == right.parameters;
    }
};
