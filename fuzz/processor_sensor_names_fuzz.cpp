#include <string>

#include "platform/linux/sensors/processor_sensor_names.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    using Part = ProcessorSensorRole::Part;
    const std::string_view text = fuzz::textOf(data, size);
    // The driver, a line's end, and the label.
    const auto lineEnd = text.find('\n');
    const std::string_view driver = text.substr(0, lineEnd);
    const std::string_view label = lineEnd == text.npos ? "" : text.substr(lineEnd + 1);
    const auto role = processorSensorRole(driver, label);
    if (role) {
        require(isProcessorMonitor(driver));
        const std::string number = std::to_string(role->core);
        require(role->part != Part::core || label.find(number) != label.npos);
        require(role->part == Part::core || role->core == 0);
    }
    const bool isZone = isProcessorZone(driver);
    require(!isZone || !isProcessorMonitor(driver));
    const auto number = temperatureInputNumber(text);
    require(!number || text.find(std::to_string(*number)) != text.npos);
    return 0;
}
