// From the text of a statement, or of a find's condition, to its tree.
#pragma once

#include <vector>

#include "platform/dao/jet_lexer.h"
#include "platform/dao/jet_syntax.h"
#include "platform/runtime/runtime_error.h"

class JetParser {
public:
    /// Raises 3075 with the piece that does not hold together, and 3131 to 3143 for a clause that is missing
    /// or misplaced; 3360 for one that is nested too deep.
    static JetStatement statement(const QString &text);

    /// The condition of a find. Raises 3077, and 3360 as above.
    static JetExpression criterion(const QString &text);

private:
    enum class Clause { List, Condition, Criterion };

    // The clause that a syntax error quotes, from its first token.
    struct Piece {
        Clause clause;
        std::size_t firstToken;
    };

    JetParser(const QString &text, Clause clause);

    JetStatement wholeStatement();
    JetSelect select();
    std::vector<JetSelectItem> selectItems();
    JetSelectItem selectItem();
    void from(JetSelect &select);
    std::vector<JetExpression> groupItems();
    std::vector<JetOrderItem> orderItems();

    JetExpression clauseExpression(Clause clause);
    JetExpression disjunction();
    JetExpression conjunction();
    JetExpression negation();
    JetExpression comparison();
    JetExpression predicate(JetExpression left, bool negated);
    JetExpression inList(JetExpression left, bool negated);
    JetExpression value();
    JetExpression number(const QString &sign);
    JetExpression name();
    JetExpression call(std::size_t firstToken);
    JetExpression date(const JetToken &token);

    const JetToken &peek(std::size_t ahead = 0) const;
    const JetToken &take();
    bool takeKeyword(const char *word);
    bool takeSymbol(const char *symbol);
    bool isClauseEnd(const JetToken &token) const;
    bool isReserved(const JetToken &token) const;
    QString sourceFrom(std::size_t firstToken) const;
    void closeParenthesis();
    RuntimeError error(const QString &problem) const;
    RuntimeError missingOperator() const;

    QString m_text;
    std::vector<JetToken> m_tokens;
    std::size_t m_next = 0;
    Piece m_piece;
    int m_selects = 0;
    int m_depth = 0;
    int m_chained = 0; // comparisons whose left side is another one
};
