#include "app/files/autostart.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/temporary_folder.h"

namespace vantor::autostart_test {
namespace {

namespace fs = std::filesystem;

class CommandFor : public testing::Test {
  protected:
    std::string made(const char* folderName) const {
        const fs::path place = folder.path() / folderName;
        fs::create_directories(place);
        writeFile(place / "vantor", "");
        return place;
    }
    const TemporaryFolder folder;
};

TEST_F(CommandFor, IsTheNameWhereThatLeadsToTheProgram) {
    const std::string bin = made("bin");
    EXPECT_EQ(commandFor(bin + "/vantor", bin), "vantor");
    EXPECT_EQ(commandFor(bin + "/vantor", "/nonexistent:" + bin + ":/usr/bin"), "vantor");
    fs::create_directory(folder.path() / "links");
    fs::create_symlink(bin + "/vantor", folder.path() / "links" / "vantor");
    EXPECT_EQ(commandFor(bin + "/vantor", folder.path().native() + "/links"), "vantor");
}

TEST_F(CommandFor, IsThePathWhereAnotherProgramWouldBeStarted) {
    const std::string bin = made("bin");
    const std::string other = made("other");
    EXPECT_EQ(commandFor(bin + "/vantor", other + ":" + bin), bin + "/vantor");
    EXPECT_EQ(commandFor(bin + "/vantor", ""), bin + "/vantor");
    EXPECT_EQ(commandFor(bin + "/vantor", "::.:bin:"), bin + "/vantor")
        << "what depends on the current folder is no place";
}

TEST(OwnProgramFile, IsThisOne) {
    EXPECT_TRUE(fs::exists(ownProgramFile()));
    EXPECT_EQ(ownProgramFile().filename(), "app_tests");
}

TEST(UserAutostartFile, IsInTheFolderForConfiguration) {
    qputenv("XDG_CONFIG_HOME", "/else/where");
    EXPECT_EQ(userAutostartFile().toStdString(),
              "/else/where/autostart/com.kestrone.Vantor.desktop");
    qunsetenv("XDG_CONFIG_HOME");
}

}  // namespace
}  // namespace vantor::autostart_test
