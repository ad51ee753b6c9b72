#include "app/tray/status_menu.h"

#include <QAction>

namespace vantor {

void fillStatusMenu(QMenu& menu, const std::vector<StatusMenuEntry>& entries) {
    menu.clear();
    for (const StatusMenuEntry& entry : entries) {
        if (entry.title.isEmpty()) {
            menu.addSeparator();
            continue;
        }
        QAction* const action = menu.addAction(entry.title);
        action->setEnabled(entry.action != nullptr);
        // Not by their titles into the program's own menu, where a desktop has one.
        action->setMenuRole(QAction::NoRole);
        QObject::connect(
            action, &QAction::triggered, &menu, [run = entry.action] { run(); },
            Qt::QueuedConnection);
    }
}

}  // namespace vantor
