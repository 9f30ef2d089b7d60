// A material's memory of its tables, and the message for a table without data.
#include <gtest/gtest.h>

#include <QDateTime>

#include "data/CompatibleGroup.h"
#include "data/Material.h"
#include "data/modVelmar.h"
#include "platform/runtime/runtime_error.h"
#include "tests/support/error_of.h"
#include "tests/support/given_rows.h"

namespace {

const QDateTime GradeDate(QDate(2003, 4, 5), QTime(0, 0));
const QDateTime StandardDate(QDate(2001, 2, 3), QTime(0, 0));

Recordset gradeRow(const QVariant &name, const QVariant &description, const QVariant &groups) {
    return givenRows({"matID", "name", "numbr", "description", "groups", "revision_date"},
                     {{qint16(265), name, "1.0425", description, groups, GradeDate}});
}

Recordset standardRow() {
    return givenRows({"stID", "standard", "description", "revision_date", "otherElem"},
                     {{qint16(3), "EN 10028-2", QVariant(), StandardDate, true}});
}

TEST(MaterialTest, TakesItsPropertiesFromBothRows) {
    Material material;
    material.SetProperties(gradeRow("P265GH", "plate", "1.1"), standardRow());
    EXPECT_EQ(material.ID(), 265);
    EXPECT_EQ(material.Name(), QStringLiteral("P265GH"));
    EXPECT_EQ(material.Number(), QStringLiteral("1.0425"));
    EXPECT_EQ(material.Group(), QStringLiteral("1.1"));
    EXPECT_EQ(material.RevisionDate(), GradeDate);
    EXPECT_EQ(material.Standard(), QStringLiteral("EN 10028-2"));
    EXPECT_EQ(material.StandardID(), 3);
    EXPECT_EQ(material.StandardRevisionDate(), StandardDate);
    EXPECT_EQ(material.StandardDescription(), QString());
    EXPECT_TRUE(material.OthersElement());

    material.SetProperties(gradeRow("P265GH", QVariant(), QVariant()), standardRow());
    EXPECT_EQ(material.Description(), QString());
    EXPECT_EQ(material.Group(), QStringLiteral("1.1")); // left as it was

    EXPECT_EQ(errorOf([&] { material.SetProperties(gradeRow(QVariant(), "", ""), standardRow()); }), 94);
}

TEST(MaterialTest, ATableIsCheckedByWritingWhetherItHasData) {
    Material material;
    EXPECT_FALSE(material.TableChecked("Rm"));
    material.setTableHasData("Rm", false);
    EXPECT_TRUE(material.TableChecked("Rm"));
    EXPECT_FALSE(material.TableHasData("Rm"));
    material.setTableHasData("Rp10", true);
    material.setTableHasData("Nonsense", true);
    EXPECT_TRUE(material.TableHasData("Ref"));

    material.setMyForm(nullptr);
    EXPECT_FALSE(material.TableChecked("Rm"));
    EXPECT_FALSE(material.TableChecked("Rp10"));
    EXPECT_TRUE(material.TableHasData("Rp10"));
}

TEST(MaterialTest, TheCompositionCountsItsHeadingsFromOne) {
    Material material;
    EXPECT_EQ(errorOf([&] { material.ColCaption("ChemComp", 0); }), 9);
    for (const char *key : {"ChemComp", "MechProp", "CreepProp", "Rm"}) {
        material.AddColCaption(key, QLatin1String("first of ") + key);
        material.AddColCaption(key, QStringLiteral("second"));
    }
    EXPECT_EQ(material.ColCaption("ChemComp", 0), QString());
    EXPECT_EQ(material.ColCaption("ChemComp", 1), QStringLiteral("first of ChemComp"));
    EXPECT_EQ(material.ColCaption("ChemComp", 2), QStringLiteral("second"));
    EXPECT_EQ(material.ColCaption("CreepProp", 0), QStringLiteral("first of CreepProp"));
    EXPECT_EQ(errorOf([&] { material.ColCaption("MechProp", 2); }), 9);
    EXPECT_EQ(material.ColCaption("Rm", 0), QString());
}

TEST(MaterialTest, CellsAreCopiedAsTextsWithTheirBounds) {
    XArrayDB cells;
    cells.ReDim(1, 2, 0, 1);
    cells.Set(1, 0, 0.5);
    cells.Set(2, 1, QStringLiteral("max"));
    Material material;
    material.SetUnboundArrayData("MechProp", cells);
    material.SetUnboundArrayData("Rm", cells);
    cells.Set(2, 1, QStringLiteral("later"));

    const XArrayDB copy = material.UnboundTableData("MechProp");
    EXPECT_EQ(copy.LowerBound(1), 1);
    EXPECT_EQ(copy.UpperBound(2), 1);
    EXPECT_EQ(copy.Get(1, 0).toString().replace(',', '.'), QStringLiteral("0.5"));
    EXPECT_EQ(copy.Get(1, 1), QVariant(QString()));
    EXPECT_EQ(copy.Get(2, 1), QVariant(QStringLiteral("max")));
    EXPECT_EQ(material.UnboundTableData("Rm").Count(1), 0);
}

TEST(MaterialTest, SlotsOfOtherKeysAndIndicesAreRefused) {
    Material material;
    material.setMechCreepColSize("MechProp", {780});
    material.setMechCreepColSize("CreepProp", {900});
    material.setMechCreepColSize("Rm", {1});
    EXPECT_EQ(material.MechCreepColSize("MechProp"), QVector<float>{780});
    EXPECT_EQ(material.MechCreepColSize("Rm"), QVector<float>{900});

    material.setElevatedMultiCol("Rp10", true);
    material.setElevatedColumns("Rp10", {0, 16, 40});
    material.setElevatedMultiCol("ModElast", true);
    EXPECT_TRUE(material.ElevatedMultiCol("Rp10"));
    EXPECT_FALSE(material.ElevatedMultiCol("Rp02"));
    EXPECT_FALSE(material.ElevatedMultiCol("ModElast"));
    EXPECT_EQ(material.ElevatedColumns("Rp10")[2], 40);
    EXPECT_TRUE(material.ElevatedColumns("Rm").isEmpty());

    material.setTableNotes(13, QStringLiteral("note"));
    EXPECT_EQ(material.TableNotes(13), QStringLiteral("note"));
    EXPECT_EQ(errorOf([&] { material.TableNotes(0); }), 9);
    EXPECT_EQ(errorOf([&] { material.setTableNotes(14, {}); }), 9);
    EXPECT_EQ(errorOf([&] { material.PrintTable(14); }), 9);

    EXPECT_FALSE(material.HasProductForms());
    material.setProductForms({});
    EXPECT_TRUE(material.HasProductForms());
}

TEST(MaterialTest, TheNoDataTextComesInThreeShapes) {
    Material material;
    material.SetProperties(gradeRow("P265GH", "", ""), standardRow());
    EXPECT_EQ(
        modVelmar::NoDataText(material, "Rm", false, true),
        QStringLiteral("\r\n  * For this Grade - 'P265GH',  the Specification - 'EN 10028-2',  does not "
                       "provide any data for -   'Minimum values for Rm [MPa] at elevated temperature.'"));
    EXPECT_EQ(
        modVelmar::NoDataText(material, "Ref", true, false),
        QStringLiteral("\r\n\r\n  * For this Grade - 'P265GH',\r\n    the Specification - 'EN 10028-2',\r\n"
                       "    does not provide any data for - \r\n    'References.'"));
    EXPECT_TRUE(modVelmar::NoDataText(material, "Ref", true, true)
                    .contains(QStringLiteral("',\r\n\r\n    the Specification")));
}

TEST(CompatibleGroupTest, KeyNamesItsNumber) {
    CompatibleGroup group;
    group.setGroupID(12);
    EXPECT_EQ(group.Key(), QStringLiteral("groupID12"));
}

} // namespace
