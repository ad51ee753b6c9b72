#include "e2e/desktop.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <cmath>

#include "support/session_bus_config.h"

namespace vantor {

bool isNear(QRgb pixel, const QColor& color) {
    constexpr int tolerance = 14;
    return std::abs(qRed(pixel) - color.red()) <= tolerance &&
           std::abs(qGreen(pixel) - color.green()) <= tolerance &&
           std::abs(qBlue(pixel) - color.blue()) <= tolerance;
}

QString stateOf(QProcess& process) {
    process.waitForFinished(0);  // takes notice of its end
    if (process.state() != QProcess::NotRunning) return QStringLiteral("runs");
    return QStringLiteral("%1 with %2")
        .arg(process.exitStatus() == QProcess::CrashExit ? QStringLiteral("crashed")
                                                         : QStringLiteral("ended"),
             QString::number(process.exitCode()));
}

bool eventually(const std::function<bool()>& isSo, int milliseconds) {
    QElapsedTimer clock;
    clock.start();
    while (!isSo()) {
        if (clock.elapsed() > milliseconds) return false;
        // What the test plays on a bus is asked, too.
        QCoreApplication::processEvents();
        QThread::msleep(25);
    }
    return true;
}

int countColor(const QImage& picture, const QRect& area, const QColor& color) {
    int count = 0;
    const QRect inside = area.intersected(picture.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            if (isNear(picture.pixel(x, y), color)) ++count;
        }
    }
    return count;
}

Desktop::Desktop(QSize screen) : environment_(QProcessEnvironment::systemEnvironment()) {
    const QString size = QStringLiteral("%1x%2x24").arg(screen.width()).arg(screen.height());
    // Without -noreset it resets when its last client leaves, and disconnects one that is just
    // connecting; without -r it repeats a key whose release comes late on a busy machine.
    server_.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"), size, QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                   QStringLiteral("-noreset"), QStringLiteral("-r")});
    if (!server_.waitForReadyRead(toolPatience)) return;
    const QString number = QString::fromLatin1(server_.readLine()).trimmed();
    environment_.insert(QStringLiteral("DISPLAY"), u':' + number);
    environment_.insert(QStringLiteral("HOME"), home_.path());
    environment_.insert(QStringLiteral("XDG_CONFIG_HOME"),
                        home_.filePath(QStringLiteral("config")));
    environment_.insert(QStringLiteral("XDG_RUNTIME_DIR"), home_.path());
    environment_.insert(QStringLiteral("FONTCONFIG_FILE"),
                        QStringLiteral(VANTOR_SOURCE_DIR "/scripts/virtual-display/fonts.conf"));
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LC_NUMERIC", "LC_TIME", "LANGUAGE"})
        environment_.remove(QLatin1StringView(name));
    setLanguage(QStringLiteral("C.UTF-8"));
    environment_.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment_.remove(QStringLiteral("QT_QPA_PLATFORM"));
    QDir().mkpath(home_.filePath(QStringLiteral("config/vantor")));
    // With the first key of the test's keyboard the server tells everybody that the keys have
    // changed, and a window manager that takes up its own anew misses those pressed meanwhile.
    key(QStringLiteral("shift"));
    windowManager_.setProcessEnvironment(environment_);
    windowManager_.setStandardErrorFile(QProcess::nullDevice());
    isUp_ = startWindowManager();
}

bool Desktop::startWindowManager() {
    // It announces itself long before it is ready, and never shows a window that asks in between;
    // what it starts itself, it starts when it is.
    const QString sign = home_.filePath(QStringLiteral("window-manager-is-ready"));
    windowManager_.start(QStringLiteral("openbox"),
                         {QStringLiteral("--startup"), QStringLiteral("touch '%1'").arg(sign)});
    return windowManager_.waitForStarted(toolPatience) &&
           eventually([&] { return QFile::exists(sign); });
}

QString Desktop::startSessionBus() {
    sessionBus_.setProcessEnvironment(environment_);
    sessionBus_.setStandardErrorFile(QProcess::nullDevice());
    sessionBus_.start(QStringLiteral("dbus-daemon"), sessionBusArguments(home_.path()));
    if (!sessionBus_.waitForReadyRead(toolPatience)) return {};
    const QString address = QString::fromLatin1(sessionBus_.readLine()).trimmed();
    environment_.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address);
    environment_.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
    return address;
}

