#include "platform/dao/jet_parser.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/dao/date_number.h"
#include "platform/dao/jet_errors.h"

namespace {

using Kind = JetExpression::Kind;

// Deep enough for anything a person writes; a text made of brackets must not exhaust the stack.
constexpr int MaximumDepth = 100;

class Nesting {
public:
    explicit Nesting(int &depth)
        : m_depth(depth) {
        if (m_depth >= MaximumDepth) throw JetErrors::tooComplex();
        ++m_depth;
    }
    ~Nesting() { --m_depth; }
    Nesting(const Nesting &) = delete;
    Nesting &operator=(const Nesting &) = delete;

private:
    int &m_depth;
};

template <std::size_t Size>
bool isAnyKeyword(const JetToken &token, const std::array<const char *, Size> &words) {
    return std::any_of(words.begin(), words.end(), [&](const char *word) { return token.isKeyword(word); });
}

JetExpression node(Kind kind, std::vector<JetExpression> operands, const QString &text = {}) {
    JetExpression expression;
    expression.kind = kind;
    expression.operands = std::move(operands);
    expression.text = text;
    return expression;
}

JetExpression comparisonOf(JetExpression left, const QString &symbol, JetExpression right) {
    std::vector<JetExpression> operands;
    operands.push_back(std::move(left));
    operands.push_back(std::move(right));
    return node(Kind::Compare, std::move(operands), symbol);
}

} // namespace

JetParser::JetParser(const QString &text, Clause clause)
    : m_text(text)
    , m_tokens(jetTokens(text))
    , m_piece{clause, 0} {}

JetStatement JetParser::statement(const QString &text) {
    return JetParser(text, Clause::Condition).wholeStatement();
}

JetExpression JetParser::criterion(const QString &text) {
    return JetParser(text, Clause::Criterion).clauseExpression(Clause::Criterion);
}

JetStatement JetParser::wholeStatement() {
    JetStatement statement;
    if (takeKeyword("transform")) {
        statement.transform = clauseExpression(Clause::List);
        statement.select = select();
        if (!takeKeyword("pivot")) throw JetErrors::transformSyntax();
        statement.pivot = clauseExpression(Clause::List);
    } else {
        statement.select = select();
    }
    const bool closed = takeSymbol(";");
    if (peek().kind == JetToken::Kind::End) return statement;
    throw closed ? JetErrors::textAfterEnd() : JetErrors::selectSyntax();
}

JetSelect JetParser::select() {
    const Nesting nesting(m_depth);
    if (!takeKeyword("select")) throw JetErrors::selectSyntax();
    JetSelect select;
    select.distinct = takeKeyword("distinct");
    select.items = selectItems();
    if (!takeKeyword("from")) throw JetErrors::selectSyntax();
    from(select);
    if (takeKeyword("where")) select.where = clauseExpression(Clause::Condition);
    if (takeKeyword("group")) select.groupBy = groupItems();
    if (takeKeyword("having")) select.having = clauseExpression(Clause::Condition);
    if (takeKeyword("order")) select.orderBy = orderItems();
    return select;
}

std::vector<JetSelectItem> JetParser::selectItems() {
    std::vector<JetSelectItem> items;
    do {
        items.push_back(selectItem());
    } while (takeSymbol(","));
    return items;
}

JetSelectItem JetParser::selectItem() {
    JetSelectItem item;
    if (takeSymbol("*")) {
        item.all = true;
        return item;
    }
    const bool isQualifiedAll = peek(1).isSymbol(".") && peek(2).isSymbol("*");
    if (isQualifiedAll && !isReserved(peek())) {
        item.all = true;
        item.qualifier = take().text;
        m_next += 2;
        return item;
    }
    if (isClauseEnd(peek()) || peek().isSymbol(",")) throw JetErrors::selectSyntax();
    item.expression = clauseExpression(Clause::List);
    if (takeKeyword("as")) {
        const JetToken &alias = take();
        const bool isName = alias.kind == JetToken::Kind::Name || alias.kind == JetToken::Kind::BracketedName;
        if (!isName || isReserved(alias)) throw JetErrors::selectSyntax();
        item.alias = alias.text;
    }
    return item;
}

void JetParser::from(JetSelect &select) {
    const auto takeName = [this] {
        const JetToken &token = take();
        const bool isName = token.kind == JetToken::Kind::Name || token.kind == JetToken::Kind::BracketedName;
        if (!isName || isReserved(token)) throw JetErrors::clauseSyntax("FROM");
        return token.text;
    };
    select.table = takeName();
    if (takeKeyword("as") || !isClauseEnd(peek())) select.alias = takeName();
    if (!isClauseEnd(peek())) throw JetErrors::clauseSyntax("FROM");
}

std::vector<JetExpression> JetParser::groupItems() {
    std::vector<JetExpression> items;
    if (!takeKeyword("by")) throw JetErrors::clauseSyntax("GROUP BY");
    do {
        if (isClauseEnd(peek())) throw JetErrors::clauseSyntax("GROUP BY");
        items.push_back(clauseExpression(Clause::List));
    } while (takeSymbol(","));
    return items;
}

