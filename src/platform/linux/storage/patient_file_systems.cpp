#include "platform/linux/storage/patient_file_systems.h"

#include <pthread.h>
#include <unistd.h>

#include <csignal>
#include <system_error>
#include <thread>
#include <utility>

namespace vantor {

namespace {

using namespace std::chrono_literals;

/// No signal is meant for threads that are started while this is there.
class AllSignalsBlocked {
  public:
    AllSignalsBlocked() {
        sigset_t all;
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_SETMASK, &all, &before_);
    }
    AllSignalsBlocked(const AllSignalsBlocked&) = delete;
    AllSignalsBlocked& operator=(const AllSignalsBlocked&) = delete;
    ~AllSignalsBlocked() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

  private:
    sigset_t before_;
};

/// A thread within a question that its server has read outlives the program's end: the kernel waits
/// for the answer. It must not keep the program's files, connections and pipes open as well.
void letGoOfOpenFiles() {
#ifdef CLOSE_RANGE_UNSHARE
    ::close_range(0, ~0U, CLOSE_RANGE_UNSHARE);
#endif
}

}  // namespace

PatientFileSystems::PatientFileSystems(std::shared_ptr<FileSystems> fileSystems,
                                       std::chrono::milliseconds limit, Wait wait)
    : fileSystems_(std::move(fileSystems)), limit_(limit), wait_(std::move(wait)) {}

void PatientFileSystems::waitUntil(const std::string&, const Answer& answer, Time end) {
    static_cast<void>(answer.wait_until(end));
}

void PatientFileSystems::beginPass(const std::vector<Place>& mayHang) {
    ++pass_;
    passEnd_ = std::chrono::steady_clock::now() + limit_;
    for (const Place& place : mayHang) {
        Volume& volume = volumes_[place.path];
        if (volume.mount != place.mount) {
            volume = Volume();
            volume.mount = place.mount;
        }
        volume.seenInPass = pass_;
        askOnce(place.path, volume);
    }
    std::erase_if(volumes_, [&](const auto& each) { return each.second.seenInPass != pass_; });
}

std::optional<FileSystems::Space> PatientFileSystems::space(const std::string& path) {
    const auto found = volumes_.find(path);
    if (found == volumes_.end()) return fileSystems_->space(path);
    Volume& volume = found->second;
    askOnce(path, volume);  // too many questions may have been out
    // What did not answer the pass before is not waited for again.
    if (volume.question.valid() && volume.askedInPass == pass_)
        wait_(path, volume.question, passEnd_);
    takeAnswer(volume);
    return volume.lastSpace;
}

void PatientFileSystems::takeAnswer(Volume& volume) const {
    if (volume.question.valid() && volume.question.wait_for(0s) == std::future_status::ready)
        volume.lastSpace = volume.question.get();
}

/// In a pass.
void PatientFileSystems::askOnce(const std::string& path, Volume& volume) {
    takeAnswer(volume);
    if (volume.question.valid() || volume.askedInPass == pass_) return;
    volume.question = ask(path);
    if (volume.question.valid()) volume.askedInPass = pass_;
}

/// Not valid when there are too many questions or threads.
PatientFileSystems::Answer PatientFileSystems::ask(const std::string& path) const {
    if (*questionsOut_ >= maxQuestions) return {};
    std::promise<std::optional<Space>> promise;
    Answer answer = promise.get_future();
    const AllSignalsBlocked here;
    ++*questionsOut_;
    try {
        std::thread([fileSystems = fileSystems_, path, promise = std::move(promise),
                     questionsOut = questionsOut_]() mutable {
            ::pthread_setname_np(::pthread_self(), "volume");
            letGoOfOpenFiles();
            std::optional<Space> space = fileSystems->space(path);
            --*questionsOut;  // first: who sees the answer may ask another question
            promise.set_value(std::move(space));
        }).detach();
    } catch (const std::system_error&) {
        --*questionsOut_;
        return {};
    }
    return answer;
}

}  // namespace vantor
