#pragma once

#include <chrono>
#include <memory>

#include "app/save/patient_questions.h"
#include "platform/simulated/manual_main_loop.h"
#include "platform/simulated/manual_serial_queue.h"
#include "platform/simulated/wound_clock.h"

namespace vantor {

/// Questions whose answers come when the test says so.
struct ManualQuestions {
    static constexpr auto label = "com.kestrone.Vantor.save";

    /// Runs the oldest question that nobody has answered, and tells of its answer.
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

    std::shared_ptr<WoundClock> clock = std::make_shared<WoundClock>();
    std::shared_ptr<ManualMainLoop> loop = std::make_shared<ManualMainLoop>(clock);
    std::shared_ptr<ManualSerialQueueFactory> queues = std::make_shared<ManualSerialQueueFactory>();
    std::shared_ptr<PatientQuestions> questions = std::make_shared<PatientQuestions>(queues, loop);
};

}  // namespace vantor