std::vector<JetOrderItem> JetParser::orderItems() {
    std::vector<JetOrderItem> items;
    if (!takeKeyword("by")) throw JetErrors::clauseSyntax("ORDER BY");
    do {
        if (isClauseEnd(peek())) throw JetErrors::clauseSyntax("ORDER BY");
        JetOrderItem item;
        item.expression = clauseExpression(Clause::List);
        item.descending = takeKeyword("desc");
        if (!item.descending) takeKeyword("asc");
        items.push_back(std::move(item));
    } while (takeSymbol(","));
    if (!isClauseEnd(peek())) throw JetErrors::clauseSyntax("ORDER BY");
    return items;
}

JetExpression JetParser::clauseExpression(Clause clause) {
    const Piece outer = std::exchange(m_piece, {clause, m_next});
    JetExpression expression = disjunction();
    const JetToken &after = peek();
    if (after.isSymbol(")") && m_selects == 0) throw error("Extra )");
    const bool ends = clause == Clause::Criterion ? after.kind == JetToken::Kind::End : isClauseEnd(after);
    if (!ends && clause == Clause::List) {
        static constexpr std::array<const char *, 3> endings = {"as", "asc", "desc"};
        if (!after.isSymbol(",") && !isAnyKeyword(after, endings)) throw missingOperator();
    } else if (!ends) {
        throw after.isSymbol(",") ? error("Syntax error (comma)") : missingOperator();
    }
    expression.source = sourceFrom(m_piece.firstToken);
    m_piece = outer;
    return expression;
}

JetExpression JetParser::disjunction() {
    const Nesting nesting(m_depth);
    std::vector<JetExpression> operands;
    do {
        operands.push_back(conjunction());
    } while (takeKeyword("or"));
    return operands.size() == 1 ? std::move(operands.front()) : node(Kind::Or, std::move(operands));
}

JetExpression JetParser::conjunction() {
    std::vector<JetExpression> operands;
    do {
        operands.push_back(negation());
    } while (takeKeyword("and"));
    return operands.size() == 1 ? std::move(operands.front()) : node(Kind::And, std::move(operands));
}

JetExpression JetParser::negation() {
    const Nesting nesting(m_depth);
    if (takeKeyword("not")) return node(Kind::Not, {negation()});
    return comparison();
}

JetExpression JetParser::comparison() {
    JetExpression left = value();
    for (bool chained = false;; chained = true) {
        static constexpr std::array<const char *, 6> comparisons = {"=", "<>", "<", ">", "<=", ">="};
        const JetToken &token = peek();
        const auto is = [&](const char *symbol) { return token.isSymbol(symbol); };
        if (std::any_of(comparisons.begin(), comparisons.end(), is)) {
            take();
            left = comparisonOf(std::move(left), token.text, value());
        } else if (takeKeyword("is")) {
            const bool negated = takeKeyword("not");
            if (!takeKeyword("null")) throw missingOperator();
            left = node(Kind::IsNull, {std::move(left)});
            left.negated = negated;
        } else if (token.isKeyword("not")) {
            take();
            left = predicate(std::move(left), true);
        } else if (token.isKeyword("like") || token.isKeyword("in") || token.isKeyword("between")) {
            left = predicate(std::move(left), false);
        } else {
            return left;
        }
        // Each further comparison stands above the one before it.
        if (chained && ++m_chained > MaximumDepth) throw JetErrors::tooComplex();
    }
}

JetExpression JetParser::predicate(JetExpression left, bool negated) {
    if (takeKeyword("in")) return inList(std::move(left), negated);
    std::vector<JetExpression> operands;
    operands.push_back(std::move(left));
    Kind kind = Kind::Like;
    if (takeKeyword("like")) {
        operands.push_back(value());
    } else if (takeKeyword("between")) {
        kind = Kind::Between;
        operands.push_back(value());
        if (!takeKeyword("and")) throw missingOperator();
        operands.push_back(value());
    } else {
        throw missingOperator();
    }
    JetExpression expression = node(kind, std::move(operands));
    expression.negated = negated;
    return expression;
}

JetExpression JetParser::inList(JetExpression left, bool negated) {
    if (!takeSymbol("(")) throw missingOperator();
    JetExpression expression = node(Kind::In, {});
    expression.operands.push_back(std::move(left));
    expression.negated = negated;
    if (peek().isKeyword("select")) {
        // A recordset's condition is about the rows that it holds.
        if (m_piece.clause == Clause::Criterion) throw missingOperator();
        expression.kind = Kind::InSelect;
        ++m_selects;
        expression.select = std::make_shared<JetSelect>(select());
        --m_selects;
    } else {
        do {
            expression.operands.push_back(disjunction());
        } while (takeSymbol(","));
    }
    closeParenthesis();
    return expression;
}

