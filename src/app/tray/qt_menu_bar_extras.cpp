#include "app/tray/qt_menu_bar_extras.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include <utility>

#include "app/tray/status_menu.h"
#include "ui/symbols.h"

namespace vantor {

namespace {

/// A symbol at any size, of which only the shape counts.
class SymbolEngine : public QIconEngine {
  public:
    explicit SymbolEngine(QString name) : name_(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        Symbols::draw(*painter, rect, name_, Qt::black);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return std::make_unique<SymbolEngine>(name_).release(); }

  private:
    QString name_;
};

/// The bar tints it as it does its own symbols.
QIcon templateIcon(const QString& symbolName) {
    QIcon icon(std::make_unique<SymbolEngine>(symbolName).release());  // takes ownership
    icon.setIsMask(true);
    return icon;
}

}  // namespace

QtMenuBarExtra::QtMenuBarExtra(StatusItemContent content)
    : content_(std::move(content)), icon_(templateIcon(content_.symbolName)) {
    icon_.setToolTip(content_.title);
    QObject::connect(&icon_, &QSystemTrayIcon::activated, &icon_,
                     [this](QSystemTrayIcon::ActivationReason reason) { activate(reason); });
    // Not given to the icon: every press would open it, and none would be reported.
    QObject::connect(&menu_, &QMenu::aboutToShow, &icon_,
                     [this] { fillStatusMenu(menu_, content_.menu()); });
    icon_.show();
}

void QtMenuBarExtra::activate(QSystemTrayIcon::ActivationReason reason) {
    const QRect area = icon_.geometry();
    if (reason == QSystemTrayIcon::Context) {
        fillStatusMenu(menu_, content_.menu());  // its size is asked before it is shown
        menu_.popup(area.bottomLeft());
    } else if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick) {
        // The second of two quick presses is a press, too.
        content_.onPress(area);
    }
}

void QtMenuBarExtras::listen(std::function<void()>) {}

std::unique_ptr<StatusItem> QtMenuBarExtras::makeItem(StatusItemContent content) {
    return std::make_unique<QtMenuBarExtra>(std::move(content));
}

}  // namespace vantor
