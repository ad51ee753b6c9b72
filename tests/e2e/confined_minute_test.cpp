#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>

#include <optional>
#include <string>

#include "app/session/instance_world.h"

#include "e2e/copied_row.h"
#include "e2e/export_scene.h"
#include "e2e/whole_use.h"

/// Everything that can be done with the strict program on an X server: a call that it is denied
/// would end it.
namespace vantor::confined_minute_test {
namespace {

class ConfinedMinute : public ExportScene {
  protected:
    /// With a session bus that the test can take away.
    void SetUp() override {
        ASSERT_TRUE(desktop_.isUp()) << "the virtual desktop did not start";
        address_ = QStringLiteral("unix:path=") + desktop_.path(QStringLiteral("bus"));
        bus_.emplace(address_);
        ASSERT_FALSE(bus_->address().isEmpty()) << "no session bus";
        client_.emplace(address_);
        ASSERT_TRUE(client_->isConnected()) << "no accessibility bus";
        ASSERT_TRUE(QDir().mkpath(desktop_.path(QStringLiteral("out"))));
        use_.emplace(*client_,
                     WholeUse::Session{address_, desktop_.settingsFile(),
                                       desktop_.path(QStringLiteral("out")),
                                       desktop_.path(QStringLiteral("Documents")),
                                       [this] { desktop_.key(QStringLiteral("Return")); }});
    }
    QStringList strictly(const QString& variable) const {
        QStringList through{QStringLiteral("env"),
                            QStringLiteral("DBUS_SESSION_BUS_ADDRESS=") + address_,
                            QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1")};
        if (!variable.isEmpty()) through += variable;
        return through + RunningProgram::instead(QStringLiteral(VANTOR_STRICT_PROGRAM));
    }
    void startOnceMore() {
        RunningProgram second(desktop_, strictly({}));
        EXPECT_TRUE(second.waitForEnd(20'000)) << "the second one goes on";
        EXPECT_TRUE(second.endedNormally());
        EXPECT_EQ(second.exitStatus(), 0);
    }
    bool hasRowsOnlyOf(const QString& process) const {
        int count = 0;
        for (const AccessibleElement& each : client_->walk(QStringLiteral("vantor"))) {
            if (!each.name.contains(QStringLiteral(", PID "))) continue;
            if (!each.name.startsWith(process)) return false;
            ++count;
        }
        return count > 0;
    }
    void searchAndCopy() {
        ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
        const SpokenProgram spoken(*client_);
        desktop_.key(QStringLiteral("ctrl+f"));
        desktop_.type(QStringLiteral("openbox"));
        // A row that is chosen before is not among those found, and so no longer chosen then.
        EXPECT_TRUE(eventually([&] { return hasRowsOnlyOf(QStringLiteral("openbox")); }));
        desktop_.key(QStringLiteral("Tab"));
        desktop_.key(QStringLiteral("Right"));  // the other order
        desktop_.key(QStringLiteral("ctrl+f"));
        EXPECT_TRUE(
            pastesACopiedRow(desktop_, [&] { return spoken.finds("No Matching Processes"); }));
        desktop_.key(QStringLiteral("Escape"));
        EXPECT_TRUE(eventually([&] { return !spoken.finds("No Matching Processes"); }));
    }
    void exportByKeyboard() {
        ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
        ASSERT_TRUE(SpokenProgram(*client_).press("menu item", "Export Snapshot"));
        ASSERT_TRUE(eventually([this] { return desktop_.activeTitle() == dialogTitle; }));
        confirm(path("strict"));
        EXPECT_TRUE(eventually([&] { return QFile::exists(path("strict.json")); }));
    }
    void loseTheBus() {
        bus_.reset();
        QFile::remove(desktop_.path(QStringLiteral("bus")));
        startOnceMore();
        bus_.emplace(address_);
        ASSERT_FALSE(bus_->address().isEmpty());
        EXPECT_TRUE(eventually([this] { return isOnTheBus(); }, 60'000))
            << "it has not come back to the bus";
        startOnceMore();
    }
    bool isOnTheBus() const {
        const QString name = QStringLiteral("looking-for-the-confined");
        const auto connection = QDBusConnection::connectToBus(address_, name);
        const bool isThere =
            connection.isConnected() &&
            connection.interface()->isServiceRegistered(QStringLiteral("com.kestrone.Vantor"));
        QDBusConnection::disconnectFromBus(name);
        return isThere;
    }
    void quitByKeyboard() {
        ASSERT_TRUE(program_->isRunning()) << "it was ended";
        ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
        desktop_.key(QStringLiteral("alt+f"));
        ASSERT_TRUE(eventually([this] { return program_->hasOpenMenu(); }));
        desktop_.key(QStringLiteral("Up"));  // to the last entry
        desktop_.key(QStringLiteral("Return"));
        ASSERT_TRUE(program_->waitForEnd(20'000));
        EXPECT_TRUE(program_->endedNormally());
        EXPECT_EQ(program_->exitStatus(), 0);
    }

    QString address_;
    std::optional<SessionBus> bus_;
    std::optional<WholeUse> use_;
};

TEST_F(ConfinedMinute, NothingOfTheWholeUseIsDenied) {
    start(strictly({}));
    ASSERT_NO_FATAL_FAILURE(use_->waitForAllCards());
    searchAndCopy();
    exportByKeyboard();
    use_->exportByAPortal();
    use_->useATray();
    use_->changeSettings();
    desktop_.key(QStringLiteral("Escape"));  // of the settings
    startOnceMore();
    loseTheBus();
    quitByKeyboard();
}

/// What the toolkit loads into the program because of a variable of its environment.
struct Addition {
    const char* name;
    const char* variable;
    const char* plugin;  ///< that has to be installed, or empty
    const char* package = "";
};

class ConfinedMinuteWith : public ConfinedMinute, public testing::WithParamInterface<Addition> {};

TEST_P(ConfinedMinuteWith, NothingOfTheOrdinaryUseIsDenied) {
    const Addition addition = GetParam();
    const QString plugins = QLibraryInfo::path(QLibraryInfo::PluginsPath);
    if (*addition.plugin != '\0' && !QFile::exists(plugins + QLatin1StringView(addition.plugin)))
        GTEST_SKIP() << "the package " << addition.package << " is not installed";
    start(strictly(QString::fromLatin1(addition.variable)));
    ASSERT_NO_FATAL_FAILURE(use_->waitForAllCards());
    searchAndCopy();
    exportByKeyboard();
    quitByKeyboard();
}

INSTANTIATE_TEST_SUITE_P(
    Additions, ConfinedMinuteWith,
    testing::Values(Addition{"AnInputMethodThatIsNotThere", "QT_IM_MODULE=ibus", ""},
                    Addition{"TheThemeOfGtk", "QT_QPA_PLATFORMTHEME=gtk3",
                             "/platformthemes/libqgtk3.so", "qt6-gtk-platformtheme"}),
    [](const auto& each) { return std::string(each.param.name); });

}  // namespace
}  // namespace vantor::confined_minute_test
