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

/// How long the interval of a reading was, at the least and at the most: a busy machine may let any
/// time pass between looking at the clock and at the counters.
struct Interval {
    double least = 0, most = 0;
};

class LiveReader {
  public:
    const NetworkStats* read() {
        const Moment before = previous_;
        previous_.earliest = Clock::now();
        const NetworkStats* const stats =
            reader_.read(false, machine_->processInfo().systemUptime());
        previous_.latest = Clock::now();
        interval_ = {Seconds(previous_.earliest - before.latest).count(),
                     Seconds(previous_.latest - before.earliest).count()};
        return stats;
    }
    /// Between the last two readings.
    Interval interval() const { return interval_; }

  private:
    using Seconds = std::chrono::duration<double>;
    struct Moment {
        Clock::time_point earliest, latest;
    };

    Moment previous_;
    Interval interval_;
    std::shared_ptr<Machine> machine_ = std::make_shared<LinuxMachine>();
    NetworkReader reader_{machine_};
};

/// A process in a namespace of its own that reads its network whenever it is told to.
class FarEnd {
  public:
    struct Answer {
        bool isRecord = false;
        double download = 0;
        Interval interval;
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
                answer = {true, stats->downloadBytesPerSecond, reader.interval()};
            }
        }
    }

    FileDescriptor line_;
    pid_t process_ = -1;
};

void expectRate(double shown, double bytes, Interval interval) {
    EXPECT_GT(bytes / interval.most, 1e6) << "a transfer worth the name";
    EXPECT_GT(shown, 0.99 * bytes / interval.most);
    EXPECT_LT(shown, 1.01 * bytes / interval.least);
}

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
    constexpr std::uint64_t perMillisecond = 15;
    for (int interval = 0; interval < 4; ++interval) {
        std::uint64_t sent = 0;
        const auto start = Clock::now();
        for (auto next = start; Clock::now() < start + 500ms; next += 1ms) {
            sent += sender.send(perMillisecond);
            std::this_thread::sleep_until(next);
        }
        std::this_thread::sleep_for(20ms);  // all of it is at the far end before that is read
        const NetworkStats* const stats = reader.read();
        const FarEnd::Answer received = far.read();
        const auto bytes =
            static_cast<double>(sent * (DatagramSender::payload + DatagramSender::headers));
        ASSERT_NE(stats, nullptr);
        EXPECT_EQ(stats->primaryInterfaceName, "near0");
        EXPECT_EQ(stats->primaryIPv4Address, "10.77.0.1");
        expectRate(stats->uploadBytesPerSecond, bytes, reader.interval());
        EXPECT_LT(stats->downloadBytesPerSecond * reader.interval().most, 0.03 * bytes);
        ASSERT_TRUE(received.isRecord);
        expectRate(received.download, bytes, received.interval);
        std::printf("sent %.2f MB, near end shows %.2f MB/s for %.3f to %.3f s, far end %.2f\n",
                    bytes / 1e6, stats->uploadBytesPerSecond / 1e6, reader.interval().least,
                    reader.interval().most, received.download / 1e6);
    }
}

}  // namespace
}  // namespace vantor::network_transfer_test