JetExpression JetParser::value() {
    const JetToken token = peek();
    switch (token.kind) {
    case JetToken::Kind::Text:
        take();
        return node(Kind::Text, {}, token.text);
    case JetToken::Kind::Number:
        return number({});
    case JetToken::Kind::Date:
        return date(take());
    case JetToken::Kind::Name:
    case JetToken::Kind::BracketedName:
        return name();
    case JetToken::Kind::OpenText:
        throw error("Syntax error in string");
    case JetToken::Kind::OpenDate:
        throw error("Syntax error in date");
    case JetToken::Kind::Symbol:
    case JetToken::Kind::End:
        break;
    }
    if (takeSymbol("-")) return number("-");
    if (token.isSymbol("[")) throw error("Missing ), ], or Item");
    if (!takeSymbol("(")) throw missingOperator();
    JetExpression expression = disjunction();
    closeParenthesis();
    return expression;
}

JetExpression JetParser::number(const QString &sign) {
    if (peek().kind != JetToken::Kind::Number) throw missingOperator();
    return node(Kind::Number, {}, sign + take().text);
}

JetExpression JetParser::name() {
    const std::size_t first = m_next;
    if (isReserved(peek())) {
        if (takeKeyword("null")) return node(Kind::Null, {});
        throw missingOperator();
    }
    JetExpression expression = node(Kind::Column, {}, take().text);
    const JetToken &firstName = m_tokens[first];
    if (firstName.isKeyword("true") || firstName.isKeyword("false")) {
        expression.kind = Kind::Boolean;
        expression.number = firstName.isKeyword("true") ? -1 : 0;
        return expression;
    }
    if (firstName.kind == JetToken::Kind::Name && takeSymbol("(")) return call(first);
    if (takeSymbol(".")) {
        const JetToken &column = peek();
        const bool isName =
            column.kind == JetToken::Kind::Name || column.kind == JetToken::Kind::BracketedName;
        if (!isName) throw missingOperator();
        expression.qualifier = std::exchange(expression.text, take().text);
    }
    expression.source = sourceFrom(first);
    return expression;
}

JetExpression JetParser::call(std::size_t firstToken) {
    JetExpression expression = node(Kind::Call, {}, m_tokens[firstToken].text);
    if (!takeSymbol("*")) {
        do {
            expression.operands.push_back(disjunction());
        } while (takeSymbol(","));
    }
    closeParenthesis();
    expression.source = sourceFrom(firstToken);
    return expression;
}

JetExpression JetParser::date(const JetToken &token) {
    const std::optional<double> days = dateNumberOfLiteral(token.text);
    if (!days) throw error("Syntax error in date");
    JetExpression expression = node(Kind::Date, {}, token.text);
    expression.number = *days;
    return expression;
}

const JetToken &JetParser::peek(std::size_t ahead) const {
    return m_tokens[std::min(m_next + ahead, m_tokens.size() - 1)];
}

const JetToken &JetParser::take() {
    const JetToken &token = peek();
    if (m_next + 1 < m_tokens.size()) ++m_next;
    return token;
}

bool JetParser::takeKeyword(const char *word) {
    const bool found = peek().isKeyword(word);
    if (found) take();
    return found;
}

bool JetParser::takeSymbol(const char *symbol) {
    const bool found = peek().isSymbol(symbol);
    if (found) take();
    return found;
}

bool JetParser::isClauseEnd(const JetToken &token) const {
    static constexpr std::array<const char *, 7> clauses = {"select", "from",  "where", "group",
                                                            "having", "order", "pivot"};
    return token.kind == JetToken::Kind::End || token.isSymbol(")") || token.isSymbol(";") ||
           isAnyKeyword(token, clauses);
}

bool JetParser::isReserved(const JetToken &token) const {
    static constexpr std::array<const char *, 21> words = {
        "select",  "from",      "where",    "group", "having", "order", "by",
        "pivot",   "transform", "distinct", "and",   "or",     "not",   "like",
        "between", "in",        "null",     "is",    "as",     "asc",   "desc"};
    return isAnyKeyword(token, words);
}

QString JetParser::sourceFrom(std::size_t firstToken) const {
    const qsizetype begin = m_tokens[firstToken].begin;
    const qsizetype end = m_next > firstToken ? m_tokens[m_next - 1].end : begin;
    return m_text.mid(begin, end - begin);
}

void JetParser::closeParenthesis() {
    if (takeSymbol(")")) return;
    throw peek().kind == JetToken::Kind::End ? error("Missing ), ], or Item") : missingOperator();
}

RuntimeError JetParser::missingOperator() const {
    return error("Syntax error (missing operator)");
}

RuntimeError JetParser::error(const QString &problem) const {
    if (m_piece.clause == Clause::Criterion) return JetErrors::criterionSyntax(problem);
    int depth = 0;
    std::size_t end = m_piece.firstToken;
    for (; m_tokens[end].kind != JetToken::Kind::End; ++end) {
        const JetToken &token = m_tokens[end];
        const bool endsItem = m_piece.clause == Clause::List && token.isSymbol(",");
        const bool closesMore = token.isSymbol(")") && m_selects == 0;
        if (depth <= 0 && !closesMore && (isClauseEnd(token) || endsItem)) break;
        if (token.isSymbol("(")) ++depth;
        if (token.isSymbol(")")) --depth;
    }
    const qsizetype begin = m_tokens[m_piece.firstToken].begin;
    return JetErrors::syntax(problem, m_text.mid(begin, m_tokens[end].begin - begin).trimmed());
}
