#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include "app/session/instance_world.h"

#include "e2e/desktop.h"

namespace vantor::window_test {
namespace {

/// A small program with one window, on a real display with a window manager.
class WindowOnADesktop : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(desktop_.isUp()) << "the virtual desktop did not start";
        session_ = desktop_.environment();
        session_.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
        session_.insert(QStringLiteral("PATIENCE_OF_INSTANCE"), QStringLiteral("20000"));
        otherSession_ = session_;
        otherSession_.insert(QStringLiteral("XDG_RUNTIME_DIR"), otherFolder_.path());
        otherSession_.insert(QStringLiteral("XDG_CONFIG_HOME"), otherFolder_.path());
    }

    QString windowOf(const QString& title) const {
        QString id;
        eventually([&] {
            id = tool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                       QStringLiteral("--name"), u'^' + title + u'$'})
                     .section(u'\n', 0, 0);
            return !id.isEmpty();
        });
        return id;
    }
    QString tool(const QStringList& arguments) const {
        return desktop_.run(QStringLiteral("xdotool"), arguments).trimmed();
    }
    bool becomesActive(const QString& id) const {
        return eventually([&] { return tool({QStringLiteral("getactivewindow")}) == id; });
    }
    /// The window above all others, as a number.
    QString topmost() const {
        const QString list = property(QStringLiteral("-root"), "_NET_CLIENT_LIST_STACKING");
        const QString last = list.section(u' ', -1).trimmed();
        return QString::number(last.toUInt(nullptr, 16));
    }
    QString property(const QString& of, const char* name) const {
        QStringList arguments{of};
        if (!of.startsWith(u'-')) arguments = {QStringLiteral("-id"), of};
        return desktop_.run(QStringLiteral("xprop"), arguments + QStringList{QLatin1String(name)});
    }
    bool hasState(const QString& id, const char* state) const {
        return property(id, "_NET_WM_STATE").contains(QLatin1String(state));
    }
    /// Of what the frame encloses.
    QRect areaOf(const QString& id) const {
        const QString text = desktop_.run(QStringLiteral("xwininfo"), {QStringLiteral("-id"), id});
        const auto number = [&](const char* name) {
            const QRegularExpression line(QLatin1String(name) + QStringLiteral(":\\s+(-?\\d+)"));
            return line.match(text).captured(1).toInt();
        };
        return {number("Absolute upper-left X"), number("Absolute upper-left Y"), number("Width"),
                number("Height")};
    }
    bool comesTo(const QString& id, const QRect& area) const {
        return eventually([&] { return areaOf(id) == area; });
    }
    /// The moment of the user's last action in it, as its program says.
    qlonglong userTimeOf(const QString& id) const {
        return property(id, "_NET_WM_USER_TIME").section(u' ', -1).trimmed().toLongLong();
    }
    /// Maximises it or puts it back, as a user does.
    void clickTwiceOnTitleOf(const QString& id) const {
        const QRect area = areaOf(id);
        tool({QStringLiteral("mousemove"), QString::number(area.center().x()),
              QString::number(area.top() - 8), QStringLiteral("click"), QStringLiteral("--repeat"),
              QStringLiteral("2"), QStringLiteral("--delay"), QStringLiteral("60"),
              QStringLiteral("1")});
    }
    /// Puts the window somewhere, as a user does.
    void put(const QString& id, QPoint place, QSize size) const {
        tool({QStringLiteral("windowsize"), id, QString::number(size.width()),
              QString::number(size.height())});
        tool({QStringLiteral("windowmove"), id, QString::number(place.x()),
              QString::number(place.y())});
    }

    Desktop desktop_{{1366, 900}};
    QTemporaryDir otherFolder_;
    QProcessEnvironment session_;
    QProcessEnvironment otherSession_;
    const QString manner_ = QStringLiteral("window");
};

