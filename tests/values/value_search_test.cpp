// Finding grades by value: against a calculation of its own from the sample's texts, and against the values
// of each grade in databases that keep to no rule.
#include <gtest/gtest.h>

#include <cmath>

#include <QRandomGenerator>

#include "design/value_text.h"
#include "platform/runtime/runtime_error.h"
#include "tests/support/error_of.h"
#include "tests/values/plain_sample.h"
#include "tests/values/values_support.h"
#include "values/condition_text.h"
#include "values/rounded_value.h"

namespace {

constexpr int LastGrade = 38;
using Missing = PlainSample::Missing;

qint64 thousandths(double number) {
    return std::llround(number * 1000);
}

QString temperatureText(int tenths) {
    return QString::number(tenths / 10) + (tenths % 10 == 0 ? QString() : "," + QString::number(tenths % 10));
}

int absent(const Absences &absences, Missing missing) {
    switch (missing) {
    case Missing::BeginsAbove:
        return absences.beginAbove;
    case Missing::EndsBelow:
        return absences.endBelow;
    case Missing::NoValue:
        return absences.noValue;
    case Missing::NoTable:
        return absences.noTable;
    case Missing::NoBand:
        return absences.noBand;
    }
    return -1;
}

/// What one search should find: by the grade its best value, and how many have none for each reason.
struct Expected {
    std::map<int, PlainSample::Value> found;
    std::map<Missing, int> missing;
};

Expected expected(PlainSample &sample, const ValueCondition &condition, int tenths) {
    Expected expected;
    const auto least = condition.limits.least;
    const auto greatest = condition.limits.greatest;
    for (int grade = 1; grade <= LastGrade; ++grade) {
        const auto values = sample.at(condition.property.name(), grade, tenths, condition.thickness);
        if (values.values.empty()) ++expected.missing[values.missing];
        for (const PlainSample::Value &value : values.values) {
            if (least && value.number < thousandths(least->number)) continue;
            if (greatest && value.number >= thousandths(greatest->number)) continue;
            const auto [best, isNew] = expected.found.try_emplace(grade, value);
            const bool better =
                greatest && !least ? value.number < best->second.number : value.number > best->second.number;
            if (!isNew && better) best->second = value;
        }
    }
    return expected;
}

void check(const ValueSearch &search, const ValueQuery &query, const Expected &expected) {
    const ValueResult result = search.find(query);
    const ValueLimits &limits = query.conditions.first().limits;
    ASSERT_EQ(result.grades.size(), expected.found.size());
    EXPECT_EQ(result.left.last(), static_cast<int>(result.grades.size()));
    double before = 0;
    for (int place = 0; place < static_cast<int>(result.grades.size()); ++place) {
        const int grade = search.grades()[result.grades[static_cast<std::size_t>(place)]].id;
        const FoundValue found = search.found(query, result, place, 0);
        const auto wanted = expected.found.find(grade);
        ASSERT_NE(wanted, expected.found.end()) << grade;
        EXPECT_EQ(thousandths(found.number), wanted->second.number) << grade;
        EXPECT_EQ(ValueText::numberIn(found.text), found.number);
        const QString end = wanted->second.band < 0 ? QString() : QString::number(wanted->second.band) + "mm";
        EXPECT_EQ(found.band.section(' ', -1), end) << grade;
        EXPECT_FALSE(place > 0 && limits.isBetter(found.number, before)) << "best first";
        before = found.number;
    }
    for (const Missing missing :
         {Missing::BeginsAbove, Missing::EndsBelow, Missing::NoValue, Missing::NoTable, Missing::NoBand}) {
        const auto count = expected.missing.find(missing);
        EXPECT_EQ(absent(result.absences.first(), missing),
                  count == expected.missing.end() ? 0 : count->second)
            << int(missing);
    }
}

} // namespace

TEST(ValueSearch, FindsWhatAPlainCalculationFinds) {
    const ValuesDatabase database;
    ValueSearch search(database);
    PlainSample sample;
    QRandomGenerator random(20261124);
    std::size_t values = 0;
    for (const Property &property : Properties::all(database)) {
        ASSERT_TRUE(search.read(property.key));
        for (int i = 0; i < 50; ++i) {
            // Halves of a degree are whole to a single, and the even ones often a row's own.
            const int tenths = i % 2 == 0 ? 5 * random.bounded(0, 1400) : 500 * random.bounded(0, 15);
            ValueCondition condition{property, temperatureText(tenths), {}, {}};
            if (i % 3 != 0) condition.thickness = random.bounded(1, 3000) / 10.0;
            const Expected all = expected(sample, condition, tenths);
            check(search, {{}, {condition}}, all);
            if (all.found.empty()) continue;
            // Limits that are themselves values, so that it matters whether they count.
            const auto some = std::next(all.found.begin(), random.bounded(int(all.found.size())));
            const double limit = static_cast<double>(some->second.number) / 1000;
            for (const ValueLimits &limits :
                 {ValueLimits{ValueLimit{limit, true}, {}}, ValueLimits{{}, ValueLimit{limit, false}}}) {
                condition.limits = limits;
                const Expected within = expected(sample, condition, tenths);
                check(search, {{}, {condition}}, within);
                values += within.found.size();
            }
        }
    }
    EXPECT_GT(values, 5000u) << "it is values that were compared";
}

