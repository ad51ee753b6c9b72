#include "platform/linux/storage/patient_file_systems.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>

#include <chrono>
#include <csignal>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/file_descriptor.h"
#include "platform/linux/storage/hanging_volume_world.h"
#include "support/patient_threads.h"

/// The threads on which volumes are asked.
namespace vantor::patient_file_systems_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::Pair;
using testing::SizeIs;

class PatientFileSystemsTest : public HangingVolumeWorld {};

class ManyVolumes : public HangingVolumeWorld {
  protected:
    static constexpr int count = 20;

    ManyVolumes() {
        std::string table = root;
        for (int i = 0; i < count; ++i) {
            const std::string n = std::to_string(i);
            table += std::to_string(10 + i) + " 1 0:" + n + " / " + path(i) +
                     " rw - fuse.mergerfs " + n + " rw\n";
            say(path(i), 10);
        }
        mount(table);
    }

    static std::string path(int i) { return "/pool/" + std::to_string(i); }
    int questions() {
        int sum = 0;
        for (int i = 0; i < count; ++i)
            sum += fileSystems->questions(path(i));
        return sum;
    }
};

// Each of them answers only when it is waited for: some have to be asked later in the pass.
TEST_F(ManyVolumes, ThatAnswerAreAllListed) {
    PatientFileSystems patient(
        fileSystems, 0ms,
        [this](const std::string& which, const PatientFileSystems::Answer& answer,
               PatientFileSystems::Time) {
            fileSystems->goOn(which);
            static_cast<void>(answer.wait_for(20s));
        });
    std::vector<FileSystems::Place> places;
    for (int i = 0; i < count; ++i) {
        places.push_back({path(i), "1"});
        fileSystems->hang(path(i));
    }
    patient.beginPass(places);
    for (int i = 0; i < count; ++i)
        EXPECT_TRUE(patient.space(path(i))) << i;
    EXPECT_EQ(questions(), count);
}

TEST_F(ManyVolumes, ThatHangGetNoMoreThreadsThanThereMayBe) {
    for (int i = 0; i < count; ++i)
        fileSystems->hang(path(i));
    for (int pass = 0; pass < 3; ++pass)
        EXPECT_THAT(list(), ElementsAre(Pair("/", 600)));
    for (int i = 0; i < PatientFileSystems::maxQuestions; ++i)
        fileSystems->waitUntilAsked(path(i), 1);
    EXPECT_EQ(questions(), PatientFileSystems::maxQuestions);
    for (int i = 0; i < count; ++i)
        fileSystems->goOn(path(i));
    Available all{{"/", 600}};
    for (int i = 0; i < count; ++i)
        all[path(i)] = 10;
    EXPECT_TRUE(listBecomes(all));
}

// Those of mounts that are gone count as well.
TEST_F(ManyVolumes, ThatHungBeforeTheyWereUnmountedStillHaveTheirThreads) {
    for (int i = 0; i < count; ++i)
        fileSystems->hang(path(i));
    list();
    mount(root);
    list();
    mount(root + stick);
    EXPECT_THAT(list(), ElementsAre(Pair("/", 600)));
    EXPECT_EQ(fileSystems->questions("/media/stick"), 0);
    for (int i = 0; i < count; ++i)
        fileSystems->goOn(path(i));
    EXPECT_TRUE(listBecomes({{"/", 600}, {"/media/stick", 50}}));
}

TEST_F(PatientFileSystemsTest, HasAThreadOfItsOwnAndDisksHaveNone) {
    std::map<std::string, bool> isOnThisThread;
    std::mutex mutex;
    const auto here = std::this_thread::get_id();
    fileSystems->onSpace = [&](const std::string& path) {
        const std::lock_guard lock(mutex);
        isOnThisThread[path] = std::this_thread::get_id() == here;
    };
    mount(root + stick + pool);
    list();
    EXPECT_THAT(isOnThisThread, ElementsAre(Pair("/", true), Pair("/media/stick", false),
                                            Pair("/srv/pool", false)));
}

TEST_F(PatientFileSystemsTest, KeepsNeitherSignalsNorOpenFilesOfTheProgram) {
    const FileDescriptor file{::open("/dev/null", O_RDONLY | O_CLOEXEC)};
    bool isTerminationBlocked = false;
    bool isFileOpen = true;
    fileSystems->onSpace = [&](const std::string& path) {
        if (path == "/") return;
        sigset_t blocked;
        ::pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
        isTerminationBlocked = ::sigismember(&blocked, SIGTERM) == 1;
        isFileOpen = ::fcntl(file.get(), F_GETFD) != -1;
    };
    mount(root + stick);
    list();
    EXPECT_TRUE(isTerminationBlocked);
    EXPECT_FALSE(isFileOpen);
    EXPECT_NE(::fcntl(file.get(), F_GETFD), -1);
    sigset_t blocked;
    ::pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
    EXPECT_EQ(::sigismember(&blocked, SIGTERM), 0);
}

TEST_F(PatientFileSystemsTest, HoldsThePassUpForNoLongerThanTheLimit) {
    PatientThreads threads;
    PatientFileSystems patient(fileSystems, 20ms);
    fileSystems->hang("/media/stick");
    fileSystems->hang("/srv/pool");
    const auto areKnown = threads.ask([&] {
        patient.beginPass({{"/media/stick", "2"}, {"/srv/pool", "3"}});
        return patient.space("/media/stick") || patient.space("/srv/pool");
    });
    fileSystems->goOnForGood();
    EXPECT_EQ(areKnown, false);
}

TEST_F(PatientFileSystemsTest, AsksAllOfAPassAtTheSameTime) {
    PatientFileSystems patient(fileSystems, 0ms);
    fileSystems->hang("/media/stick");
    fileSystems->hang("/srv/pool");
    patient.beginPass({{"/media/stick", "2"}, {"/srv/pool", "3"}});
    fileSystems->waitUntilAsked("/media/stick", 1);
    fileSystems->waitUntilAsked("/srv/pool", 1);
}

TEST_F(PatientFileSystemsTest, AnswersWhenNobodyIsThereAnyMore) {
    const auto owners = fileSystems.use_count();
    auto patient = std::make_unique<PatientFileSystems>(fileSystems, 0ms);
    fileSystems->hang("/media/stick");
    patient->beginPass({{"/media/stick", "2"}});
    fileSystems->waitUntilAsked("/media/stick", 1);
    patient.reset();
    EXPECT_EQ(fileSystems.use_count(), owners + 1);
    fileSystems->goOn("/media/stick");
    EXPECT_TRUE(becomesTrue([&] { return fileSystems.use_count() == owners; }));
}

}  // namespace
}  // namespace vantor::patient_file_systems_test
