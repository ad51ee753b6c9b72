#pragma once

#include <chrono>
#include <memory>

#include "app/files/patient_questions.h"
#include "platform/simulated/fake_clock.h"
#include "platform/simulated/fake_main_loop.h"
#include "platform/simulated/fake_serial_queue.h"

namespace vantor {

/// Questions whose answers come when the test says so.
struct FakeQuestions {
    static constexpr auto label = "com.kestrone.Vantor.save";

    /// Runs the oldest unanswered question, and delivers its answer.
    bool answerNext() {
        const bool wasThere = queues->runNext(label);
        loop->runPosted();
        return wasThere;
    }
    void answerAll() {
        while (answerNext()) {
        }
    }
    /// Nothing has answered, and the patience is over.
    void passPatience() {
        clock->wind(PatientQuestions::usualPatience);
        while (loop->runDueTimer()) {
        }
    }
    std::size_t waiting() const { return queues->waiting(label); }

    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<FakeMainLoop> loop = std::make_shared<FakeMainLoop>(clock);
    std::shared_ptr<FakeSerialQueueFactory> queues = std::make_shared<FakeSerialQueueFactory>();
    std::shared_ptr<PatientQuestions> questions = std::make_shared<PatientQuestions>(queues, loop);
};

}  // namespace vantor
