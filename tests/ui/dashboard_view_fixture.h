#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QScrollArea>

#include <chrono>
#include <string>
#include <variant>

#include "model/snapshot_document.h"
#include "ui/cards/cpu_card.h"
#include "ui/cards/gpu_card.h"
#include "ui/cards/memory_card.h"
#include "ui/cards/network_card.h"
#include "ui/cards/storage_card.h"
#include "ui/cards/system_card.h"
#include "ui/components/text_line.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/dashboard/dashboard_view.h"
#include "ui/dashboard/horizontal_fit.h"
#include "ui/dashboard/scroll_view.h"
#include "ui/dashboard_world.h"
#include "ui/explorer/process_explorer_view.h"
#include "ui/gestures.h"

namespace vantor {

using Form = VantorHorizontalFit::Form;

class DashboardViewTest : public testing::Test {
  protected:
    DashboardWorld world;

    void TearDown() override {
        world.view.reset();
        QApplication::setPalette(paletteOf(ColorScheme::dark));
    }
    CPUCardView& card() { return world.view->card<CPUCardView>(); }
    std::string footer() { return utf8(world.view->lastUpdate().text()); }
    QScrollArea& scrollArea() { return *world.view->findChild<QScrollArea*>(); }
    QRect placeOf(QWidget& part) {
        return {part.mapTo(scrollArea().widget(), QPoint()), part.size()};
    }
};

}  // namespace vantor
