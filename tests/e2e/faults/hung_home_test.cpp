#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>

#include <QDir>
#include <QElapsedTimer>

#include <algorithm>

#include "support/served_folder.h"

#include "e2e/faults/assisted_fault_scene.h"

/// The user's home is on a disk that takes questions and never answers: libraries beneath the
/// toolkit would look there for fonts, pointers and composed characters before the first frame.
namespace vantor::hung_home_test {
namespace {

constexpr int endPatience = 3000;  // milliseconds

class HungHome : public AssistedFaultScene {
  protected:
    void SetUp() override {
        AssistedFaultScene::SetUp();
        // Nobody else is to meet the folder.
        if (::unshare(CLONE_NEWNS) != 0 ||
            ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
            GTEST_SKIP() << "nothing can be mounted here";
        home_ = desktop_.path(QStringLiteral("home"));
        ASSERT_TRUE(QDir().mkpath(home_));
        served_.emplace(home_.toStdString(), "fuse.hung");
        if (!served_->isMounted() || !eventually([this] { return served_->hasGreeted(); }))
            GTEST_SKIP() << "no folder can be served here";
        served_->setManner(ServedFolder::Manner::keepsQuestions);
    }
    void TearDown() override {
        if (served_) served_->shutDown();  // first: the kernel keeps who waits for it
        AssistedFaultScene::TearDown();
    }

    double startThere() {
        return start({QStringLiteral("env"), QStringLiteral("-u"),
                      QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("HOME=") + home_});
    }

    bool hasRow(const char* name) {
        const auto elements = look();
        return std::ranges::any_of(elements, [&](const AccessibleElement& element) {
            return element.name.startsWith(QLatin1StringView(name));
        });
    }

    QString home_;
    std::optional<ServedFolder> served_;
};

TEST_F(HungHome, IsNotWaitedForByTheWindowNorByTheFirstKeys) {
    const double startTime = startThere();
    waitForKeyboard();
    watch();
    ASSERT_FALSE(HasFatalFailure());
    desktop_.key(QStringLiteral("ctrl+f"));
    desktop_.type(QStringLiteral("vantor"));
    EXPECT_TRUE(eventually([this] { return hasRow("vantor, PID "); }, patience));
    const Silence silence = endWatch();
    expectShort(silence);
    expectPromptStart(startTime, silence);
    EXPECT_GT(served_->questions(), 0) << "it was not asked at all";
    report(QStringLiteral("home folder that hangs"),
           QStringLiteral("live within 2 s, stays quick: 100 ms"),
           QStringLiteral("live in %1 s, %2").arg(startTime / 1000, 0, 'f', 1).arg(silence.text()));
}

TEST_F(HungHome, DoesNotKeepTheWindowWhenTheProgramEnds) {
    startThere();
    program_->terminate();
    EXPECT_TRUE(eventually([this] { return program_->window().isEmpty(); }, endPatience));
    served_->shutDown();
    ASSERT_TRUE(program_->waitForEnd(patience));
    EXPECT_TRUE(program_->endedNormally());
    EXPECT_EQ(program_->exitStatus(), 0);
}

}  // namespace
}  // namespace vantor::hung_home_test