bool Desktop::startTray() {
    tray_.setProcessEnvironment(environment_);
    tray_.setStandardErrorFile(QProcess::nullDevice());
    tray_.start(QStringLiteral("trayer"),
                {QStringLiteral("--edge"), QStringLiteral("top"), QStringLiteral("--align"),
                 QStringLiteral("right"), QStringLiteral("--widthtype"), QStringLiteral("request"),
                 QStringLiteral("--height"), QStringLiteral("28")});
    return tray_.waitForStarted(toolPatience);
}

void Desktop::stopTray() {
    tray_.kill();
    tray_.waitForFinished(toolPatience);
}

Desktop::~Desktop() {
    for (QProcess* process : {&tray_, &sessionBus_, &windowManager_, &server_}) {
        if (process->state() == QProcess::NotRunning) continue;
        process->terminate();
        if (!process->waitForFinished(3000)) process->kill();
        process->waitForFinished(3000);
    }
}

QString Desktop::settingsFile() const {
    return home_.filePath(QStringLiteral("config/vantor/settings.ini"));
}

QString Desktop::run(const QString& tool, const QStringList& arguments) const {
    QProcess process;
    process.setProcessEnvironment(environment_);
    process.start(tool, arguments);
    process.waitForFinished(toolPatience);
    return QString::fromUtf8(process.readAllStandardOutput());
}

QImage Desktop::picture() const {
    const QString file = home_.filePath(QStringLiteral("screen.png"));
    run(QStringLiteral("import"), {QStringLiteral("-window"), QStringLiteral("root"), file});
    return QImage(file);
}

void Desktop::key(const QString& name) const {
    run(QStringLiteral("xdotool"), {QStringLiteral("key"), name});
}

void Desktop::type(const QString& text) const {
    run(QStringLiteral("xdotool"),
        {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("5"), text});
}

void Desktop::clickAt(QPoint place, int times) const {
    run(QStringLiteral("xdotool"),
        {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()),
         QStringLiteral("click"), QStringLiteral("--repeat"), QString::number(times),
         QStringLiteral("--delay"), QStringLiteral("30"), QStringLiteral("1")});
}

int Desktop::windowsTitled(const QString& title) const {
    const QString list =
        run(QStringLiteral("xdotool"), {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                        QStringLiteral("--name"), u'^' + title + u'$'});
    return static_cast<int>(list.count(u'\n'));
}

void Desktop::activate(const QString& title) const {
    run(QStringLiteral("xdotool"),
        {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
         u'^' + title + u'$', QStringLiteral("windowactivate"), QStringLiteral("--sync")});
}

QString Desktop::activeTitle() const {
    return run(QStringLiteral("xdotool"),
               {QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")})
        .trimmed();
}

qint64 Desktop::processorWait(qint64 process) const {
    qint64 nanoseconds = 0;
    for (const qint64 id : {QCoreApplication::applicationPid(), process, sessionBus_.processId(),
                            server_.processId(), windowManager_.processId()}) {
        const QString threads = QStringLiteral("/proc/%1/task").arg(id);
        for (const QString& thread : QDir(threads).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            QFile file(threads + u'/' + thread + QStringLiteral("/schedstat"));
            if (!file.open(QIODevice::ReadOnly)) continue;
            // Time on a processor, time waiting for one, number of turns.
            nanoseconds += file.readAll().split(' ').value(1).toLongLong();
        }
    }
    return nanoseconds / 1'000'000;
}

QString Desktop::condition() {
    return QStringLiteral("server %1, window manager %2\n%3%4")
        .arg(
            stateOf(server_), stateOf(windowManager_),
            run(QStringLiteral("xwininfo"), {QStringLiteral("-root"), QStringLiteral("-children")}),
            run(QStringLiteral("xprop"),
                {QStringLiteral("-root"), QStringLiteral("_NET_CLIENT_LIST"),
                 QStringLiteral("_NET_ACTIVE_WINDOW")}));
}

}  // namespace vantor
