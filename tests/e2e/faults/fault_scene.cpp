#include "e2e/faults/fault_scene.h"

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace vantor {

double FaultScene::Silence::allowed() const {
    return std::max(maxAllowed, 2 * still);
}

QString FaultScene::Silence::text() const {
    return QStringLiteral("longest silence %1 ms (a still window's: %2 ms)")
        .arg(program, 0, 'f', 0)
        .arg(still, 0, 'f', 0);
}

void FaultScene::SetUp() {
    ASSERT_TRUE(desktop_.isUp()) << "the virtual desktop did not start";
    still_.setProcessEnvironment(desktop_.environment());
    still_.start(QStringLiteral(VANTOR_STILL_WINDOW), QStringList());
    ASSERT_TRUE(eventually([this] { return desktop_.windowsTitled(QStringLiteral("Still")) == 1; },
                           patience));
}

void FaultScene::TearDown() {
    meter_.reset();
    program_.reset();
    still_.kill();
    still_.waitForFinished(patience);
}

std::string FaultScene::display() const {
    return desktop_.environment().value(QStringLiteral("DISPLAY")).toStdString();
}

double FaultScene::start(const QStringList& through) {
    QElapsedTimer clock;
    clock.start();
    program_.emplace(desktop_, through);
    EXPECT_TRUE(program_->waitForLiveData());
    sinceShare_.invalidate();
    return static_cast<double>(clock.elapsed());
}

void FaultScene::waitForKeyboard() {
    ASSERT_TRUE(eventually([this] { return program_->isActive(); }, patience));
}

void FaultScene::watch() {
    const QString ids = desktop_.run(QStringLiteral("xdotool"),
                                     {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                      QStringLiteral("--name"), QStringLiteral("^Still$")});
    meter_.emplace(display(), std::vector<SilenceMeter::Subject>{
                                  {program_->window().toUInt(nullptr, 0), program_->processId()},
                                  {ids.section(u'\n', 0, 0).toUInt(), still_.processId()}});
    ASSERT_TRUE(meter_->isConnected());
    ASSERT_TRUE(eventually([this] {
        return std::ranges::all_of(meter_->answers(), [](int answers) { return answers > 0; });
    })) << "nobody answers";
}

FaultScene::Silence FaultScene::endWatch() {
    const std::vector<double> longest = meter_->longestSilences();
    const int answers = meter_->answers().front();
    meter_.reset();
    return {longest.at(0), longest.at(1), answers};
}

FaultScene::Silence FaultScene::watchFor(int seconds) {
    watch();
    if (HasFatalFailure()) return {};
    QElapsedTimer clock;
    clock.start();
    eventually([&] { return clock.hasExpired(seconds * 1000); }, seconds * 1000 + patience);
    return endWatch();
}

void FaultScene::expectShort(const Silence& silence) {
    EXPECT_LE(silence.program, silence.allowed()) << silence.text().toStdString();
    EXPECT_GT(silence.answers, 0);
}

void FaultScene::expectPromptStart(double startTime, const Silence& silence) {
    EXPECT_LT(startTime, std::max(maxStartTime, 4 * silence.allowed() * 10)) << "to start";
}

int FaultScene::passesOf(const char* provider) const {
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(program_->processId()));
    const auto read = [&](const QString& file) {
        QFile source(tasks.filePath(file));
        return source.open(QIODevice::ReadOnly) ? QString::fromUtf8(source.readAll()) : QString();
    };
    static const QRegularExpression waits(QStringLiteral("\nvoluntary_ctxt_switches:\\s+(\\d+)"));
    int passes = 0;
    for (const QString& thread : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (read(thread + QStringLiteral("/comm")).trimmed() != QLatin1StringView(provider))
            continue;
        // It waits once for each.
        passes += waits.match(read(thread + QStringLiteral("/status"))).captured(1).toInt();
    }
    return passes;
}

double FaultScene::processorShare() {
    QFile file(QStringLiteral("/proc/%1/stat").arg(program_->processId()));
    if (!file.open(QIODevice::ReadOnly)) return 0;
    const QStringList fields =
        QString::fromUtf8(file.readAll()).section(u')', -1).simplified().split(u' ');
    const long long ticks = fields.value(11).toLongLong() + fields.value(12).toLongLong();
    const double seconds =
        sinceShare_.isValid() ? static_cast<double>(sinceShare_.restart()) / 1000 : 0;
    if (seconds == 0) sinceShare_.start();
    const double used = static_cast<double>(ticks - std::exchange(ticksBefore_, ticks)) /
                        static_cast<double>(::sysconf(_SC_CLK_TCK));
    return seconds > 0 ? 100 * used / seconds : 0;
}

void FaultScene::report(const QString& fault, const QString& promised, const QString& measured) {
    std::printf("ROW\t%s\t%s\t%s\n", qUtf8Printable(fault), qUtf8Printable(promised),
                qUtf8Printable(measured));
    std::fflush(stdout);
}

int FaultScene::rounds(int standard) {
    const int wanted = qEnvironmentVariableIntValue("VANTOR_FAULT_ROUNDS");
    return wanted > 0 ? wanted : standard;
}

}  // namespace vantor
