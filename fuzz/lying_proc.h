#pragma once

#include <fuzzer/FuzzedDataProvider.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>

#include "platform/linux/linux_roots.h"

#include "require.h"

namespace vantor::fuzz {

/// A folder like /proc with any content. Made once for all inputs and emptied for
/// each, because making folders takes longest.
class LyingProc {
  public:
    LyingProc() {
        std::string name =
            (std::filesystem::temp_directory_path() / "vantor-fuzz-proc-XXXXXX").string();
        require(::mkdtemp(name.data()) != nullptr);
        root_ = name;
        std::filesystem::create_directories(root_ / "sys/kernel");
        std::filesystem::create_symlink(std::to_string(::getpid()), root_ / "self");
    }
    LyingProc(const LyingProc&) = delete;
    LyingProc& operator=(const LyingProc&) = delete;
    ~LyingProc() {
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }

    const std::filesystem::path& root() const { return root_; }
    LinuxRoots roots() const {
        LinuxRoots roots;
        roots.proc = root_;
        return roots;
    }
    const std::set<std::int32_t>& pids() const { return pids_; }

    void empty() {
        while (!pids_.empty())
            end(*pids_.begin());
        sayLastPID("");
    }

    void begin(std::int32_t pid) {
        if (pids_.insert(pid).second) std::filesystem::create_directory(folder(pid));
    }

    void end(std::int32_t pid) {
        if (pids_.erase(pid) > 0) std::filesystem::remove_all(folder(pid));
    }

    void say(std::int32_t pid, std::string_view file, std::string_view text) {
        write(folder(pid) / file, text);
    }

    void link(std::int32_t pid, std::string_view file, const std::string& to) {
        std::error_code ignored;  // a text with a zero byte, or an empty one, is no link
        std::filesystem::remove(folder(pid) / file, ignored);
        std::filesystem::create_symlink(to, folder(pid) / file, ignored);
    }

    void sayLastPID(std::string_view text) { write(root_ / "sys/kernel/ns_last_pid", text); }

  private:
    std::filesystem::path folder(std::int32_t pid) const { return root_ / std::to_string(pid); }

    static void write(const std::filesystem::path& file, std::string_view text) {
        std::ofstream(file, std::ios::binary | std::ios::trunc) << text;
    }

    std::filesystem::path root_;
    std::set<std::int32_t> pids_;
};

/// Has a `Kernel`, which is made of such a folder and of the input's bytes, take one step after
/// another until the bytes are used up. Returns the folder as it then is.
template <class Kernel>
const LyingProc& runSteps(const std::uint8_t* data, std::size_t size) {
    constexpr int maxSteps = 40;
    static LyingProc proc;
    proc.empty();
    FuzzedDataProvider input(data, size);
    Kernel kernel(proc, input);
    for (int i = 0; i < maxSteps && input.remaining_bytes() > 0; ++i)
        kernel.step();
    return proc;
}

}  // namespace vantor::fuzz
