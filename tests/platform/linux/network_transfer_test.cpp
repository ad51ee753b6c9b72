#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <thread>

#include "platform/linux/linux_machine.h"
#include "probes/network_reader.h"
#include "support/network_namespace.h"

/// What the reader shows of a transfer between two network namespaces, beside what was sent: the
/// number of datagrams times their size with all headers, by the sender's own count and clock. None
/// of it comes from the kernel's counters.
namespace vantor::network_transfer_test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

class LiveReader {
  public:
    const NetworkStats* read() {
        return reader_.read(false, machine_->processInfo().systemUptime());
    }

  private:
    std::shared_ptr<Machine> machine_ = std::make_shared<LinuxMachine>();
    NetworkReader reader_{machine_};
};

/// A process in a namespace of its own that reads its network whenever it is told to.
class FarEnd {
  public:
    struct Answer {
        bool isRecord = false;
        double download = 0;
    };

    FarEnd() {
        std::array<int, 2> ends{};
        if (::socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends.data()) != 0) return;
        line_ = FileDescriptor{ends[0]};
        FileDescriptor childs{ends[1]};
        process_ = ::fork();
        if (process_ == 0) {
            line_.reset();
            run(childs.get());
            ::_exit(0);
        }
    }
    FarEnd(const FarEnd&) = delete;
    FarEnd& operator=(const FarEnd&) = delete;
    ~FarEnd() {
        line_.reset();
        if (process_ > 0) ::waitpid(process_, nullptr, 0);
    }

    pid_t process() const { return process_; }

    /// Whether it is in its namespace.
    bool isThere() { return receive().isRecord; }

    bool configure() { return ask('c').isRecord; }
    Answer read() { return ask('r'); }

  private:
    Answer ask(char question) {
        if (::send(line_.get(), &question, 1, MSG_NOSIGNAL) != 1) return {};
        return receive();
    }
    Answer receive() {
        Answer answer;
        if (::recv(line_.get(), &answer, sizeof answer, 0) != sizeof answer) return {};
        return answer;
    }

    static void run(int line) {
        Answer answer;
        answer.isRecord = enterNetworkNamespace().empty();
        LiveReader reader;
        char question = 0;
        while (::send(line, &answer, sizeof answer, MSG_NOSIGNAL) == sizeof answer &&
               ::recv(line, &question, 1, 0) == 1) {
            answer = {};
            if (question == 'c') {
                answer.isRecord = ip("addr add 10.77.0.2/24 dev far0") && ip("link set far0 up") &&
                                  waitUntilRunning("far0");
            } else if (const NetworkStats* const stats = reader.read()) {
                answer = {true, stats->downloadBytesPerSecond};
            }
        }
    }

    FileDescriptor line_;
    pid_t process_ = -1;
};

TEST(NetworkTransfer, ShowsWhatGoesOverTheWireAtBothEnds) {
    FarEnd far;
    const std::string obstacle = enterNetworkNamespace();
    if (!obstacle.empty()) GTEST_SKIP() << obstacle;
    ASSERT_TRUE(far.isThere());
    ASSERT_TRUE(ip("link add near0 type veth peer name far0"));
    ASSERT_TRUE(ip("link set far0 netns " + std::to_string(far.process())));
    ASSERT_TRUE(ip("addr add 10.77.0.1/24 dev near0"));
    ASSERT_TRUE(ip("link set near0 up"));
    ASSERT_TRUE(far.configure());
    ASSERT_TRUE(waitUntilRunning("near0"));
    ASSERT_TRUE(ip("route add default via 10.77.0.2 dev near0"));

    LiveReader reader;
    DatagramSender sender("10.77.0.2");
    sender.send(1);  // has the neighbour's address looked up before the first reading
    std::this_thread::sleep_for(100ms);
    EXPECT_EQ(reader.read(), nullptr);
    EXPECT_FALSE(far.read().isRecord);
    auto start = Clock::now();
    constexpr std::uint64_t perMillisecond = 15;
    for (int interval = 0; interval < 4; ++interval) {
        std::uint64_t sent = 0;
        for (auto next = Clock::now(); Clock::now() < start + 500ms; next += 1ms) {
            sent += sender.send(perMillisecond);
            std::this_thread::sleep_until(next);
        }
        const NetworkStats* const stats = reader.read();
        const auto end = Clock::now();
        const FarEnd::Answer received = far.read();
        const double seconds = std::chrono::duration<double>(end - start).count();
        const double rate =
            static_cast<double>(sent * (DatagramSender::payload + DatagramSender::headers)) /
            seconds;
        start = end;
        ASSERT_NE(stats, nullptr);
        EXPECT_EQ(stats->primaryInterfaceName, "near0");
        EXPECT_EQ(stats->primaryIPv4Address, "10.77.0.1");
        EXPECT_GT(rate, 5e6) << "a transfer worth the name";
        EXPECT_NEAR(stats->uploadBytesPerSecond, rate, 0.03 * rate);
        EXPECT_LT(stats->downloadBytesPerSecond, 0.03 * rate);
        ASSERT_TRUE(received.isRecord);
        EXPECT_NEAR(received.download, rate, 0.03 * rate);
        std::printf("sent %.2f MB/s, near end shows %.2f (%+.2f %%), far end %.2f (%+.2f %%)\n",
                    rate / 1e6, stats->uploadBytesPerSecond / 1e6,
                    100 * (stats->uploadBytesPerSecond / rate - 1), received.download / 1e6,
                    100 * (received.download / rate - 1));
    }
}

}  // namespace
}  // namespace vantor::network_transfer_test
