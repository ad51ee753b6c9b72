#include <gtest/gtest.h>

#include "app/store_fixture.h"

/// Settings that cannot be read or written cost the user those settings and nothing else.
namespace vantor::damaged_store_test {
namespace {

class DamagedStoreTest : public StoreTest {
  protected:
    QString aside(int number) const { return file + QStringLiteral(".damaged-%1").arg(number); }
    void expectMovedAside(const QByteArray& bytes) {
        write(bytes);
        QtDefaultsStore store(file);
        EXPECT_EQ(store.value("refreshInterval"), std::nullopt);
        EXPECT_EQ(contentsOf(aside(1)), bytes) << "kept byte for byte";
        EXPECT_FALSE(QFileInfo::exists(file));
        store.setValue("refreshInterval", Value{5.0});
        EXPECT_EQ(stored("refreshInterval"), Value{std::int64_t{5}});
        EXPECT_EQ(contentsOf(aside(1)), bytes);
    }
};

TEST_F(DamagedStoreTest, APictureIsKeptAside) {
    QByteArray binary("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    for (int i = 0; i < 256; ++i)
        binary.append(static_cast<char>(i));
    expectMovedAside(binary);
}

TEST_F(DamagedStoreTest, ALineCutShortIsKeptAside) {
    expectMovedAside("[General]\nrefreshInterval=5\nhistoryLen");
}

TEST_F(DamagedStoreTest, AGroupCutShortIsKeptAside) {
    expectMovedAside("[Gener");
}

TEST_F(DamagedStoreTest, ALineWithoutAKeyIsKeptAside) {
    expectMovedAside("=5\n");
}

TEST_F(DamagedStoreTest, ZerosInSoundTextAreKeptAside) {
    expectMovedAside(QByteArray("refreshInterval=5\nx=\0\0\0\n", 25));
}

TEST_F(DamagedStoreTest, TextThatIsNotUTF8IsKeptAside) {
    expectMovedAside("refreshInterval=5\nname=caf\xe9\n");
}

TEST_F(DamagedStoreTest, AFileOfAbsurdSizeIsKeptAside) {
    expectMovedAside(QByteArray("a=1\n").repeated(300'000));
}

TEST_F(DamagedStoreTest, EachDamageHasAPlaceOfItsOwn) {
    for (int number = 1; number <= 4; ++number) {
        write("damage " + QByteArray::number(number));
        const QtDefaultsStore store(file);
        EXPECT_TRUE(store.isPersistent());
    }
    for (int number = 1; number <= 4; ++number) {
        EXPECT_EQ(contentsOf(aside(number)), "damage " + QByteArray::number(number));
    }
}

TEST_F(DamagedStoreTest, WithoutAPlaceLeftTheFileStaysAndPreferencesLastForTheRun) {
    for (int number = 1; number <= 100; ++number)
        writeTo(aside(number), "old");
    write("damage");
    QtDefaultsStore store(file);
    EXPECT_FALSE(store.isPersistent());
    store.setValue("refreshInterval", Value{5.0});
    EXPECT_EQ(contents(), "damage");
    EXPECT_EQ(contentsOf(aside(100)), "old");
}

TEST_F(DamagedStoreTest, AFolderInItsPlaceIsLeftAlone) {
    ASSERT_TRUE(QDir().mkpath(file));
    writeTo(file + QStringLiteral("/inside"), "mine");
    QtDefaultsStore store(file);
    EXPECT_FALSE(store.isPersistent());
    EXPECT_EQ(store.value("refreshInterval"), std::nullopt);
    store.setValue("refreshInterval", Value{5.0});
    EXPECT_TRUE(QFileInfo(file).isDir());
    EXPECT_EQ(contentsOf(file + QStringLiteral("/inside")), "mine");
}

TEST_F(DamagedStoreTest, ALinkToNowhereDoesNotFail) {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
    ASSERT_TRUE(QFile::link(QStringLiteral("/nonexistent/settings.ini"), file));
    QtDefaultsStore store(file);
    EXPECT_EQ(store.value("refreshInterval"), std::nullopt);
    store.setValue("refreshInterval", Value{5.0});
}

TEST_F(DamagedStoreTest, APlaceThatCannotBeWrittenCostsOnlyThePersistence) {
    // Below a regular file there can be no folder, whoever runs the test.
    const QString wall = folder.filePath(QStringLiteral("wall"));
    writeTo(wall, "a file");
    for (const QString& place : {wall + QStringLiteral("/vantor/settings.ini"),
                                 QStringLiteral("/proc/vantor/settings.ini")}) {
        QtDefaultsStore store(place);
        EXPECT_EQ(store.value("refreshInterval"), std::nullopt);
        store.setValue("refreshInterval", Value{5.0});
        store.setValue("refreshInterval", Value{2.0});
        EXPECT_FALSE(QFileInfo::exists(place));
    }
    EXPECT_EQ(contentsOf(wall), "a file");
}

}  // namespace
}  // namespace vantor::damaged_store_test
