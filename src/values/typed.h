// What was typed, or what is wrong with it.
#pragma once

#include <optional>
#include <utility>

#include <QString>

template <class Value>
struct Typed {
    std::optional<Value> value;
    /// A sentence for beside the box; empty with a value.
    QString error;

    Typed(Value given) // NOLINT(google-explicit-constructor)
        : value(std::move(given)) {}
    static Typed wrong(const QString &sentence) { return Typed(std::nullopt, sentence); }

    explicit operator bool() const { return value.has_value(); }
    const Value &operator*() const { return *value; }
    const Value *operator->() const { return &*value; }

private:
    Typed(std::nullopt_t, QString sentence)
        : error(std::move(sentence)) {}
};

namespace TypedTexts {

/// Digits with a comma or a point before at most four decimals, and a minus sign where one is wanted.
Typed<double> number(const QString &text);

/// In °C, as the box for the design temperature would hold it: with a comma and without blanks around it.
Typed<QString> temperature(const QString &text);

/// In mm; nothing for an empty text.
Typed<std::optional<double>> thickness(const QString &text);

/// "32,767".
QString grouped(qint64 count);

} // namespace TypedTexts
