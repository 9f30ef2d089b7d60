// Navigation and lookups in the open database.
#include <gtest/gtest.h>

#include "data/modDBase.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"
#include "platform/runtime/runtime_error.h"
#include "tests/support/gui.h"
#include "tests/support/program.h"
#include "tests/support/small_database.h"

namespace {

class RecordHelpers : public ::testing::Test {
protected:
    static std::shared_ptr<Recordset> open(const QString &sql) {
        return modDBase::dbMain()->OpenRecordset(sql);
    }
    static int idOf(const Recordset &rows) { return rows.Fields("matID").toInt(); }

    TestProgram program{smallDatabase({"ProdForm values (7, 'Plate')", "ProdForm values (8, null)"})};
};

} // namespace

TEST_F(RecordHelpers, NavigationNeverLeavesARecordsetWithRows) {
    const auto rows = open("select * from materials where matID < 4 order by matID");
    struct Step {
        int action;
        int arrivesAt;
    };
    for (const Step &step : {Step{1, 1}, {2, 2}, {9, 2}, {2, 3}, {2, 3}, {1, 2}, {3, 3}, {0, 1}}) {
        modDBase::RecordNavigate(*rows, step.action);
        EXPECT_EQ(idOf(*rows), step.arrivesAt) << "action " << step.action;
    }
    const auto none = open("select * from materials where matID = 0");
    for (int action = 0; action < 4; ++action)
        EXPECT_NO_THROW(modDBase::RecordNavigate(*none, action));
}

TEST_F(RecordHelpers, LookupsGoBothWaysAndDoNotMove) {
    const auto forms = open("select * from ProdForm order by prodFID");
    forms->MoveLast();
    EXPECT_EQ(modDBase::GetText(*forms, 7, "prodFID", "productForm"), "Plate");
    EXPECT_EQ(modDBase::GetText(*forms, 8, "prodFID", "productForm"), ""); // Null
    EXPECT_EQ(modDBase::GetText(*forms, 9, "prodFID", "productForm"), "");
    EXPECT_EQ(modDBase::GetID(*forms, "plate", "productForm", "prodFID"), 7);
    EXPECT_EQ(modDBase::GetID(*forms, "Tube", "productForm", "prodFID"), 0);
    EXPECT_EQ(forms->Fields("prodFID").toInt(), 8);
}

TEST_F(RecordHelpers, ErrorsGoUpWithNumberAndSource) {
    const auto rows = open("select * from materials");
    const auto expectError = [](int number, const QString &source, auto call) {
        try {
            call();
            ADD_FAILURE() << source.toStdString() << " raised nothing";
        } catch (const RuntimeError &error) {
            EXPECT_EQ(error.number(), number);
            EXPECT_EQ(error.source(), source);
            EXPECT_FALSE(error.description().isEmpty());
        }
    };
    expectError(3265, "velmar-pedmodDBase.GetText", [&] { modDBase::GetText(*rows, 1, "matID", "nothing"); });
    expectError(3077, "velmar-pedmodDBase.GetID", [&] { modDBase::GetID(*rows, "O'Hara", "name", "matID"); });
}

TEST(FileName, IsComparedWithItsCapitals) {
    EXPECT_TRUE(modDBase::CheckName("/home/user/Velmar_PED.mdb", "Velmar_PED.mdb"));
    EXPECT_FALSE(modDBase::CheckName("/home/user/velmar_ped.mdb", "Velmar_PED.mdb"));
    EXPECT_FALSE(modDBase::CheckName("/home/user/Velmar_PED.mdb.bak", "Velmar_PED.mdb"));
}
