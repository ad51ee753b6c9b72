#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "platform/kernel_values.h"

namespace vantor {

/// Kernel values by script: name and bytes, with failures and values that grow between the calls.
/// The call may come from several threads at once; everything else is for before and after.
class SimulatedKernelValues : public KernelValues {
  public:
    void setText(const std::string& name, std::string_view text);  ///< a zero byte is added
    void setInt32(const std::string& name, std::int32_t value);
    void setUInt64(const std::string& name, std::uint64_t value);
    void setBytes(const std::string& name, std::vector<std::byte> bytes);
    void remove(const std::string& name) { values_.erase(name); }

    /// The next calls for this name answer these errno values in turn (0 = as usual).
    void failNext(const std::string& name, std::deque<int> errors);

    /// After each of the next `times` questions for the size, the value grows by `bytes`.
    void growAfterSizeQuestion(const std::string& name, std::size_t bytes, int times);

    /// Reads of the value itself, size questions left out.
    int valueReads(const std::string& name) const;

    int sysctlbyname(const std::string& name, std::span<std::byte> buffer,
                     std::size_t& size) override;

  private:
    struct Value {
        std::vector<std::byte> bytes;
        std::deque<int> errors;
        std::size_t growth = 0;
        int growths = 0;
        int reads = 0;
    };
    std::mutex lock_;  // of the values, during a call
    std::map<std::string, Value> values_;
};

}  // namespace vantor
