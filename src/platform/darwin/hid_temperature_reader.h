#pragma once

#include <limits>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/darwin/hid_event_system.h"
#include "platform/process_info.h"

namespace vantor {

/// Lists the temperature sensors of the event system, at most four times a second however many
/// callers there are.
///
/// Any thread, several at once: one of them lists, the others get the list before at once. The lock
/// is never held while the platform is asked.
class HIDTemperatureReader {
  public:
    struct Reading {
        std::string normalizedName;  ///< the sensor's product name, lower-cased
        double value = 0;            ///< degrees Celsius as reported: any number, also none

        bool operator==(const Reading&) const = default;
    };
    using Readings = std::shared_ptr<const std::vector<Reading>>;  ///< never null

    HIDTemperatureReader(HIDEventSystem& system, const ProcessInfo& processInfo);

    /// The sensors in the system's order; empty when they cannot be listed.
    Readings readings();

  private:
    /// The functions of the system's library, found once.
    class HIDAPI {
      public:
        explicit HIDAPI(HIDEventSystem& system) : system_(system) {}

        /// Null when the library or one of them is missing.
        const HIDEventSystem::Functions* functions();

      private:
        class LibraryHandle {
          public:
            explicit LibraryHandle(HIDEventSystem& system);
            LibraryHandle(const LibraryHandle&) = delete;
            LibraryHandle& operator=(const LibraryHandle&) = delete;
            ~LibraryHandle();

            std::optional<void*> rawValue;

          private:
            HIDEventSystem& system_;
        };

        HIDEventSystem& system_;
        std::optional<LibraryHandle> library_;
        HIDEventSystem::Functions functions_;
        bool isComplete_ = false;
    };
    struct ReadingsCache {
        std::mutex lock;
        double lastReadUptime = -std::numeric_limits<double>::max();
        Readings cached = std::make_shared<const std::vector<Reading>>();
        bool loadInProgress = false;
    };

    std::vector<Reading> loadReadings();
    std::optional<Reading> readSensor(const HIDEventSystem::Functions& functions,
                                      HIDEventSystem::Object service);

    HIDEventSystem& system_;
    const ProcessInfo& processInfo_;
    ReadingsCache cache_;
    // Touched only by the caller that has the load in progress.
    HIDAPI api_;
    std::vector<HIDEventSystem::Object> services_;
};

}  // namespace vantor
