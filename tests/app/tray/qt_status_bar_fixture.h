#pragma once

#include <gtest/gtest.h>

#include <QCursor>
#include <QDBusMetaType>
#include <QGuiApplication>
#include <QScreen>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/session/instance_world.h"
#include "app/tray/qt_status_bar.h"
#include "support/event_patience.h"
#include "support/fake_notifier_tray.h"
#include "ui/rendering.h"

/// The tray of the session's bus and that of the display, both of the test's own.

namespace vantor {

using Manner = FakeNotifierTray::Manner;

/// More of them than there are in a minute.
constexpr int manyLooks = 40;

class QtStatusBarTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_FALSE(bus.address().isEmpty()) << "dbus-daemon did not start"; }

    void start(std::chrono::milliseconds lookInterval = std::chrono::milliseconds(2),
               bool hasBus = true,
               std::optional<std::chrono::milliseconds> calmLookInterval = std::nullopt) {
        QtStatusBar::Surroundings surroundings{
            [this, hasBus](const QString& name) {
                return hasBus ? QDBusConnection::connectToBus(bus.address(), name)
                              : QDBusConnection(QStringLiteral("there is none of this name"));
            },
            [this] {
                ++looks;
                return hasEmbedding;
            },
            [this](StatusItemContent) { return std::make_unique<Embedded>(embedded); },
            [this](std::function<void()> onChange) {
                embeddingChanged = std::move(onChange);
                return nullptr;
            },
            lookInterval,
            calmLookInterval.value_or(lookInterval)};
        bar = std::make_unique<QtStatusBar>(std::move(surroundings));
        bar->listen([this] { ++changes; });
        makeItem();
    }
    void makeItem() {
        item = bar->makeItem({QStringLiteral("Vantor"), QStringLiteral("waveform.path.ecg"),
                              [this](QRect area) { presses.push_back(area); },
                              [this] { return entries; }, [this] { return toolTip; }});
    }
    void startTray(Manner manner = Manner::honest) {
        tray.reset();
        tray.emplace(bus.address(), manner);
    }
    bool becomesAvailable() {
        return handleEventsUntil([this] { return bar->isAvailable(); });
    }
    bool becomesUnavailable() {
        return handleEventsUntil([this] { return !bar->isAvailable(); });
    }
    bool looksOften() {
        const int before = looks;
        return handleEventsUntil([this, before] { return looks >= before + manyLooks; });
    }
    /// As much as many looks would take.
    static void letTimePass() {
        int turns = 0;
        handleEventsUntil([&turns] { return ++turns > manyLooks; });
    }
    bool hasItem() {
        return handleEventsUntil([this] { return tray->items().size() == 1; });
    }

    struct Embedded : StatusItem {
        explicit Embedded(std::shared_ptr<int> count) : count_(std::move(count)) { ++*count_; }
        ~Embedded() override { --*count_; }
        std::shared_ptr<int> count_;
    };

    SessionBus bus;
    bool hasEmbedding = false;
    std::function<void()> embeddingChanged;
    std::shared_ptr<int> embedded = std::make_shared<int>(0);
    int looks = 0;
    int changes = 0;
    std::vector<QRect> presses;
    std::vector<StatusMenuEntry> entries;
    QString toolTip = QStringLiteral("CPU 1%");
    std::optional<FakeNotifierTray> tray;
    std::unique_ptr<QtStatusBar> bar;
    std::unique_ptr<StatusItem> item;  // ends before the bar
};

}  // namespace vantor
