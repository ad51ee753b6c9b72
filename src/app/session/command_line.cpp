#include "app/session/command_line.h"

#include <string_view>

namespace vantor {

namespace {

constexpr std::string_view commandLineHelp =
    "Usage: vantor [OPTION]\n"
    "A local performance dashboard. Opens its window, or brings the one that runs forward.\n"
    "\n"
    "With an option, asks the running program for it; where none runs, starts it first:\n"
    "  --pause       stop reading\n"
    "  --resume      go on reading\n"
    "  --refresh     read everything now\n"
    "  --export      ask where to save a snapshot\n"
    "  --settings    open the settings\n"
    "  --background  no window, only the icon in the tray; without a tray, the window\n"
    "\n"
    "  --help        print this\n"
    "  --version     print the version\n";

/// A line of a terminal, whatever the argument is.
std::string harmless(std::string_view argument) {
    constexpr std::size_t most = 60;
    std::string text;
    for (const char c : argument.substr(0, most))
        text += c >= ' ' && c <= '~' ? c : '?';
    return argument.size() > most ? text + "..." : text;
}

CommandLine mistake(std::string_view what, std::string_view argument) {
    return {CommandLine::Kind::mistake, AppAction::activate,
            "vantor: " + std::string(what) + " '" + harmless(argument) +
                "'; 'vantor --help' lists the options.\n"};
}

}  // namespace

CommandLine CommandLine::of(std::span<const char* const> arguments) {
    if (arguments.empty()) return {};
    const std::string_view first = arguments.front();
    // Whoever asks for these has not decided on anything else yet.
    if (first == "--help") return {Kind::tell, AppAction::activate, std::string(commandLineHelp)};
    if (first == "--version")
        return {Kind::tell, AppAction::activate, "Vantor " VANTOR_VERSION "\n"};
    const auto action = first.starts_with("--") ? actionNamed(first.substr(2)) : std::nullopt;
    // To come forward is what a start without any option is for.
    if (!action || action == AppAction::activate)
        return mistake(first.starts_with('-') ? "unknown option" : "unexpected argument", first);
    if (arguments.size() > 1) return mistake("one option at a time, not also", arguments[1]);
    return {Kind::run, *action};
}

}  // namespace vantor
