#include "velmar_values/command_line.h"

#include <QRegularExpression>

#include "data/search_statements.h"
#include "data/table_vocabulary.h"
#include "values/comparison.h"
#include "values/value_search.h"
#include "values/value_sheet.h"

namespace {

using Command = CommandLine::Command;
using Format = CommandLine::Format;

constexpr int MostTemperatures = 1000;
constexpr int Any = -1;

/// How many words a command takes beside its options.
struct CommandRule {
    const char *name;
    Command command;
    int least;
    int most;
    const char *words;
};

constexpr CommandRule CommandRules[] = {
    {"find", Command::Find, 0, 0, ""},
    {"show", Command::Show, 1, Any, "a grade"},
    {"values", Command::Values, 1, Any, "a grade"},
    {"properties", Command::Properties, 0, 0, ""},
    {"compare", Command::Compare, 1, Any, "grades"},
    {"sheet", Command::Sheet, 1, 1, "a grade"},
    {"card", Command::Card, 1, 1, "a grade"},
    {"export", Command::Export, 1, 1, "a folder"},
};

const CommandRule &ruleOf(const QString &command) {
    for (const CommandRule &rule : CommandRules)
        if (command == QLatin1String(rule.name)) return rule;
    throw UsageError(command.isEmpty() ? QStringLiteral("what is to be done?")
                                       : "no command '" + command + "'");
}

QString keyOf(const QString &word) {
    for (int i = 0; i < TableVocabulary::TableCount; ++i) {
        const QString key = TableVocabulary::GetShortTableName(i);
        if (key.compare(word, Qt::CaseInsensitive) == 0) return key;
    }
    QStringList known;
    for (int i = 0; i < TableVocabulary::TableCount; ++i)
        known << TableVocabulary::GetShortTableName(i);
    throw UsageError("no table '" + word + "'; there are " + known.join(", "));
}

/// The program's box holds a comma for either decimal sign.
QString temperatureOf(const QString &word) {
    static const QRegularExpression number(QStringLiteral("^-?[0-9]+(\\.[0-9]+)?$"));
    if (!number.match(word).hasMatch())
        throw UsageError("'" + word + "' is no temperature; 250 and 250.5 are, and 250,300 are two");
    return QString(word).replace(QLatin1Char('.'), QLatin1Char(','));
}

class Parser {
public:
    explicit Parser(const QStringList &words)
        : m_rest(words) {}

    CommandLine parse() {
        while (!m_rest.isEmpty()) {
            const QString word = m_rest.takeFirst();
            if (word.startsWith(QLatin1String("-")) && !m_onlyWords)
                option(word);
            else if (m_command.isEmpty())
                m_command = word;
            else
                m_words << word;
        }
        finish();
        return m_line;
    }

private:
    void option(const QString &word) {
        const QString name = word.section(QLatin1Char('='), 0, 0);
        const bool hasValue = word.contains(QLatin1Char('='));
        const auto value = [&] {
            if (hasValue) return word.section(QLatin1Char('='), 1);
            if (m_rest.isEmpty()) throw UsageError(name + " needs a value");
            return m_rest.takeFirst();
        };
        if (word == QLatin1String("--")) {
            m_onlyWords = true;
        } else if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
            m_help = true;
        } else if (name == QLatin1String("--version")) {
            m_version = true;
        } else if (name == QLatin1String("--database")) {
            m_line.database = value();
        } else if (name == QLatin1String("--format")) {
            m_line.format = oneOf<Format>(value(), {"table", "csv", "tsv", "json"}, "format");
            m_hasFormat = true;
        } else if (name == QLatin1String("--xlsx")) {
            m_line.xlsx = value();
            if (m_line.xlsx.isEmpty()) throw UsageError("--xlsx needs a file");
        } else if (!commandOption(name, value)) {
            throw UsageError("no option " + name + (m_command.isEmpty() ? QString() : " of " + m_command));
        }
    }

