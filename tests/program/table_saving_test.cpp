// "Save Table As..." in material windows, its files read back.
#include <QAction>
#include <QMenu>
#include <QTableView>
#include <QTimer>

#include "data/cell_values.h"
#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "material/frmMaterial2.h"
#include "tests/exchange/xlsx_reader.h"
#include "tests/support/csv_table.h"
#include "tests/support/gui.h"
#include "tests/support/program_fixture.h"
#include "tests/support/sample_pages.h"

namespace {

constexpr int P265GH = 2;         // thickness bands, further elements, every kind of note
constexpr int ReferenceOnly = 38; // no table at all

class SavedTables : public ProgramFixture {
protected:
    frmMaterial2 &open(int matID) {
        m_material = program().material(matID);
        return program().open(m_material);
    }

    static QTableView *viewOf(const TDBGrid &grid) { return grid.findChild<QTableView *>(); }
    static bool offers(const TDBGrid &grid) {
        const QList<QAction *> commands = viewOf(grid)->actions();
        return std::any_of(commands.begin(), commands.end(),
                           [](const QAction *each) { return each->objectName() == "SaveTable"; });
    }
    static void pressKeys(const TDBGrid &grid) {
        grid.window()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(grid.window()));
        viewOf(grid)->setFocus();
        QTest::keyClick(viewOf(grid), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    }
    static void chooseInMenu(const TDBGrid &grid) {
        QTableView *view = viewOf(grid);
        QTimer::singleShot(0, view, [] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_S); });
        QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {20, 40}, view->mapToGlobal(QPoint(20, 40)));
        QApplication::sendEvent(view, &byKey);
    }
    QString path(const QString &name) { return program().folder() + '/' + name; }

    /// A line a row.
    static std::string told(const QList<QStringList> &rows, const QString &between = " | ") {
        QStringList lines;
        for (const QStringList &row : rows)
            lines << row.join(between);
        return lines.join('\n').toStdString();
    }
    static QList<QStringList> csvRows(const QString &path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) return {};
        QList<QStringList> rows;
        for (const auto &line : CsvTable::split(QString::fromUtf8(file.readAll()))) {
            rows << QStringList();
            for (const QVariant &cell : line)
                rows.last() << cell.toString();
        }
        return rows;
    }
    /// A text that is a number and nothing else is one in the file, with as many decimals.
    static void expectCell(const ReadCell &cell, const QString &text) {
        bool isNumber = false;
        const double number = QString(text).replace(',', '.').toDouble(&isNumber);
        ASSERT_EQ(cell.isNumber, isNumber) << text.toStdString();
        if (!isNumber) {
            EXPECT_EQ(cell.text.toStdString(), text.toStdString());
            return;
        }
        EXPECT_EQ(cell.text.toDouble(), number);
        EXPECT_EQ(cell.format.section('.', 1).size(), text.section(',', 1).size()) << text.toStdString();
    }

private:
    std::shared_ptr<Material> m_material;
};

} // namespace

