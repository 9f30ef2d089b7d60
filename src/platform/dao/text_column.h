// The texts of one column, folded and side by side, for LIKE over all rows at once.
#pragma once

#include <vector>

#include <QByteArray>

class LikePattern;

/// One mark for each row identity from 0 (which no row has): 1 for a row that is meant, else 0.
using RowMarks = std::vector<quint8>;

class TextColumn {
public:
    /// Of the next row identity, from 1; a null pointer for Null.
    void append(const char *text, qsizetype size);

    RowMarks matching(const LikePattern &pattern) const;

private:
    void markContaining(const QByteArray &text, RowMarks &marks) const;

    // Each row's text ends with a NUL, so that a text found in `m_texts` lies within one row.
    QByteArray m_texts;
    std::vector<qsizetype> m_starts;
    RowMarks m_isText = {0};
};
