#pragma once

#include <linux/fuse.h>

#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/file_descriptor.h"

namespace vantor {

/// A file system that is served by this process, as programs serve those of disks and folders, and
/// that can be told to hang. Only within mounts of one's own.
class ServedFolder {
  public:
    enum class Manner {
        answers,
        keepsQuestions,  ///< reads them and says nothing
        readsNothing,
    };

    /// Mounted on `folder` with that type, "fuse.name".
    ServedFolder(std::string folder, const std::string& type);
    ServedFolder(const ServedFolder&) = delete;
    ServedFolder& operator=(const ServedFolder&) = delete;
    ~ServedFolder() { shutDown(); }

    bool isMounted() const { return isMounted_; }
    bool hasGreeted() const { return hasGreeted_; }
    int questions() const { return questions_; }  ///< that were read

    /// From now on, and for the questions that it has kept.
    void setManner(Manner manner);
    /// Blocks of 4096 bytes, out of a thousand.
    void setAvailable(std::uint64_t blocks) { available_ = blocks; }

    /// Waiting callers get an error.
    void shutDown();

  private:
    void serve();
    bool readOne();
    void handle(const fuse_in_header& question);
    void answer(const fuse_in_header& question);
    template <class Body>
    bool say(std::uint64_t unique, const Body& body);
    void sayError(std::uint64_t unique, int error);
    void wake() const;

    std::string folder_;
    FileDescriptor device_;
    FileDescriptor wakeUp_;
    std::thread server_;
    bool isMounted_ = false;
    std::mutex mutex_;  // what follows
    Manner manner_ = Manner::answers;
    bool isOver_ = false;
    std::vector<fuse_in_header> kept_;
    std::atomic<bool> hasGreeted_ = false;
    std::atomic<int> questions_ = 0;
    std::atomic<std::uint64_t> available_ = 500;
};

}  // namespace vantor
