// Telling Access files, and their passwords.
#include <gtest/gtest.h>

#include "platform/dao/access_header.h"
#include "tests/dao/mdb_pages.h"
#include "tests/dao/source_support.h"

TEST(AccessHeader, KnowsTheSamplesAndTheirPasswords) {
    const auto main = AccessHeader::read(samplePath("Velmar_PED.mdb"));
    ASSERT_TRUE(main);
    EXPECT_EQ(main->version(), AccessHeader::Version::Jet4);
    EXPECT_EQ(main->password(), "rolvek");
    EXPECT_TRUE(main->accepts("rolvek"));
    for (const char *wrong : {"", "Rolvek", "rolve", "rolvekk"})
        EXPECT_FALSE(main->accepts(wrong)) << wrong;

    const auto index = AccessHeader::read(samplePath("PMA_Index.mdb"));
    ASSERT_TRUE(index);
    EXPECT_EQ(index->password(), "");
    EXPECT_TRUE(index->accepts("rolvek"));
}

TEST(AccessHeader, KnowsThePasswordOfJet3) {
    for (const QString &password :
         {QString::fromUtf8("Grüße!"), QString("twenty characters ok"), QString()}) {
        QByteArray page(2048, '\0');
        page.replace(0, 20, QByteArray("\0\1\0\0Standard Jet DB\0", 20));
        page.replace(0x42, password.size(), password.toLatin1());
        mdbPages::cipher(page, 0x18, 126, mdbPages::HeaderKey);
        const auto header = AccessHeader::fromBytes(page);
        ASSERT_TRUE(header);
        EXPECT_EQ(header->version(), AccessHeader::Version::Jet3);
        EXPECT_EQ(header->password(), password);
        EXPECT_EQ(header->accepts(password.toUpper()), password.isEmpty());
    }
}

TEST(AccessHeader, KnowsWhatIsNoAccessFile) {
    const QTemporaryDir folder;
    const QByteArray good = fileBytes(samplePath("PMA_Index.mdb"));
    EXPECT_FALSE(AccessHeader::read(folder.path()));
    EXPECT_FALSE(AccessHeader::read(folder.filePath("missing.mdb")));
    EXPECT_FALSE(AccessHeader::read(samplePath("README.md")));
    EXPECT_FALSE(AccessHeader::read(writeFile(folder, "empty", "")));
    EXPECT_FALSE(AccessHeader::read(writeFile(folder, "short", good.left(100))));
    EXPECT_FALSE(AccessHeader::fromBytes(QByteArray("SQLite format 3\0", 16) + QByteArray(4096, '\0')));
}
