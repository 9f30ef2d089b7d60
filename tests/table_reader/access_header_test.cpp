// Telling Access files, and their passwords.
#include <gtest/gtest.h>

#include <optional>

#include <fcntl.h>
#include <unistd.h>

#include "table_reader/access_header.h"
#include "table_reader/damaged.h"
#include "tests/dao/jet_file.h"

namespace {

/// Nothing for what is no Access file.
std::optional<AccessHeader> headerOf(const QByteArray &start) {
    try {
        return AccessHeader::fromBytes(reinterpret_cast<const std::uint8_t *>(start.constData()),
                                       std::size_t(start.size()));
    } catch (const Damaged &) {
        return {};
    }
}

std::optional<AccessHeader> headerOfFile(const char *path) {
    const int file = open(path, O_RDONLY | O_CLOEXEC);
    std::optional<AccessHeader> header;
    try {
        header = AccessHeader::read(file);
    } catch (const Damaged &) {
    }
    close(file);
    return header;
}

QByteArray fileWith(JetFile::Version version, const JetFile::Manner &manner) {
    return JetFile(version, manner).make("T", {{"id", JetFile::Type::Long}}, {{1}});
}

} // namespace

TEST(AccessHeader, KnowsTheSamplesAndTheirPasswords) {
    const auto main = headerOfFile(SOURCE_FOLDER "/sample/Velmar_PED.mdb");
    ASSERT_TRUE(main);
    EXPECT_FALSE(main->isJet3());
    EXPECT_TRUE(main->accepts(u"rolvek"));
    for (const char16_t *wrong : {u"", u"Rolvek", u"rolve", u"rolvekk"})
        EXPECT_FALSE(main->accepts(wrong)) << QString::fromUtf16(wrong).toStdString();

    const auto index = headerOfFile(SOURCE_FOLDER "/sample/PMA_Index.mdb");
    ASSERT_TRUE(index);
    EXPECT_TRUE(index->accepts(u""));
    EXPECT_TRUE(index->accepts(u"rolvek"));
}

TEST(AccessHeader, KnowsPasswordKeyAndPageSizeOfEveryVersion) {
    using Version = JetFile::Version;
    const struct {
        Version version;
        int codePage;
        const char16_t *password;
        quint32 key;
    } cases[] = {
        {Version::Access97, 1252, u"Grüße!", 0},
        {Version::Access97, 1252, u"twenty characters ok", 0x1234abcd},
        {Version::Access97, 1251, u"Пароль", 1},
        {Version::Access2000, 1252, u"Пароль≤", 0x80000001},
        {Version::Access2000, 1252, u"twenty characters ok", 0},
        {Version::Access2007, 1252, u"Grüße!", 0xff},
    };
    for (const auto &[version, codePage, password, key] : cases) {
        const QString text = QString::fromUtf16(password);
        SCOPED_TRACE(text.toStdString());
        const auto header = headerOf(fileWith(version, {codePage, text, key, 0}));
        ASSERT_TRUE(header);
        EXPECT_EQ(header->isJet3(), version == Version::Access97);
        EXPECT_EQ(header->pageSize(), version == Version::Access97 ? 2048u : 4096u);
        EXPECT_EQ(header->pageKey(), key);
        EXPECT_TRUE(!header->isJet3() || header->codePage() == unsigned(codePage));
        EXPECT_TRUE(header->accepts(password));
        EXPECT_FALSE(header->accepts(text.toUpper().toStdU16String()));
        EXPECT_FALSE(header->accepts(text.chopped(1).toStdU16String()));
        EXPECT_FALSE(header->accepts({}));
        const auto open = headerOf(fileWith(version, {codePage, {}, key, 0}));
        ASSERT_TRUE(open);
        EXPECT_TRUE(open->accepts(password));
    }
}

TEST(AccessHeader, KnowsWhatIsNoAccessFile) {
    const QByteArray good = fileWith(JetFile::Version::Access97, {1252, {}, 0, 0});
    QByteArray future = good;
    future[0x14] = 7;
    QByteArray mixed = good; // no version of the new kind is as old as this
    mixed.replace(4, 15, "Standard ACE DB");
    QByteArray other = good;
    other[1] = 2;
    EXPECT_TRUE(headerOf(good));
    EXPECT_TRUE(headerOf(good.left(256)));
    for (const QByteArray &bad : {QByteArray(), good.left(255), future, mixed, other,
                                  QByteArray("SQLite format 3\0", 16) + QByteArray(4096, '\0')})
        EXPECT_FALSE(headerOf(bad));
    for (const char *path :
         {SOURCE_FOLDER, SOURCE_FOLDER "/no such file", SOURCE_FOLDER "/README.md", "/dev/zero"})
        EXPECT_FALSE(headerOfFile(path)) << path;
}