TEST_F(WindowOnADesktop, ASecondStartBringsAnIconifiedWindowBack) {
    Start program(session_, manner_, QStringLiteral("Ours"));
    const QString ours = windowOf(QStringLiteral("Ours"));
    ASSERT_TRUE(becomesActive(ours));
    tool({QStringLiteral("windowminimize"), ours});
    ASSERT_TRUE(eventually([&] { return hasState(ours, "_NET_WM_STATE_HIDDEN"); }));
    Start second(session_, manner_);
    EXPECT_EQ(second.says(), "second");
    EXPECT_TRUE(becomesActive(ours));
    EXPECT_FALSE(hasState(ours, "_NET_WM_STATE_HIDDEN"));
}

TEST_F(WindowOnADesktop, ASecondStartBringsTheWindowAboveTheOneInUse) {
    Start program(session_, manner_, QStringLiteral("Ours"));
    const QString ours = windowOf(QStringLiteral("Ours"));
    ASSERT_TRUE(becomesActive(ours));
    Start other(otherSession_, manner_, QStringLiteral("Theirs"));
    const QString theirs = windowOf(QStringLiteral("Theirs"));
    ASSERT_TRUE(becomesActive(theirs));
    for (int i = 0; i < 3; ++i) {
        // Somebody works there, which is what a window manager defends against intruders.
        tool({QStringLiteral("windowactivate"), QStringLiteral("--sync"), theirs});
        desktop_.clickAt(areaOf(theirs).center());
        desktop_.key(QStringLiteral("a"));
        ASSERT_TRUE(becomesActive(theirs));
        Start second(session_, manner_);
        EXPECT_EQ(second.says(), "second");
        EXPECT_TRUE(becomesActive(ours));
        EXPECT_TRUE(eventually([&] { return topmost() == ours; }));
        EXPECT_GE(userTimeOf(ours), userTimeOf(theirs)) << "stricter window managers compare them";
    }
}

TEST_F(WindowOnADesktop, ComesBackWhereItWasWithoutDriftingByItsFrame) {
    const QSize size(500, 400);
    QRect area;
    {
        Start program(session_, manner_, QStringLiteral("Ours"));
        const QString ours = windowOf(QStringLiteral("Ours"));
        put(ours, {321, 210}, size);
        ASSERT_TRUE(eventually([&] {
            area = areaOf(ours);
            return area.size() == size && area.x() >= 321;
        }));
        program.send(SIGTERM);
        ASSERT_TRUE(program.ends());
    }
    for (int i = 0; i < 3; ++i) {
        Start program(session_, manner_, QStringLiteral("Ours"));
        EXPECT_TRUE(comesTo(windowOf(QStringLiteral("Ours")), area)) << i;
        program.send(SIGTERM);
        ASSERT_TRUE(program.ends());
    }
}

TEST_F(WindowOnADesktop, MaximisedItComesBackSoAndKnowsItsFormerPlace) {
    QRect area;
    for (int i = 0; i < 3; ++i) {
        Start program(session_, manner_, QStringLiteral("Ours"));
        const QString ours = windowOf(QStringLiteral("Ours"));
        ASSERT_TRUE(becomesActive(ours));
        if (i == 0) {
            put(ours, {321, 210}, {500, 400});
            ASSERT_TRUE(eventually([&] { return (area = areaOf(ours)).width() == 500; }));
            ASSERT_TRUE(eventually([&] {
                return QFile::exists(desktop_.settingsFile().replace(QStringLiteral("settings"),
                                                                     QStringLiteral("windows")));
            })) << "written while it is shown";
            clickTwiceOnTitleOf(ours);
        }
        EXPECT_TRUE(eventually([&] { return hasState(ours, "_NET_WM_STATE_MAXIMIZED_VERT"); }));
        EXPECT_TRUE(eventually([&] { return areaOf(ours).width() > 1300; }));
        if (i == 2) {
            clickTwiceOnTitleOf(ours);
            EXPECT_TRUE(comesTo(ours, area));
        }
        program.send(SIGTERM);
        ASSERT_TRUE(program.ends());
    }
}

}  // namespace
}  // namespace vantor::window_test
