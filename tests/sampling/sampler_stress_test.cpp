#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "platform/simulated/simulated_machine.h"
#include "platform/threads/threaded_serial_queue.h"
#include "sampling/any_provider.h"

/// Samplers that live and die under the requests of several threads.
namespace vantor::sampler_stress_test {
namespace {

using namespace std::chrono_literals;

/// What became of the requests. A refused one is let go of inside the call that made it.
struct Tally {
    std::atomic<int> refused{0};
    std::atomic<int> answered{0};
    std::atomic<int> dropped{0};  ///< admitted, then ended by the sampler's end
    std::atomic<int> answeredTwice{0};
};

/// A completion that reports its fate.
class Answer {
  public:
    explicit Answer(Tally& tally) : tally_(&tally) {}
    Answer(Answer&& other) noexcept
        : tally_(std::exchange(other.tally_, nullptr)),
          requester_(other.requester_),
          answered_(other.answered_) {}
    Answer(const Answer&) = delete;
    Answer& operator=(const Answer&) = delete;
    Answer& operator=(Answer&&) = delete;
    ~Answer() {
        if (!tally_ || answered_) return;
        ++(std::this_thread::get_id() == requester_ ? tally_->refused : tally_->dropped);
    }
    void operator()() {
        ++(std::exchange(answered_, true) ? tally_->answeredTwice : tally_->answered);
    }

  private:
    Tally* tally_;
    std::thread::id requester_ = std::this_thread::get_id();
    bool answered_ = false;
};

/// A sampler whose cpu probe can be held up inside its call.
struct Lifetime {
    std::shared_ptr<SystemSampler> sampler;
    std::shared_ptr<std::atomic<bool>> hold = std::make_shared<std::atomic<bool>>(false);
    std::shared_ptr<std::atomic<bool>> isHeld = std::make_shared<std::atomic<bool>>(false);

    Lifetime(const std::shared_ptr<FakeClock>& clock, SerialQueueFactory& queues) {
        // A machine of its own: the last reading of the sampler before may still be going on.
        const auto machine = SimulatedMachine::laptop(clock);
        machine->hostProcessors().growth = {1, 1, 1, 0};
        machine->hostProcessors().onTotalTicks = [hold = hold, isHeld = isHeld] {
            while (*hold) {
                *isHeld = true;
                std::this_thread::yield();
            }
        };
        sampler = SystemSampler::make(machine, queues);
    }
};

/// Passes the sampler of the moment around.
class Stage {
  public:
    std::shared_ptr<SystemSampler> current() {
        const std::lock_guard lock(mutex_);
        return sampler_;
    }
    void set(std::shared_ptr<SystemSampler> next) {
        const std::lock_guard lock(mutex_);
        sampler_.swap(next);
    }

  private:
    std::mutex mutex_;
    std::shared_ptr<SystemSampler> sampler_;
};

class SamplerStress : public testing::Test {
  protected:
    static constexpr int threadCount = 4;
    static constexpr int lifetimes = 40;
    static constexpr int requestsPerThread = 6000;

    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    ThreadedSerialQueueFactory queues;
    Tally tally;
    Stage stage;
    std::atomic<int> requests{0};  ///< by everyone
    std::atomic<int> hammered{0};  ///< those of the hammering threads
    std::atomic<int> baselines{0};
    std::vector<std::shared_ptr<const ProviderGate>> gates;  // of all lifetimes

    Lifetime begin() {
        Lifetime lifetime(clock, queues);
        const auto its = lifetime.sampler->gates();
        gates.insert(gates.end(), its.begin(), its.end());
        stage.set(lifetime.sampler);
        return lifetime;
    }

    void request(SystemSampler& sampler, std::size_t provider, double interval, bool force) {
        requestProvider(sampler, provider, interval, force, Answer(tally));
        ++requests;
    }

