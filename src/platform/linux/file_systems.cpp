#include "platform/linux/file_systems.h"

#include <sys/statvfs.h>

#include <cerrno>

namespace vantor {

namespace {

class LiveFileSystems : public FileSystems {
  public:
    std::optional<Space> space(const std::string& path) override {
        struct statvfs answer = {};
        int result = 0;
        do {
            result = ::statvfs(path.c_str(), &answer);
        } while (result != 0 && errno == EINTR);
        if (result != 0) return std::nullopt;
        return Space{answer.f_frsize, answer.f_blocks, answer.f_bavail,
                     (answer.f_flag & ST_RDONLY) != 0};
    }
};

}  // namespace

std::shared_ptr<FileSystems> makeLiveFileSystems() {
    return std::make_shared<LiveFileSystems>();
}

}  // namespace vantor
