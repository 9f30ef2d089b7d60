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
            m_line.format = formatOf(value());
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
        return m_command == QLatin1String("sheet") && sheetOption(name, value);
    }

    template <class Value>
    bool compareOption(const QString &name, Value value) {
        if (name == QLatin1String("--at"))
            m_line.temperatures << understood(TypedTexts::temperature(value()));
        else if (name == QLatin1String("--thickness"))
            m_line.thickness = understood(TypedTexts::thickness(value()));
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

    static Format formatOf(const QString &word) {
        const QStringList names{"table", "csv", "tsv", "json"};
        const qsizetype at = names.indexOf(word.toLower());
        if (at < 0) throw UsageError("no format '" + word + "'; there are " + names.join(", "));
        return static_cast<Format>(at);
    }

    static QString systemOf(const QString &word) {
        const QStringList &kinds = SearchStatements::standardKinds();
        if (!kinds.contains(word.toUpper()))
            throw UsageError("no system '" + word + "'; there are " + kinds.join(", "));
        return word.toUpper();
    }

    void finish() {
        if (m_version) {
            m_line.command = Command::Version;
        } else if (m_help) {
            m_line.command = Command::Help;
        } else if (m_command == QLatin1String("find")) {
            m_line.command = Command::Find;
            takeWords(0, 0, {});
            if (m_line.conditions.size() > ValueSearch::MostConditions)
                throw UsageError(QStringLiteral("at most %1 conditions").arg(ValueSearch::MostConditions));
        } else if (m_command == QLatin1String("show")) {
            m_line.command = Command::Show;
            takeWords(1, -1, "show needs a grade");
            m_line.grades << m_words.takeFirst();
            for (const QString &word : m_words)
                m_line.tables << keyOf(word);
        } else if (m_command == QLatin1String("values")) {
            m_line.command = Command::Values;
            takeWords(1, -1, "values needs a grade");
            m_line.grades = m_words;
            if (m_line.temperatures.isEmpty()) throw UsageError("values needs --at with a temperature in °C");
            if (m_line.temperatures.size() > MostTemperatures) throw UsageError("at most 1,000 temperatures");
        } else if (m_command == QLatin1String("properties")) {
            m_line.command = Command::Properties;
            takeWords(0, 0, {});
        } else if (m_command == QLatin1String("compare")) {
            m_line.command = Command::Compare;
            takeWords(1, -1, "compare needs grades");
            m_line.grades = m_words;
            if (m_words.size() > Comparison::MostGrades)
                throw UsageError(QStringLiteral("at most %1 grades").arg(Comparison::MostGrades));
            if (m_line.temperatures.size() != 1)
                throw UsageError("compare needs --at with a temperature in °C");
        } else if (m_command == QLatin1String("sheet")) {
            m_line.command = Command::Sheet;
            takeWords(1, 1, "sheet needs a grade");
            m_line.grades = m_words;
            if (m_line.from.isEmpty() || m_line.to.isEmpty() || m_line.step.isEmpty())
                throw UsageError("sheet needs --from, --to and --step in °C");
            understood(ValueSheets::temperatures(m_line.from, m_line.to, m_line.step));
        } else if (m_command == QLatin1String("export")) {
            m_line.command = Command::Export;
            takeWords(1, 1, "export needs a folder");
            m_line.folder = m_words.first();
        } else {
            throw UsageError(m_command.isEmpty() ? QStringLiteral("what is to be done?")
                                                 : "no command '" + m_command + "'");
        }
    }

    void takeWords(int least, int most, const QString &missing) const {
        if (m_words.size() < least) throw UsageError(missing);
        if (most >= 0 && m_words.size() > most)
            throw UsageError("'" + m_words[most] + "' is one word too many");
    }

    QStringList m_rest;
    QString m_command;
    QStringList m_words;
    bool m_onlyWords = false;
    bool m_help = false;
    bool m_version = false;
    CommandLine m_line;
};

} // namespace

CommandLine CommandLine::parse(const QStringList &words) {
    return Parser(words).parse();
}

QString CommandLine::usage() {
    return QStringLiteral(
        "velmar-values [--database FILE] [--format table|csv|tsv|json] COMMAND\n"
        "\n"
        "  find [--standard T] [--name T] [--number T] [--group T] [--product-form T] [--system EN|SS|ASME]\n"
        "       [--where CONDITION]...\n"
        "  show GRADE [TABLE...]\n"
        "  values GRADE... --at TEMPERATURE[,TEMPERATURE...]\n"
        "  properties\n"
        "  compare GRADE... --at TEMPERATURE [--thickness MM]\n"
        "  sheet GRADE --from TEMPERATURE --to TEMPERATURE --step DEGREES [--property PROPERTY]...\n"
        "  export FOLDER\n"
        "\n"
        "CONDITION is such as \"Rp02 >= 150 at 300 thickness 40\", PROPERTY one that properties lists.\n"
        "GRADE is a name, a number, either with @ and the standard behind it, or # and the identity.\n"
        "velmar-values(1) tells the rest.\n");
}
