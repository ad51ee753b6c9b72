#pragma once

#include <QAbstractNativeEventFilter>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include "app/tray/notifier_host.h"
#include "app/tray/notifier_item.h"
#include "app/tray/status_bar.h"

namespace vantor {

/// The tray of Linux desktops: items of the session bus (StatusNotifierItem) where something there
/// shows them, else icons embedded into an X11 tray. Which it is stays open until one of them is
/// really there, however late that is; programs that start with the session are up before the
/// desktop's panel.
class QtStatusBar : public StatusBar {
  public:
    /// The surroundings that it asks.
    struct Surroundings {
        BusConnector connect;
        std::function<bool()> hasEmbeddingTray;
        std::function<std::unique_ptr<StatusItem>(StatusItemContent)> embed;
        /// Calls what it is given when hasEmbeddingTray() may have changed, as long as the result
        /// lives.
        std::function<std::unique_ptr<QAbstractNativeEventFilter>(std::function<void()>)> watch;
        /// While a tray of the bus owes an answer.
        std::chrono::milliseconds lookInterval = std::chrono::seconds(2);
        /// Otherwise, should a signal be lost: each look wakes the tray, too.
        std::chrono::milliseconds calmLookInterval = std::chrono::seconds(30);
    };
    static Surroundings nativeSurroundings();

    explicit QtStatusBar(Surroundings surroundings = nativeSurroundings());
    ~QtStatusBar() override;

    bool isAvailable() const override { return isAvailable_; }
    void listen(std::function<void()> onChange) override;
    std::unique_ptr<StatusItem> makeItem(StatusItemContent content) override;

  private:
    class Item;

    enum class Mode { none, bus, embedded };

    void look();
    void settle();
    void pace();
    bool isCalm() const;
    Mode currentMode() const;
    bool isThere() const;

    Surroundings surroundings_;
    std::function<void()> onChange_;
    std::unique_ptr<NotifierHost> host_;  // none without a bus
    std::unique_ptr<QAbstractNativeEventFilter> watch_;
    QTimer look_;
    QTimer soon_;  // until it settles, in a turn of its own
    Mode mode_ = Mode::none;
    bool isAvailable_ = false;
    int refuser_ = -1;          // which owner of the bus's service has refused an item
    int itemsMade_ = 0;         // for the bus
    std::vector<Item*> items_;  // the present ones
};

}  // namespace vantor
