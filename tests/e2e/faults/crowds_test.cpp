#include <gtest/gtest.h>

#include <QDir>
#include <QStandardPaths>

#include <algorithm>

#include "e2e/faults/assisted_fault_scene.h"

/// More of everything than any machine has: the program starts, tells of all of them and stays
/// quick.
namespace vantor::crowds_test {
namespace {

constexpr int processes = 10'000;
constexpr int volumes = 5000;
constexpr int links = 2000;
constexpr int seconds = 20;

class Crowds : public AssistedFaultScene {
  protected:
    /// Whether a program can be run in that namespace: `entrance` enters it and becomes the program
    /// that is named last.
    static bool isAllowed(const QStringList& entrance) {
        return QProcess::execute(entrance.first(), entrance.mid(1) << QStringLiteral("true")) == 0;
    }

    /// What the element of that name says of itself.
    QString description(const char* name) {
        for (const AccessibleElement& element : look()) {
            if (element.name == QLatin1StringView(name) && !element.description.isEmpty())
                return element.description;
        }
        return {};
    }

    void expectQuick(const QString& fault, double startTime) {
        processorShare();
        const Silence silence = watchFor(seconds);
        ASSERT_FALSE(HasFatalFailure());
        const double share = processorShare();
        expectShort(silence);
        expectPromptStart(startTime, silence);
        report(fault, QStringLiteral("starts, shows them, stays quick: 100 ms"),
               QStringLiteral("live in %1 s, %2, %3 % of a processor")
                   .arg(startTime / 1000, 0, 'f', 1)
                   .arg(silence.text())
                   .arg(share, 0, 'f', 1));
    }
};

TEST_F(Crowds, TenThousandProcessesAreCountedWithoutASilence) {
    QProcess crowd;
    crowd.start(QStringLiteral(VANTOR_PROCESS_CROWD), {QString::number(processes)});
    ASSERT_TRUE(crowd.waitForReadyRead(patience));
    const QByteArray said = crowd.readLine().trimmed();
    if (said != "ready") {
        crowd.closeWriteChannel();
        crowd.waitForFinished(patience);
        GTEST_SKIP() << "so many processes are not allowed here";
    }
    const double startTime = start();
    waitForKeyboard();
    desktop_.key(QStringLiteral("ctrl+f"));
    desktop_.type(QStringLiteral("process_crowd"));
    EXPECT_TRUE(eventually(
        [this] {
            const auto elements = look();
            return std::ranges::count_if(elements, [](const AccessibleElement& element) {
                       return element.name.startsWith(QStringLiteral("process_crowd, PID "));
                   }) > 10;
        },
        patience))
        << "they are not among the rows";
    desktop_.key(QStringLiteral("Escape"));
    expectQuick(QStringLiteral("10,000 processes"), startTime);
    crowd.closeWriteChannel();
    ASSERT_TRUE(crowd.waitForFinished(patience));
}

TEST_F(Crowds, FiveThousandMountsAreReadWithoutASilence) {
    const QString folder = desktop_.path(QStringLiteral("volumes"));
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString crowd = QStringLiteral(VANTOR_MOUNT_CROWD);
    if (!isAllowed({crowd, QStringLiteral("1"), folder}))
        GTEST_SKIP() << "nothing can be mounted here";
    const double startTime = start({crowd, QString::number(volumes), folder});
    expectQuick(QStringLiteral("5,000 mounts"), startTime);
    QFile table(QStringLiteral("/proc/%1/mounts").arg(program_->processId()));
    ASSERT_TRUE(table.open(QIODevice::ReadOnly));
    EXPECT_GE(table.readAll().count("/volumes/volume"), volumes) << "there were too few";
    EXPECT_FALSE(description("Storage").isEmpty());
}

TEST_F(Crowds, TwoThousandLinksAreListedWithoutASilence) {
    const QString script = QStringLiteral(
        "i=0; while [ $i -lt %1 ]; do echo link add crowd$i type veth peer name peer$i; "
        "echo link set crowd$i up; echo link set peer$i up; "
        "i=$((i+1)); done | ip -batch - || exit 77; exec \"$@\"");
    const auto networkNamespace = [&](int pairs) {
        return QStringList{QStringLiteral("unshare"), QStringLiteral("--net"),
                           QStringLiteral("sh"),      QStringLiteral("-c"),
                           script.arg(pairs),         QStringLiteral("sh")};
    };
    if (!isAllowed(networkNamespace(1))) GTEST_SKIP() << "no links can be made here";
    // Making them takes seconds, which are no start of the program.
    QElapsedTimer clock;
    clock.start();
    ASSERT_TRUE(isAllowed(networkNamespace(links / 2)));
    const double making = static_cast<double>(clock.elapsed());
    const double startTime = std::max(0.0, start(networkNamespace(links / 2)) - making);
    expectQuick(QStringLiteral("2,000 links"), startTime);
    EXPECT_TRUE(eventually(
        [this] { return description("Interfaces").startsWith(QStringLiteral("2")); }, patience))
        << description("Interfaces").left(80).toStdString();
}

}  // namespace
}  // namespace vantor::crowds_test
