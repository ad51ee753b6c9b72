#include <array>
#include <atomic>
#include <memory>
#include <thread>

#include "platform/native_machine.h"
#include "platform/threads/threaded_serial_queue.h"
#include "sampling/any_provider.h"
#include "sampling/end_of_main.h"

namespace {

std::array<std::atomic<int>, 8> answers{};

/// Waits until each provider has answered often once more.
void waitForMoreAnswers() {
    for (std::atomic<int>& count : answers) {
        const int enough = count + 20;
        while (count < enough)
            std::this_thread::yield();
    }
}

/// Made before all others, it ends after all others, and gives the readings time to touch what has
/// ended by then.
struct LastToEnd {
    ~LastToEnd() { waitForMoreAnswers(); }
} lastToEnd;

/// Each answer asks again, and keeps the sampler for it.
void askForEver(const std::shared_ptr<vantor::SystemSampler>& sampler, std::size_t provider) {
    vantor::requestProvider(*sampler, provider, 0, true, [sampler, provider] {
        ++answers[provider];
        askForEver(sampler, provider);
    });
}

}  // namespace

/// Returns from main while all eight providers are reading, and ends what has a static lifetime
/// under their hands.
int main() {
    using namespace vantor;
    ThreadedSerialQueueFactory queues(setUtilityPriority);
    const auto sampler = SystemSampler::make(makeNativeMachine(), queues);
    for (std::size_t i = 0; i < answers.size(); ++i)
        askForEver(sampler, i);
    waitForMoreAnswers();
    return endOfMain();
}
