#include "architecture/layer_rules.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <optional>
#include <string_view>
#include <tuple>

namespace vantor {

namespace {

const std::map<std::string, int, std::less<>> layers{
    {"model", 0},    {"platform", 1}, {"settings", 2}, {"probes", 2},
    {"sampling", 3}, {"ui", 4},       {"app", 5}};

constexpr std::array<std::string_view, 4> operatingSystems{"__linux__", "__APPLE__", "_WIN32",
                                                           "Q_OS_"};

std::string_view trimLeft(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

/// What follows `#` on a preprocessor line.
std::optional<std::string_view> directive(std::string_view line) {
    line = trimLeft(line);
    if (!line.starts_with('#')) return std::nullopt;
    return trimLeft(line.substr(1));
}

std::string_view firstFolder(std::string_view path) {
    const auto slash = path.find('/');
    return slash == std::string_view::npos ? std::string_view{} : path.substr(0, slash);
}

std::string reasonAgainstInclude(std::string_view module, std::string_view what) {
    const int layer = layers.find(module)->second;
    const bool isOurs = what.starts_with('"');
    const auto end = what.find(isOurs ? '"' : '>', 1);
    const std::string_view name = what.substr(1, end == std::string_view::npos ? end : end - 1);
    if (!isOurs) {
        const bool isToolkit = name.size() > 1 && name[0] == 'Q' && name[1] != '/';
        return isToolkit && layer < layers.at("ui") ? "the toolkit below the views" : "";
    }
    if (name.ends_with(".moc") && layer >= layers.at("ui")) return "";
    const auto target = layers.find(firstFolder(name));
    if (target == layers.end()) return "an include outside the modules: " + std::string(name);
    if (target->first == module || target->second < layer) return "";
    return std::string(module) + " includes " + target->first;
}

std::string reasonAgainst(std::string_view module, std::string_view line) {
    const auto words = directive(line);
    if (!words) return "";
    if (words->starts_with("include")) {
        return reasonAgainstInclude(module, trimLeft(words->substr(7)));
    }
    if (module == "platform" || !(words->starts_with("if") || words->starts_with("elif")))
        return "";
    const bool asksForSystem = std::any_of(
        operatingSystems.begin(), operatingSystems.end(),
        [&](std::string_view name) { return words->find(name) != std::string_view::npos; });
    return asksForSystem ? "an operating system outside the platform" : "";
}

void checkFile(const std::filesystem::path& path, const std::string& name,
               std::vector<Breach>& breaches) {
    const std::string_view module = firstFolder(name);
    if (!layers.contains(module)) {
        breaches.push_back({name, 0, "a file in no module"});
        return;
    }
    std::ifstream file(path);
    std::size_t number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        if (auto reason = reasonAgainst(module, line); !reason.empty()) {
            breaches.push_back({name, number, std::move(reason)});
        }
    }
}

}  // namespace

std::vector<Breach> findBreaches(const std::filesystem::path& sources) {
    std::vector<Breach> breaches;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sources)) {
        const auto extension = entry.path().extension();
        if (!entry.is_regular_file() || (extension != ".h" && extension != ".cpp")) continue;
        const auto name = std::filesystem::relative(entry.path(), sources).generic_string();
        checkFile(entry.path(), name, breaches);
    }
    std::sort(breaches.begin(), breaches.end(), [](const Breach& a, const Breach& b) {
        return std::tie(a.file, a.line) < std::tie(b.file, b.line);
    });
    return breaches;
}

}  // namespace vantor
