#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "model/system_snapshot.h"
#include "platform/machine.h"

namespace vantor {

/// A machine whose snapshot is exported.
struct DocumentSubject {
    std::string name;
    std::shared_ptr<Machine> machine;
    std::function<void()> advance;  ///< lets a second pass
};

/// The names of all: every recorded machine, and simulated ones.
std::vector<std::string> documentSubjectNames();

/// A machine of that name that nothing has been asked of.
DocumentSubject makeDocumentSubject(const std::string& name);

/// Has a monitor read everything twice, a second apart, and the user export it to `destination`.
/// Gives the snapshot that was published then; throws when there was an alert.
SystemSnapshot exportSubject(const DocumentSubject& subject,
                             const std::filesystem::path& destination);

/// The snapshot without what is of the machine that the tests run on: the architecture is replaced
/// by a placeholder, processes are in the order of their numbers, and their memory is in pages of
/// 4096 bytes.
SystemSnapshot withoutTraces(SystemSnapshot snapshot);

}  // namespace vantor
