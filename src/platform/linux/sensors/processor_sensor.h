#pragma once

#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "platform/linux/files/small_file.h"

namespace vantor {

/// One temperature sensor, its files opened at the first reading and kept open. Any thread.
class ProcessorSensor {
  public:
    struct Paths {
        std::filesystem::path input;   ///< thousandths of a degree Celsius
        std::filesystem::path fault;   ///< "1" while the sensor is broken; empty: has none
        std::filesystem::path enable;  ///< "0" while the sensor is off; empty: has none
    };

    ProcessorSensor(std::string name, Paths paths)
        : name_(std::move(name)), paths_(std::move(paths)) {}

    /// The driver and its label for the sensor, where it has one.
    const std::string& name() const { return name_; }

    /// Degrees Celsius; absent when it cannot be read now, says that it is broken or off, or tells
    /// what no working processor has.
    std::optional<double> read() const;

  private:
    struct Files {
        SmallFile input;
        std::optional<SmallFile> fault;
        std::optional<SmallFile> enable;
    };

    const Files& files() const;

    std::string name_;
    Paths paths_;
    mutable std::once_flag opening_;
    mutable std::optional<Files> files_;
};

}  // namespace vantor
