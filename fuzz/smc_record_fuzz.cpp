#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "platform/darwin/smc_record.h"
#include "platform/darwin/smc_temperature_reader.h"
#include "platform/darwin/smc_value.h"

#include "require.h"

namespace {

using vantor::SMCRecord;
using vantor::fuzz::require;

bool isPlausible(std::optional<double> value) {
    return !value || (std::isfinite(*value) && *value > -20 && *value < 150);
}

/// A controller that answers each call with the next bytes of the input: a byte for the error, one
/// for the length that it tells, and the record as far as there is one.
class AnyController : public vantor::SystemController {
  public:
    explicit AnyController(std::span<const std::uint8_t> answers) : answers_(answers) {}

    Service matchingService() override { return 1; }
    void release(Service) override {}
    Connection open(Service) override { return 1; }
    void close(Connection) override {}
    int callStructMethod(Connection, std::uint32_t, std::span<const std::byte> request,
                         std::span<std::byte> response, std::size_t& responseSize) override {
        require(request.size() == SMCRecord::size && response.size() == SMCRecord::size);
        const int error = next() == 1 ? 1 : 0;
        const std::uint8_t length = next();
        responseSize = length < 0xF0 ? SMCRecord::size : length - 0xF0U + 44U;
        const std::size_t count = std::min(answers_.size(), response.size());
        std::copy_n(std::as_bytes(answers_).begin(), count, response.begin());
        answers_ = answers_.subspan(count);
        return error;
    }

  private:
    std::uint8_t next() {
        if (answers_.empty()) return 0;
        const std::uint8_t byte = answers_.front();
        answers_ = answers_.subspan(1);
        return byte;
    }

    std::span<const std::uint8_t> answers_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span input(data, size);
    if (size >= SMCRecord::size) {
        SMCRecord record;
        std::copy_n(std::as_bytes(input).begin(), SMCRecord::size, record.bytes().begin());
        for (std::size_t bytes = 0; bytes <= SMCRecord::valueSize; ++bytes) {
            const auto value =
                vantor::smcTemperature(record.dataType(), record.value().first(bytes));
            require(isPlausible(value));
            require(!value || bytes >= 2);
        }
        const std::uint32_t key = record.key();
        record.setKey(key);
        require(
            std::equal(record.bytes().begin(), record.bytes().end(), std::as_bytes(input).begin()));
    }
    AnyController controller(input);
    vantor::SMCTemperatureReader reader(controller);
    constexpr std::array<std::string_view, 3> keys{"Tp09", "Tp0T", "Tp09"};
    require(isPlausible(reader.readHottest(keys)));
    require(isPlausible(reader.readIntelCPU()));
    const auto text = vantor::fuzz::textOf(data, size);
    require(vantor::fourCC(text).has_value() == (size == 4));
    return 0;
}
