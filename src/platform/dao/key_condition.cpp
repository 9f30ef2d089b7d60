#include "platform/dao/key_condition.h"

#include <algorithm>

namespace {

using Kind = JetExpression::Kind;

// Beyond this one walk over the file is cheaper than many searches in it.
constexpr std::size_t MaximumKeys = 50;

struct Equality {
    int column;
    QVariant value;
};

// What a row must hold to come through one branch of the condition.
using Branch = std::vector<Equality>;

class KeySearch {
public:
    KeySearch(const JetSelect &select, const FieldDefinitions &fields)
        : m_name(select.alias.isEmpty() ? select.table : select.alias)
        , m_fields(fields) {}

    // Empty where the condition does not tie the rows to constants.
    std::vector<Branch> branches(const JetExpression &condition) const {
        switch (condition.kind) {
        case Kind::Or:
            return alternatives(condition);
        case Kind::And:
            return conjunction(condition);
        case Kind::Compare:
            if (condition.text != "=") return {};
            if (auto branch = equality(condition.operands[0], condition.operands[1])) return {*branch};
            if (auto branch = equality(condition.operands[1], condition.operands[0])) return {*branch};
            return {};
        default:
            return {};
        }
    }

    bool isInteger(int column) const { return isIntegerType(m_fields[column].type); }

private:
    std::vector<Branch> alternatives(const JetExpression &condition) const {
        std::vector<Branch> all;
        for (const JetExpression &operand : condition.operands) {
            const std::vector<Branch> some = branches(operand);
            if (some.empty() || all.size() + some.size() > MaximumKeys) return {};
            all.insert(all.end(), some.begin(), some.end());
        }
        return all;
    }

    // The terms with one branch hold together; one with several is used only where there is no such term.
    std::vector<Branch> conjunction(const JetExpression &condition) const {
        Branch together;
        std::vector<Branch> several;
        for (const JetExpression &operand : condition.operands) {
            std::vector<Branch> some = branches(operand);
            if (some.size() == 1)
                together.insert(together.end(), some[0].begin(), some[0].end());
            else if (several.empty())
                several = std::move(some);
        }
        return together.empty() ? several : std::vector<Branch>{together};
    }

    std::optional<Branch> equality(const JetExpression &column, const JetExpression &constant) const {
        if (column.kind != Kind::Column) return std::nullopt;
        if (!column.qualifier.isEmpty() && !isSameName(column.qualifier, m_name)) return std::nullopt;
        const int index = fieldIndex(m_fields, column.text);
        if (index < 0) return std::nullopt;
        bool isInt = false;
        const int integer = constant.text.toInt(&isInt);
        if (isInteger(index) && constant.kind == Kind::Number && isInt) return Branch{{index, integer}};
        if (m_fields[index].type == FieldType::Text && constant.kind == Kind::Text)
            return Branch{{index, constant.text}};
        return std::nullopt;
    }

    QString m_name;
    const FieldDefinitions &m_fields;
};

} // namespace

std::optional<KeyCondition> keyCondition(const JetSelect &select, const FieldDefinitions &fields) {
    if (!select.where) return std::nullopt;
    const KeySearch search(select, fields);
    KeyCondition found;
    for (Branch branch : search.branches(*select.where)) {
        const auto isInteger = [&](const Equality &term) { return search.isInteger(term.column); };
        const auto integer = std::find_if(branch.begin(), branch.end(), isInteger);
        if (integer != branch.end()) branch = {*integer};
        std::sort(branch.begin(), branch.end(),
                  [](const Equality &left, const Equality &right) { return left.column < right.column; });
        QVector<int> columns;
        QVector<QVariant> key;
        for (const Equality &term : branch) {
            columns += term.column;
            key += term.value;
        }
        if (!found.keys.empty() && columns != found.columns) return std::nullopt;
        found.columns = columns;
        found.keys.push_back(key);
    }
    if (found.keys.empty()) return std::nullopt;
    return found;
}
