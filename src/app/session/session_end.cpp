#include "app/session/session_end.h"

#include <QSessionManager>

#include <utility>

namespace vantor {

SessionEnd::SessionEnd(QGuiApplication& application, std::function<void()> save) {
    // With every request: a manager keeps what the last one said.
    const auto neverRestart = [](QSessionManager& manager) {
        manager.setRestartHint(QSessionManager::RestartNever);
    };
    QObject::connect(&application, &QGuiApplication::saveStateRequest, &context_, neverRestart,
                     Qt::DirectConnection);
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &context_,
        [neverRestart, save = std::move(save)](QSessionManager& manager) {
            neverRestart(manager);
            if (save) save();
        },
        Qt::DirectConnection);
}

}  // namespace vantor
