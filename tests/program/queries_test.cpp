// The tables' vocabulary and the statements' exact texts.
#include <gtest/gtest.h>

#include "data/queries.h"
#include "data/table_vocabulary.h"
#include "platform/runtime/runtime_error.h"

namespace {

using namespace TableVocabulary;

TEST(TableVocabularyTest, KeyAndIndexAreOneName) {
    for (int index = 0; index < TableCount; ++index)
        EXPECT_EQ(GetTableIndex(GetShortTableName(index)), index);
    EXPECT_EQ(GetTableIndex(QStringLiteral("CreepProp")), 12);
    EXPECT_EQ(GetTableName(11), QStringLiteral("Specific electrical resistance"));
    for (const char *unknown : {"Design", "", "rp02", "Elevated"})
        EXPECT_EQ(GetTableIndex(QLatin1String(unknown)), 0) << unknown;
    EXPECT_THROW(GetTableName(14), RuntimeError);
    EXPECT_THROW(GetShortTableName(-1), RuntimeError);
}

TEST(TableVocabularyTest, CaptionsBreakOverThreeLines) {
    EXPECT_EQ(GetCaption(QStringLiteral("Rp02")), QStringLiteral("Rp0,2 \r\n\r\n[MPa]"));
    EXPECT_EQ(GetCaption(QStringLiteral("ModElast")), QString::fromUtf16(u"KN \r\n\r\n/ mm\u00B2"));
    EXPECT_EQ(GetCaption(QStringLiteral("SpecElecRes")), QString::fromUtf16(u"Ohm x mm\u00B2 \r\n\r\n/ m"));
    for (const char *without : {"Ref", "ThermExp", "Design", "rp02"})
        EXPECT_TRUE(GetCaption(QLatin1String(without)).isEmpty()) << without;
}

TEST(QueriesTest, TextsStandExactly) {
    using namespace Queries;
    const struct {
        QString built;
        const char *text;
    } cases[] = {
        {sqlStandardForms("EN 10028-2"), "select * from StandardProdForm where standard = 'EN 10028-2'"},
        {sqlSelectedMaterials({7}), "select * from Materials where matId = 7"},
        {sqlSelectedMaterials({7, -3, 12}),
         "select * from Materials where matId = 7 or matId = -3 or matId = 12"},
        {sqlProdFormNames({1}), "select * from ProdForm where prodFID = 1 order by productForm"},
        {sqlProdFormNames({1, 4}),
         "select * from ProdForm where prodFID = 1 or prodFID = 4 order by productForm"},
        {sqlChemicalRows("EN", "P'1", "1.0"),
         "select * from Chemical where standard = 'EN' and name = 'P'1' and numbr = '1.0' order by elemID"},
        {sqlOtherElements(3, 4), "select other from OtherElem where mID = 3 and stID = 4"},
        {sqlColumnDefinitions("CreepPropTable", "stID", 4),
         "select * from CreepPropTable where stID = 4 order by ordering"},
        {sqlCellRows("MechPropData", 3),
         "select * from MechPropData where matID = 3 order by rowNo, ordering"},
        {sqlGraphColumnRows("T", 3, 5, 5), "select * from T where matID = 3 and  colID = 5 order by rowNo"},
        {sqlGraphColumnRows("T", 3, 5, 9),
         "select * from T where matID = 3 and  colID = 5 or matID = 3 and  colID = 9 order by colID, rowNo"},
        {sqlGraphColumnRows("T", 3, 9, 5), "select * from T where matID = 3 and  colID = 9 or matID = 3 and  "
                                           "colID = 5 order by colID DESC, rowNo"},
        {sqlTemperatureRows("ModElast", 3), "select * from ModElast where matID = 3 order by temp"},
        {sqlElevatedRows("Rm", 3), "select * from Rm where matID = 3 order by thickness, ordering"},
        {sqlElevatedPivot("Rp02", 3),
         "transform max(Rp02.Rp02) select temp, ordering from Rp02 where matID = 3 "
         "group by temp, ordering order by ordering pivot Rp02.thickness"},
        {sqlMaterialNotes(3, "Rm"),
         "select * from MatNotes where matID = 3 and tableName = 'Rm' order by ordering"},
        {critTableNote("2", "Rm"), "notID=2 AND tableName='Rm'"},
        {sqlAdditionalInfo(3), "select * from GetInfo where matID = 3 order by titleID, ordering"},
        {sqlReportTemperatureRows("Rm", 3), "select * from Rm where matID=3 order by temp"},
        {sqlReportPivot("Rp02", 3),
         "transform MAX (Rp02.Rp02) select temp, ordering from Rp02 where matID = 3 "
         "group by temp, ordering order by temp, ordering pivot Rp02.thickness"},
        {sqlPmaSorted("RevisionDate", false), "SELECT * FROM PMA_Index ORDER BY RevisionDate DESC"},
        {sqlPmaSearch("ab"),
         "SELECT * FROM PMA_Index WHERE Specification LIKE '*ab*' OR Designationname LIKE '*ab*' OR "
         "Designationnumber LIKE '*ab*' OR Product LIKE '*ab*' OR Revision LIKE '*ab*' OR Revisiondate LIKE "
         "'*ab*' OR Searchstring LIKE '*ab*'"},
    };
    for (const auto &item : cases)
        EXPECT_EQ(item.built.toStdString(), item.text);
}

} // namespace
