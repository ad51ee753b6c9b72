#include "view_subjects.h"

#include "ui/help/help_view.h"
#include "ui/menu_bar/menu_bar_dashboard_view.h"
#include "ui/settings/settings_view.h"
#include "ui/views_world.h"

namespace vantor {

namespace {

/// Views borrow from the world that they are made in; it lives as long as the gallery.
const ViewsWorld& waitingWorld() {
    static const ViewsWorld world;
    return world;
}

const ViewsWorld& liveWorld() {
    static const ViewsWorld world;
    world.commit(ViewsWorld::committed());
    return world;
}

const ViewsWorld& pausedWorld() {
    static const ViewsWorld world;
    world.commit(ViewsWorld::committed());
    world.pause(true);
    return world;
}

const ViewsWorld& oldWorld() {
    static const ViewsWorld world;
    world.makeOld();
    return world;
}

const ViewsWorld& oddWorld() {
    static const ViewsWorld world;
    world.settings->setRefreshInterval(3);
    world.settings->setHistoryLength(1000);
    world.settings->setShowMenuBar(false);
    world.settings->setIncludePointToPointInterfaces(true);
    return world;
}

using World = const ViewsWorld& (*)();

void addPanel(std::vector<Subject>& all, const char* state, World world) {
    all.push_back({QStringLiteral("Menu bar dashboard, ") + QString::fromLatin1(state), 0, [world] {
                       const ViewsWorld& its = world();
                       return std::make_unique<MenuBarDashboardView>(
                           MenuBarDashboardView::Environment{its.monitor, [] {}}, [] {});
                   }});
}

void addSettings(std::vector<Subject>& all, const char* name, World world) {
    all.push_back({QString::fromLatin1(name), 0, [world] {
                       const ViewsWorld& its = world();
                       return std::make_unique<SettingsView>(SettingsView::Environment{
                           its.settings, its.machine, its.metadata, [] {}});
                   }});
}

}  // namespace

void addViews(std::vector<Subject>& all) {
    addPanel(all, "waiting", waitingWorld);
    addPanel(all, "live", liveWorld);
    addPanel(all, "paused", pausedWorld);
    addSettings(all, "Settings", waitingWorld);
    addSettings(all, "Settings, with values that are not on offer", oddWorld);
    addSettings(all, "Settings, on an older system", oldWorld);
    all.push_back({QStringLiteral("Help"), 0, [] {
                       SimulatedMachine& machine = *waitingWorld().machine;
                       return std::make_unique<HelpView>(machine.processInfo(), machine.words());
                   }});
}

}  // namespace vantor
