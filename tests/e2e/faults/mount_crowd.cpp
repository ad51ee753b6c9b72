#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

/// mount_crowd COUNT FOLDER PROGRAM...: becomes that program, in a room where so many small volumes
/// are mounted below the folder, which nobody else sees. Ends with 77 where that is not allowed.
int main(int argc, char** argv) {
    if (argc < 4) return 2;
    const int count = std::atoi(argv[1]);
    const std::string folder = argv[2];
    if (::unshare(CLONE_NEWNS) != 0) return 77;
    if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) return 77;
    for (int i = 0; i < count; ++i) {
        const std::string place = folder + "/volume" + std::to_string(i);
        ::mkdir(place.c_str(), 0700);
        if (::mount("crowd", place.c_str(), "tmpfs", 0, "size=16k,nr_inodes=4") != 0) return 77;
    }
    ::execvp(argv[3], argv + 3);
    std::perror(argv[3]);
    return 1;
}
