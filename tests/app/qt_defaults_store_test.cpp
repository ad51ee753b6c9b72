#include "app/qt_defaults_store.h"

#include <gtest/gtest.h>

#include <QStandardPaths>

#include "app/store_fixture.h"

namespace vantor::qt_defaults_store_test {
namespace {

class QtDefaultsStoreTest : public StoreTest {};

TEST_F(QtDefaultsStoreTest, AMissingFileAnswersNothingAndIsNotMade) {
    const QtDefaultsStore store(file);
    EXPECT_TRUE(store.isPersistent());
    EXPECT_EQ(store.value("refreshInterval"), std::nullopt);
    EXPECT_FALSE(QFileInfo::exists(file));
}

TEST_F(QtDefaultsStoreTest, EachTypeComesBackThroughANewInstance) {
    QtDefaultsStore store(file);
    store.setValue("flag", Value{true});
    store.setValue("other", Value{false});
    store.setValue("whole", Value{std::int64_t{-90}});
    store.setValue("large", Value{std::int64_t{9'007'199'254'740'993}});
    store.setValue("number", Value{0.5});
    store.setValue("text", Value{std::string("dark")});
    EXPECT_EQ(stored("flag"), Value{true});
    EXPECT_EQ(stored("other"), Value{false});
    EXPECT_EQ(stored("whole"), Value{std::int64_t{-90}});
    EXPECT_EQ(stored("large"), Value{std::int64_t{9'007'199'254'740'993}});
    EXPECT_EQ(stored("number"), Value{0.5});
    EXPECT_EQ(stored("text"), Value{std::string("dark")});
}

TEST_F(QtDefaultsStoreTest, TheSameInstanceAnswersWhatItWasGiven) {
    QtDefaultsStore store(file);
    store.setValue("number", Value{2.0});
    store.setValue("whole", Value{std::int64_t{7}});
    store.setValue("flag", Value{true});
    store.setValue("text", Value{std::string("light")});
    EXPECT_EQ(store.value("number"), Value{2.0});
    EXPECT_EQ(store.value("whole"), Value{std::int64_t{7}});
    EXPECT_EQ(store.value("flag"), Value{true});
    EXPECT_EQ(store.value("text"), Value{std::string("light")});
}

TEST_F(QtDefaultsStoreTest, IsOnDiskWhenTheCallReturns) {
    QtDefaultsStore store(file);
    store.setValue("historyLength", Value{std::int64_t{120}});
    EXPECT_TRUE(contents().contains("historyLength=120"));
    store.setValue("historyLength", Value{std::int64_t{150}});
    EXPECT_TRUE(contents().contains("historyLength=150"));
    EXPECT_FALSE(contents().contains("120"));
}

TEST_F(QtDefaultsStoreTest, WritingOneKeyKeepsTheOthers) {
    write("[General]\nappearance=light\nunknown=kept\n");
    QtDefaultsStore(file).setValue("refreshInterval", Value{5.0});
    EXPECT_EQ(stored("appearance"), Value{std::string("light")});
    EXPECT_EQ(stored("unknown"), Value{std::string("kept")});
}

TEST_F(QtDefaultsStoreTest, WhatHandsHaveWrittenIsReadAsWhatItLooksLike) {
    write(
        "; by hand\n# and by another\n[General]\nyes=true\nno=false\nwhole=42\nnumber=3.5\n"
        "small=1e-3\ntext=Light\nempty=\nspaced =  7  \nalmost=12px\nmixed=True\n");
    EXPECT_EQ(stored("yes"), Value{true});
    EXPECT_EQ(stored("no"), Value{false});
    EXPECT_EQ(stored("whole"), Value{std::int64_t{42}});
    EXPECT_EQ(stored("number"), Value{3.5});
    EXPECT_EQ(stored("small"), Value{0.001});
    EXPECT_EQ(stored("text"), Value{std::string("Light")});
    EXPECT_EQ(stored("empty"), Value{std::string()});
    EXPECT_EQ(stored("spaced"), Value{std::int64_t{7}});
    EXPECT_EQ(stored("almost"), Value{std::string("12px")});
    EXPECT_EQ(stored("mixed"), Value{std::string("True")});
}

TEST_F(QtDefaultsStoreTest, ValuesWithoutAGroupAreReadAsWell) {
    write("historyLength=60\n");
    EXPECT_EQ(stored("historyLength"), Value{std::int64_t{60}});
}

TEST_F(QtDefaultsStoreTest, OtherGroupsHoldNothingOfOurs) {
    write("[Other]\nhistoryLength=60\n");
    EXPECT_EQ(stored("historyLength"), std::nullopt);
}

TEST_F(QtDefaultsStoreTest, AListIsNoValueOfOurs) {
    write("refreshInterval=2,5\n");
    EXPECT_EQ(stored("refreshInterval"), Value{std::string()});
}

TEST_F(QtDefaultsStoreTest, AnEmptyFileAndOneOfBlankLinesAreSound) {
    for (const QByteArray& bytes : {QByteArray(), QByteArray("\n\n  \r\n")}) {
        write(bytes);
        EXPECT_EQ(stored("refreshInterval"), std::nullopt);
        EXPECT_EQ(contents(), bytes) << "reading writes nothing";
    }
}

TEST_F(QtDefaultsStoreTest, TheUsersFileIsAmongTheUsersSettings) {
    QStandardPaths::setTestModeEnabled(true);
    const QString path = QtDefaultsStore::userFile();
    EXPECT_TRUE(
        path.startsWith(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)));
    EXPECT_TRUE(path.endsWith(QStringLiteral("/vantor/settings.ini")));
    QStandardPaths::setTestModeEnabled(false);
}

}  // namespace
}  // namespace vantor::qt_defaults_store_test
