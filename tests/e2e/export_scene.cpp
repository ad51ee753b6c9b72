#include "e2e/export_scene.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <algorithm>
#include <utility>

namespace vantor {

const QString ExportScene::dialogTitle = QStringLiteral("Export System Snapshot");
const QString ExportScene::alertTitle = QStringLiteral("Snapshot Export Failed");

void ExportScene::SetUp() {
    ASSERT_TRUE(desktop_.isUp()) << "the virtual desktop did not start";
    const QString bus = desktop_.startSessionBus();
    ASSERT_FALSE(bus.isEmpty()) << "no session bus";
    client_.emplace(bus);
    ASSERT_TRUE(client_->isConnected()) << "no accessibility bus";
    ASSERT_TRUE(QDir().mkpath(desktop_.path(QStringLiteral("out"))));
}

void ExportScene::start(const QStringList& through) {
    program_.emplace(desktop_, through);
    ASSERT_TRUE(program_->waitForLiveData());
    ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
    // Processes are read a little later than what is read fast.
    ASSERT_TRUE(eventually([this] {
        return std::ranges::any_of(client_->walk(QStringLiteral("vantor")), [](const auto& each) {
            return each.name.contains(QStringLiteral(", PID "));
        });
    }));
}

QPoint ExportScene::tabTo(int stops) {
    const QRect before = program_->focusedButton();
    for (int i = 0; i < stops; ++i)
        desktop_.key(QStringLiteral("Tab"));
    // Until it has arrived: the ring is seen on its way, too.
    QRect now;
    EXPECT_TRUE(eventually([&] {
        const QRect last = std::exchange(now, program_->focusedButton());
        return !now.isEmpty() && now != before && now == last;
    }));
    return now.center();
}

void ExportScene::openDialog() {
    desktop_.key(QStringLiteral("space"));
    ASSERT_TRUE(eventually([this] { return desktop_.activeTitle() == dialogTitle; }))
        << desktop_.activeTitle().toStdString();
}

void ExportScene::confirm(const QString& file) {
    desktop_.type(file);
    desktop_.key(QStringLiteral("Return"));
    ASSERT_TRUE(eventually([this] { return desktop_.windowsTitled(dialogTitle) == 0; }));
}

void ExportScene::confirmReplacing(const QString& file) {
    desktop_.type(file);
    desktop_.key(QStringLiteral("Return"));
    const auto question = QStringLiteral("Replace File");
    ASSERT_TRUE(eventually([&] { return desktop_.activeTitle() == question; }))
        << "nothing is asked";
    desktop_.key(QStringLiteral("alt+r"));
    ASSERT_TRUE(eventually([this] { return desktop_.windowsTitled(dialogTitle) == 0; }));
}

QString ExportScene::alertText() {
    QString text;
    eventually([&] {
        if (desktop_.activeTitle() != alertTitle) return false;
        for (const AccessibleElement& element : client_->walk(QStringLiteral("vantor"))) {
            if (element.name.contains(QStringLiteral("could not be saved"))) text = element.name;
        }
        return !text.isEmpty();
    });
    return text;
}

void ExportScene::dismissAlert(const QString& key) {
    desktop_.key(key);
    ASSERT_TRUE(eventually([this] { return desktop_.windowsTitled(alertTitle) == 0; }));
    ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
}

QString ExportScene::complaintsAbout(const QString& document) const {
    QProcess python;
    python.setProcessChannelMode(QProcess::MergedChannels);
    python.start(QStringLiteral(VANTOR_PYTHON),
                 {QStringLiteral(VANTOR_SOURCE_DIR "/tests/e2e/check_document.py"),
                  QStringLiteral(VANTOR_SOURCE_DIR "/docs/snapshot.schema.json"), document,
                  QString::number(program_->processId())});
    if (!python.waitForFinished(30'000)) return QStringLiteral("python3 did not answer");
    const QString said = QString::fromUtf8(python.readAll());
    return python.exitCode() == 0 ? QString() : QStringLiteral("complaints:\n") + said;
}

QByteArray ExportScene::read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ExportScene::write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

}  // namespace vantor
