#pragma once

#include <chrono>
#include <string>
#include <type_traits>

#include "model/record_fields.h"

/// Records with every field set, no two values alike and none at its default, so that a field that
/// is forgotten or taken for another shows. They follow from the tables of fields; what is written
/// of them stands in tests/documents/agreed/filled.json.
namespace vantor::filled {

/// Fills one value after the other, each with the next number.
class Filler {
  public:
    template <class T>
    void fill(T& value, const std::string& name) {
        if constexpr (isOptional<T>) {
            fill(value.emplace(), name);
        } else if constexpr (isList<T>) {
            value.resize(2);
            for (auto& element : value)
                fill(element, name);
        } else if constexpr (std::is_same_v<T, bool>) {
            value = true;
        } else if constexpr (std::is_floating_point_v<T>) {
            value = ++number_ + 0.5;
        } else if constexpr (std::is_arithmetic_v<T>) {
            value = static_cast<T>(++number_);
        } else if constexpr (std::is_same_v<T, Timestamp>) {
            using namespace std::chrono;
            value = sys_days{year{2026} / 11 / 14} + 17h + 53min + 42s;
        } else if constexpr (std::is_same_v<T, std::string> || std::is_same_v<T, SharedText>) {
            value = name + ' ' + std::to_string(++number_);
        } else {
            forEachField(value, [this](const char* field, auto& member) {
                this->fill(member, field);
                return true;
            });
        }
    }

  private:
    int number_ = 100;
};

template <class Record>
Record record() {
    Record filled{};
    Filler().fill(filled, "");
    return filled;
}

inline SystemSnapshot snapshot() {
    return record<SystemSnapshot>();
}
inline CPUStats cpu() {
    return snapshot().cpu;
}
inline NetworkInterfaceStats interface() {
    return snapshot().network.interfaces[0];
}
inline GPUStats gpu() {
    return snapshot().gpus[0];
}
inline VolumeStats volume() {
    return snapshot().volumes[0];
}
inline ProcessStats process() {
    return snapshot().processes[0];
}
inline PowerStats power() {
    return *snapshot().power;
}

}  // namespace vantor::filled
