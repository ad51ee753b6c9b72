#include "support/recorded_tree.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace vantor {

namespace fs = std::filesystem;

namespace {

constexpr std::array copiedFolders{"proc", "sys", "etc", "run", "usr", "calls"};

/// In memory where that can be: hundreds of small files come and go with each copy.
fs::path makeTemporaryFolder() {
    for (const fs::path& parent : {fs::path("/dev/shm"), fs::temp_directory_path()}) {
        std::string name = (parent / "machine-XXXXXX").string();
        if (::mkdtemp(name.data())) return name;
    }
    throw std::runtime_error("cannot make a temporary folder");
}

/// A recording's links may point out of it (an executable's path does), so nothing may be written
/// or removed through one.
void requireInside(const fs::path& folder, const fs::path& root) {
    const auto real = fs::weakly_canonical(folder);
    const auto top = fs::canonical(root);
    const auto [end, at] = std::mismatch(top.begin(), top.end(), real.begin(), real.end());
    if (end != top.end()) throw std::runtime_error(folder.string() + " leaves the recording");
}

void writeRecorded(const fs::path& path, std::string_view content) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path.string());
}

/// Copies what is under `from` over what is under `to`.
void lay(const fs::path& from, const fs::path& to, const fs::path& root) {
    if (!fs::exists(from)) return;
    requireInside(to, root);
    for (const auto& entry : fs::recursive_directory_iterator(from)) {
        const fs::path target = to / entry.path().lexically_relative(from);
        if (entry.is_symlink()) {
            fs::remove(target);
            fs::copy_symlink(entry.path(), target);
        } else if (entry.is_directory()) {
            requireInside(target, root);
            fs::create_directory(target);
        } else {
            if (fs::is_symlink(fs::symlink_status(target))) fs::remove(target);
            writeRecorded(target, readRecordedFile(entry.path()));
        }
    }
}

std::vector<std::string> readLines(const fs::path& path) {
    std::vector<std::string> lines;
    if (!fs::exists(path)) return lines;
    std::istringstream text(readRecordedFile(path));
    for (std::string line; std::getline(text, line);) {
        if (!line.empty() && line.front() != '#') lines.push_back(line);
    }
    return lines;
}

/// Makes the topology folders that the table `processors` lists: "id package die core", with a
/// minus for a file that the kernel does not have.
void makeTopologies(const fs::path& table, const fs::path& sys) {
    for (const std::string& line : readLines(table)) {
        std::istringstream words(line);
        std::string id, package, die, core;
        if (!(words >> id >> package >> die >> core)) {
            throw std::runtime_error(table.string() + ": " + line);
        }
        const fs::path folder = sys / "devices/system/cpu" / ("cpu" + id) / "topology";
        fs::create_directories(folder);
        if (package != "-") writeRecorded(folder / "physical_package_id", package + '\n');
        if (die != "-") writeRecorded(folder / "die_id", die + '\n');
        if (core != "-") writeRecorded(folder / "core_id", core + '\n');
    }
}

}  // namespace

std::string readRecordedFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

fs::path RecordedTree::recording(const std::string& name) {
    return fs::path(VANTOR_TESTS_DIR) / "machines" / name;
}

std::vector<std::string> RecordedTree::names() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(recording(""))) {
        if (entry.is_directory()) names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

RecordedTree::RecordedTree(const std::string& name) : recording_(recording(name)) {
    if (!fs::is_directory(recording_)) throw std::runtime_error("no recording " + name);
    root_ = makeTemporaryFolder();
    for (const char* folder : copiedFolders) {
        fs::create_directory(root_ / folder);
        lay(recording_ / folder, root_ / folder, root_);
    }
    for (const std::string& folder : readLines(recording_ / "folders")) {
        requireInside(root_ / folder, root_);
        fs::create_directories(root_ / folder);
    }
    makeTopologies(recording_ / "processors", root_ / "sys");
}

RecordedTree::~RecordedTree() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
}

void RecordedTree::applySecondPass() const {
    const fs::path second = recording_ / "second";
    for (const char* folder : copiedFolders)
        lay(second / folder, root_ / folder, root_);
    for (const std::string& gone : readLines(second / "REMOVED")) {
        requireInside((root_ / gone).parent_path(), root_);
        fs::remove_all(root_ / gone);
    }
}

std::vector<fs::path> RecordedTree::files() const {
    std::vector<fs::path> files;
    for (const char* folder : {"proc", "sys", "etc", "run", "usr"}) {
        for (const auto& entry : fs::recursive_directory_iterator(root_ / folder)) {
            if (!entry.is_symlink() && entry.is_regular_file()) files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace vantor
