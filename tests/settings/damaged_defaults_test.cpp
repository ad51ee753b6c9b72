#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "settings/defaults_run.h"

/// Preferences that cannot be read or written cost the user those preferences and nothing else.
namespace vantor::damaged_defaults_test {
namespace {

namespace fs = std::filesystem;

class DamagedDefaults : public DefaultsOnDisk {
  protected:
    void expectPutAside(const std::string& bytes) {
        write(bytes);
        const DefaultsRun program = run();
        EXPECT_EQ(program.store().value("refreshInterval"), std::nullopt);
        EXPECT_EQ(contentOf(aside(1)), bytes) << "kept byte for byte";
        EXPECT_FALSE(fs::exists(file));
        program.store().setValue("refreshInterval", Value{5.0});
        program.goOn();
        EXPECT_EQ(stored("refreshInterval"), Value{std::int64_t{5}});
        EXPECT_EQ(contentOf(aside(1)), bytes);
    }
    /// What cannot be written is reported, and applies to the run.
    static std::string reasonAt(const fs::path& place) {
        const DefaultsRun program = runOn(place);
        program.start();
        EXPECT_EQ(program.store().value("refreshInterval"), std::nullopt);
        program.store().setValue("refreshInterval", Value{5.0});
        program.goOn();
        EXPECT_EQ(program.store().value("refreshInterval"), Value{5.0});
        return program.notSaved();
    }
};

TEST_F(DamagedDefaults, APictureIsKeptAside) {
    std::string binary("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    for (int i = 0; i < 256; ++i)
        binary += static_cast<char>(i);
    expectPutAside(binary);
}

TEST_F(DamagedDefaults, ALineCutShortIsKeptAside) {
    expectPutAside("[General]\nrefreshInterval=5\nhistoryLen");
}

TEST_F(DamagedDefaults, AFileOfAbsurdSizeIsKeptAside) {
    std::string bytes;
    while (bytes.size() <= IniText::largest)
        bytes += "a=1\n";
    expectPutAside(bytes);
}

TEST_F(DamagedDefaults, EachDamageHasAPlaceOfItsOwn) {
    for (int number = 1; number <= 4; ++number) {
        write("damage " + std::to_string(number));
        run();
    }
    for (int number = 1; number <= 4; ++number)
        EXPECT_EQ(contentOf(aside(number)), "damage " + std::to_string(number));
}

TEST_F(DamagedDefaults, WithoutAPlaceLeftTheFileStaysAndPreferencesLastForTheRun) {
    write("damage");
    for (int number = 1; number <= 100; ++number)
        writeFile(aside(number), "old");
    EXPECT_EQ(reasonAt(file), "Too many damaged files are kept there.");
    EXPECT_EQ(contents(), "damage");
    EXPECT_EQ(contentOf(aside(100)), "old");
}

TEST_F(DamagedDefaults, ALinkToADamagedFileStaysOne) {
    const fs::path target = folder.path() / "elsewhere.ini";
    writeFile(target, "damage");
    fs::create_directories(file.parent_path());
    fs::create_symlink(target, file);
    store("refreshInterval", Value{5.0});
    EXPECT_EQ(fs::read_symlink(file), target);
    EXPECT_EQ(contentOf(target), "[General]\nrefreshInterval=5\n");
    EXPECT_EQ(contentOf(target.string() + ".damaged-1"), "damage");
    EXPECT_FALSE(fs::exists(aside(1)));
}

TEST_F(DamagedDefaults, AFolderInItsPlaceIsLeftAlone) {
    fs::create_directories(file);
    writeFile(file / "inside", "mine");
    EXPECT_EQ(reasonAt(file), "A folder has that name.");
    EXPECT_EQ(contentOf(file / "inside"), "mine");
}

TEST_F(DamagedDefaults, APipeInItsPlaceIsNotWaitedFor) {
    fs::create_directories(file.parent_path());
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(reasonAt(file), "Something that is not an ordinary file has that name.");
    EXPECT_TRUE(fs::is_fifo(file));
}

TEST_F(DamagedDefaults, ALinkToNowhereIsTold) {
    fs::create_directories(file.parent_path());
    fs::create_symlink("/nonexistent/settings.ini", file);
    EXPECT_EQ(reasonAt(file), "The folder does not exist.");
    EXPECT_TRUE(fs::is_symlink(file));
}

TEST_F(DamagedDefaults, APlaceThatCannotBeWrittenCostsOnlyThePersistence) {
    // Below a regular file there can be no folder, even for root.
    const fs::path wall = folder.path() / "wall";
    writeFile(wall, "a file");
    EXPECT_EQ(reasonAt(wall / "vantor" / "settings.ini"), "The place for it is not a folder.");
    EXPECT_EQ(reasonAt(wall / "settings.ini"), "The place for it is not a folder.");
    EXPECT_NE(reasonAt("/proc/vantor/settings.ini"), "");
    EXPECT_EQ(contentOf(wall), "a file");
}

}  // namespace
}  // namespace vantor::damaged_defaults_test
