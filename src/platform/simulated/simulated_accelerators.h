#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/accelerators.h"

namespace vantor {

/// Accelerator services by script. Set the members before the call that is to see them; nothing
/// locks.
class SimulatedAccelerators : public Accelerators {
  public:
    struct RawEntry;
    /// A driver's dictionary, whose keys need not be texts.
    using RawDictionary = std::vector<RawEntry>;
    struct RawEntry {
        std::optional<std::string> key;  ///< absent for a key that is no text
        std::variant<PropertyValue, RawDictionary> value;
    };

    struct Service {
        std::optional<std::uint64_t> registryEntryID;  ///< absent: it cannot be read
        std::optional<PropertyValue> model;
        std::optional<RawDictionary> statistics;
        /// In place of the dictionary: a driver may publish anything under that name.
        std::optional<PropertyValue> otherStatistics;
    };

    std::vector<Service> services;
    bool lookupFails = false;

    /// Runs at the start of matchingServices; may block for ever.
    std::function<void()> onLookup;

    int lookups = 0;
    int strayReleases = 0;  ///< of objects that were not, or no longer, handed out

    /// Iterators and services that were handed out and not given back.
    std::size_t objectsOutstanding() const { return handedOut_.size(); }

    std::optional<Object> matchingServices() override;
    Object iteratorNext(Object iterator) override;
    const PropertyValue* property(Object service, std::string_view key) override;
    std::optional<std::uint64_t> registryEntryID(Object service) override;
    void release(Object object) override;

  private:
    struct Iterator {
        std::vector<Service> services;
        std::size_t next = 0;
    };

    Object handOut(std::variant<Iterator, Service> object);
    /// Null when that is no service that is handed out.
    const Service* find(Object service) const;

    std::map<Object, std::variant<Iterator, Service>> handedOut_;
    Object lastObject_ = 0;
    std::optional<PropertyValue> answered_;  ///< what property() refers to
};

}  // namespace vantor
