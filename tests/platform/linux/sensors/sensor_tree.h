#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "support/fake_kernel_tree.h"

namespace vantor {

/// A made-up machine's sensors.
struct SensorTree {
    FakeKernelTree tree;

    void monitor(int number, const std::string& driver) const {
        tree.sys(folder(number) + "name", driver + '\n');
    }
    void sensor(int monitor, int number, const std::string& label, const std::string& input) const {
        const std::string stem = folder(monitor) + "temp" + std::to_string(number);
        if (!label.empty()) tree.sys(stem + "_label", label + '\n');
        tree.sys(stem + "_input", input);
    }
    void attribute(int monitor, const std::string& name, const std::string& content) const {
        tree.sys(folder(monitor) + name, content);
    }
    void removeMonitor(int number) const { tree.removeSys(folder(number)); }

    /// Puts something else in the place of a sensor's value.
    std::filesystem::path inputPath(int monitor, int number) const {
        return tree.roots().sys / folder(monitor) / ("temp" + std::to_string(number) + "_input");
    }

    void zone(int number, const std::string& type, const std::string& temperature) const {
        const std::string place = "class/thermal/thermal_zone" + std::to_string(number) + '/';
        tree.sys(place + "type", type + '\n');
        tree.sys(place + "temp", temperature);
    }

  private:
    static std::string folder(int monitor) {
        return "class/hwmon/hwmon" + std::to_string(monitor) + '/';
    }
};

}  // namespace vantor
