// The pattern of LIKE, taken apart once for many texts.
#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QString>

/// "*" stands for any text, "?" for one character, "#" for one digit, "[a-d]" for one of a list, "[!a-d]" for
/// one that is not in it. Capitals do not count. A wildcard in brackets stands for itself.
class LikePattern {
public:
    /// Raises 93 for a bracket that is not closed.
    explicit LikePattern(const QString &pattern);

    /// `folded` is UTF-8 from foldText().
    bool matches(const char *folded, qsizetype size) const;

    /// The folded text between two stars where the pattern is no more than that: "*text*", "**" or "*".
    const std::optional<QByteArray> &containedText() const { return m_containedText; }

private:
    struct Range {
        char32_t first;
        char32_t last;
    };
    struct Element {
        enum class Kind { Star, AnyCharacter, Digit, Character, List };
        Kind kind;
        char32_t character = 0;
        bool negated = false;
        std::vector<Range> ranges;

        bool accepts(char32_t codePoint) const;
    };

    void findContainedText();
    void takeList(const QList<uint> &pattern, qsizetype &at);

    std::vector<Element> m_elements;
    std::optional<QByteArray> m_containedText;
};
