#include "app/session/safe_environment.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSysInfo>
#include <QTemporaryDir>

#include <array>
#include <vector>

#include "app/session/local_socket.h"

namespace vantor::safe_environment_test {
namespace {

class SafeEnvironment : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* const name : names) {
            former.push_back(qgetenv(name));
            qunsetenv(name);
        }
    }
    void TearDown() override {
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (former[i].isNull())
                qunsetenv(names[i]);
            else
                qputenv(names[i], former[i]);
        }
    }
    QByteArray pathOf(const char* name) const {
        return QFile::encodeName(folder.filePath(QString::fromLatin1(name)));
    }

    static constexpr std::array names{"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS",
                                      "AT_SPI_BUS_ADDRESS",       "SESSION_MANAGER",
                                      "XDG_RUNTIME_DIR",          "DISPLAY",
                                      "WAYLAND_DISPLAY",          "QT_QPA_PLATFORM"};
    std::vector<QByteArray> former;
    QTemporaryDir folder;
};

TEST_F(SafeEnvironment, NamesNoBusRatherThanHavingOneStarted) {
    for (const char* const told :
         {"", "autolaunch:", "tcp:host=127.0.0.1,port=45454",
          "unixexec:path=/usr/bin/touch,argv1=/tmp/x", "nonce-tcp:host=localhost"}) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", told);
        makeEnvironmentSafe();
        EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS").toStdString(), "disabled:") << told;
        EXPECT_FALSE(qEnvironmentVariableIsSet("SESSION_MANAGER"));
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    }
}

TEST_F(SafeEnvironment, LeavesOutTheAccessibilityOfGtk) {
    makeEnvironmentSafe();
    EXPECT_EQ(qgetenv("NO_AT_BRIDGE").toStdString(), "1");
}

TEST_F(SafeEnvironment, KeepsTheSocketsOfThisMachine) {
    qputenv("DBUS_SESSION_BUS_ADDRESS", "tcp:host=a;unix:path=/b");
    qputenv("AT_SPI_BUS_ADDRESS", "unix:path=/c,guid=1;tcp:host=d");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/e");
    makeEnvironmentSafe();
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS").toStdString(), "unix:path=/b");
    EXPECT_EQ(qgetenv("AT_SPI_BUS_ADDRESS").toStdString(), "unix:path=/c,guid=1");
    EXPECT_EQ(qgetenv("DBUS_SYSTEM_BUS_ADDRESS").toStdString(), "unix:path=/e");
}

TEST_F(SafeEnvironment, HasNoAccessibilityBusElsewhere) {
    qputenv("AT_SPI_BUS_ADDRESS", "tcp:host=127.0.0.1,port=45455");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unixexec:path=/usr/bin/touch");
    makeEnvironmentSafe();
    EXPECT_FALSE(qEnvironmentVariableIsSet("AT_SPI_BUS_ADDRESS"));
    EXPECT_FALSE(qEnvironmentVariableIsSet("DBUS_SYSTEM_BUS_ADDRESS"));
}

TEST_F(SafeEnvironment, KeepsASessionManagerThatAnswers) {
    const QByteArray path = pathOf("manager");
    const FileDescriptor manager = listeningAt(path);
    ASSERT_TRUE(manager);
    const QByteArray host = QSysInfo::machineHostName().toLocal8Bit();
    EXPECT_EQ(answeringSessionManagers("local/elsewhere.example:" + path).toStdString(),
              ("local/" + host + ':' + path).toStdString())
        << "another host's name would be looked up";
    EXPECT_EQ(
        answeringSessionManagers("tcp/127.0.0.1:1,local/x:@/nobody,unix/x:" + path).toStdString(),
        ("unix/" + host + ':' + path).toStdString());
    qputenv("SESSION_MANAGER", "local/x:" + path);
    makeEnvironmentSafe();
    EXPECT_EQ(qgetenv("SESSION_MANAGER").toStdString(),
              ("local/" + host + ':' + path).toStdString());
}

TEST_F(SafeEnvironment, DropsASessionManagerThatDoesNot) {
    for (const QByteArray& told : {QByteArray("tcp/127.0.0.1:45456"), QByteArray("inet6/::1:4"),
                                   "local/host:" + pathOf("nobody"), QByteArray("local"),
                                   QByteArray("local/host:"), QByteArray(":/,/:")}) {
        qputenv("SESSION_MANAGER", told);
        makeEnvironmentSafe();
        EXPECT_FALSE(qEnvironmentVariableIsSet("SESSION_MANAGER")) << told.toStdString();
    }
}

TEST_F(SafeEnvironment, KnowsALocalDisplayThatIsNotThere) {
    EXPECT_FALSE(isLocalDisplayMissing()) << "none is named";
    for (const char* const display : {":9378", "unix:9378", ":9378.0"}) {
        qputenv("DISPLAY", display);
        EXPECT_TRUE(isLocalDisplayMissing()) << display;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    EXPECT_FALSE(isLocalDisplayMissing()) << "nothing is shown on it";
    qunsetenv("QT_QPA_PLATFORM");
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_FALSE(isLocalDisplayMissing()) << "there may be another one";
    qunsetenv("WAYLAND_DISPLAY");
    for (const char* const display : {"localhost:9378", "elsewhere:0", "nonsense", ":nonsense"}) {
        qputenv("DISPLAY", display);
        EXPECT_FALSE(isLocalDisplayMissing()) << display;
    }
}

}  // namespace
}  // namespace vantor::safe_environment_test
