#include "platform/simulated/fake_serial_queue.h"

#include <utility>

namespace vantor {

struct FakeSerialQueueFactory::Shared {
    std::vector<std::string> labels;
    std::map<std::string, std::deque<Task>, std::less<>> waiting;
};

class FakeSerialQueueFactory::Queue : public SerialQueue {
  public:
    Queue(std::shared_ptr<Shared> shared, std::string label)
        : shared_(std::move(shared)), label_(std::move(label)) {}
    void submit(Task task) override { shared_->waiting[label_].push_back(std::move(task)); }

  private:
    std::shared_ptr<Shared> shared_;
    std::string label_;
};

FakeSerialQueueFactory::FakeSerialQueueFactory() : shared_(std::make_shared<Shared>()) {}
FakeSerialQueueFactory::~FakeSerialQueueFactory() = default;

std::unique_ptr<SerialQueue> FakeSerialQueueFactory::makeQueue(std::string_view label) {
    shared_->labels.emplace_back(label);
    return std::make_unique<Queue>(shared_, std::string(label));
}

const std::vector<std::string>& FakeSerialQueueFactory::labels() const {
    return shared_->labels;
}

std::size_t FakeSerialQueueFactory::waiting(std::string_view label) const {
    const auto found = shared_->waiting.find(label);
    return found == shared_->waiting.end() ? 0 : found->second.size();
}

bool FakeSerialQueueFactory::runNext(std::string_view label) {
    const auto found = shared_->waiting.find(label);
    if (found == shared_->waiting.end() || found->second.empty()) return false;
    Task task = std::move(found->second.front());
    found->second.pop_front();
    task();
    return true;
}

std::size_t FakeSerialQueueFactory::runWaiting() {
    std::size_t ran = 0;
    for (std::size_t i = 0; i < shared_->labels.size(); ++i) {
        const std::string label = shared_->labels[i];
        for (std::size_t left = waiting(label); left > 0; --left) {
            runNext(label);
            ++ran;
        }
    }
    return ran;
}

}  // namespace vantor
