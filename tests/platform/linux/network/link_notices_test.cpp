#include "platform/linux/network/link_notices.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>

#include <array>
#include <string>

namespace vantor::link_notices_test {
namespace {

/// The kernel's end is a socket of this program.
class LinkNoticesTest : public testing::Test {
  protected:
    FileDescriptor open() {
        ++opened;
        std::array<int, 2> ends{};
        if (isRefused || ::socketpair(AF_UNIX, SOCK_DGRAM, 0, ends.data()) != 0) return {};
        kernel = FileDescriptor{ends[1]};
        return FileDescriptor{ends[0]};
    }
    void tell(std::size_t size = 1400) const {
        const std::string notice(size, 'x');
        ASSERT_EQ(::send(kernel.get(), notice.data(), size, MSG_DONTWAIT),
                  static_cast<ssize_t>(size));
    }

    FileDescriptor kernel;
    int opened = 0;
    bool isRefused = false;
    LinkNotices notices{[this] { return open(); }};
};

TEST_F(LinkNoticesTest, AtFirstAnythingMayHaveChanged) {
    EXPECT_TRUE(notices.take());
    EXPECT_FALSE(notices.take());
    EXPECT_FALSE(notices.take());
    EXPECT_EQ(opened, 1);
}

TEST_F(LinkNoticesTest, ANoticeIsAChangeOnce) {
    notices.take();
    tell();
    EXPECT_TRUE(notices.take());
    EXPECT_FALSE(notices.take());
    tell(1);
    EXPECT_TRUE(notices.take());
}

TEST_F(LinkNoticesTest, AllThatWaitAreTakenTogether) {
    notices.take();
    for (int i = 0; i < 8; ++i)
        tell();
    EXPECT_TRUE(notices.take());
    EXPECT_FALSE(notices.take());
}

TEST_F(LinkNoticesTest, WithoutASocketAnythingMayHaveChangedEachTime) {
    isRefused = true;
    EXPECT_TRUE(notices.take());
    EXPECT_TRUE(notices.take());
    isRefused = false;
    EXPECT_TRUE(notices.take());
    EXPECT_FALSE(notices.take()) << "it is asked for again";
}

TEST(LinkNotices, AfterAnErrorTheSocketIsOpenedAnew) {
    int opened = 0;
    LinkNotices notices([&opened] {
        ++opened;
        return FileDescriptor{::open("/dev/null", O_RDONLY | O_CLOEXEC)};  // no socket
    });
    for (int i = 0; i < 6; ++i)
        EXPECT_TRUE(notices.take()) << i;
    EXPECT_EQ(opened, 3);
}

}  // namespace
}  // namespace vantor::link_notices_test
