#include "app/tray/qt_status_bar.h"

#include <QEvent>
#include <QMenu>
#include <QSystemTrayIcon>

#include <algorithm>
#include <utility>

#include "app/tray/embedding_tray.h"
#include "app/tray/status_menu.h"
#include "ui/product_icon.h"

namespace vantor {

namespace {

/// An icon in the tray of an X display.
class EmbeddedItem : public StatusItem {
    /// The toolkit tells the icon before it shows the tool tip.
    class ToolTipFilter : public QObject {
      public:
        ToolTipFilter(QSystemTrayIcon& icon, std::function<QString()> text)
            : icon_(icon), text_(std::move(text)) {}

      protected:
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::ToolTip && text_)
                icon_.setToolTip(QStringLiteral("Vantor\n") + text_());
            return false;
        }

      private:
        QSystemTrayIcon& icon_;
        std::function<QString()> text_;
    };

  public:
    explicit EmbeddedItem(StatusItemContent content)
        : content_(std::move(content)), icon_(productIcon()), toolTip_(icon_, content_.toolTip) {
        icon_.installEventFilter(&toolTip_);
        icon_.setToolTip(content_.title);
        QObject::connect(&menu_, &QMenu::aboutToShow, &icon_, [this] { fill(); });
        fill();
        icon_.setContextMenu(&menu_);
        QObject::connect(
            &icon_, &QSystemTrayIcon::activated, &icon_,
            [this](QSystemTrayIcon::ActivationReason reason) {
                // The second of two quick presses is a press, too.
                if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
                    press();
            });
        icon_.show();
    }

  private:
    void fill() { fillStatusMenu(menu_, content_.menu()); }
    void press() {
        const QRect area = icon_.geometry();
        content_.onPress(area.isValid() ? area : areaOfPress({}));
    }

    StatusItemContent content_;
    QMenu menu_;
    QSystemTrayIcon icon_;
    ToolTipFilter toolTip_;
};

QString lookoutName() {
    return QStringLiteral("vantor-tray");
}

}  // namespace

/// One item; shown while there is a tray.
class QtStatusBar::Item : public StatusItem {
  public:
    Item(QtStatusBar& bar, StatusItemContent content) : bar_(bar), content_(std::move(content)) {
        bar_.items_.push_back(this);
    }
    ~Item() override { std::erase(bar_.items_, this); }

    void show(Mode mode) {
        onBus_ = nullptr;
        shown_.reset();
        if (mode == Mode::embedded) shown_ = bar_.surroundings_.embed(content_);
        if (mode != Mode::bus) return;
        auto item = std::make_unique<NotifierItem>(bar_.surroundings_.connect, ++bar_.itemsMade_,
                                                   content_, [&bar = bar_] { bar.soon_.start(); });
        onBus_ = item.get();
        shown_ = std::move(item);
    }

    void look() {
        if (onBus_) onBus_->look();
    }
    void toolTipChanged() override {
        if (shown_) shown_->toolTipChanged();
    }
    bool has(NotifierItem::Standing standing) const {
        return onBus_ && onBus_->standing() == standing;
    }

  private:
    QtStatusBar& bar_;
    StatusItemContent content_;
    std::unique_ptr<StatusItem> shown_;
    NotifierItem* onBus_ = nullptr;  // where it is shown there
};

QtStatusBar::Surroundings QtStatusBar::nativeSurroundings() {
    return {[](const QString& name) {
                return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
            },
            hasEmbeddingTray,
            [](StatusItemContent content) {
                return std::make_unique<EmbeddedItem>(std::move(content));
            },
            watchEmbeddingTrays};
}

QtStatusBar::QtStatusBar(Surroundings surroundings) : surroundings_(std::move(surroundings)) {
    const QDBusConnection bus = surroundings_.connect(lookoutName());
    if (bus.isConnected()) host_ = std::make_unique<NotifierHost>(bus, [this] { settle(); });
    soon_.setSingleShot(true);
    soon_.setInterval(0);
    QObject::connect(&soon_, &QTimer::timeout, &soon_, [this] { settle(); });
    QObject::connect(&look_, &QTimer::timeout, &look_, [this] { look(); });
    look_.setTimerType(Qt::CoarseTimer);
    look_.start(surroundings_.lookInterval);
    if (surroundings_.watch) watch_ = surroundings_.watch([this] { soon_.start(); });
    look();
}

QtStatusBar::~QtStatusBar() {
    host_.reset();
    QDBusConnection::disconnectFromBus(lookoutName());
}

void QtStatusBar::look() {
    for (Item* const item : items_)
        item->look();
    if (host_) {
        host_->look();
    } else {
        settle();
    }
}

QtStatusBar::Mode QtStatusBar::currentMode() const {
    // Stays in a tray while that is there.
    if (mode_ == Mode::embedded && surroundings_.hasEmbeddingTray()) return mode_;
    if (host_ && host_->isThere()) {
        // The toolkit would put an icon for embedding there, too.
        return refuser_ == host_->owners() ? Mode::none : Mode::bus;
    }
    return surroundings_.hasEmbeddingTray() ? Mode::embedded : Mode::none;
}

/// A watcher counts as a tray once it has taken an item.
bool QtStatusBar::isThere() const {
    if (mode_ != Mode::bus) return mode_ == Mode::embedded;
    // A tray that has taken others will take another item.
    return isAvailable_ || std::ranges::none_of(items_, [](const Item* item) {
               return item->has(NotifierItem::Standing::asked);
           });
}

void QtStatusBar::settle() {
    const bool isRefused = std::ranges::any_of(
        items_, [](const Item* item) { return item->has(NotifierItem::Standing::refused); });
    if (isRefused) refuser_ = host_->owners();
    const Mode now = currentMode();
    if (now != mode_) {
        mode_ = now;
        for (Item* const item : items_)
            item->show(mode_);
    }
    pace();
    const bool isThereNow = isThere();
    if (isThereNow == isAvailable_) return;
    isAvailable_ = isThereNow;
    if (onChange_) onChange_();
}

/// Signals tell of the rest: a service that comes, a tray that is embedded in.
bool QtStatusBar::isCalm() const {
    const bool isWaitedFor = host_ && host_->hasService() && !host_->isThere();
    return !isWaitedFor && std::ranges::none_of(items_, [](const Item* item) {
        return item->has(NotifierItem::Standing::asked);
    });
}

void QtStatusBar::pace() {
    const auto interval = isCalm() ? surroundings_.calmLookInterval : surroundings_.lookInterval;
    // The same interval set again would begin anew.
    if (look_.intervalAsDuration() != interval) look_.setInterval(interval);
}

void QtStatusBar::listen(std::function<void()> onChange) {
    onChange_ = std::move(onChange);
}

std::unique_ptr<StatusItem> QtStatusBar::makeItem(StatusItemContent content) {
    auto item = std::make_unique<Item>(*this, std::move(content));
    item->show(mode_);
    pace();
    return item;
}

}  // namespace vantor
