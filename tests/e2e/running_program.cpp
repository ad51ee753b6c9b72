#include "e2e/running_program.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <iostream>

#include "ui/theme.h"

namespace vantor {

namespace {

/// Each thread's name, state and the place in the kernel where it waits.
QString threadsOf(qint64 process) {
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(process));
    QString text;
    for (const QString& thread : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        text += u' ';
        for (const char* file : {"/comm", "/wchan", "/syscall"}) {
            QFile source(tasks.filePath(thread) + QLatin1StringView(file));
            if (source.open(QIODevice::ReadOnly))
                text += u' ' + QString::fromUtf8(source.readAll()).trimmed();
        }
        text += u'\n';
    }
    return text;
}

}  // namespace

RunningProgram::RunningProgram(Desktop& desktop, QStringList through) : desktop_(desktop) {
    process_.setProcessEnvironment(desktop.environment());
    process_.setProcessChannelMode(QProcess::ForwardedChannels);
    through.append(QStringLiteral(VANTOR_PROGRAM));
    const QString first = through.takeFirst();
    process_.start(first, through);
    process_.waitForStarted(toolPatience);
}

QStringList RunningProgram::instead(const QString& file) {
    return {QStringLiteral("sh"), QStringLiteral("-c"), QStringLiteral("exec '%1'").arg(file)};
}

RunningProgram::~RunningProgram() {
    if (!isRunning()) return;
    process_.kill();
    process_.waitForFinished(3000);
}

bool RunningProgram::waitForEnd(int milliseconds) {
    return process_.waitForFinished(milliseconds) || !isRunning();
}

QString RunningProgram::window() const {
    const QString list = desktop_.run(
        QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("_NET_CLIENT_LIST")});
    auto ids = QRegularExpression(QStringLiteral("0x[0-9a-f]+")).globalMatch(list);
    while (ids.hasNext()) {
        const QString id = ids.next().captured();
        const QString name = desktop_.run(QStringLiteral("xprop"),
                                          {QStringLiteral("-id"), id, QStringLiteral("WM_CLASS")});
        if (name.contains(QStringLiteral("\"vantor\""))) return id;
    }
    return {};
}

QRect RunningProgram::windowArea() const {
    const QString text =
        desktop_.run(QStringLiteral("xwininfo"), {QStringLiteral("-id"), window()});
    const auto number = [&](const QString& name) {
        const auto match = QRegularExpression(name + QStringLiteral(":\\s+(-?\\d+)")).match(text);
        return match.captured(1).toInt();
    };
    return {number(QStringLiteral("Absolute upper-left X")),
            number(QStringLiteral("Absolute upper-left Y")), number(QStringLiteral("Width")),
            number(QStringLiteral("Height"))};
}

bool RunningProgram::isActive() const {
    const QString active = desktop_.run(
        QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("_NET_ACTIVE_WINDOW")});
    const QString id = window();
    return !id.isEmpty() && active.contains(id);
}

bool RunningProgram::hasOpenMenu() const {
    const QString list = desktop_.run(QStringLiteral("xdotool"),
                                      {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                       QStringLiteral("--class"), QStringLiteral("vantor")});
    return list.count(u'\n') >= 2;
}

QString RunningProgram::condition() {
    return QStringLiteral("program %1\n%2%3")
        .arg(stateOf(process_), threadsOf(process_.processId()), desktop_.condition());
}

bool RunningProgram::waitForLiveData() {
    const bool hasDrawn = eventually(
        [this] {
            const QString id = window();
            if (id.isEmpty()) return false;
            const QString name =
                desktop_.run(QStringLiteral("xprop"),
                             {QStringLiteral("-id"), id, QStringLiteral("_NET_WM_ICON_NAME")});
            return name.contains(QStringLiteral("= \"Vantor\"\n"));
        },
        30'000);
    if (!hasDrawn) std::cerr << condition().toStdString() << std::flush;
    return hasDrawn;
}

QRect RunningProgram::focusedButton() const {
    const QImage picture = desktop_.picture();
    const QRect area = windowArea();
    // Of the focus ring's colour; a chart or a dot of it would be lower in the window.
    const QRect header(area.topLeft(), QSize(area.width(), std::min(area.height(), 170)));
    QRect found;
    for (int y = header.top(); y <= header.bottom(); ++y) {
        for (int x = header.left(); x <= header.right(); ++x) {
            if (picture.rect().contains(x, y) && isNear(picture.pixel(x, y), VantorTheme::blue())) {
                found = found.united(QRect(x, y, 1, 1));
            }
        }
    }
    return found;
}

}  // namespace vantor
