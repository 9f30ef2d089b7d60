// The one arrow of the design: the program stands on the platform, the platform knows nothing of the program,
// and only the platform reaches the libraries. Read from the #include lines and the words of the sources.
#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace {

const QString Sources = QStringLiteral(SOURCE_FOLDER "/src");
/// From the ground up.
const QStringList ProgramParts = {"data",     "design", "values", "exchange",  "shell", "reports",
                                  "material", "pma",    "search", "workbench", "start"};
/// How many of them know no window.
constexpr int PartsWithoutWindows = 4;

struct Line {
    QString file;
    QString text;
};

QList<Line> linesBelow(const QString &folder) {
    QList<Line> lines;
    QDirIterator files(Sources + "/" + folder, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly)) continue;
        const QStringList texts = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
        for (const QString &text : texts)
            lines.append({file.fileName(), text});
    }
    return lines;
}

/// The lines that match, each with its file, as one text that a failing test prints.
QString matching(const QList<Line> &lines, const QString &pattern) {
    const QRegularExpression expression(pattern);
    QString found;
    for (const Line &line : lines)
        if (expression.match(line.text).hasMatch()) found += line.file + ": " + line.text.trimmed() + "\n";
    return found;
}

} // namespace

TEST(IncludeRules, ReadsTheSources) {
    EXPECT_GT(linesBelow("platform").size(), 1000);
    EXPECT_NE(matching(linesBelow("platform/dao"), "#include <sqlite3\\.h>"), "");
}

TEST(IncludeRules, PlatformIncludesNoProgramHeader) {
    EXPECT_EQ(matching(linesBelow("platform"), "#include \"(" + ProgramParts.join("|") + ")/").toStdString(),
              "");
}

TEST(IncludeRules, PlatformHoldsNoWordOfTheProgram) {
    const QString words = QStringLiteral("\\bRp02\\b|\\bRp10\\b|\\bChemComp\\b|\\bmatID\\b|\\bthickness\\b|"
                                         "\\bgrade\\b|[Vv]elmar|frmSearch|frmMaterial|mdiV|actRep");
    QList<Line> lines = linesBelow("platform");
    EXPECT_EQ(matching(lines, words).toStdString(), "");
}

TEST(IncludeRules, PlatformPartsStandInOrder) {
    const QStringList order = {"runtime", "dao", "files", "forms", "printing", "desktop"};
    for (int i = 0; i < order.size(); ++i) {
        const QStringList above = order.mid(i + 1);
        if (above.isEmpty()) continue;
        EXPECT_EQ(
            matching(linesBelow("platform/" + order[i]), "#include \"platform/(" + above.join("|") + ")/")
                .toStdString(),
            "");
    }
}

TEST(IncludeRules, ProgramPartsStandInOrder) {
    for (int i = 0; i < ProgramParts.size(); ++i) {
        const QStringList above = ProgramParts.mid(i + 1);
        EXPECT_NE(linesBelow(ProgramParts[i]).size(), 0) << ProgramParts[i].toStdString();
        if (above.isEmpty()) continue;
        EXPECT_EQ(
            matching(linesBelow(ProgramParts[i]), "#include \"(" + above.join("|") + ")/").toStdString(), "");
    }
}

TEST(IncludeRules, ValuesNeedNoWindow) {
    for (const QString &part : ProgramParts.first(PartsWithoutWindows))
        EXPECT_EQ(matching(linesBelow(part), "#include (\"platform/(forms|printing|desktop)/|"
                                             "<(Qt(Gui|Widgets|Test)/|QWidget|QPainter|QIcon|QColor|QFont))")
                      .toStdString(),
                  "");
}

TEST(IncludeRules, ProgramReachesNoLibraryPastThePlatform) {
    for (const QString &part : ProgramParts)
        EXPECT_EQ(matching(linesBelow(part),
                           "#include "
                           "[<\"](sqlite3|gio|qpdf|xlsxwriter|zlib|qcustomplot|QtHelp|QHelp)")
                      .toStdString(),
                  "");
}

TEST(IncludeRules, ALibraryIsKnownToOnePartOfThePlatform) {
    const QHash<QString, QString> owners = {{"sqlite3", "dao"},   {"xlsxwriter", "files"},
                                            {"zlib", "files"},    {"qcustomplot", "forms"},
                                            {"qpdf", "printing"}, {"gio", "desktop"}};
    for (auto owner = owners.begin(); owner != owners.end(); ++owner)
        for (const QString part : {"runtime", "dao", "files", "forms", "printing", "desktop"})
            EXPECT_EQ(!matching(linesBelow("platform/" + part), "#include [<\"]" + owner.key()).isEmpty(),
                      part == owner.value())
                << owner.key().toStdString() << " in " << part.toStdString();
}

TEST(IncludeRules, TheHelperNeedsNothingButTheSystemSqliteAndItsCage) {
    const QList<Line> lines = linesBelow("table_reader");
    EXPECT_NE(matching(lines, "#include <unistd\\.h>"), "");
    // Of the program it shares the protocol, and nothing that would bring Qt along.
    EXPECT_EQ(matching(lines, "#include \"(?!table_reader/|platform/dao/(table_protocol|file_identity)\\.h)")
                  .toStdString(),
              "");
    // Headers of the C++ library have no ending, those of the system end in .h and are in this list.
    EXPECT_EQ(
        matching(lines,
                 "#include <(?![a-z_]+>|(poll|unistd|sys/resource|sys/stat|sys/mman|seccomp|sqlite3)\\.h>)")
            .toStdString(),
        "");
}
