// The order of rows by plain columns against the one that SQL gives, on random rows of awkward values.
#include <gtest/gtest.h>

#include <random>

#include "platform/dao/memory_database.h"
#include "platform/dao/memory_table.h"

namespace {

const FieldDefinitions fields = {{"a", FieldType::Text, 20},
                                 {"b", FieldType::Double, 0},
                                 {"c", FieldType::Integer, 0},
                                 {"d", FieldType::Boolean, 0}};

class RandomRows {
public:
    explicit RandomRows(unsigned seed)
        : m_random(seed) {}

    QVector<QVariant> row() {
        const double numbers[] = {0, -0.0, 1e-300, -1.5, 2, 1e300};
        return {text(), orNull(numbers[below(6)]), orNull(below(4) - 2), below(2) == 1};
    }

private:
    int below(int end) { return std::uniform_int_distribution(0, end - 1)(m_random); }
    QVariant orNull(const QVariant &value) { return below(5) == 0 ? QVariant() : value; }
    QVariant text() {
        // Long beginnings in common, capitals, letters with accents as one sign and as two, others' letters.
        const QString pieces[] = {"EN 10028-", "en 10028-",      "P",      "p", "e", "\u00e9", "\u00c9",
                                  "e\u0301",   "\u0301",         "\u00df", "",  " ", "z",      "\u0396",
                                  "\u03b6",    QString(QChar(0))};
        QString text;
        for (int i = below(4); i >= 0; --i)
            text += pieces[below(16)];
        return orNull(text);
    }

    std::mt19937 m_random;
};

} // namespace

TEST(RowOrder, IsThatOfSql) {
    const std::vector<std::vector<ColumnOrder>> orders = {{{0, false}},
                                                          {{0, true}},
                                                          {{1, false}, {0, false}},
                                                          {{2, true}, {1, true}},
                                                          {{3, false}, {0, true}, {2, false}}};
    for (unsigned seed = 1; seed <= 20; ++seed) {
        MemoryTable table(std::make_shared<MemoryDatabase>(), "t", fields, MemoryTable::Kind::Complete);
        table.load([&](TableColumns &rows) {
            RandomRows random(seed);
            for (int i = 0; i < 300; ++i)
                rows.appendRow(random.row());
        });
        for (const std::vector<ColumnOrder> &order : orders) {
            QByteArrayList terms;
            for (const ColumnOrder &term : order)
                terms += "t0." + MemoryTable::columnName(term.column) + (term.descending ? " desc" : "");
            const QByteArray sql = terms.join(", ");
            // The second time with blanks, since orders are kept by their text.
            EXPECT_EQ(table.rows({}, {sql, order}), table.rows({}, {" " + sql, std::nullopt}))
                << "seed " << seed << ", " << sql.constData();
        }
    }
}

TEST(RowOrder, ConditionsOnColumnsInMemoryAreThoseOfSql) {
    const auto database = std::make_shared<MemoryDatabase>();
    MemoryTable whole(database, "w", fields, MemoryTable::Kind::Complete);
    MemoryTable growing(database, "g", fields, MemoryTable::Kind::Growing);
    growing.setKey({2});
    const auto fill = [](TableColumns &rows) {
        RandomRows random(7);
        for (int i = 0; i < 300; ++i)
            rows.appendRow(random.row());
    };
    whole.load(fill);
    growing.load(fill);
    for (const char *condition :
         {"t0.c2 = 1", "t0.c2 = 1.0", "t0.c2 = '1'", "t0.c2 is null", "t0.c3 = -1 and t0.c2 = -2",
          "t0.c1 = 0", "t0.c0 = 'E\u0301'", "t0.c0 = 'P' or t0.c2 = 0", "t0.c2 = null"}) {
        const RowFilter filter{{}, SqlText(condition)};
        std::vector<int> expected = growing.rows(filter, {});
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(whole.rows(filter, {}), expected) << condition;
    }
    for (int column = 0; column < fields.size(); ++column)
        for (int row = 1; row <= 300; ++row)
            EXPECT_EQ(whole.cell(row, column), growing.cell(row, column)) << row << ", " << column;
}
