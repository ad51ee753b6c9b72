#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "platform/file_descriptor.h"
#include "platform/linux/linux_roots.h"

namespace vantor::bench {

/// Made-up /proc and /sys with two graphics cards, gone with this object: one of amdgpu, and one of
/// i915 with many clients, each of a process of its own that has other files open too.
class GraphicsTree {
  public:
    static constexpr int clients = 40;
    static constexpr int filesOfProcess = 12;
    static constexpr int firstPID = 1000;

    GraphicsTree();
    GraphicsTree(const GraphicsTree&) = delete;
    GraphicsTree& operator=(const GraphicsTree&) = delete;
    ~GraphicsTree();

    LinuxRoots roots() const;

    /// The files that a pass cannot do without: power states, figures, clients.
    std::vector<std::filesystem::path> filesOfPass() const;

    /// Lets a tenth of the clients work a little.
    void work();

  private:
    std::filesystem::path root_;
    std::vector<FileDescriptor> clientFiles_;
    std::uint64_t done_ = 1'000'000'000'000;
    int next_ = 0;
};

}  // namespace vantor::bench
