#pragma once

#include <QString>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "platform/main_loop.h"
#include "platform/serial_queue.h"
#include "settings/login_item.h"

namespace vantor {

/// The entry that opens the program when its user logs in, in the folder for configuration. Does
/// not access the disk.
QString userAutostartFile();

/// What opens the program at `file`: the name alone, where that leads to it by the folders of
/// `searchPath` (as in PATH), so that an upgrade or a move of the installation is followed; else
/// the file itself. Looks at the disk.
std::string commandFor(const std::filesystem::path& file, std::string_view searchPath);

/// The file of this process; empty where that is not known. Looks at the disk.
std::filesystem::path ownProgramFile();

/// The item of this process, with that entry; null without a file.
std::shared_ptr<LoginItem> openLoginItem(const QString& file, std::shared_ptr<MainLoop> mainLoop,
                                         std::shared_ptr<SerialQueueFactory> queues);

}  // namespace vantor
