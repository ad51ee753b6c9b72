#pragma once

#include <functional>
#include <string>

namespace vantor {

/// What became of a piece of work in another process.
struct ChildOutcome {
    bool wasPossible = true;  ///< false: this machine does not allow it
    std::string complaints;   ///< empty when all went well
};

/// Runs `work` in a process of its own with private mounts, which are gone with it. The work
/// returns its complaints; one that is not over after half a minute is killed.
ChildOutcome withPrivateMounts(const std::function<std::string()>& work);

/// Runs a program; true when it ended well. Nothing is shown of what it writes.
bool runQuietly(const std::string& commandLine);

/// The text between single quotes, for a command line.
std::string quoted(const std::string& text);

/// What a command line writes.
std::string outputOf(const std::string& commandLine);

}  // namespace vantor
