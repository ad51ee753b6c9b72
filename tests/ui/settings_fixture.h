#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>

#include <memory>
#include <string>
#include <vector>

#include "ui/gestures.h"
#include "ui/rendering.h"
#include "ui/settings/settings_view.h"
#include "ui/views_world.h"

namespace vantor {

using Strings = std::vector<std::string>;

/// Settings on a simulated Mac with a store that lasts as long as the test.
class SettingsViewTest : public testing::Test {
  protected:
    ViewsWorld world;
    int exports = 0;
    std::unique_ptr<SettingsView> view = make();

    std::unique_ptr<SettingsView> make() {
        return std::make_unique<SettingsView>(SettingsView::Environment{
            world.settings, world.machine, world.metadata, [this] { ++exports; }});
    }
    void openAt(QSize size) const {
        view->setVisible(true);
        view->resize(size);
        settleEvents();
    }
    void open() const { openAt(view->sizeHint()); }
    DefaultsStore::Value stored(const char* key) const { return world.defaults->values.at(key); }
    bool isStored(const char* key) const { return world.defaults->values.contains(key); }
    void stepHistory(StepperView::Half half) const {
        StepperView& stepper = view->history();
        sendMouse(stepper, QEvent::MouseButtonPress, stepper.areaOf(half).center());
        sendMouse(stepper, QEvent::MouseButtonRelease, stepper.areaOf(half).center());
    }
    Strings ticked() const {
        Strings texts;
        for (const QAction* action : view->interval().menu().actions()) {
            if (action->isChecked()) texts.push_back(utf8(action->text()));
        }
        return texts;
    }
};

}  // namespace vantor
