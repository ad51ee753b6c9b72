#pragma once

#include <chrono>
#include <filesystem>
#include <memory>

#include "platform/atomic_file_writer.h"
#include "platform/shared_file.h"

namespace vantor {

/// A file at a path. A symbolic link there stays one: what it leads to is read, written and put
/// aside ("settings.ini.damaged-1" and so on, up to 100).
///
/// Other programs are kept away by a lock of the system on the file's folder: it needs no file of
/// its own that could be left behind, and goes with its program however that ends. Where there are
/// no such locks, or another program keeps it for longer than a second, the work is done without.
class PosixSharedFile : public SharedFile {
  public:
    static constexpr std::chrono::milliseconds lockPatience{1000};

    PosixSharedFile(std::filesystem::path path, std::shared_ptr<AtomicFileWriter> writer,
                    std::chrono::milliseconds patience = lockPatience);

    Reading read(std::size_t most) override;
    std::optional<DescribedError> write(std::string_view bytes) override;
    std::optional<DescribedError> remove() override;
    std::optional<DescribedError> putAside() override;
    void withoutOthers(const std::function<void()>& work) override;

  private:
    DescribedError because(int error) const;

    std::filesystem::path path_;
    std::shared_ptr<AtomicFileWriter> writer_;
    std::chrono::milliseconds patience_;
};

}  // namespace vantor
