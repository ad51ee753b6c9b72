#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <future>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/storage/file_systems.h"

namespace vantor {

/// Asks file systems that may hang on threads of their own, all of a pass at the same time, and
/// others on the caller's.
///
/// One that does not answer in time keeps its last figures, which belong to one mount; it is not
/// asked again before it has answered, and its answer is used by the pass that finds it.
///
/// A thread that waits for an answer cannot be interrupted: it is left behind when this is
/// destroyed. It owns what it needs, takes no signals and has closed the program's files. When the
/// server has read the question, the kernel waits for the answer even at the program's end: a
/// process without files and windows stays until the server answers, dies or is unmounted by force.
class PatientFileSystems : public FileSystems {
  public:
    using Answer = std::future<std::optional<Space>>;
    using Time = std::chrono::steady_clock::time_point;

    /// Waits for the answer of a path, but not beyond that time. For tests.
    using Wait = std::function<void(const std::string& path, const Answer& answer, Time end)>;

    /// Long for a program that is well, which answers from memory; short for people who wait for
    /// the others.
    static constexpr std::chrono::milliseconds usualLimit{250};

    /// Questions that may be out at the same time: each has a thread.
    static constexpr int maxQuestions = 16;

    /// `fileSystems` is asked on any thread, on several at once. Their answers are waited for as
    /// long as `limit` from the beginning of a pass on.
    explicit PatientFileSystems(std::shared_ptr<FileSystems> fileSystems,
                                std::chrono::milliseconds limit = usualLimit,
                                Wait wait = waitUntil);

    /// Asks them; what is known of others that were here before is forgotten.
    void beginPass(const std::vector<Place>& mayHang) override;

    std::optional<Space> space(const std::string& path) override;

  private:
    struct Volume {
        std::string mount;
        std::optional<Space> lastSpace;
        Answer question;  // valid while it is out
        std::uint64_t askedInPass = 0;
        std::uint64_t seenInPass = 0;
    };

    static void waitUntil(const std::string& path, const Answer& answer, Time end);

    void takeAnswer(Volume& volume) const;
    void askOnce(const std::string& path, Volume& volume);
    Answer ask(const std::string& path) const;

    std::shared_ptr<FileSystems> fileSystems_;
    std::chrono::milliseconds limit_;
    Wait wait_;
    std::shared_ptr<std::atomic<int>> questionsOut_ = std::make_shared<std::atomic<int>>(0);
    std::map<std::string, Volume> volumes_;  // by path
    std::uint64_t pass_ = 0;
    Time passEnd_;
};

}  // namespace vantor