TEST(ValueSearch, CountsWhatEachConditionLeaves) {
    const ValuesDatabase database;
    ValueSearch search(database);
    const auto condition = [&](const QString &text) {
        const auto read = ConditionText::read(text, Properties::all(database));
        EXPECT_TRUE(read) << read.error.toStdString();
        search.read(read->property.key);
        return *read;
    };
    ValueQuery query{{}, {condition("rp02 >= 100 at 300 thickness 40"), condition("ThermCond>20,5 at 300")}};
    query.texts.productForm = "plate";
    const ValueResult both = search.find(query);
    const ValueResult first = search.find({query.texts, {query.conditions[0]}});
    const ValueResult second = search.find({query.texts, {query.conditions[1]}});
    EXPECT_EQ(both.left[0], Grades::find(database, query.texts).size());
    EXPECT_EQ(both.left[1], int(first.grades.size()));
    std::vector<int> common;
    for (const int grade : first.grades)
        if (std::count(second.grades.begin(), second.grades.end(), grade)) common.push_back(grade);
    EXPECT_EQ(both.grades, common) << "in the order of the first";
    EXPECT_GT(common.size(), 0u);
    EXPECT_LT(common.size(), first.grades.size());
    // Twice the same search, the second time over what was kept of the first.
    EXPECT_EQ(search.find(query).grades, both.grades);

    const auto points = search.points(query.conditions[0], query.conditions[1]);
    EXPECT_EQ(points.size(), 32u);
    for (const auto &point : points) {
        const auto grade = database.grade(search.grades()[point.grade].id);
        EXPECT_EQ(grade->at(query.conditions[0].property, "300", 40).cells.first().value, point.x);
        EXPECT_EQ(grade->at(query.conditions[1].property, "300").cells.first().value, point.y);
    }
}

TEST(ValueSearch, TheTextsAreThoseOfTheSearchWindow) {
    const ValuesDatabase database;
    const GradeList grades(database);
    for (const Grades::Criteria &criteria :
         {Grades::Criteria{}, Grades::Criteria{"10028", "", "", "", "", "EN"},
          Grades::Criteria{"", "p#6", "", "", "", "EN"},
          Grades::Criteria{"", "", "1.0*5", "1.?", "tube", "EN"},
          Grades::Criteria{"sa-5", "70", "", "", "", "ASME"},
          Grades::Criteria{"", "14[2-4]", "", "", "", "SS"}, Grades::Criteria{"", "", "", "*", "", "EN"}}) {
        const std::vector<bool> matching = grades.matching(criteria);
        QVector<qint16> ours, theirs;
        for (int i = 0; i < grades.count(); ++i)
            if (matching[static_cast<std::size_t>(i)]) ours << grades[i].id;
        for (const Grades::Grade &grade : Grades::find(database, criteria))
            theirs << grade.id;
        EXPECT_EQ(ours, theirs) << (criteria.standard + criteria.name).toStdString();
        EXPECT_FALSE(ours.isEmpty());
    }
    const std::vector<bool> open = grades.matching({"[", "", "", "", "", "EN"});
    EXPECT_EQ(std::count(open.begin(), open.end(), true), 0);
}

