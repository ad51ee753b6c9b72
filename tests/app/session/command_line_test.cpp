#include "app/session/command_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantor::command_line_test {
namespace {

using Kind = CommandLine::Kind;

CommandLine of(const std::vector<const char*>& arguments) {
    return CommandLine::of(arguments);
}

TEST(CommandLine, WithoutOptionsTheProgramComesForward) {
    EXPECT_EQ(of({}).kind, Kind::run);
    EXPECT_EQ(of({}).action, AppAction::activate);
}

TEST(CommandLine, EachOptionAsksForItsAction) {
    const auto actionOf = [](const char* option) {
        const CommandLine line = of({option});
        EXPECT_EQ(line.kind, Kind::run) << option;
        return line.action;
    };
    EXPECT_EQ(actionOf("--pause"), AppAction::pause);
    EXPECT_EQ(actionOf("--resume"), AppAction::resume);
    EXPECT_EQ(actionOf("--refresh"), AppAction::refresh);
    EXPECT_EQ(actionOf("--export"), AppAction::exportSnapshot);
    EXPECT_EQ(actionOf("--settings"), AppAction::settings);
    EXPECT_EQ(actionOf("--background"), AppAction::background);
}

TEST(CommandLine, HelpListsEveryOption) {
    const CommandLine line = of({"--help"});
    EXPECT_EQ(line.kind, Kind::tell);
    for (const char* const option : {"--pause", "--resume", "--refresh", "--export", "--settings",
                                     "--background", "--help", "--version"})
        EXPECT_NE(line.text.find(option), std::string::npos) << option;
    EXPECT_EQ(line.text.back(), '\n');
}

TEST(CommandLine, TheVersionIsOneLine) {
    EXPECT_EQ(of({"--version"}).kind, Kind::tell);
    EXPECT_EQ(of({"--version"}).text, "Vantor " VANTOR_VERSION "\n");
}

TEST(CommandLine, AnythingElseIsAMistakeSaidInOneLine) {
    for (const char* const argument :
         {"--nonsense", "-h", "--", "-", "", "--activate", "pause", "--pause=1", "-platform",
          "--refresh\nand a second line", "--\x1b[2J", "/etc/passwd"}) {
        const CommandLine line = of({argument});
        EXPECT_EQ(line.kind, Kind::mistake) << argument;
        EXPECT_EQ(line.text.find('\n'), line.text.size() - 1) << line.text;
        EXPECT_EQ(line.text.find('\x1b'), std::string::npos);
    }
    EXPECT_EQ(of({"--nonsense"}).text,
              "vantor: unknown option '--nonsense'; 'vantor --help' lists the options.\n");
    EXPECT_LT(of({std::string(100'000, 'x').c_str()}).text.size(), 200U);
}

TEST(CommandLine, TwoOptionsAreOneTooMany) {
    EXPECT_EQ(of({"--pause", "--export"}).kind, Kind::mistake);
    EXPECT_EQ(of({"--background", "file"}).kind, Kind::mistake);
}

}  // namespace
}  // namespace vantor::command_line_test
