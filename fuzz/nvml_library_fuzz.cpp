#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <string>

#include "platform/linux/graphics/nvml_library.h"

#include "require.h"

/// A driver's library that says anything at all. It is this program itself: an empty name loads
/// that, and it exports the functions.
namespace {

using vantor::fuzz::require;

struct LyingLibrary {
    FuzzedDataProvider* input = nullptr;
    int open = 0;  ///< times that it was initialised and not yet shut down
    std::set<void*> devices;

    int result() { return input->ConsumeBool() ? 0 : input->ConsumeIntegralInRange(-2, 1000); }
    void expectQuestion(void* device) const { require(open == 1 && devices.contains(device)); }
};

/// The functions have no argument to find it by.
LyingLibrary& library() {
    static LyingLibrary one;
    return one;
}

void judge(const vantor::GraphicsLibrary::Answer& answer) {
    const auto& figures = answer.figures;
    require(!figures.utilization || (*figures.utilization >= 0 && *figures.utilization <= 100));
    require(!figures.temperature || (*figures.temperature >= 0 && *figures.temperature <= 250));
    require(figures.memoryUsed.has_value() == figures.memoryTotal.has_value());
    if (figures.memoryTotal) require(*figures.memoryTotal > 0);
    if (figures.memoryTotal) require(*figures.memoryUsed <= *figures.memoryTotal);
    if (answer.name) require(!answer.name->empty() && answer.name->size() < 128);
}

}  // namespace

extern "C" {

int nvmlInit_v2() {
    require(library().open == 0);
    const int result = library().result();
    if (result == 0) library().open = 1;
    return result;
}

int nvmlShutdown() {
    require(library().open == 1);
    library().open = 0;
    library().devices.clear();
    return library().result();
}

int nvmlDeviceGetHandleByPciBusId_v2(const char* address, void** device) {
    require(library().open == 1 && std::strlen(address) >= 12);
    // None at all is an answer too, with any result.
    const auto place = library().input->ConsumeIntegralInRange<std::uintptr_t>(0, 3);
    *device = reinterpret_cast<void*>(place);
    const int result = library().result();
    if (result == 0) library().devices.insert(*device);
    return result;
}

int nvmlDeviceGetUtilizationRates(void* device, unsigned* percent) {
    library().expectQuestion(device);
    percent[0] = library().input->ConsumeIntegral<unsigned>();
    if (library().input->ConsumeBool()) percent[0] %= 128;
    percent[1] = library().input->ConsumeIntegral<unsigned>();
    return library().result();
}

int nvmlDeviceGetMemoryInfo(void* device, unsigned long long* bytes) {
    library().expectQuestion(device);
    for (int i = 0; i < 3; ++i)
        bytes[i] = library().input->ConsumeIntegral<unsigned long long>();
    return library().result();
}

int nvmlDeviceGetTemperature(void* device, int, unsigned* celsius) {
    library().expectQuestion(device);
    *celsius = library().input->ConsumeIntegral<unsigned>();
    if (library().input->ConsumeBool()) *celsius %= 300;
    return library().result();
}

/// Fills all that it is given, without an end.
int nvmlDeviceGetName(void* device, char* buffer, unsigned length) {
    library().expectQuestion(device);
    const std::string name = library().input->ConsumeRandomLengthString(length);
    std::copy(name.begin(), name.end(), buffer);
    return library().result();
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    FuzzedDataProvider input(data, size);
    library() = {&input, 0, {}};
    {
        const auto graphics = makeNVMLLibrary("");
        // A library that failed is left alone for 60 calls.
        for (int i = 0; i < 300 && input.remaining_bytes() > 0; ++i) {
            const auto what = input.ConsumeIntegralInRange(0, 7);
            if (what == 0) graphics->close();
            if (what <= 2) require(graphics->open() == (library().open == 1));
            if (what > 2) judge(graphics->ask({0, 1, static_cast<std::uint8_t>(what), 0}));
        }
    }
    require(library().open == 0);
    // And one that is not there.
    const auto missing = makeNVMLLibrary("/nowhere/libnvidia-ml.so.1");
    require(!missing->open() && !missing->open());
    return 0;
}

}  // extern "C"