TEST(ValueSearch, OddTablesAreReadAsEachGradeReadsThem) {
    const ValuesDatabase database({
        // 1: decoration, Null, a dash, a text and a gap; rows of the file out of order
        "Rp02 values (1, 100, 16, 2, '200 a)'), (1, 50, 16, 1, '(220)'), (1, 150, 16, 3, null), "
        "(1, 200, 16, 4, '-'), (1, 250, 16, 5, '>=150'), (1, 300, 16, 6, 'none'), (1, 50, 40, 1, '1,5'), "
        "(1, 100, 40, 2, '2.5'), (1, 200, 40, 4, '10-20')",
        // 2: two cells in one place, one ordering for two temperatures, one band without a row
        "Rp02 values (2, 50, 16, 1, '9'), (2, 50, 16, 1, '10'), (2, 100, 16, 2, '8'), (2, 60, 40, 2, '7')",
        // 3: descending by their ordering; 4: bands and none; 5: a single row; 6: Null among temperatures
        "Rp02 values (3, 200, -1, 1, '5'), (3, 100, -1, 2, '6'), (3, 150, -1, 3, '4')",
        "Rp02 values (4, 100, 16, 1, '5'), (4, 50, -1, 1, '6'), (4, 120, 40, 1, '7')",
        "Rp02 values (5, 20, -1, 1, '235')",
        "Rp02 values (6, null, -1, 1, '5'), (6, 100, -1, 2, '6')",
        // 7: no thickness; 8: one beyond 16 bits; 9: two rows of one temperature
        "Rp02 values (7, 100, null, 1, '5'), (7, 100, 16, 1, '5')",
        "Rp02 values (8, 20, 40000, 1, '1')",
        "Rp02 values (9, 20, -1, 1, '1'), (9, 20, -1, 2, '2'), (9, 30, -1, 3, '3')",
        "ThermExp values (1, 100, '12,5', null), (1, 20, null, '11'), (1, 60, '12,0', '11.25')",
        "ModElast values (1, 20, 212.4), (1, 100, 206), (2, 100, 1e300), (2, 20, -1e300)",
        // Creep: an empty column, one without a temperature, too few and too many cells
        "Columns values (1, 'Temperature', 1), (2, 'Rm / 1 h', 1), (3, 'Rm / 2 h', 1), (4, 'Rm / 2 h', 1)",
        "Units values (1, '[MPa]')",
        "CreepPropTable values (1, 1, 1, null, null, 0), (1, 2, 2, null, 'min', 0), (1, 3, 3, null, null, "
        "0), "
        "(1, 4, 4, null, null, 0)",
        "CreepProperties values (1, 1, 1, 1, '450'), (1, 1, 2, 2, '100'), (1, 1, 3, 3, '-'), (1, 1, 4, 4, "
        "'9'), "
        "(1, 2, 1, 1, '500'), (1, 2, 2, 2, '(80)'), (1, 2, 3, 3, ' '), (1, 2, 4, 4, '-')",
        "CreepProperties values (2, 1, 1, 1, ''), (2, 1, 2, 2, '100'), (2, 1, 3, 3, '7'), (2, 1, 4, 4, ''), "
        "(2, 2, 2, 2, '200'), (2, 2, 1, 1, null), (2, 2, 3, 3, '8')",
        "CreepProperties values (3, 1, 1, 1, '450'), (3, 1, 2, 2, '100')",
        "CreepProperties values (4, 1, 1, 1, '')",
        "CreepProperties values (5, 1, 1, 1, 'hot'), (5, 1, 2, 2, '3'), (5, 1, 3, 3, '4'), (5, 1, 4, 4, '5')",
    });
    ValueSearch search(database);
    int compared = 0;
    int faults = 0;
    for (const Property &property : Properties::all(database)) {
        search.read(property.key);
        for (int id = 1; id <= 10; ++id) {
            std::shared_ptr<const GradeValues> grade;
            const bool isFault = errorOf([&] { grade = database.grade(id); }) != 0;
            faults += isFault;
            for (const double thickness : {0.0, 10.0, 16.0, 16.1, 40.0, 41.0})
                for (const QString at :
                     {"-5",  "20",  "50",  "60",  "75",  "80",  "100", "100,0", "110", "125",
                      "150", "175", "200", "225", "250", "275", "300", "450",   "475", "500"}) {
                    ValueCondition condition{property, at, {}, {}};
                    if (thickness > 0) condition.thickness = thickness;
                    const ValueQuery query{{}, {condition}};
                    const ValueResult result = search.find(query);
                    const auto place =
                        std::find_if(result.grades.begin(), result.grades.end(),
                                     [&](int found) { return search.grades()[found].id == id; });
                    std::optional<ValueCell> best;
                    if (!isFault)
                        for (const ValueCell &cell : grade->at(property, at, condition.thickness).cells)
                            if (cell.value && (!best || *cell.value > *best->value)) best = cell;
                    if (isFault && property.key != "Rp02") continue; // its other tables may be whole
                    ASSERT_EQ(place != result.grades.end(), best.has_value())
                        << id << property.name().toStdString() << " at " << at.toStdString();
                    if (!best) continue;
                    const FoundValue found =
                        search.found(query, result, int(place - result.grades.begin()), 0);
                    EXPECT_EQ(found.text, best->text) << id << property.name().toStdString();
                    EXPECT_EQ(found.band, best->band);
                    EXPECT_EQ(found.number, *best->value);
                    ++compared;
                }
        }
    }
    EXPECT_GT(compared, 250);
    EXPECT_GT(faults, 0);
    const ValueResult odd = search.find({{}, {{database.property("Rp02"), "20", {}, {}}}});
    EXPECT_EQ(odd.absences.first().faults, 3)
        << "7 and 8 cannot be loaded, 6 has a row without a temperature";
}

