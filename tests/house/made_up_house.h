#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

namespace vantor {

/// A made-up folder of sources, gone with this object.
class MadeUpHouse {
  public:
    MadeUpHouse() {
        std::string name = (std::filesystem::temp_directory_path() / "house-XXXXXX").string();
        if (!::mkdtemp(name.data())) std::abort();
        root_ = name;
    }
    MadeUpHouse(const MadeUpHouse&) = delete;
    MadeUpHouse& operator=(const MadeUpHouse&) = delete;
    ~MadeUpHouse() {
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
