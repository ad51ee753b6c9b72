#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QWidget>

#include <memory>

#include "app/window/window_geometry.h"
#include "platform/simulated/fake_clock.h"
#include "platform/simulated/fake_main_loop.h"
#include "support/kept_defaults.h"
#include "ui/rendering.h"

inline void PrintTo(const QRect& area, std::ostream* out) {
    PrintTo(QRectF(area), out);
}

namespace vantor {

// In the texts, 2 2 2 2 is the frame that the offscreen platform puts around a window.
constexpr auto windowName = "Vantor.LegacyDashboard";

class CountingDefaults : public KeptDefaults {
  public:
    void setValue(std::string_view key, const Value& value) override {
        ++writes;
        KeptDefaults::setValue(key, value);
    }
    int writes = 0;
};

class WindowGeometryTest : public testing::Test {
  protected:
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<FakeMainLoop> loop = std::make_shared<FakeMainLoop>(clock);
    std::shared_ptr<CountingDefaults> store = std::make_shared<CountingDefaults>();
    std::vector<QRect> screens{{0, 0, 1920, 1080}};
    bool tellsPositions = true;

    std::unique_ptr<QWidget> window;
    std::unique_ptr<WindowGeometry> geometry;

    /// A run of the program, up to the moment before its window is shown.
    void begin() {
        geometry.reset();
        window = std::make_unique<QWidget>();
        window->setMinimumSize(720, 560);
        window->resize(1280, 820);
        geometry = std::make_unique<WindowGeometry>(
            *window, windowName, store, loop,
            WindowGeometry::Surroundings{[this] { return screens; }, tellsPositions});
    }
    void run() {
        begin();
        show();
    }
    void show() {
        window->show();
        settleEvents();
    }
    void place(QRect area) {
        window->setGeometry(area);
        settleEvents();
    }
    void end() {
        geometry.reset();
        window.reset();
    }
    void wind(std::chrono::nanoseconds time) {
        const auto end = clock->now() + time;
        while (loop->nextDue() <= end) {
            clock->setNow(std::max(clock->now(), loop->nextDue()));
            loop->runDueTimer();
        }
        clock->setNow(end);
    }
    std::string stored() const {
        const auto value = store->value(windowName);
        return value ? std::get<std::string>(*value) : std::string();
    }
    void keep(const std::string& text) { store->values[windowName] = text; }

    void TearDown() override { end(); }
};

inline const QRect somewhere{300, 200, 900, 700};

}  // namespace vantor
