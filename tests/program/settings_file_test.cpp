// The 27 lines of the settings file.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/runtime/text_file.h"
#include "shell/settings_file.h"
#include "tests/support/error_of.h"
#include "tests/support/pinned_settings.h"

namespace {

QStringList lines(std::initializer_list<std::pair<int, const char *>> numbered) {
    QStringList result;
    for (int i = 0; i < 27; ++i)
        result << QString();
    for (const auto &[number, text] : numbered)
        result[number - 1] = QLatin1String(text);
    return result;
}

class SettingsFileTest : public ::testing::Test {
protected:
    QString path() const { return m_folder.filePath(QStringLiteral("Settings.vlp")); }

private:
    PinnedSettings m_settings;
    QTemporaryDir m_folder;
};

TEST_F(SettingsFileTest, WithoutAFileTheStartValuesHold) {
    const QStringList expected = {"Cascade",    "Tool_SHOW",   "Tool_TOP", "Status_SHOW", "",
                                  "Colours_ON", "ToolTips_ON", "0",        "0",           "0",
                                  "0",          "0",           "0",        "True",        "True",
                                  "True",       "True",        "True",     "True"};
    const QStringList written = SettingsFile::toLines(SettingsFile::read(path()));
    ASSERT_EQ(written.size(), 27);
    EXPECT_EQ(written.first(19), expected);
    EXPECT_EQ(written.last(8).join(QString()), QString());

    TextFile::writeLines(path(), {});
    EXPECT_EQ(SettingsFile::toLines(SettingsFile::read(path())), written);
}

TEST_F(SettingsFileTest, WhatIsWrittenReadsBack) {
    Settings settings;
    settings.tileHorizontal = true;
    settings.toolbarShown = false;
    settings.toolbarAtBottom = true;
    settings.statusShown = false;
    settings.setBackColor(-2147483624);
    settings.coloursOff = true;
    settings.toolTips = false;
    settings.columnSize = {2204.5F, 1500, 0, 9999, 40000, 7};
    settings.columnVisible = {true, false, true, false, true, false};
    settings.savedSearch = {"EN 10028-2", "P265", "1.04", "x\r\ny", "", "5.1", "Plate", "2"};
    SettingsFile::write(path(), settings);

    const QStringList written = TextFile::readLines(path());
    EXPECT_EQ(written.size(), 27);
    EXPECT_EQ(written[4], QStringLiteral("-2147483624"));
    EXPECT_EQ(written[7], QStringLiteral("2204")); // half to even
    const Settings again = SettingsFile::read(path());
    EXPECT_EQ(again.backColor(), -2147483624);
    EXPECT_EQ(again.columnVisible, settings.columnVisible);
    EXPECT_EQ(again.savedSearch[3], QStringLiteral("x  y"));
    EXPECT_EQ(again.savedSearch[7], QStringLiteral("2"));
    Settings expected = settings;
    expected.columnSize = {2204, 1500, 0, 9999, 32.767F, 7};
    EXPECT_EQ(again.columnSize, expected.columnSize);
    EXPECT_EQ(SettingsFile::toLines(again).first(7), written.first(7));
}

TEST_F(SettingsFileTest, AColumnSizeWrittenUnderAnotherSignIsRepaired) {
    const Settings point = SettingsFile::fromLines(
        lines({{8, "12345"}, {9, "9999"}, {10, "10000"}, {11, "1,500"}, {12, "wide"}, {13, "  "}}));
    EXPECT_EQ(point.columnSize, (std::array<float, 6>{12.345F, 9999, 10, 1500, 0, 0}));

    const PinnedSettings comma(u',', u'.');
    EXPECT_EQ(SettingsFile::fromLines(lines({{8, "1500,5"}})).columnSize[0], 1500.5F);
    EXPECT_EQ(SettingsFile::fromLines(lines({{8, "1500.5"}})).columnSize[0], 15.005F);
}

TEST_F(SettingsFileTest, ABadLineCostsOnlyItsOwnValue) {
    const Settings settings = SettingsFile::fromLines(lines({{1, "tile_horizontal"},
                                                             {2, "Tool_hide"},
                                                             {7, "?"},
                                                             {14, "maybe"},
                                                             {15, "false"},
                                                             {16, "0"},
                                                             {17, "1"}}));
    EXPECT_FALSE(settings.tileHorizontal);
    EXPECT_TRUE(settings.toolbarShown);
    EXPECT_TRUE(settings.toolTips);
    EXPECT_EQ(settings.columnVisible, (std::array<bool, 6>{true, false, false, true, true, true}));

    for (const auto &[text, number] : {std::pair("blue", 13), {"4294967296", 6}}) {
        const Settings colored = SettingsFile::fromLines(lines({{5, text}, {6, "Colours_OFF"}}));
        EXPECT_TRUE(colored.coloursOff);
        EXPECT_EQ(errorOf([&] { colored.backColor(); }), number) << text;
    }
    EXPECT_EQ(SettingsFile::fromLines({}).backColor(), std::nullopt);
}

TEST_F(SettingsFileTest, SavedSearchesLoseWhatWouldBreakAStatement) {
    QStringList many = lines({{20, "a[b]c'd"}, {27, "last"}});
    many << QStringLiteral("line 28") << QStringLiteral("line 29");
    const Settings settings = SettingsFile::fromLines(many);
    EXPECT_EQ(settings.savedSearch[0], QStringLiteral("abcd"));
    EXPECT_EQ(settings.savedSearch[7], QStringLiteral("last"));
}

} // namespace