    /// Puts the next lifetime in the place of this one, and ends this one in the middle of a run
    /// with another one waiting.
    Lifetime replace(Lifetime old) {
        const auto its = old.sampler->gates();
        *old.hold = true;
        while (!*old.isHeld || its[0]->outstandingRuns() < 2) {
            if (its[0]->outstandingRuns() < 2) request(*old.sampler, 0, 1, true);
            std::this_thread::yield();
        }
        Lifetime next = begin();
        const std::weak_ptr<SystemSampler> weak = old.sampler;
        old.sampler.reset();
        // Once the requesting threads and the other providers are done, only the run that is held
        // up keeps the sampler.
        const auto isAlone = [&] { return weak.use_count() == 1; };
        while (!(isAlone() && areIdle(its.begin() + 1, its.end()) && isAlone())) {
            std::this_thread::yield();
        }
        *old.hold = false;
        return next;
    }

    /// Asks all providers in turn, sometimes forced, while the clock runs and baselines go.
    void hammer(unsigned seed) {
        for (int i = 0; i < requestsPerThread; ++i) {
            const auto sampler = stage.current();
            const unsigned dice = (seed = seed * 1664525u + 1013904223u) >> 16;
            if (dice % 61 == 0) {
                sampler->resetDeltaBaselines();
                ++baselines;
            }
            request(*sampler, dice % 8, 0.1 * (dice % 5), dice % 3 == 0);
            ++hammered;
            clock->wind(5ms);
            if (dice % 16 == 0) std::this_thread::yield();
        }
    }

    std::vector<std::thread> startHammering() {
        std::vector<std::thread> threads;
        for (unsigned seed = 1; seed <= threadCount; ++seed) {
            threads.emplace_back([this, seed] { hammer(seed); });
        }
        return threads;
    }

    bool isBalanced() const { return areIdle(gates.begin(), gates.end()); }

    template <class Iterator>
    static bool areIdle(Iterator first, Iterator last) {
        return std::all_of(first, last, [](const auto& g) { return g->outstandingRuns() == 0; });
    }
};

TEST_F(SamplerStress, EveryAdmittedRunEndsAndEveryGateIsBalanced) {
    Lifetime lifetime = begin();
    auto threads = startHammering();
    // The turn of the lifetimes follows the requests, so that all of them fall among the requests.
    constexpr int all = threadCount * requestsPerThread;
    for (int i = 1; i < lifetimes; ++i) {
        while (hammered.load() < all / lifetimes * i)
            std::this_thread::yield();
        lifetime = replace(std::move(lifetime));
    }
    for (std::thread& thread : threads)
        thread.join();
    stage.set(nullptr);
    lifetime.sampler.reset();
    ASSERT_TRUE(queues.waitForThreads(20s));
    EXPECT_TRUE(isBalanced());
    EXPECT_EQ(gates.size(), std::size_t{8 * lifetimes});
    EXPECT_GE(requests, 20'000);
    EXPECT_GT(baselines, 100);
    EXPECT_EQ(tally.answeredTwice, 0);
    EXPECT_EQ(tally.refused + tally.answered + tally.dropped, requests);
    EXPECT_GT(tally.refused, 0);
    EXPECT_GE(tally.answered, lifetimes - 1);
    EXPECT_GE(tally.dropped, lifetimes - 1);
    RecordProperty("refused", tally.refused);
    RecordProperty("answered", tally.answered);
    RecordProperty("dropped", tally.dropped);
}

TEST_F(SamplerStress, EveryAdmittedRunOfALivingSamplerAnswers) {
    Lifetime lifetime = begin();
    auto threads = startHammering();
    for (std::thread& thread : threads)
        thread.join();
    const auto deadline = std::chrono::steady_clock::now() + 20s;
    while (!isBalanced() && std::chrono::steady_clock::now() < deadline)
        std::this_thread::yield();
    EXPECT_TRUE(isBalanced());
    EXPECT_EQ(tally.dropped, 0);
    EXPECT_EQ(tally.answeredTwice, 0);
    EXPECT_EQ(tally.refused + tally.answered, requests);
    EXPECT_GT(tally.answered, 8);
    stage.set(nullptr);
    lifetime.sampler.reset();
    EXPECT_TRUE(queues.waitForThreads(20s));
}

}  // namespace
}  // namespace vantor::sampler_stress_test
