#pragma once

#include <memory>
#include <utility>

#include "platform/atomic_file_writer.h"
#include "platform/posix/file_calls.h"

namespace vantor {

/// Writes a temporary file in the destination's own folder, waits until the disk has it, and puts
/// it in its place: a new one directly, else by renaming it over the old one.
///
/// A new file is its owner's alone (0600). An old one's permission bits stay, and its owner and
/// group where the user may give files away; where its group cannot stay, that group's bits go to
/// no other group. Access lists, extended attributes and other hard links do not follow. A file
/// that the user may not write is left alone, although the folder might let it be replaced. A
/// symbolic link stays one: what it leads to is replaced, or made.
///
/// A program that is killed leaves nothing behind when the file is new. It can leave a hidden file
/// ".vantor-…" where the file system has no nameless files, and at the moment of the renaming; a
/// later writing into that folder removes it (LeftoverFiles).
class PosixAtomicFileWriter : public AtomicFileWriter {
  public:
    explicit PosixAtomicFileWriter(std::shared_ptr<FileCalls> calls = std::make_shared<FileCalls>())
        : calls_(std::move(calls)) {}

    std::optional<DescribedError> write(const std::filesystem::path& destination,
                                        std::string_view bytes) override;

  private:
    /// Gives 0, an errno value, or notAnOrdinaryFile.
    int tryToWrite(const std::filesystem::path& destination, std::string_view bytes);

    std::shared_ptr<FileCalls> calls_;
};

}  // namespace vantor