TEST(ValueSearch, ReadingCanBeCalledOff) {
    const ValuesDatabase database;
    ValueSearch search(database);
    EXPECT_FALSE(search.read("Rp02", [](qint64, qint64) { return false; }));
    EXPECT_FALSE(search.isRead("Rp02"));
    EXPECT_EQ(errorOf([&] { search.find({{}, {{database.property("Rp02"), "20", {}, {}}}}); }), 9);
    qint64 last = 0;
    EXPECT_TRUE(search.read("Rp02", [&](qint64 rows, qint64 of) {
        EXPECT_LE(rows, of);
        last = rows;
        return true;
    }));
    EXPECT_EQ(last, 706) << "all rows of the sample";
}

TEST(ValueSearch, TellsTheRestInOneLine) {
    const ValuesDatabase database({"Rp02 values (1, 20, -1, 1, '200'), (1, 300, -1, 2, '100'), "
                                   "(2, 400, -1, 1, '100'), (3, 20, -1, 1, '90'), (4, 20, -1, 1, '90'), "
                                   "(5, 300, -1, 1, 'none'), (6, 300, 16, 1, '80')"});
    ValueSearch search(database);
    search.read("Rp02");
    ValueQuery query{{}, {{database.property("Rp02"), "300", 40, {}}}};
    EXPECT_EQ(
        search.summary(query, search.find(query)),
        "1 of 10 grades; no value at 300 °C in 9: 2 tables end below, 1 begins above, 1 has no value, 1 has "
        "no band of 40 mm, 4 grades have no such table");
    query.conditions << query.conditions.first();
    query.texts.name = "Grade 1"; // and 10
    EXPECT_EQ(search.summary(query, search.find(query)),
              "1 of 10 grades; no value of Rp0,2 at 300 °C in 1: 1 grade has no such table");
}

TEST(RoundedValue, IsTheNumberOfTheText) {
    const PinnedSettings settings;
    QRandomGenerator random(7);
    for (int i = 0; i < 200000; ++i) {
        const double scale = std::pow(10.0, random.bounded(-3, 9));
        double y = (random.generateDouble() - 0.5) * scale;
        if (i % 2 == 0) y = random.bounded(-200000, 200000) / 200.0; // halves of a hundredth
        if (i % 4 == 0)
            for (int step = random.bounded(-12, 13); step != 0; step += step < 0 ? 1 : -1)
                y = std::nextafter(y, step < 0 ? -1e9 : 1e9);
        ASSERT_EQ(roundedValue(y), *ValueText::numberIn(ValueText::designValueText(y))) << i << ": " << y;
    }
}

TEST(ConditionTextTest, TellsWhatItDoesNotUnderstand) {
    const ValuesDatabase database;
    const QVector<Property> properties = Properties::all(database);
    const struct {
        const char *text, *error;
    } cases[] = {
        {"Rp02 at 300", "is no condition"},
        {"Rp02 = 150 at 300", "is no condition"},
        {"Rp02 >= 150", "is no condition"},
        {"Rp03 >= 150 at 300", "no property 'Rp03'; there are Rp02; Rp10"},
        {"ThermExp >= 1 at 300", "ThermExp/ThermExp; ThermExp/ThermExpDiff"},
        {"Rp02 >= much at 300", "'much' is no number"},
        {"Rp02 >= 1 at hot", "'hot' is no temperature"},
        {"Rp02 >= 1 at 300 thickness thin", "'thin' is no thickness"},
        {"Rp02 >= 1 at 300 thickness 0", "greater than 0 mm"},
    };
    for (const auto &each : cases)
        EXPECT_TRUE(ConditionText::read(each.text, properties).error.contains(each.error)) << each.text;
    const auto read =
        ConditionText::read("creepprop/Rm /  10 000 h <=12.5 AT -20,5 thickness 0,5", properties);
    ASSERT_TRUE(read) << read.error.toStdString();
    EXPECT_EQ(read->property.name(), "CreepProp/Rm / 10 000 h");
    EXPECT_EQ(read->temperature, "-20,5");
    EXPECT_EQ(read->thickness, 0.5);
    EXPECT_EQ(read->limits, (ValueLimits{{}, ValueLimit{12.5, true}}));
}
