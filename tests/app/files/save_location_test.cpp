#include "app/files/save_location.h"

#include <gtest/gtest.h>

#include <QByteArray>

#include "app/files/dialog_desk.h"
#include "ui/rendering.h"

namespace vantor::save_location_test {
namespace {

const auto json = QStringLiteral("json");

std::string fileFor(const char* typed) {
    return fileOf(QString::fromUtf8(typed), "/base/folder", json).native();
}

TEST(SaveLocation, ANameIsOfTheFolderAndGetsTheEndingOfItsKind) {
    EXPECT_EQ(fileFor("a"), "/base/folder/a.json");
    EXPECT_EQ(fileFor(" a.json "), "/base/folder/a.json");
    EXPECT_EQ(fileFor("b.txt"), "/base/folder/b.txt") << "one that the user gave stays";
    EXPECT_EQ(fileFor("sub/a"), "/base/folder/sub/a.json");
    EXPECT_EQ(fileFor("../a"), "/base/a.json");
    EXPECT_EQ(fileFor("/else/where/a"), "/else/where/a.json");
    EXPECT_EQ(fileFor(".hidden"), "/base/folder/.hidden.json");
    EXPECT_EQ(fileFor("\U0001F600 <b>'\""), "/base/folder/\U0001F600 <b>'\".json");
    EXPECT_EQ(fileOf(QStringLiteral("a"), "/b", {}).native(), "/b/a");
}

TEST(SaveLocation, WhatCanOnlyBeAFolderGetsNoEnding) {
    EXPECT_EQ(fileFor("/else/where/"), "/else/where");
    EXPECT_EQ(fileFor(".."), "/base");
    EXPECT_EQ(fileFor("/"), "/");
    EXPECT_EQ(fileFor("  "), "");
}

TEST(SaveLocation, ATildeIsTheHomeFolder) {
    const DialogDesk desk;
    EXPECT_EQ(folderOf(QStringLiteral("~"), "/base"), pathOf(desk.home()));
    EXPECT_EQ(folderOf(QStringLiteral("~/a/"), "/base"), pathOf(desk.path("a")));
    EXPECT_EQ(folderOf(QStringLiteral("~a"), "/base").native(), "/base/~a");
    EXPECT_EQ(fileFor("~/a"), pathOf(desk.path("a.json")).native());
}

TEST(SaveLocation, WhatCannotBeShownOnALineIsReplaced) {
    EXPECT_EQ(utf8(shownPath("/a\nb")), "/a\uFFFDb");
    EXPECT_EQ(utf8(shownPath("/sch\xc3\xb6n")), "/schön");
}

}  // namespace
}  // namespace vantor::save_location_test
