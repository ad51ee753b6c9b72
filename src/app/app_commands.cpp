#include "app/app_commands.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>

#include "ui/components/make_child.h"
#include "ui/translate.h"

namespace vantor {

AppCommands::AppCommands(const Actions& actions, bool sharesMenuBar)
    : about_(add(
          //: a command of the menu
          translate("AppCommands", "About Vantor"), {}, actions.about)),
      refresh_(add(
          //: a command of the menu: read everything now
          translate("AppCommands", "Refresh Now"), {QStringLiteral("Ctrl+R"), QStringLiteral("F5")},
          actions.refresh)),
      export_(add(
          //: a command of the menu
          translate("AppCommands", "Export Snapshot…"), {QStringLiteral("Ctrl+E")},
          actions.exportSnapshot)),
      settings_(add(
          //: a command of the menu
          translate("AppCommands", "Settings…"), {QStringLiteral("Ctrl+,")}, actions.settings)),
      help_(add(
          //: a command of the menu
          translate("AppCommands", "Vantor Help"), {QStringLiteral("F1")}, actions.help)),
      quit_(add(
          //: a command of the menu
          translate("AppCommands", "Quit"), {QStringLiteral("Ctrl+Q")}, actions.quit)) {
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
    auto* action = makeChild<QAction>(window,
                                      //: a command of the menu
                                      translate("AppCommands", "Close Window"));
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
    QMenu* const file = bar.addMenu(
        //: a menu; the letter behind & is pressed together with Alt
        translate("AppCommands", "&File"));
    file->addAction(refresh_);
    file->addAction(export_);
    file->addSeparator();
    file->addAction(settings_);
    file->addSeparator();
    file->addAction(closing);
    file->addAction(quit_);
    QMenu* const help = bar.addMenu(
        //: a menu; the letter behind & is pressed together with Alt
        translate("AppCommands", "&Help"));
    help->addAction(help_);
    help->addAction(about_);
}

void AppCommands::addTo(QWidget* window) {
    for (QAction* const action : all_)
        window->addAction(action);
    window->addAction(closing(window));
}

}  // namespace vantor
