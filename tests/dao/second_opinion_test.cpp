// What mdbtools' own programs say of the same files.
#include <gtest/gtest.h>

#include <QProcess>

#include "tests/dao/jet_file.h"
#include "tests/dao/source_support.h"
#include "tests/support/csv_table.h"

namespace {

using Type = JetFile::Type;
using Version = JetFile::Version;

QString outputOf(const QString &program, const QStringList &arguments) {
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << program.toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// The name of each column and its type, as mdb-schema writes them.
QString schemaOf(const FieldDefinitions &definitions) {
    static const QHash<FieldType, QString> types = {{FieldType::Boolean, "Boolean NOT NULL"},
                                                    {FieldType::Byte, "Byte"},
                                                    {FieldType::Integer, "Integer"},
                                                    {FieldType::Long, "Long Integer"},
                                                    {FieldType::Currency, "Currency"},
                                                    {FieldType::Single, "Single"},
                                                    {FieldType::Double, "Double"},
                                                    {FieldType::Date, "DateTime"},
                                                    {FieldType::Text, "Text (%1)"},
                                                    {FieldType::Memo, "Memo/Hyperlink (255)"}};
    QStringList columns;
    for (const FieldDefinition &field : definitions) {
        const QString type = types.value(field.type);
        columns << "\t[" + field.name + "]\t\t\t" +
                       (field.type == FieldType::Text ? type.arg(field.size) : type);
    }
    return columns.join(", \n");
}

const QString Null = QStringLiteral("(Null)");

/// As mdb-export writes the cell, with its places. An empty text is a Null to it.
QString exported(const QVariant &cell, FieldType type) {
    if (!cell.isValid() || cell.toString().isEmpty()) return Null;
    switch (type) {
    case FieldType::Boolean:
        return cell.toBool() ? "1" : "0";
    case FieldType::Currency:
        return QString::number(cell.toDouble(), 'f', 4);
    case FieldType::Single:
        return QString::asprintf("%.8g", cell.toDouble());
    case FieldType::Double:
        return QString::asprintf("%.16g", cell.toDouble());
    case FieldType::Date:
        return cell.toDateTime().toString("yyyy-MM-dd hh:mm:ss");
    default:
        return cell.toString();
    }
}

/// The table's definition and its rows are those that mdbtools reads.
void expectAgreement(FileSource &source, const QString &path, const QString &table) {
    SCOPED_TRACE(path.toStdString() + ": " + table.toStdString());
    const FieldDefinitions definitions = source.fields(table);
    const QString schema = outputOf("mdb-schema", {"-T", table, path});
    EXPECT_EQ(schema.section("(\n", -1).section("\n);", 0, 0).toStdString(),
              schemaOf(definitions).toStdString());

    const QString date = "%Y-%m-%d %H:%M:%S";
    const auto lines =
        CsvTable::split(outputOf("mdb-export", {"-0", "\\N", "-D", date, "-T", date, path, table}));
    const Rows rows = allRows(source, table);
    ASSERT_EQ(lines.size() - 1, rows.size());
    for (qsizetype i = 0; i < rows.size(); ++i) {
        ASSERT_EQ(lines[i + 1].size(), definitions.size());
        for (qsizetype column = 0; column < definitions.size(); ++column) {
            const QVariant &cell = lines[i + 1][column];
            ASSERT_EQ(exported(rows[i][column], definitions[column].type).toStdString(),
                      (cell.isValid() ? cell.toString() : Null).toStdString())
                << definitions[column].name.toStdString() << " in row " << i;
        }
    }
}

/// A file, and what must be read from it.
struct Fixture {
    JetFile::Columns columns;
    Rows rows;

    QByteArray written(Version version, const JetFile::Manner &manner) const {
        return JetFile(version, manner).make("T", columns, rows);
    }
    Rows expected() const {
        Rows left;
        for (const QVector<QVariant> &row : rows) {
            left.append(QVector<QVariant>());
            for (qsizetype i = 0; i < columns.size(); ++i)
                if (!columns[i].deleted) left.last().append(row[i]);
        }
        return left;
    }
};

/// Every type, some columns deleted.
Fixture types(const QString &text) {
    const auto moment = QDateTime(QDate(1997, 3, 30), QTime(14, 25, 59));
    return {{{"id", Type::Long},
             {"gone", Type::Long, 0, 0, false, true},
             {text.toUtf8(), Type::Text},
             {"lost", Type::Text, 0, 0, false, true},
             {"memo", Type::Memo},
             {"flag", Type::Boolean},
             {"small", Type::Integer},
             {"byte", Type::Byte},
             {"double", Type::Double},
             {"money", Type::Money},
             {"single", Type::Single},
             {"day", Type::Date},
             {"last", Type::Text}},
            {{1, 7, text, "lost", "memo", true, -5, 200, 1e100, 12.3456, 0.1f, moment, "x"},
             {-70000, 7, {}, "lost", {}, false, {}, {}, {}, {}, {}, {}, ""},
             {3, {}, "", {}, text, false, 1, 0, 0.1, -0.5, -2.5f, moment.addYears(30), text}}};
}

/// A definition that goes on in several pages.
Fixture wide() {
    Fixture fixture;
    QVector<QVariant> row;
    for (int i = 0; i < 150; ++i) {
        const QByteArray name = "column number " + QByteArray::number(i) + " with a name of some length";
        fixture.columns.append({name, i % 3 == 0 ? Type::Integer : Type::Text, 0, 0, false, i % 10 == 4});
        row.append(i % 3 == 0 ? QVariant(i) : QVariant(QString::number(i)));
    }
    fixture.rows = {row, row};
    fixture.rows[1].fill({});
    return fixture;
}

} // namespace

TEST(SecondOpinion, OfEveryTableOfTheSamples) {
    for (const char *name : {"Velmar_PED.mdb", "PMA_Index.mdb"}) {
        const QString path = samplePath(name);
        SampleSource source(path);
        QStringList tables = outputOf("mdb-tables", {"-1", path}).split('\n', Qt::SkipEmptyParts);
        QStringList own = source.tableNames();
        tables.sort();
        own.sort();
        ASSERT_EQ(own, tables);
        for (const QString &table : tables)
            expectAgreement(source, path, table);
    }
}

TEST(SecondOpinion, OfFilesInEveryLayoutAndManner) {
    const Fixture western = types(QString::fromUtf8("Grüße für 5 €"));
    const Fixture russian = types(QString::fromUtf8("Сталь"));
    const Fixture greek = types(QString::fromUtf8("Χάλυβας"));
    const Fixture czech = types(QString::fromUtf8("Ocelářská"));
    const struct {
        const Fixture &fixture;
        JetFile::Manner manner;
    } cases[] = {
        {western, {1252, {}, 0, 0}},
        {western, {1252, "rolvek", 0, 0}},
        {western, {1252, {}, 0x1234abcd, 0}},
        {western, {1252, "rolvek", 0x80000001, 9}}, // with a map of pages
        {wide(), {1252, {}, 0, 0}},
        {wide(), {1252, {}, 0x1234abcd, 0}},
        {western, {1252, {}, 0, 0, true}},
        {russian, {1251, {}, 0, 0}},
        {greek, {1253, {}, 0, 0}},
        {czech, {1250, {}, 0, 0}},
        {types(QString::fromUtf8("Çelik ğış")), {1254, {}, 0, 0}},
        {types(QString::fromUtf8("Plieno šėž")), {1257, {}, 0, 0}},
    };
    const QTemporaryDir folder;
    int number = 0;
    for (const Version version : {Version::Access97, Version::Access2000, Version::Access2007}) {
        for (const auto &[fixture, manner] : cases) {
            const QString name = QString("%1_%2.mdb").arg(int(version)).arg(++number);
            const QString path = writeFile(folder, name, fixture.written(version, manner));
            SampleSource source(path);
            expectAgreement(source, path, "T");
            EXPECT_EQ(rowTexts(allRows(source, "T")), rowTexts(fixture.expected())) << name.toStdString();
            const int withoutPassword = errorOf([&] { FileSource(path, helperPath()); });
            EXPECT_EQ(withoutPassword, manner.password.isEmpty() ? 0 : 3031) << name.toStdString();
        }
    }
}

TEST(SecondOpinion, OfRowsFarBehindInAGreatFile) {
    constexpr int PagesOfAMapPage = (2048 - 4) * 8;
    const Fixture fixture = types("text");
    const QTemporaryDir folder;
    const QString path =
        writeFile(folder, "far.mdb", fixture.written(Version::Access97, {1252, {}, 0, PagesOfAMapPage + 9}));
    SampleSource source(path);
    expectAgreement(source, path, "T");
    EXPECT_EQ(rowTexts(allRows(source, "T")), rowTexts(fixture.expected()));
}
