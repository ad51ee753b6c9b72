#include "app/files/folder_looks.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cerrno>
#include <string>
#include <vector>

#include "app/files/dialog_desk.h"
#include "app/files/save_location.h"

namespace vantor::folder_looks_test {
namespace {

using Kind = FolderEntry::Kind;

class FolderLooks : public testing::Test {
  protected:
    std::filesystem::path path(const char* name) const {
        return pathOf(folder.filePath(QString::fromUtf8(name)));
    }
    void makeFile(const char* name) const {
        ASSERT_TRUE(QFile(folder.filePath(QString::fromUtf8(name))).open(QIODevice::WriteOnly));
    }
    void makeSubfolder(const char* name) const {
        ASSERT_TRUE(QDir(folder.path()).mkdir(QString::fromUtf8(name)));
    }
    void link(const char* target, const char* name) const {
        ASSERT_EQ(::symlink(target, path(name).c_str()), 0);
    }
    FolderContents read() const { return readFolder(pathOf(folder.path()), "json"); }

    QTemporaryDir folder;
};

TEST_F(FolderLooks, FoldersComeFirstAndNumbersCountByTheirValue) {
    for (const char* const name : {"b10.json", "B9.json", "notes.txt", ".hidden.json", "A.JSON"})
        makeFile(name);
    makeSubfolder("z");
    makeSubfolder(".cache");
    EXPECT_EQ(read().entries, (std::vector<FolderEntry>{{"z", Kind::folder},
                                                        {"A.JSON", Kind::file},
                                                        {"B9.json", Kind::file},
                                                        {"b10.json", Kind::file}}));
    EXPECT_EQ(read().error, 0);
    EXPECT_TRUE(read().isWhole);
    EXPECT_TRUE(read().isWritable);
}

TEST_F(FolderLooks, ALinkIsNotFollowedUntilThatIsAsked) {
    makeSubfolder("real");
    makeFile("real.json");
    makeFile("other.txt");
    link("real", "to-folder");
    link("real.json", "to-file.json");
    link("other.txt", "to-other");
    link("nowhere", "to-nothing");
    const auto entries = read().entries;
    const FolderEntry unknown{"to-nothing", Kind::link};
    EXPECT_NE(std::find(entries.begin(), entries.end(), unknown), entries.end());
    EXPECT_EQ(followLinks(pathOf(folder.path()), entries, "json"),
              (std::vector<FolderEntry>{{"real", Kind::folder},
                                        {"to-folder", Kind::folder},
                                        {"real.json", Kind::file},
                                        {"to-file.json", Kind::file}}));
}

TEST_F(FolderLooks, WhatCannotBeReadSaysWhy) {
    makeFile("a.json");
    EXPECT_EQ(readFolder(path("nowhere"), "json").error, ENOENT);
    EXPECT_EQ(readFolder(path("a.json"), "json").error, ENOTDIR);
}

TEST_F(FolderLooks, AnEndlessFolderIsCut) {
    for (std::size_t i = 0; i <= FolderContents::maxEntries; ++i)
        makeFile((std::to_string(i) + ".json").c_str());
    EXPECT_EQ(read().entries.size(), FolderContents::maxEntries);
    EXPECT_FALSE(read().isWhole);
}

TEST_F(FolderLooks, ADestinationIsFreeOrWhatIsThere) {
    makeFile("a.json");
    makeSubfolder("sub");
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(lookAtDestination(path("a.json")).found, Destination::file);
    EXPECT_EQ(lookAtDestination(path("b.json")).found, Destination::free);
    EXPECT_EQ(lookAtDestination(path("sub")).found, Destination::folder);
    EXPECT_EQ(lookAtDestination(path("pipe")).found, Destination::other);
    EXPECT_EQ(lookAtDestination(path("nowhere/a.json")).found, Destination::noFolder);
    const DestinationLook below = lookAtDestination(path("a.json/b.json"));
    EXPECT_EQ(below.found, Destination::unknown);
    EXPECT_EQ(below.error, ENOTDIR);
    EXPECT_EQ(lookAtDestination(path(std::string(300, 'x').c_str())).error, ENAMETOOLONG);
}

TEST_F(FolderLooks, AFolderIsMadeOnce) {
    EXPECT_EQ(makeFolder(path("new")), 0);
    EXPECT_EQ(makeFolder(path("new")), EEXIST);
    EXPECT_EQ(makeFolder(path("nowhere/new")), ENOENT);
}

TEST_F(FolderLooks, PlacesAreThoseThatAreThere) {
    const DialogDesk desk;
    const SavePlace home{"Home", pathOf(desk.home())};
    EXPECT_EQ(findSavePlaces(), std::vector<SavePlace>{home});
    QDir(desk.home()).mkdir(QStringLiteral("Documents"));
    EXPECT_EQ(findSavePlaces(),
              (std::vector<SavePlace>{home, {"Documents", pathOf(desk.path("Documents"))}}));
}

TEST_F(FolderLooks, WithoutAHomeFolderThePlaceIsTheWholeDisk) {
    const DialogDesk desk;
    ASSERT_TRUE(QDir(desk.home()).removeRecursively());
    EXPECT_EQ(findSavePlaces(), (std::vector<SavePlace>{{"Computer", "/"}}));
}

TEST_F(FolderLooks, ANameIsCompletedUnlessThatIsAnotherQuestion) {
    EXPECT_EQ(completedName(path("a"), "json"), path("a.json"));
    EXPECT_EQ(completedName(path("a.txt"), "json"), path("a.txt"));
    makeFile("a.json");
    EXPECT_EQ(completedName(path("a"), "json"), path("a")) << "nobody was asked about a.json";
    makeFile("b");
    EXPECT_EQ(completedName(path("b"), "json"), path("b")) << "this is what was asked about";
}

}  // namespace
}  // namespace vantor::folder_looks_test