TEST_F(SavedTables, WritesATableOfBandsAsTheSampleHasIt) {
    frmMaterial2 &window = open(P265GH);
    window.ShowTable("Elevated");
    modal().chooseFile([this](const ModalSeam::Request &asked) {
        EXPECT_EQ(asked.title, "Save Minimum values for Rp0,2 [MPa] at elevated temperature");
        EXPECT_EQ(asked.fileName, "P265GH_1.0425_Minimum_values_for_Rp0,2_MPa_at_elevated_temperature");
        EXPECT_EQ(asked.filter.count("|*."), 3);
        return path("rp02.csv");
    });
    pressKeys(*window.tdbBoundTable);

    SamplePages sample(SOURCE_FOLDER "/sample/csv", cellText);
    const SamplePage page = sample.page(P265GH, "Rp02");
    QStringList headings;
    for (const QString &heading : page.headings)
        headings << heading.simplified() + (headings.isEmpty() ? "" : " [MPa]");
    EXPECT_EQ(told(csvRows(path("rp02.csv"))), told(QList<QStringList>{headings} + page.rows));

    // Another page, another table.
    window.ShowTable("ThermExp");
    modal().chooseFile(path("expansion.tsv"));
    pressKeys(*window.tdbBoundTable);
    QFile file(path("expansion.tsv"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(file.readAll()).section('\n', 1, -2).toStdString(),
              told(sample.page(P265GH, "ThermExp").rows, "\t"));
}

TEST_F(SavedTables, WritesACompositionWithNumbersTextsAndFacts) {
    frmMaterial2 &window = open(P265GH);
    window.ShowTable("ChemComp");
    modal().chooseFile(path("1.0425")); // no extension yet
    chooseInMenu(*window.tdbTable);

    const XlsxReader book(path("1.0425.xlsx"));
    SamplePages sample(SOURCE_FOLDER "/sample/csv", cellText);
    const QList<QStringList> rows = sample.page(P265GH, "ChemComp").rows;
    ASSERT_EQ(book.sheets[0].rows.size(), rows.size() + 1);
    for (qsizetype row = 0; row < rows.size(); ++row)
        for (qsizetype column = 0; column < rows[row].size(); ++column)
            expectCell(book.sheets[0].rows[row + 1].value(column), rows[row][column]);
    const ReadSheet &facts = book.sheets[1];
    EXPECT_EQ(facts.texts(0), QStringList({"Grade", "P265GH 1.0425"}));
    EXPECT_EQ(facts.texts(1), QStringList({"Standard", "EN 10028-2"}));
    EXPECT_TRUE(facts.texts(2).last().endsWith("Velmar_PED.mdb"));
    const QString notes = facts.texts(facts.rows.size() - 1).last();
    EXPECT_TRUE(notes.startsWith("Other Elements - Cr + Cu + Mo + Ni max 0,70 %\n")) << qPrintable(notes);
}

TEST_F(SavedTables, WritesTheDesignValuesOfTheTypedTemperature) {
    frmMaterial2 &window = open(P265GH);
    window.ShowTable("Design");
    const TDBGrid &grid = *window.tdbDesign;
    EXPECT_FALSE(offers(grid)) << "no temperature yet";
    type(window.txtDesignTemp, "-");
    EXPECT_FALSE(offers(grid));
    QTest::keyClick(window.txtDesignTemp, Qt::Key_Backspace);
    type(window.txtDesignTemp, "412,5");
    modal().chooseFile(path("values.xlsx"));
    chooseInMenu(grid);

    const XlsxReader book(path("values.xlsx"));
    ASSERT_EQ(book.sheets[0].rows.size(), grid.RowCount() - 1) << "the last row is empty";
    int numbers = 0;
    for (int row = 0; row < grid.RowCount(); ++row)
        for (int column = 0; column < grid.ColumnCount(); ++column) {
            const QString text = grid.CellText(row, column);
            const ReadCell cell = book.sheets[0].rows.value(row).value(column);
            expectCell(cell, row % 3 == 0 ? text.simplified() : text);
            numbers += cell.isNumber;
        }
    EXPECT_GT(numbers, 5);
    EXPECT_EQ(book.sheets[1].texts(2), QStringList({"Temperature [°C]", "412,5"}));

    window.txtDesignTemp->clear();
    EXPECT_FALSE(offers(grid)) << "the values that stay belong to no temperature in sight";
}

TEST_F(SavedTables, OffersNothingWhereThereIsNoTable) {
    const auto anyOffer = [](const frmMaterial2 &window) {
        return offers(*window.tdbTable) || offers(*window.tdbBoundTable) || offers(*window.tdbDesign);
    };
    frmMaterial2 &bare = open(ReferenceOnly);
    QStringList keys{"Design"};
    for (int i = 0; i < TableVocabulary::TableCount; ++i)
        keys << TableVocabulary::GetShortTableName(i);
    for (const QString &key : keys) {
        bare.ShowTable(key);
        EXPECT_FALSE(anyOffer(bare)) << key.toStdString();
    }
    frmMaterial2 &window = open(P265GH);
    for (const char *key : {"Ref", "AddInfo"}) {
        window.ShowTable("ChemComp");
        EXPECT_TRUE(anyOffer(window));
        window.ShowTable(key);
        EXPECT_FALSE(anyOffer(window)) << key;
    }
}

TEST_F(SavedTables, WritesNothingWhenCalledOffAndTellsAFailure) {
    frmMaterial2 &window = open(P265GH);
    window.ShowTable("MechProp");
    const QStringList before = QDir(program().folder()).entryList(QDir::AllEntries);
    modal().chooseFile("");
    pressKeys(*window.tdbTable);
    EXPECT_TRUE(takeFaults().isEmpty());
    EXPECT_EQ(QDir(program().folder()).entryList(QDir::AllEntries), before);

    QDir(program().folder()).mkdir("taken.csv");
    modal().chooseFile(path("taken.csv"));
    chooseInMenu(*window.tdbTable);
    const QList<RuntimeError> faults = takeFaults();
    ASSERT_EQ(faults.size(), 1);
    EXPECT_EQ(faults.first().number(), 75);
    EXPECT_EQ(QDir(program().folder()).entryList(QDir::AllEntries).size(), before.size() + 1);
}
