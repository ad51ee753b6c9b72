#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <vector>

#include "ui/dashboard_world.h"

namespace vantor {

/// A simulated machine that is at work: load, traffic and processes go up and down by fixed curves,
/// so that every run draws the same pictures.
class LivedMachine {
  public:
    LivedMachine(QString name, std::shared_ptr<SimulatedMachine> machine,
                 std::shared_ptr<FakeClock> clock);

    const QString& name() const { return name_; }
    const std::shared_ptr<SimulatedMachine>& machine() const { return machine_; }
    const std::shared_ptr<FakeClock>& clock() const { return clock_; }

    /// Half a second of its life, number `step`.
    void live(int step);

  private:
    QString name_;
    std::shared_ptr<SimulatedMachine> machine_;
    std::shared_ptr<FakeClock> clock_;
};

/// The machines that there are pictures of.
std::vector<LivedMachine> livedMachines();

/// A dashboard on a machine after `steps` of its life; 0 shows what waits for readings.
class LivedDashboard {
  public:
    /// What is shown, and what makes half a second of its life.
    struct Life {
        QString name;
        std::shared_ptr<Machine> machine;
        std::shared_ptr<FakeClock> clock;
        std::function<void(int step)> live;
    };

    LivedDashboard(Life life, ColorScheme scheme, int steps);
    LivedDashboard(LivedMachine machine, ColorScheme scheme, int steps);

    const QString& name() const { return life_.name; }
    DashboardView& view() { return *world_.view; }

    /// How high the view must be to show everything.
    int wholeHeight(int width);

  private:
    Life life_;
    DashboardWorld world_;
};

}  // namespace vantor
