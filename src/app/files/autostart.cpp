#include "app/files/autostart.h"

#include <QFile>

#include <algorithm>
#include <system_error>
#include <utility>

#include "app/files/user_defaults.h"
#include "app/session/instance_claim.h"
#include "platform/native_machine.h"
#include "platform/posix/posix_shared_file.h"

namespace vantor {

QString userAutostartFile() {
    return userConfigurationFolder() + QStringLiteral("/autostart/") +
           QLatin1StringView(applicationIdentifier) + QStringLiteral(".desktop");
}

std::string commandFor(const std::filesystem::path& file, std::string_view searchPath) {
    const std::filesystem::path name = file.filename();
    while (!searchPath.empty()) {
        const auto end = std::min(searchPath.find(':'), searchPath.size());
        const std::filesystem::path folder = searchPath.substr(0, end);
        searchPath.remove_prefix(std::min(end + 1, searchPath.size()));
        std::error_code error;
        // The first one of the name is what would be started.
        if (!folder.is_absolute() || !std::filesystem::exists(folder / name, error)) continue;
        if (std::filesystem::equivalent(folder / name, file, error)) return name.native();
        break;
    }
    return file.native();
}

std::shared_ptr<LoginItem> openLoginItem(const QString& file, std::shared_ptr<MainLoop> mainLoop,
                                         std::shared_ptr<SerialQueueFactory> queues) {
    if (file.isEmpty()) return nullptr;
    const std::filesystem::path path(QFile::encodeName(file).toStdString());
    const auto program = [searchPath = qgetenv("PATH").toStdString()] {
        return commandFor(ownProgramFile(), searchPath);
    };
    return LoginItem::make({std::make_shared<PosixSharedFile>(path, makeNativeFileWriter()),
                            program, std::move(mainLoop), std::move(queues)});
}

std::filesystem::path ownProgramFile() {
    constexpr std::string_view deleted = " (deleted)";  // by an upgrade while it runs
    std::error_code error;
    std::string file = std::filesystem::read_symlink("/proc/self/exe", error).native();
    if (file.ends_with(deleted)) file.resize(file.size() - deleted.size());
    return file;
}

}  // namespace vantor
