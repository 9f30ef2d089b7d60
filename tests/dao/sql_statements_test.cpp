// The statements that a program sends, over the sample file, against rows worked out by hand.
#include <gtest/gtest.h>

#include <QDateTime>

#include "tests/dao/sql_support.h"

namespace {

using RowTexts = std::vector<std::string>;

struct Case {
    const char *sql;
    QStringList columns;
    RowTexts rows;
};

class Statements : public testing::Test {
protected:
    static void SetUpTestSuite() { s_database = new Database(sampleDatabase()); }
    static void TearDownTestSuite() {
        delete s_database;
        s_database = nullptr;
    }

    static void expect(const std::vector<Case> &cases) {
        for (const Case &each : cases)
            EXPECT_EQ(shownRows(*s_database, each.sql, each.columns), each.rows) << each.sql;
    }
    static std::size_t count(const QString &sql) { return shownRows(*s_database, sql).size(); }

    static Database *s_database;
};

Database *Statements::s_database = nullptr;

TEST_F(Statements, ReferenceLists) {
    const RowTexts standards = {"EN 10028-2", "EN 10028-3", "EN 10028-7", "EN 10213",
                                "EN 10216-2", "EN 10216-5", "EN 10217-2", "EN 10222-2",
                                "EN 10254",   "EN 10269",   "EN 10273"};
    expect({
        {"select * from standard order by standard", {"standard"}, standards},
        {"select * from StandardProdForm where standard = 'EN 10269'",
         {"productForm"},
         {"Bolting", "Bar", "Forging"}},
        {"select * from Materials where matId = 21 or matId = 3",
         {"matID", "name"},
         {"3|P295GH", "21|P235GH"}},
        {"select * from Materials where matId = 0 order by matId", {}, {}},
        {"select * from materials where matid = 0", {}, {}},
        {"SELECT * FROM CompatibleGroup ORDER BY groupName",
         {},
         {"1|Group 1.1|CR ISO 15608", "2|Group 5.1|CR ISO 15608", "3|Group 8.1|CR ISO 15608"}},
        {"Units", {"unitID"}, {"1", "2", "3", "4", "5", "6", "7"}},
        {"standard", {"stID"}, {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"}},
    });
    const auto newest =
        s_database->OpenRecordset("select revision_date from standard order by revision_date desc");
    EXPECT_EQ(newest->Fields("Revision_Date"), QVariant(QDate(2021, 11, 8).startOfDay()));
}

TEST_F(Statements, PropertyTables) {
    expect({
        {"select * from StandProdForm where stID = 9", {"prodFID"}, {"10", "7", "6"}},
        {"select * from ProdForm where prodFID = 10 or prodFID = 7 or prodFID = 6 order by productForm",
         {"productForm"},
         {"Bar", "Bolting", "Forging"}},
        {"select other from OtherElem where mID = 2 and stID = 1", {}, {"Cr + Cu + Mo + Ni max 0,70 %"}},
        {"select other from OtherElem where mID = 6 and stID = 1", {}, {"-"}},
        {"select * from MechMatTable where matID = 1 order by ordering",
         {"colID", "note", "minMax", "colSize"},
         {"1|-|-|1200", "2|1)|min|900", "5|-|-|1100", "6|-|min|0", "10|-|-|1300"}},
        {"select * from MatNotes where matID = 1 and tableName = 'Rp02' order by ordering",
         {"notID"},
         {"7", "8"}},
        {"select * from GetInfo where matID = 2 order by titleID, ordering",
         {"titleID", "ordering"},
         {"1|1", "1|2", "2|3", "3|5", "4|4"}},
        {"select * from InfoTitle order by titleID",
         {"titleText"},
         {"General", "Weldability", "Heat treatment", "[NoTitle]", "Corrosion"}},
        {"select * from ImpEnergy where matID = 1 order by temp",
         {},
         {"1|-20|-|27|19", "1|0|-|34|24", "1|20|-|40|28"}},
        {"select * from ImpEnergy where matID=1 order by temp", {"temp"}, {"-20", "0", "20"}},
        {"select * from Rm where matID = 11 order by thickness, ordering",
         {"thickness", "temp", "Rm"},
         {"-1|50|494", "-1|100|450", "-1|150|420", "-1|200|400", "-1|250|390", "-1|300|380", "-1|350|380",
          "-1|400|380", "-1|450|370", "-1|500|360", "-1|550|330"}},
    });
    const RowTexts chemical = shownRows(*s_database,
                                        "select * from Chemical where standard = 'EN 10028-2' and name = "
                                        "'P235GH' and numbr = '1.0345' order by elemID",
                                        {"elemID", "element", "val"});
    ASSERT_EQ(chemical.size(), 28u);
    EXPECT_EQ(RowTexts(chemical.begin(), chemical.begin() + 3),
              (RowTexts{"100|C|-", "101|C|0,16", "200|Si|-"}));
}

TEST_F(Statements, ColumnsOfAGraph) {
    expect({
        {"select * from MechPropData where matID = 1 and  colID = 2 order by rowNo",
         {"rowNo", "val"},
         {"10|235", "20|225", "30|215", "40|200"}},
        {"select * from CreepProperties where matID = 2 and  colID = 11 or matID = 2 and  colID = 12 "
         "order by colID, rowNo",
         {"val"},
         {"380", "390", "400", "410", "420", "430", "440", "450", "164", "150", "136", "124", "113", "101",
          "91", "80"}},
        {"select * from CreepProperties where matID = 2 and  colID = 12 or matID = 2 and  colID = 11 "
         "order by colID DESC, rowNo",
         {"val"},
         {"164", "150", "136", "124", "113", "101", "91", "80", "380", "390", "400", "410", "420", "430",
          "440", "450"}},
    });
}

TEST_F(Statements, Crosstabs) {
    const QString rows = "select temp, ordering from Rp02 where matID = 1 group by temp, ordering ";
    const RowTexts expected = {"50|1|227|218|208|193|179|164",  "100|2|214|205|196|182|169|155",
                               "150|3|198|190|181|169|156|143", "200|4|182|174|167|155|143|132",
                               "250|5|167|160|153|142|131|121", "300|6|153|147|140|130|121|111",
                               "350|7|142|136|130|121|112|103", "400|8|133|128|122|114|105|97"};
    for (const QString &sql :
         {"transform max(Rp02.Rp02) " + rows + "order by ordering pivot Rp02.thickness",
          "transform MAX (Rp02.Rp02) " + rows + "order by temp, ordering pivot Rp02.thickness",
          "TRANSFORM Max([rp02].[RP02]) " + rows + "PIVOT THICKNESS;"}) {
        const auto recordset = s_database->OpenRecordset(sql);
        EXPECT_EQ(fieldNames(*recordset), "temp|ordering|16|40|60|100|150|250") << sql.toStdString();
        EXPECT_EQ(shownRows(*recordset), expected) << sql.toStdString();
        EXPECT_EQ(recordset->fieldDefinitions()[0].type, FieldType::Single);
        EXPECT_EQ(recordset->fieldDefinitions()[2].type, FieldType::Text);
    }
}

TEST_F(Statements, SearchesOfAKeyStroke) {
    expect({
        {"select * from materials where  name like '*P265*' order by standard,name",
         {"standard", "matID"},
         {"EN 10028-2|2", "EN 10216-2|22", "EN 10217-2|28"}},
        {"select * from materials where  name like '*P2*' and  numbr like '*1.04*' and  materials.standard "
         "in "
         "(select standard from StandardProdForm where productForm like '*Plate*') order by standard,name",
         {"name"},
         {"P265GH", "P295GH", "P275NH"}},
        {"select * from materials where  materials.standard in (select standard from StandardProdForm where "
         "productForm like '*bolt*') order by standard, name",
         {"name"},
         {"25CrMo4"}},
        {"select * from standard where standard like '*1*0*2*1*' order by standard",
         {"standard"},
         {"EN 10213", "EN 10216-2", "EN 10216-5", "EN 10217-2"}},
        {"select * from materials where  revision_date like '*2016*' order by revision_date DESC",
         {"matID"},
         {"36", "33", "34", "35"}},
    });
    EXPECT_EQ(count("select * from materials order by standard,name"), 38u);
    EXPECT_EQ(count("select * from materials where  standard like '*EN 10028-2*' order by standard,name"),
              7u);
    EXPECT_EQ(
        count("select * from materials where  materials.standard in (select standard from StandardProdForm "
              "where productForm like '*Plate*') order by standard,name"),
        16u);
}

TEST_F(Statements, ListsOfPossibleValues) {
    const QString where = " where  name like '*P26*'";
    expect({
        {"select * from standard where standard in (select standard from materials where  name like '*P26*') "
         "order by "
         "standard",
         {"stID"},
         {"1", "4", "5"}},
        {"select * from standard where standard in (select standard from materials where  name like '*P26*' "
         "and "
         "standard in (select standard from StandardProdForm where productForm like '*tube*')) order by "
         "standard",
         {"stID"},
         {"4", "5"}},
        {"select distinct productForm from StandardProdForm where standard in (select standard from "
         "materials  "
         "where  name like '*P26*') order by productForm",
         {},
         {"Plate", "Seamless tube", "Sheet", "Strip", "Welded tube"}},
        {"select distinct productForm from StandardProdForm where standard in (select standard from "
         "materials ) "
         "and productForm like '*t*' order by productForm",
         {},
         {"Bolting", "Casting", "Fitting", "Plate", "Seamless tube", "Sheet", "Strip", "Welded tube"}},
        {"select distinct ss from materials  where  asmestandard like '*SA-5*' order by ss",
         {},
         {"-", "1430", "2101", "2155"}},
        {"select distinct name from materials  where  name like '*P26*' and  standard in (select standard "
         "from "
         "StandardProdForm where productForm like '*Plate*') order by name",
         {},
         {"P265GH"}},
        {"select distinct asmestandard from materials WHERE standard IN (select standard from "
         "StandardProdForm "
         "where productForm like '*tube*') order by asmestandard",
         {},
         {"-", "SA-106", "SA-213"}},
    });
}

TEST(PmaStatements, SearchAndSort) {
    Database database = sampleDatabase("PMA_Index.mdb");
    const QStringList columns = {"Specification", "Designationname"};
    const QString search =
        "SELECT * FROM PMA_Index WHERE Specification LIKE '*%1*' OR Designationname LIKE '*%1*' "
        "OR Designationnumber LIKE '*%1*' OR Product LIKE '*%1*' OR Revision LIKE '*%1*' "
        "OR Revisiondate LIKE '*%1*' OR Searchstring LIKE '*%1*'";
    EXPECT_EQ(shownRows(database, search.arg("2021-01"), columns),
              (RowTexts{"ASTM A 182|F316L", "ASTM A 240|316L"}));
    EXPECT_EQ(shownRows(database, search.arg("PIPE"), columns),
              (RowTexts{"ASTM A 106|Grade B", "ASTM A 312|TP304L", "ASTM A 335|P91"}));
    EXPECT_EQ(shownRows(database, search.arg(""), columns).size(), 12u);
    EXPECT_EQ(
        shownRows(database, "SELECT * FROM PMA_Index ORDER BY RevisionDate DESC", {"RevisionDate"}).front(),
        "2023-05-11");
    EXPECT_EQ(shownRows(database, "SELECT * FROM PMA_Index ORDER BY Designationname ASC", {"Designationname"})
                  .front(),
              "316L");
    const auto all = database.OpenRecordset("SELECT * FROM PMA_Index");
    EXPECT_EQ(all->Fields(6).toString(), "PMA/PMA-001.pdf");
}

} // namespace
