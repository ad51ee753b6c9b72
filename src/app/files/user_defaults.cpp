#include "app/files/user_defaults.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <filesystem>
#include <utility>

#include "platform/native_machine.h"
#include "platform/posix/posix_shared_file.h"

namespace vantor {

QString userConfigurationFolder() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    // Relative to the current folder, it would be another one at each start.
    if (QDir::isRelativePath(folder)) folder = QDir::homePath() + QStringLiteral("/.config");
    return folder;
}

QString userSettingsFile() {
    return userConfigurationFolder() + QStringLiteral("/vantor/settings.ini");
}

std::shared_ptr<DefaultsFile> openDefaults(const QString& file, std::shared_ptr<MainLoop> mainLoop,
                                           std::shared_ptr<SerialQueueFactory> queues,
                                           std::string queueLabel) {
    const std::filesystem::path path(QFile::encodeName(file).toStdString());
    return DefaultsFile::open({std::make_shared<PosixSharedFile>(path, makeNativeFileWriter()),
                               std::move(mainLoop), std::move(queues), std::move(queueLabel)});
}

}  // namespace vantor