    template <class Value>
    bool commandOption(const QString &name, Value value) {
        Grades::Criteria &criteria = m_line.criteria;
        const std::pair<const char *, QString *> texts[] = {{"--standard", &criteria.standard},
                                                            {"--name", &criteria.name},
                                                            {"--number", &criteria.number},
                                                            {"--group", &criteria.group},
                                                            {"--product-form", &criteria.productForm}};
        if (m_command == QLatin1String("find")) {
            for (const auto &[option, text] : texts)
                if (name == QLatin1String(option)) return *text = value(), true;
            if (name == QLatin1String("--system")) return criteria.system = systemOf(value()), true;
            if (name == QLatin1String("--where")) return m_line.conditions << value(), true;
        }
        if (m_command == QLatin1String("values") && name == QLatin1String("--at")) {
            for (const QString &word : value().split(QLatin1Char(',')))
                m_line.temperatures << temperatureOf(word.trimmed());
            return true;
        }
        if (m_command == QLatin1String("compare")) return compareOption(name, value);
        if (m_command == QLatin1String("card")) return cardOption(name, value);
        return m_command == QLatin1String("sheet") && sheetOption(name, value);
    }

    template <class Value>
    bool compareOption(const QString &name, Value value) {
        if (name == QLatin1String("--at"))
            m_line.temperatures << understood(TypedTexts::temperature(value()));
        else if (name == QLatin1String("--thickness"))
            m_line.thickness = understood(TypedTexts::thickness(value()));
        else if (name == QLatin1String("--composition"))
            m_line.composition = true;
        else
            return false;
        return true;
    }

    template <class Value>
    bool sheetOption(const QString &name, Value value) {
        const std::pair<const char *, QString *> texts[] = {
            {"--from", &m_line.from}, {"--to", &m_line.to}, {"--step", &m_line.step}};
        for (const auto &[option, text] : texts)
            if (name == QLatin1String(option)) return *text = value(), true;
        if (name != QLatin1String("--property")) return false;
        m_line.properties << value();
        return true;
    }

    template <class Value>
    bool cardOption(const QString &name, Value value) {
        CardChoice &choice = m_line.card;
        if (name == QLatin1String("--for"))
            m_line.solver = oneOf<CommandLine::Solver>(value(), {"calculix", "mapdl"}, "program");
        else if (name == QLatin1String("--units"))
            m_units = oneOf<UnitSystem>(value(), {"si", "mm"}, "system of units");
        else if (name == QLatin1String("--poisson"))
            choice.poisson = faultless(value(), MaterialCard::poissonFault);
        else if (name == QLatin1String("--density"))
            choice.density = faultless(value(), MaterialCard::densityFault);
        else if (name == QLatin1String("--yield"))
            choice.yieldKey =
                QStringList{"Rp02", "Rp10"}[oneOf<int>(value(), {"Rp02", "Rp10"}, "yield stress")];
        else if (name == QLatin1String("--thickness"))
            m_line.thickness = understood(TypedTexts::thickness(value()));
        else
            return false;
        return true;
    }

    static QString faultless(const QString &word, QString (*fault)(const QString &typed)) {
        if (!fault(word).isEmpty()) throw UsageError(fault(word));
        return word;
    }

    /// The place of `word` in the list, in any capitals.
    template <class Value>
    static Value oneOf(const QString &word, const QStringList &names, const char *what) {
        for (qsizetype i = 0; i < names.size(); ++i)
            if (names[i].compare(word, Qt::CaseInsensitive) == 0) return static_cast<Value>(i);
        throw UsageError(QStringLiteral("no %1 '%2'; there are %3")
                             .arg(QString::fromLatin1(what), word, names.join(QStringLiteral(", "))));
    }

    static QString systemOf(const QString &word) {
        const QStringList &kinds = SearchStatements::standardKinds();
        if (!kinds.contains(word.toUpper()))
            throw UsageError("no system '" + word + "'; there are " + kinds.join(", "));
        return word.toUpper();
    }

