// Cuts a statement of the engine's dialect into tokens.
#pragma once

#include <vector>

#include <QString>

struct JetToken {
    enum class Kind { Name, BracketedName, Text, OpenText, Number, Date, OpenDate, Symbol, End };

    Kind kind = Kind::End;
    /// A name without its brackets, a text without its quotes, anything else as it is written.
    QString text;
    /// The piece of the statement that it stands for.
    qsizetype begin = 0;
    qsizetype end = 0;

    /// Capitals do not count. A name in brackets is never a keyword.
    bool isKeyword(const char *word) const;
    bool isSymbol(const char *symbol) const;
};

/// Never fails: a text or a date that is not closed is a token of its own kind, an unknown character a
/// symbol. The last token is always End.
std::vector<JetToken> jetTokens(const QString &statement);
