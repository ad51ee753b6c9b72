#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <string>
#include <vector>

#include "e2e/export_scene.h"

/// The program as the kernel confines it. The strict one is ended at the first call it is denied;
/// so its being there, and its orderly end, prove that it made none.
namespace vantor::confinement_test {
namespace {

QStringList strictly(const QStringList& environment = {}) {
    return QStringList{QStringLiteral("env")} + environment +
           RunningProgram::instead(QStringLiteral(VANTOR_STRICT_PROGRAM));
}

class Confined : public ExportScene {
  protected:
    void expectOrderlyEnd() {
        ASSERT_TRUE(program_->isRunning());
        program_->terminate();
        ASSERT_TRUE(program_->waitForEnd(20'000));
        EXPECT_TRUE(program_->endedNormally());
        EXPECT_EQ(program_->exitStatus(), 0);
    }
    void expectWindow(const char* key, const char* title) {
        desktop_.key(QString::fromLatin1(key));
        EXPECT_TRUE(eventually([&] { return desktop_.activeTitle() == QLatin1StringView(title); }))
            << title;
        desktop_.key(QStringLiteral("Escape"));
        EXPECT_TRUE(
            eventually([&] { return desktop_.windowsTitled(QString::fromLatin1(title)) == 0; }));
    }
};

TEST_F(Confined, TheKernelSaysSoOfEachThread) {
    start();
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(program_->processId()));
    const QStringList threads = tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    EXPECT_GT(threads.size(), 5);
    for (const QString& thread : threads) {
        QFile file(tasks.filePath(thread + QStringLiteral("/status")));
        if (!file.open(QIODevice::ReadOnly)) continue;  // it has ended meanwhile
        const QByteArray status = file.readAll();
        EXPECT_TRUE(status.contains("\nNoNewPrivs:\t1\n")) << thread.toStdString();
        EXPECT_TRUE(status.contains("\nSeccomp:\t2\n")) << thread.toStdString();
        EXPECT_TRUE(status.contains("\nSeccomp_filters:\t2\n")) << status.toStdString();
    }
}

TEST_F(Confined, NothingOfTheDisplaysTrayNorOfSlowReadingsIsDenied) {
    ASSERT_TRUE(desktop_.startTray());
    start(strictly());
    expectWindow("F1", "Vantor Help");
    desktop_.key(QStringLiteral("ctrl+r"));
    // Every slow reading comes round at least once.
    EXPECT_FALSE(eventually([&] { return !program_->isRunning(); }, 20'000)) << "it was ended";
    expectOrderlyEnd();
}

TEST_F(Confined, AboutSaysSo) {
    start();
    desktop_.key(QStringLiteral("alt+h"));
    desktop_.key(QStringLiteral("Up"));  // the last entry
    desktop_.key(QStringLiteral("Return"));
    EXPECT_TRUE(eventually([&] {
        for (const AccessibleElement& element : client_->walk(QStringLiteral("vantor"))) {
            if (element.name.contains(QStringLiteral("Confined by the kernel: yes"))) return true;
        }
        return false;
    }));
}

/// Environments in which the toolkit's libraries would start programs or go to a network.
struct Surroundings {
    const char* name;
    std::vector<const char*> variables;
};

class ConfinedIn : public testing::TestWithParam<Surroundings> {};

TEST_P(ConfinedIn, ItStartsNoProgramAndOpensNoInternetSocket) {
    Desktop desktop({1366, 900});
    ASSERT_TRUE(desktop.isUp());
    QStringList environment;
    for (const char* const variable : GetParam().variables)
        environment += QString::fromLatin1(variable);
    RunningProgram program(desktop, strictly(environment));
    ASSERT_TRUE(program.waitForLiveData());
    program.terminate();
    ASSERT_TRUE(program.waitForEnd(20'000));
    EXPECT_TRUE(program.endedNormally());
    EXPECT_EQ(program.exitStatus(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Surroundings, ConfinedIn,
    testing::Values(
        Surroundings{"NoBus", {"-u", "DBUS_SESSION_BUS_ADDRESS", "-u", "XDG_RUNTIME_DIR"}},
        Surroundings{"ABusThatIsAProgram",
                     {"DBUS_SESSION_BUS_ADDRESS=unixexec:path=/usr/bin/touch,argv1=/nowhere/x"}},
        Surroundings{"ABusOfANetwork", {"DBUS_SESSION_BUS_ADDRESS=tcp:host=127.0.0.1,port=45454"}},
        Surroundings{"AnAccessibilityBusOfANetwork",
                     {"AT_SPI_BUS_ADDRESS=tcp:host=127.0.0.1,port=45455",
                      "QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1"}},
        Surroundings{"ASessionManagerOfANetwork", {"SESSION_MANAGER=tcp/127.0.0.1:45456"}},
        Surroundings{"ASessionManagerThatIsGone",
                     {"SESSION_MANAGER=local/elsewhere:@/tmp/.ICE-unix/nobody"}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(ConfinedWithoutItsDisplay, ItSaysSoAndEnds) {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":9378"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(VANTOR_STRICT_PROGRAM), QStringList());
    ASSERT_TRUE(program.waitForFinished(toolPatience));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_EQ(program.readAllStandardError().toStdString(),
              "vantor: no display could be opened; please start it from a desktop session.\n");
}

/// Runs the strict program there for some seconds, and has it end orderly.
void expectToRunIn(const QProcessEnvironment& environment) {
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QStringLiteral(VANTOR_STRICT_PROGRAM), QStringList());
    ASSERT_TRUE(program.waitForStarted(toolPatience));
    EXPECT_FALSE(program.waitForFinished(15'000)) << "it was ended: " << program.exitCode();
    program.terminate();
    EXPECT_TRUE(program.waitForFinished(5000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
}

QProcessEnvironment environmentAt(const QTemporaryDir& home) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QString::fromLatin1(name));
    for (const char* const name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"})
        environment.insert(QString::fromLatin1(name), home.path());
    return environment;
}

void end(QProcess& process) {
    process.terminate();
    if (!process.waitForFinished(5000)) process.kill();
    process.waitForFinished(5000);
}

TEST(ConfinedOnADisplayOverTcp, NothingThatItNeedsIsDenied) {
    const QTemporaryDir home;
    QProcess server;
    server.setStandardErrorFile(QProcess::nullDevice());
    server.start(QStringLiteral("Xvfb"),
                 {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-listen"),
                  QStringLiteral("tcp"), QStringLiteral("-ac"), QStringLiteral("-noreset")});
    ASSERT_TRUE(server.waitForReadyRead(toolPatience));
    const QString number = QString::fromLatin1(server.readLine()).trimmed();
    QProcessEnvironment environment = environmentAt(home);
    environment.insert(QStringLiteral("DISPLAY"), QStringLiteral("127.0.0.1:") + number);
    expectToRunIn(environment);
    end(server);
}

}  // namespace
}  // namespace vantor::confinement_test
