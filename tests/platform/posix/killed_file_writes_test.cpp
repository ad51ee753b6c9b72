#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <thread>

#include "platform/posix/file_calls.h"
#include "platform/posix/posix_atomic_file_writer.h"
#include "support/temporary_folder.h"

/// A process that is killed while it writes leaves whole files, whatever it was doing.
namespace vantor::killed_file_writes_test {
namespace {

namespace fs = std::filesystem;

/// A process that writes `content` again and again until it is killed.
pid_t startWriter(const fs::path& file, const std::string& content) {
    const pid_t child = ::fork();
    if (child == 0) {
        PosixAtomicFileWriter writer;
        while (!writer.write(file, content)) {
        }
        ::_exit(1);
    }
    return child;
}

TEST(KilledWriter, LeavesAWholeFileWhateverItWasDoing) {
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "file.json";
    writeFile(file, "old");
    std::string known = "old";
    for (int attempt = 0; attempt < 200; ++attempt) {
        const std::string content(100'000, static_cast<char>('a' + attempt % 26));
        const pid_t child = startWriter(file, content);
        ASSERT_GT(child, 0);
        std::this_thread::sleep_for(std::chrono::microseconds(250 * (attempt % 40)));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
        const std::string found = contentOf(file);
        ASSERT_TRUE(found == known || found == content) << found.substr(0, 10) << found.size();
        known = found;
    }
    EXPECT_NE(known, "old");
}

/// A process that writes new files until it is killed: 0, 1, 2...
pid_t startWriterOfNewFiles(const fs::path& folder, const std::string& content) {
    const pid_t child = ::fork();
    if (child == 0) {
        PosixAtomicFileWriter writer;
        for (int i = 0; !writer.write(folder / std::to_string(i), content); ++i) {
        }
        ::_exit(1);
    }
    return child;
}

TEST(KilledWriter, LeavesNothingOfANewFileOrAllOfIt) {
    const std::string content(100'000, 'x');
    std::size_t files = 0;
    for (int attempt = 0; attempt < 200; ++attempt) {
        const TemporaryFolder folder;
        const int nameless = FileCalls().createNameless(AT_FDCWD);
        if (nameless < 0) GTEST_SKIP() << "no nameless files here";
        ::close(nameless);
        const pid_t child = startWriterOfNewFiles(folder.path(), content);
        ASSERT_GT(child, 0);
        std::this_thread::sleep_for(std::chrono::microseconds(250 * (attempt % 40)));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
        for (const std::string& name : folder.names()) {
            ASSERT_NE(name.front(), '.') << name;
            ASSERT_TRUE(contentOf(folder.path() / name) == content) << name;
            ++files;
        }
    }
    EXPECT_GT(files, 0u);
}

}  // namespace
}  // namespace vantor::killed_file_writes_test
