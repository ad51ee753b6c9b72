#pragma once

#include <QString>

#include <memory>
#include <string>

#include "platform/main_loop.h"
#include "platform/serial_queue.h"
#include "settings/defaults_file.h"

namespace vantor {

/// The user's folder for configuration, which the environment may place elsewhere
/// (XDG_CONFIG_HOME). A place there that is not absolute is ignored. Does not access the disk.
QString userConfigurationFolder();

/// The file for the user's preferences, in that folder.
QString userSettingsFile();

/// Begins to read a file of preferences of this machine.
std::shared_ptr<DefaultsFile> openDefaults(const QString& file, std::shared_ptr<MainLoop> mainLoop,
                                           std::shared_ptr<SerialQueueFactory> queues,
                                           std::string queueLabel);

}  // namespace vantor
