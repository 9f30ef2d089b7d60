#include "platform/dao/jet_lexer.h"

namespace {

using TokenKind = JetToken::Kind;

bool isDigit(QChar sign) {
    return sign >= QLatin1Char('0') && sign <= QLatin1Char('9');
}

bool isNameStart(QChar sign) {
    return sign.isLetter() || sign == QLatin1Char('_') || sign.isSurrogate();
}

bool isNamePart(QChar sign) {
    return isNameStart(sign) || sign.isDigit() || sign.isMark() || sign == QLatin1Char('$');
}

class Scanner {
public:
    explicit Scanner(const QString &statement)
        : m_statement(statement) {}

    JetToken next() {
        while (m_at < m_statement.size() && m_statement[m_at].isSpace())
            ++m_at;
        JetToken token;
        token.begin = m_at;
        scan(token);
        token.end = m_at;
        return token;
    }

private:
    QChar peek(qsizetype ahead = 0) const {
        return m_at + ahead < m_statement.size() ? m_statement[m_at + ahead] : QChar();
    }

    void scan(JetToken &token) {
        if (m_at >= m_statement.size()) return;
        const QChar sign = peek();
        if (sign == QLatin1Char('\'') || sign == QLatin1Char('"')) {
            scanText(token, sign);
        } else if (sign == QLatin1Char('#')) {
            scanEnclosed(token, sign, TokenKind::Date, TokenKind::OpenDate);
        } else if (sign == QLatin1Char('[')) {
            scanEnclosed(token, QLatin1Char(']'), TokenKind::BracketedName, TokenKind::Symbol);
        } else if (isDigit(sign) || (sign == QLatin1Char('.') && isDigit(peek(1)))) {
            scanNumber(token);
        } else if (isNameStart(sign)) {
            const qsizetype begin = m_at;
            while (m_at < m_statement.size() && isNamePart(peek()))
                ++m_at;
            token.kind = TokenKind::Name;
            token.text = m_statement.mid(begin, m_at - begin);
        } else {
            scanSymbol(token);
        }
    }

    void scanText(JetToken &token, QChar quote) {
        token.kind = TokenKind::OpenText;
        for (++m_at; m_at < m_statement.size(); ++m_at) {
            if (peek() == quote) {
                ++m_at;
                if (peek() != quote) {
                    token.kind = TokenKind::Text;
                    return;
                }
            }
            token.text += peek();
        }
    }

    void scanEnclosed(JetToken &token, QChar closing, TokenKind closed, TokenKind open) {
        const qsizetype begin = m_at + 1;
        // A text of opening brackets alone must not be searched once for each of them.
        const qsizetype end = m_neverCloses == closing ? -1 : m_statement.indexOf(closing, begin);
        if (end < 0) {
            m_neverCloses = closing;
            token.kind = open;
            token.text = m_statement.mid(m_at, 1);
            m_at = open == TokenKind::Symbol ? m_at + 1 : m_statement.size();
            return;
        }
        token.kind = closed;
        token.text = m_statement.mid(begin, end - begin);
        m_at = end + 1;
    }

    void scanNumber(JetToken &token) {
        const qsizetype begin = m_at;
        const auto digits = [this] {
            while (isDigit(peek()))
                ++m_at;
        };
        digits();
        if (peek() == QLatin1Char('.')) {
            ++m_at;
            digits();
        }
        if (peek().toLower() == QLatin1Char('e')) {
            const bool isSigned = peek(1) == QLatin1Char('+') || peek(1) == QLatin1Char('-');
            if (isDigit(peek(isSigned ? 2 : 1))) {
                m_at += isSigned ? 2 : 1;
                digits();
            }
        }
        token.kind = TokenKind::Number;
        token.text = m_statement.mid(begin, m_at - begin);
    }

    void scanSymbol(JetToken &token) {
        static const QStringList pairs = {"<>", "<=", ">="};
        const qsizetype size = pairs.contains(m_statement.mid(m_at, 2)) ? 2 : 1;
        token.kind = TokenKind::Symbol;
        token.text = m_statement.mid(m_at, size);
        m_at += size;
    }

    const QString &m_statement;
    qsizetype m_at = 0;
    QChar m_neverCloses; // from here on
};

} // namespace

bool JetToken::isKeyword(const char *word) const {
    return kind == TokenKind::Name && text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

bool JetToken::isSymbol(const char *symbol) const {
    return kind == TokenKind::Symbol && text == QLatin1String(symbol);
}

std::vector<JetToken> jetTokens(const QString &statement) {
    Scanner scanner(statement);
    std::vector<JetToken> tokens;
    do {
        tokens.push_back(scanner.next());
    } while (tokens.back().kind != TokenKind::End);
    return tokens;
}
