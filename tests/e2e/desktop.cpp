#include "e2e/desktop.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QThread>

#include <algorithm>
#include <cmath>

#include "ui/theme.h"

namespace vantor {

namespace {

constexpr int toolPatience = 15'000;

bool isNear(QRgb pixel, const QColor& color) {
    constexpr int tolerance = 14;
    return std::abs(qRed(pixel) - color.red()) <= tolerance &&
           std::abs(qGreen(pixel) - color.green()) <= tolerance &&
           std::abs(qBlue(pixel) - color.blue()) <= tolerance;
}

}  // namespace

bool eventually(const std::function<bool()>& isSo, int milliseconds) {
    QElapsedTimer clock;
    clock.start();
    while (!isSo()) {
        if (clock.elapsed() > milliseconds) return false;
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
    server_.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"), size, QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    if (!server_.waitForReadyRead(toolPatience)) return;
    const QString number = QString::fromLatin1(server_.readLine()).trimmed();
    environment_.insert(QStringLiteral("DISPLAY"), u':' + number);
    environment_.insert(QStringLiteral("HOME"), home_.path());
    environment_.insert(QStringLiteral("XDG_CONFIG_HOME"),
                        home_.filePath(QStringLiteral("config")));
    environment_.insert(QStringLiteral("XDG_RUNTIME_DIR"), home_.path());
    environment_.insert(QStringLiteral("FONTCONFIG_FILE"),
                        QStringLiteral(VANTOR_SOURCE_DIR "/scripts/virtual-display/fonts.conf"));
    environment_.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment_.remove(QStringLiteral("QT_QPA_PLATFORM"));
    QDir().mkpath(home_.filePath(QStringLiteral("config/vantor")));
    windowManager_.setProcessEnvironment(environment_);
    windowManager_.setStandardErrorFile(QProcess::nullDevice());
    // A display server that has just started may still turn away who comes first.
    for (int attempts = 3; attempts > 0 && !isUp_; --attempts)
        isUp_ = startWindowManager();
}

bool Desktop::startWindowManager() {
    windowManager_.start(QStringLiteral("openbox"), QStringList());
    const bool hasStarted = windowManager_.waitForStarted(toolPatience);
    const auto isManaging = [this] {
        return run(QStringLiteral("xprop"),
                   {QStringLiteral("-root"), QStringLiteral("_NET_SUPPORTING_WM_CHECK")})
            .contains(u'#');
    };
    const auto hasEnded = [this] { return windowManager_.waitForFinished(0); };
    bool managing = false;
    if (hasStarted) eventually([&] { return (managing = isManaging()) || hasEnded(); });
    if (!managing) {
        windowManager_.kill();
        windowManager_.waitForFinished(toolPatience);
    }
    return managing;
}

QString Desktop::startSessionBus() {
    sessionBus_.setProcessEnvironment(environment_);
    sessionBus_.setStandardErrorFile(QProcess::nullDevice());
    sessionBus_.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--session"), QStringLiteral("--nofork"),
                       QStringLiteral("--print-address=1")});
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

RunningProgram::RunningProgram(const Desktop& desktop, QStringList through) : desktop_(desktop) {
    process_.setProcessEnvironment(desktop.environment());
    process_.setProcessChannelMode(QProcess::ForwardedChannels);
    through.append(QStringLiteral(VANTOR_PROGRAM));
    const QString first = through.takeFirst();
    process_.start(first, through);
    process_.waitForStarted(toolPatience);
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

bool RunningProgram::waitForLiveData() {
    return eventually(
        [this] {
            const QString id = window();
            if (id.isEmpty()) return false;
            const QString name =
                desktop_.run(QStringLiteral("xprop"),
                             {QStringLiteral("-id"), id, QStringLiteral("_NET_WM_ICON_NAME")});
            return name.contains(QStringLiteral("= \"Vantor\"\n"));
        },
        30'000);
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
