#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

namespace vantor {

/// A folder of sources for a test, gone with this object.
class SampleTree {
  public:
    SampleTree() {
        std::string name = (std::filesystem::temp_directory_path() / "sources-XXXXXX").string();
        if (!::mkdtemp(name.data())) std::abort();
        root_ = name;
    }
    SampleTree(const SampleTree&) = delete;
    SampleTree& operator=(const SampleTree&) = delete;
    ~SampleTree() {
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }

    void write(const std::string& name, const std::string& content) const {
        std::filesystem::create_directories((root_ / name).parent_path());
        std::ofstream(root_ / name) << content;
    }
    const std::filesystem::path& root() const { return root_; }

  private:
    std::filesystem::path root_;
};

}  // namespace vantor
