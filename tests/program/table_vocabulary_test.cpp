// The tables' vocabulary.
#include <gtest/gtest.h>

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

} // namespace
