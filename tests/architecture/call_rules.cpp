#include "architecture/call_rules.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <tuple>

namespace vantor {

namespace {

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Blanks in their place, so that lines stay what they are.
std::string withoutComments(std::string text) {
    for (std::size_t at = 0; (at = text.find("//", at)) != std::string::npos;) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::fill(text.begin() + static_cast<std::ptrdiff_t>(at),
                  text.begin() + static_cast<std::ptrdiff_t>(end), ' ');
    }
    for (std::size_t at = 0; (at = text.find("/*", at)) != std::string::npos;) {
        const std::size_t end = std::min(text.find("*/", at), text.size() - 2) + 2;
        std::replace_if(
            text.begin() + static_cast<std::ptrdiff_t>(at),
            text.begin() + static_cast<std::ptrdiff_t>(end), [](char c) { return c != '\n'; }, ' ');
    }
    return text;
}

void checkFile(const std::filesystem::path& path, std::vector<Breach>& breaches) {
    const std::string text = withoutComments(contentOf(path));
    static const std::regex declaration(R"(\bvirtual\b\s+([^;{]*))");
    static const std::regex pure(R"(=\s*0\s*$)");
    for (std::sregex_iterator found(text.begin(), text.end(), declaration), end; found != end;
         ++found) {
        const std::string function = (*found)[1];
        if (function.starts_with('~') || std::regex_search(function, pure)) continue;
        const auto line = std::count(text.begin(), text.begin() + found->position(), '\n') + 1;
        const std::string name = function.substr(0, function.find('('));
        breaches.push_back({path.filename().string(), static_cast<std::size_t>(line),
                            "a default for " + name.substr(name.find_last_of(" *&") + 1)});
    }
}

}  // namespace

std::vector<Breach> findDefaults(const std::filesystem::path& folder) {
    std::vector<Breach> breaches;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const auto& path = entry.path();
        if (!entry.is_regular_file() || path.extension() != ".h") continue;
        checkFile(path, breaches);
    }
    std::sort(breaches.begin(), breaches.end(), [](const Breach& a, const Breach& b) {
        return std::tie(a.file, a.line) < std::tie(b.file, b.line);
    });
    return breaches;
}

}  // namespace vantor
