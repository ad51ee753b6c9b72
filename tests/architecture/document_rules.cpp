#include "architecture/document_rules.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <string>
#include <string_view>
#include <tuple>

namespace vantor {

namespace {

namespace fs = std::filesystem;

/// Whether `name` is of that form, in which each `*` stands for any characters.
bool matches(std::string_view name, std::string_view form) {
    if (form.empty()) return name.empty();
    if (form.front() != '*')
        return !name.empty() && name.front() == form.front() &&
               matches(name.substr(1), form.substr(1));
    for (std::size_t skipped = 0; skipped <= name.size(); ++skipped) {
        if (matches(name.substr(skipped), form.substr(1))) return true;
    }
    return false;
}

bool existsIn(const fs::path& folder, const std::string& path) {
    const auto slash = path.find('/');
    const std::string first = path.substr(0, slash);
    const std::string rest = slash == std::string::npos ? "" : path.substr(slash + 1);
    if (first.find('*') == std::string::npos) {
        const fs::path next = folder / first;
        return rest.empty() ? fs::exists(next) : existsIn(next, rest);
    }
    if (!fs::is_directory(folder)) return false;
    return std::ranges::any_of(fs::directory_iterator(folder), [&](const auto& entry) {
        return matches(entry.path().filename().string(), first) &&
               (rest.empty() || existsIn(entry.path(), rest));
    });
}

/// `path` with each of its alternatives, "a.{h,cpp}" as "a.h" and "a.cpp".
std::vector<std::string> alternatives(const std::string& path) {
    const auto open = path.find('{');
    const auto close = path.find('}', open);
    if (open == std::string::npos || close == std::string::npos) return {path};
    std::vector<std::string> all;
    for (std::size_t at = open; at < close;) {
        const std::size_t end = std::min(path.find(',', at + 1), close);
        const auto word = path.substr(at + 1, end - at - 1);
        for (auto& each : alternatives(path.substr(0, open) + word + path.substr(close + 1)))
            all.push_back(std::move(each));
        at = end;
    }
    return all;
}

bool doAllExist(const fs::path& folder, const std::string& path) {
    static const std::regex name("<[a-z]+>");
    return std::ranges::all_of(alternatives(std::regex_replace(path, name, "*")),
                               [&](const std::string& each) { return existsIn(folder, each); });
}

/// The paths in a line that begin with one of the tree's folders, wherever they stand.
std::vector<std::string> pathsIn(const std::string& line) {
    static const std::regex path(
        R"((?:^|[^\w/.-])(?:\./)?((?:src|tests|docs|scripts|fuzz|bench|cmake|gallery|assets|packaging))"
        R"(/(?:[\w./*-]|\{[\w.,]+\}|<[a-z]+>)*))");
    std::vector<std::string> paths;
    for (std::sregex_iterator at(line.begin(), line.end(), path), end; at != end; ++at) {
        std::string found = (*at)[1];
        while (found.ends_with('.') || found.ends_with('/'))
            found.pop_back();
        paths.push_back(std::move(found));
    }
    return paths;
}

/// What the links in a line lead to within the tree, without the place in the document.
std::vector<std::string> linksIn(const std::string& line) {
    static const std::regex link(R"(\]\(([^)#:]+)(?:#[^)]*)?\))");
    std::vector<std::string> links;
    for (std::sregex_iterator at(line.begin(), line.end(), link), end; at != end; ++at)
        links.push_back((*at)[1]);
    return links;
}

void checkDocument(const fs::path& root, const fs::path& path, std::vector<Breach>& breaches) {
    const std::string name = fs::relative(path, root).generic_string();
    std::ifstream file(path);
    std::size_t number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        const auto links = linksIn(line);
        for (const std::string& link : links) {
            if (!fs::exists(path.parent_path() / link))
                breaches.push_back({name, number, "a link to nothing: " + link});
        }
        for (const std::string& found : pathsIn(line)) {
            if (std::ranges::find(links, found) == links.end() && !doAllExist(root, found))
                breaches.push_back({name, number, "no such path: " + found});
        }
    }
}

}  // namespace

std::vector<Breach> findMissingPaths(const fs::path& root) {
    std::vector<Breach> breaches;
    for (const fs::path& folder : {root, root / "docs"}) {
        if (!fs::is_directory(folder)) continue;
        for (const auto& entry : fs::directory_iterator(folder)) {
            if (entry.path().extension() == ".md") checkDocument(root, entry.path(), breaches);
        }
    }
    std::ranges::sort(breaches, [](const Breach& a, const Breach& b) {
        return std::tie(a.file, a.line, a.reason) < std::tie(b.file, b.line, b.reason);
    });
    return breaches;
}

}  // namespace vantor