    void finish() {
        if (m_version || m_help) {
            m_line.command = m_version ? Command::Version : Command::Help;
            return;
        }
        const CommandRule &rule = ruleOf(m_command);
        m_line.command = rule.command;
        if (m_words.size() < rule.least)
            throw UsageError(QString::fromLatin1(rule.name) + " needs " + QString::fromLatin1(rule.words));
        if (rule.most != Any && m_words.size() > rule.most)
            throw UsageError("'" + m_words[rule.most] + "' is one word too many");
        finishCommand();
        if (m_line.xlsx.isEmpty() && !m_hasFormat) return;
        if (m_line.command == Command::Card || m_line.command == Command::Export)
            throw UsageError(m_command + " has a form of its own, without --format and --xlsx");
        if (!m_line.xlsx.isEmpty() && m_hasFormat) throw UsageError("either --format or --xlsx");
    }

    void finishCommand() {
        m_line.grades = m_words;
        switch (m_line.command) {
        case Command::Find:
            if (m_line.conditions.size() > ValueSearch::MostConditions)
                throw UsageError(QStringLiteral("at most %1 conditions").arg(ValueSearch::MostConditions));
            break;
        case Command::Show:
            m_line.grades = {m_words.takeFirst()};
            for (const QString &word : std::as_const(m_words))
                m_line.tables << keyOf(word);
            break;
        case Command::Values:
            if (m_line.temperatures.isEmpty()) throw UsageError("values needs --at with a temperature in °C");
            if (m_line.temperatures.size() > MostTemperatures) throw UsageError("at most 1,000 temperatures");
            break;
        case Command::Compare:
            if (m_words.size() > Comparison::MostGrades)
                throw UsageError(QStringLiteral("at most %1 grades").arg(Comparison::MostGrades));
            finishCompare();
            break;
        case Command::Sheet:
            if (m_line.from.isEmpty() || m_line.to.isEmpty() || m_line.step.isEmpty())
                throw UsageError("sheet needs --from, --to and --step in °C");
            understood(ValueSheets::temperatures(m_line.from, m_line.to, m_line.step));
            break;
        case Command::Card:
            finishCard();
            break;
        case Command::Export:
            m_line.folder = m_words.first();
            break;
        default:
            break;
        }
    }

    void finishCompare() const {
        if (m_line.composition && (!m_line.temperatures.isEmpty() || m_line.thickness))
            throw UsageError("a composition has no --at and no --thickness");
        if (!m_line.composition && m_line.temperatures.size() != 1)
            throw UsageError("compare needs --at with a temperature in °C, or --composition");
    }

    void finishCard() {
        if (!m_line.solver) throw UsageError("card needs --for with calculix or mapdl");
        if (!m_units) throw UsageError("card needs --units with si or mm");
        m_line.card.units = *m_units;
        if (m_line.thickness && m_line.card.yieldKey.isEmpty())
            throw UsageError("--thickness goes with --yield");
    }

    QStringList m_rest;
    QString m_command;
    QStringList m_words;
    bool m_onlyWords = false;
    bool m_help = false;
    bool m_version = false;
    bool m_hasFormat = false;
    std::optional<UnitSystem> m_units;
    CommandLine m_line;
};

} // namespace

CommandLine CommandLine::parse(const QStringList &words) {
    return Parser(words).parse();
}

QString CommandLine::usage() {
    return QStringLiteral(
        "velmar-values [--database FILE] [--format table|csv|tsv|json | --xlsx FILE] COMMAND\n"
        "\n"
        "  find [--standard T] [--name T] [--number T] [--group T] [--product-form T] [--system EN|SS|ASME]\n"
        "       [--where CONDITION]...\n"
        "  show GRADE [TABLE...]\n"
        "  values GRADE... --at TEMPERATURE[,TEMPERATURE...]\n"
        "  properties\n"
        "  compare GRADE... --at TEMPERATURE [--thickness MM]\n"
        "  compare GRADE... --composition\n"
        "  sheet GRADE --from TEMPERATURE --to TEMPERATURE --step DEGREES [--property PROPERTY]...\n"
        "  card GRADE --for calculix|mapdl --units si|mm [--poisson N] [--density N]\n"
        "       [--yield Rp02|Rp10] [--thickness N]\n"
        "  export FOLDER\n"
        "\n"
        "CONDITION is such as \"Rp02 >= 150 at 300 thickness 40\", PROPERTY one that properties lists.\n"
        "GRADE is a name, a number, either with @ and the standard behind it, or # and the identity.\n"
        "velmar-values(1) tells the rest.\n");
}
