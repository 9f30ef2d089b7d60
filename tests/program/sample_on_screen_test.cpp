// Everything that the sample holds of every grade, as it stands on the screen, against the texts it was made
// from.
#include <gtest/gtest.h>

#include "data/cell_values.h"
#include "data/table_vocabulary.h"
#include "material/frmMaterial2.h"
#include "tests/support/gui.h"
#include "tests/support/program.h"
#include "tests/support/sample_pages.h"

namespace {

constexpr int Grades = 38;

SamplePage shown(TDBGrid &grid) {
    SamplePage page;
    if (grid.isHidden()) return page;
    QList<int> columns;
    for (int column = 0; column < grid.ColumnCount(); ++column) {
        if (!grid.Columns(column).Visible()) continue;
        columns << column;
        page.headings << grid.Columns(column).Caption();
    }
    for (int row = 0; row < grid.RowCount(); ++row) {
        page.rows << QStringList();
        for (const int column : columns)
            page.rows.last() << grid.CellText(row, column);
    }
    return page;
}

std::string told(const SamplePage &page) {
    QString text = page.headings.join(" | ").replace("\r\n", "/");
    for (const QStringList &row : page.rows)
        text += '\n' + row.join(" | ");
    return text.toStdString();
}

class SampleOnScreen : public ::testing::Test {
protected:
    frmMaterial2 &open(int matID) { return m_program.open(m_program.material(matID)); }
    static void close(frmMaterial2 &window) {
        window.Unload();
        deleteUnloaded();
    }

    SamplePages sample{SOURCE_FOLDER "/sample/csv", cellText};

private:
    TestProgram m_program;
};

} // namespace

TEST_F(SampleOnScreen, EveryTableHasItsHeadingsRowsAndNotes) {
    for (int matID = 1; matID <= Grades; ++matID) {
        frmMaterial2 &window = open(matID);
        for (int i = 1; i < TableVocabulary::TableCount - 1; ++i) {
            const QString key = TableVocabulary::GetShortTableName(i);
            window.ShowTable(key);
            TDBGrid &grid = TableVocabulary::isUnbound(key) ? *window.tdbTable : *window.tdbBoundTable;
            const SamplePage page = shown(grid);
            const SamplePage expected = sample.page(matID, key);
            EXPECT_TRUE(page == expected) << matID << ' ' << key.toStdString() << "\nis\n"
                                          << told(page) << "\nand not\n"
                                          << told(expected);
            EXPECT_EQ(window.txtNotes->toPlainText(), sample.notes(matID, key))
                << matID << ' ' << key.toStdString();
        }
        close(window);
    }
}

TEST_F(SampleOnScreen, EveryGradeHasItsReferencesAndInformation) {
    for (int matID = 1; matID <= Grades; ++matID) {
        frmMaterial2 &window = open(matID);
        const SamplePages::Row grade = sample.grade(matID);
        const SamplePages::Row standard = sample.standardOf(matID);
        const QStringList forms = sample.productForms(matID);
        const QStringList boxes{sample.text(standard, "standard"),
                                sample.text(standard, "description"),
                                sample.text(grade, "name"),
                                sample.text(grade, "description"),
                                sample.text(grade, "numbr"),
                                sample.text(grade, "groups"),
                                sample.text(grade, "revision_date"),
                                forms.join(", "),
                                sample.text(standard, "revision_date")};
        for (int i = 0; i < boxes.size(); ++i) {
            const bool leftEmpty = i == 7 && forms.isEmpty();
            EXPECT_EQ(window.txtMainData(i)->toPlainText(), leftEmpty ? QString() : " " + boxes[i])
                << matID << " box " << i;
        }
        window.ShowTable("AddInfo");
        EXPECT_EQ(window.txtNotes->toPlainText(), sample.additionalInfo(matID)) << matID;
        close(window);
    }
}
