#include "app/files/user_defaults.h"

#include <gtest/gtest.h>

#include <QByteArray>

#include "app/qt_main_loop.h"
#include "platform/native_machine.h"
#include "support/temporary_folder.h"

namespace vantor::user_defaults_test {
namespace {

/// The environment as it was, afterwards.
class Variable {
  public:
    Variable(const char* name, const QByteArray& value)
        : name_(name), wasSet_(qEnvironmentVariableIsSet(name)), before_(qgetenv(name)) {
        qputenv(name, value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() {
        if (wasSet_) {
            qputenv(name_, before_);
        } else {
            qunsetenv(name_);
        }
    }

  private:
    const char* name_;
    bool wasSet_;
    QByteArray before_;
};

TEST(UserDefaults, AreInTheFolderForConfiguration) {
    const Variable home("HOME", "/home/somebody");
    const Variable none("XDG_CONFIG_HOME", "");
    EXPECT_EQ(userSettingsFile().toStdString(), "/home/somebody/.config/vantor/settings.ini");
    const Variable config("XDG_CONFIG_HOME", "/else/where");
    EXPECT_EQ(userSettingsFile().toStdString(), "/else/where/vantor/settings.ini");
}

TEST(UserDefaults, AreNotWhereAPlaceIsNotAbsolute) {
    const Variable home("HOME", "/home/somebody");
    for (const char* place : {"rel/cfg", ".", "..", "~/config"}) {
        const Variable config("XDG_CONFIG_HOME", place);
        EXPECT_EQ(userSettingsFile().toStdString(), "/home/somebody/.config/vantor/settings.ini")
            << place;
    }
}

TEST(UserDefaults, AreReadAndWrittenByAThreadOfTheirOwn) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "settings.ini";
    writeFile(path, "[General]\nhistoryLength=60\n");
    const auto queues = makeNativeQueueFactory();
    auto defaults = openDefaults(QString::fromStdString(path.string()),
                                 std::make_shared<QtMainLoop>(), queues, "settings");
    ASSERT_TRUE(defaults->waitForRead(std::chrono::seconds(30)));
    EXPECT_EQ(defaults->value("historyLength"), DefaultsStore::Value{std::int64_t{60}});
    defaults->setValue("historyLength", std::int64_t{90});
    EXPECT_TRUE(defaults->waitForWrite(std::chrono::seconds(30)));
    EXPECT_EQ(contentOf(path), "[General]\nhistoryLength=90\n");
    defaults = nullptr;
    EXPECT_TRUE(queues->waitForThreads(std::chrono::seconds(30)));
}

}  // namespace
}  // namespace vantor::user_defaults_test
