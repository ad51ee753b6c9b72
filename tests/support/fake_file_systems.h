#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/linux/file_systems.h"

namespace vantor {

/// File systems whose figures are told by path; others fail. It keeps a list of the paths touched.
class FakeFileSystems : public FileSystems {
  public:
    std::map<std::string, Space> spaces;
    std::vector<std::string> touched;

    /// Runs at the start of each call with its path; may block for ever.
    std::function<void(const std::string&)> onSpace;

    std::optional<Space> space(const std::string& path) override {
        touched.push_back(path);
        if (onSpace) onSpace(path);
        const auto found = spaces.find(path);
        if (found == spaces.end()) return std::nullopt;
        return found->second;
    }
};

}  // namespace vantor
