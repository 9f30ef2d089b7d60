// What a statement of the engine's dialect says, as a tree.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QString>

struct JetSelect;

struct JetExpression {
    enum class Kind {
        Null,
        Boolean, ///< `number` is -1 or 0
        Number,  ///< `text` as it is written
        Text,
        Date,    ///< `number` in days since 1899-12-30
        Column,  ///< `text`, of the table `qualifier` if that is not empty
        Call,    ///< `text` is the function's name; no operand stands for "*"
        Compare, ///< `text` is = <> < > <= or >=
        Like,
        Between,
        In,
        InSelect, ///< `select`
        IsNull,
        Not,
        And, ///< two operands or more
        Or,  ///< two operands or more
    };

    Kind kind = Kind::Null;
    QString text;
    QString qualifier;
    double number = 0;
    /// NOT before LIKE, BETWEEN, IN; IS NOT NULL.
    bool negated = false;
    std::vector<JetExpression> operands;
    std::shared_ptr<JetSelect> select;
    /// As it is written, for a message and for the name of a column.
    QString source;
};

struct JetSelectItem {
    /// "*", or "table.*" with a `qualifier`.
    bool all = false;
    QString qualifier;
    JetExpression expression;
    QString alias;
};

struct JetOrderItem {
    JetExpression expression;
    bool descending = false;
};

struct JetSelect {
    bool distinct = false;
    std::vector<JetSelectItem> items;
    QString table;
    QString alias;
    std::optional<JetExpression> where;
    std::vector<JetExpression> groupBy;
    std::optional<JetExpression> having;
    std::vector<JetOrderItem> orderBy;
};

struct JetStatement {
    JetSelect select;
    /// Both or none: a crosstab's aggregate and the value that its columns are made from.
    std::optional<JetExpression> transform;
    std::optional<JetExpression> pivot;
};
