#include "settings/autostart_entry.h"

#include <gtest/gtest.h>

#include <string>

namespace vantor::autostart_entry_test {
namespace {

bool opens(const std::string& lines) {
    return AutostartEntry::opens("[Desktop Entry]\nExec=vantor\n" + lines);
}
std::string execOf(std::string_view program) {
    const std::string text = AutostartEntry::textFor(program).value_or("Exec=none\n");
    const auto begin = text.find("Exec=") + 5;
    return text.substr(begin, text.find('\n', begin) - begin);
}

TEST(AutostartEntry, OpensWhatItSays) {
    const auto text = AutostartEntry::textFor("vantor");
    ASSERT_TRUE(text);
    EXPECT_EQ(*text,
              "[Desktop Entry]\n"
              "Type=Application\n"
              "Name=Vantor\n"
              "Comment=Watch this machine from the tray\n"
              "Exec=vantor --background\n"
              "Icon=com.kestrone.Vantor\n"
              "Terminal=false\n"
              "StartupNotify=false\n");
    EXPECT_TRUE(AutostartEntry::opens(*text));
}

TEST(AutostartEntry, PathsAreQuotedAsDesktopsReadThem) {
    EXPECT_EQ(execOf("/usr/bin/vantor"), "/usr/bin/vantor --background");
    EXPECT_EQ(execOf("/home/a b/vantor"), R"("/home/a b/vantor" --background)");
    EXPECT_EQ(execOf("/100%/vantor"), R"("/100%%/vantor" --background)");
    EXPECT_EQ(execOf(R"(/a"b/$c/`d)"), R"("/a\\"b/\\$c/\\`d" --background)");
    EXPECT_EQ(execOf(R"(/a\b)"), R"("/a\\\\b" --background)");
    EXPECT_EQ(execOf("/sch\xc3\xb6n/vantor"), "\"/sch\xc3\xb6n/vantor\" --background");
}

TEST(AutostartEntry, WhatCannotBeWrittenInALineIsNone) {
    EXPECT_EQ(AutostartEntry::textFor(""), std::nullopt);
    EXPECT_EQ(AutostartEntry::textFor("/a\nHidden=true/vantor"), std::nullopt);
    EXPECT_EQ(AutostartEntry::textFor("/a\x7f"), std::nullopt);
}

TEST(AutostartEntry, IsSwitchedOffInBothWays) {
    EXPECT_TRUE(opens(""));
    EXPECT_FALSE(opens("Hidden=true\n"));
    EXPECT_FALSE(opens(" Hidden = true \r\n"));
    EXPECT_FALSE(opens("X-GNOME-Autostart-enabled=false"));
    EXPECT_TRUE(opens("Hidden=false\nX-GNOME-Autostart-enabled=true\n"));
    EXPECT_TRUE(opens("#Hidden=true\n"));
    EXPECT_TRUE(opens("[Desktop Action a]\nHidden=true\n")) << "that is of another group";
}

TEST(AutostartEntry, WhatIsNoEntryOpensNothing) {
    for (const char* const text :
         {"", "\n", "[Desktop Entry]", "Exec=vantor", "[Other]\nExec=vantor\n",
          "[Desktop Entry]\nExec=\n", "[Desktop Entry]\nName=Vantor\n", "\xff\xfe\n=\n==\n[\n"})
        EXPECT_FALSE(AutostartEntry::opens(text)) << text;
    EXPECT_FALSE(AutostartEntry::opens(std::string(AutostartEntry::largest, '\0')));
}

}  // namespace
}  // namespace vantor::autostart_entry_test
