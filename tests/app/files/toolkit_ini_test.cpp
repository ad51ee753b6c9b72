#include <gtest/gtest.h>

#include <QSettings>

#include <string>

#include "settings/ini_text.h"
#include "support/temporary_folder.h"

/// Earlier versions had the toolkit write the preferences: what it writes is read, and what is
/// written now it reads, so that a user may go back.
namespace vantor::toolkit_ini_test {
namespace {

const DefaultsValues values{
    {"appearance", std::string("light")},
    {"historyLength", std::int64_t{120}},
    {"includePointToPointInterfaces", true},
    {"refreshInterval", 0.5},
    {"showMenuBar", false},
    {"Vantor.LegacyDashboard", std::string("300 200 900 700 2 24 2 2 normal")},
    {"text", std::string("@a,b;c=d \"e\" \\f\n\t\x01"
                         "1 ü€ ")},
    {"odd key with % and (", true},
    {"empty", std::string()}};

struct ToVariant {
    QVariant operator()(bool value) const { return value; }
    QVariant operator()(std::int64_t value) const { return QVariant::fromValue<qlonglong>(value); }
    QVariant operator()(double value) const { return value; }
    QVariant operator()(const std::string& value) const { return QString::fromStdString(value); }
};

TEST(ToolkitIni, WhatTheToolkitWroteIsRead) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "settings.ini";
    {
        QSettings settings(QString::fromStdString(path.string()), QSettings::IniFormat);
        for (const auto& [key, value] : values)
            settings.setValue(QString::fromStdString(key), std::visit(ToVariant{}, value));
    }
    const auto ini = IniText::parse(contentOf(path));
    ASSERT_TRUE(ini) << contentOf(path);
    EXPECT_EQ(ini->values(), values) << contentOf(path);
}

TEST(ToolkitIni, WhatIsWrittenTheToolkitReads) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "settings.ini";
    IniText ini;
    for (const auto& [key, value] : values)
        ini.setValue(key, value);
    writeFile(path, ini.text());
    const QSettings settings(QString::fromStdString(path.string()), QSettings::IniFormat);
    for (const auto& [key, value] : values) {
        const QString expected = std::visit(ToVariant{}, value).toString();
        EXPECT_EQ(settings.value(QString::fromStdString(key)).toString().toStdString(),
                  expected.toStdString())
            << key;
    }
}

}  // namespace
}  // namespace vantor::toolkit_ini_test
