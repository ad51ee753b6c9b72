#include "app/app_commands.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>

#include "ui/components/make_child.h"

namespace vantor {

AppCommands::AppCommands(Actions actions, bool sharesMenuBar)
    : about_(add(QStringLiteral("About Vantor"), {}, actions.about)),
      refresh_(add(QStringLiteral("Refresh Now"), {QStringLiteral("Ctrl+R"), QStringLiteral("F5")},
                   actions.refresh)),
      export_(add(QStringLiteral("Export Snapshot…"), {QStringLiteral("Ctrl+E")},
                  actions.exportSnapshot)),
      settings_(add(QStringLiteral("Settings…"), {QStringLiteral("Ctrl+,")}, actions.settings)),
      help_(add(QStringLiteral("Vantor Help"), {QStringLiteral("F1")}, actions.help)),
      quit_(add(QStringLiteral("Quit"), {QStringLiteral("Ctrl+Q")}, actions.quit)) {
    about_->setMenuRole(QAction::AboutRole);
    settings_->setMenuRole(QAction::PreferencesRole);
    quit_->setMenuRole(QAction::QuitRole);
    if (!sharesMenuBar) return;
    sharedBar_ = std::make_unique<QMenuBar>();
    fill(*sharedBar_, closing(sharedBar_.get()));
}

AppCommands::~AppCommands() = default;

QAction* AppCommands::add(const QString& title, const std::vector<QString>& keys,
                          const std::function<void()>& run) {
    auto* action = makeChild<QAction>(this, title);
    QList<QKeySequence> shortcuts;
    for (const QString& key : keys)
        shortcuts << QKeySequence(key);
    action->setShortcuts(shortcuts);
    connect(action, &QAction::triggered, this, [run] { run(); });
    all_.push_back(action);
    return action;
}

QAction* AppCommands::closing(QWidget* window) {
    auto* action = makeChild<QAction>(window, QStringLiteral("Close Window"));
    action->setShortcut(QKeySequence(QStringLiteral("Ctrl+W")));
    const bool isShared = window == sharedBar_.get();
    connect(action, &QAction::triggered, window, [window, isShared] {
        if (QWidget* const open = isShared ? QApplication::activeWindow() : window->window())
            open->close();
    });
    return action;
}

QMenuBar* AppCommands::makeMenuBar(QWidget* window) {
    auto* bar = makeChild<QMenuBar>(window);
    fill(*bar, closing(window));
    return bar;
}

void AppCommands::fill(QMenuBar& bar, QAction* closing) {
    QMenu* const file = bar.addMenu(QStringLiteral("&File"));
    file->addAction(refresh_);
    file->addAction(export_);
    file->addSeparator();
    file->addAction(settings_);
    file->addSeparator();
    file->addAction(closing);
    file->addAction(quit_);
    QMenu* const help = bar.addMenu(QStringLiteral("&Help"));
    help->addAction(help_);
    help->addAction(about_);
}

void AppCommands::addTo(QWidget* window) {
    for (QAction* const action : all_)
        window->addAction(action);
    window->addAction(closing(window));
}

}  // namespace vantor
