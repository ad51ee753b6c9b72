#include "app/qt_status_bar.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QMenu>
#include <QSystemTrayIcon>

#include <algorithm>
#include <chrono>

#include "app/status_menu.h"
#include "ui/components/make_child.h"
#include "ui/product_icon.h"

namespace vantor {

namespace {

using namespace std::chrono_literals;

// Old trays say nothing when they come and go.
constexpr auto lookInterval = 2s;
// The toolkit asks once and for all whether the session bus has a tray. When the program is
// started together with the desktop, the desktop's panel may be a little later than we are.
constexpr int patienceWithBus = 3000;

QString watcherService() {
    return QStringLiteral("org.kde.StatusNotifierWatcher");
}

}  // namespace

/// One icon; made when there is a tray to show it.
class QtStatusBar::Item : public StatusItem {
  public:
    Item(QtStatusBar& bar, StatusItemContent content) : bar_(bar), content_(std::move(content)) {
        bar_.items_.push_back(this);
    }
    ~Item() override { std::erase(bar_.items_, this); }

    void show() {
        if (icon_) return;
        // The product's own tile: its light wave on a coloured ground can be seen on light panels
        // and on dark ones, and nothing tells which the panel is.
        icon_ = std::make_unique<QSystemTrayIcon>(productIcon());
        icon_->setToolTip(content_.title);
        QObject::connect(&menu_, &QMenu::aboutToShow, icon_.get(), [this] { fill(); });
        fill();
        icon_->setContextMenu(&menu_);
        QObject::connect(
            icon_.get(), &QSystemTrayIcon::activated, icon_.get(),
            [this](QSystemTrayIcon::ActivationReason reason) {
                // The second of two quick presses is a press, too.
                if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
                    content_.onPress(icon_->geometry());
            });
        icon_->show();
    }

  private:
    void fill() { fillStatusMenu(menu_, content_.menu()); }

    QtStatusBar& bar_;
    StatusItemContent content_;
    QMenu menu_;
    std::unique_ptr<QSystemTrayIcon> icon_;
};

QtStatusBar::QtStatusBar() {
    sinceStart_.start();
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        watcher_ = std::make_unique<QDBusServiceWatcher>(watcherService(), bus,
                                                         QDBusServiceWatcher::WatchForOwnerChange);
        QObject::connect(watcher_.get(), &QDBusServiceWatcher::serviceOwnerChanged, &look_,
                         [this](const QString&, const QString&, const QString& owner) {
                             hasWatcher_ = !owner.isEmpty();
                             look();
                         });
        hasWatcher_ = true;  // unless it does not answer
    }
    QObject::connect(&look_, &QTimer::timeout, &look_, [this] { look(); });
    look_.setTimerType(Qt::CoarseTimer);
    look_.start(lookInterval);
    look();
}

QtStatusBar::~QtStatusBar() = default;

void QtStatusBar::look() {
    if (hasWatcher_) {
        askBus();
    } else {
        isOnBus_ = false;
        settle();
    }
}

/// The service alone shows nothing: it may be there without any panel.
void QtStatusBar::askBus() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        watcherService(), QStringLiteral("/StatusNotifierWatcher"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << watcherService() << QStringLiteral("IsStatusNotifierHostRegistered");
    question.setAutoStartService(false);
    const auto call = QDBusConnection::sessionBus().asyncCall(question);
    auto* answer = makeChild<QDBusPendingCallWatcher>(static_cast<QObject*>(&look_), call);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &look_, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        hasWatcher_ = !reply.isError();
        isOnBus_ = hasWatcher_ && reply.value().variant().toBool();
        settle();
    });
}

bool QtStatusBar::isThere() {
    if (isOnBus_ && way_ != Way::embedded) return true;
    if (way_ == Way::bus) return false;
    const bool isX11 = QGuiApplication::platformName() == QLatin1StringView("xcb");
    const bool mayBeLate = watcher_ && !sinceStart_.hasExpired(patienceWithBus);
    if (!isX11 || (mayBeLate && way_ == Way::undecided)) return false;
    way_ = Way::embedded;
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void QtStatusBar::settle() {
    const bool isThereNow = isThere();
    if (isThereNow) {
        if (way_ == Way::undecided) way_ = Way::bus;
        showItems();
    }
    if (isThereNow == isAvailable_) return;
    isAvailable_ = isThereNow;
    if (onChange_) onChange_();
}

void QtStatusBar::showItems() {
    for (Item* const item : items_)
        item->show();
}

void QtStatusBar::listen(std::function<void()> onChange) {
    onChange_ = std::move(onChange);
}

std::unique_ptr<StatusItem> QtStatusBar::makeItem(StatusItemContent content) {
    auto item = std::make_unique<Item>(*this, std::move(content));
    if (isAvailable_) item->show();
    return item;
}

}  // namespace vantor
