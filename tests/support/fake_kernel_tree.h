#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/linux/linux_roots.h"

namespace vantor {

/// A folder with a made-up /proc and /sys, gone with this object.
class FakeKernelTree {
  public:
    FakeKernelTree();
    FakeKernelTree(const FakeKernelTree&) = delete;
    FakeKernelTree& operator=(const FakeKernelTree&) = delete;
    ~FakeKernelTree();

    LinuxRoots roots() const {
        return {root_ / "proc", root_ / "sys", root_ / "etc", root_ / "run", root_ / "usr"};
    }

    /// Writes a file in place, as a kernel file changes: open descriptors see the new content.
    void proc(std::string_view path, std::string_view content) const;
    void sys(std::string_view path, std::string_view content) const;
    void etc(std::string_view path, std::string_view content) const;

    void run(std::string_view path, std::string_view content) const;
    void usr(std::string_view path, std::string_view content) const;

    /// A symbolic link of /sys or of /proc, in place of what was there; what it leads to need not
    /// be there.
    void link(std::string_view path, std::string_view target) const;
    void linkProc(std::string_view path, std::string_view target) const;

    /// The folder of a block device, with the links by which the kernel lets it be found. `device`
    /// is its place below /sys, "devices/…/block/sda".
    void blockDevice(std::string_view number, std::string_view device) const;

    /// The folder of one processor of /sys with its place in the machine.
    void core(unsigned processor, std::string_view package, std::string_view die,
              std::string_view core) const;

    void procFolder(std::string_view path) const;

    /// Makes /proc the one of this very process: the processes in it are then taken for live ones.
    void becomeOwnProc() const;

    /// A folder goes with all that is in it.
    void removeProc(std::string_view path) const;
    void removeSys(std::string_view path) const;

  private:
    std::filesystem::path root_;
};

}  // namespace vantor
