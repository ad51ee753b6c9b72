#include "support/fake_nvml.h"

#include <cstring>

/// A library with the functions of NVML that are asked for, built as a file to be loaded. With
/// FAKE_NVML_OLD it lacks all that may be missing, with FAKE_NVML_USELESS what may not, and with
/// one of the others a single function.

namespace {

vantor::FakeNVML state;

int answer(int result) {
    ++state.questions;
    if (state.inits <= state.shutdowns) ++state.strayQuestions;
    return result;
}

}  // namespace

extern "C" {

struct FakeUtilization {
    unsigned chip, memory;
};
struct FakeMemory {
    unsigned long long total, free, used;
};

vantor::FakeNVML* fakeNVML();
int nvmlInit_v2();
int nvmlInit();
int nvmlShutdown();
int nvmlDeviceGetHandleByPciBusId_v2(const char* address, void** found);
int nvmlDeviceGetUtilizationRates(void*, FakeUtilization* utilization);
int nvmlDeviceGetMemoryInfo(void*, FakeMemory* memory);
int nvmlDeviceGetTemperature(void*, int sensor, unsigned* celsius);
int nvmlDeviceGetName(void*, char* buffer, unsigned length);

vantor::FakeNVML* fakeNVML() {
    return &state;
}

/// The old one wakes all devices.
int nvmlInit() {
    state.strayQuestions += 1000;
    return 0;
}

#ifndef FAKE_NVML_USELESS
int nvmlInit_v2() {
    if (state.initResult == 0) ++state.inits;
    return state.initResult;
}
#endif

#ifndef FAKE_NVML_NO_SHUTDOWN
int nvmlShutdown() {
    ++state.shutdowns;
    return 0;
}
#endif

#ifndef FAKE_NVML_NO_HANDLE
int nvmlDeviceGetHandleByPciBusId_v2(const char* address, void** found) {
    ++state.handles;
    std::strncpy(state.lastAddress, address, sizeof state.lastAddress - 1);
    *found = &state.device;
    return answer(state.handleResult);
}
#endif

#ifndef FAKE_NVML_NO_UTILIZATION
int nvmlDeviceGetUtilizationRates(void*, FakeUtilization* utilization) {
    utilization->chip = state.utilization;
    utilization->memory = 99;
    return answer(state.utilizationResult);
}
#endif

#ifndef FAKE_NVML_OLD
int nvmlDeviceGetMemoryInfo(void*, FakeMemory* memory) {
    *memory = {state.memoryTotal, 0, state.memoryUsed};
    return answer(state.memoryResult);
}

int nvmlDeviceGetTemperature(void*, int sensor, unsigned* celsius) {
    *celsius = sensor == 0 ? state.temperature : 9999;
    return answer(state.temperatureResult);
}

int nvmlDeviceGetName(void*, char* buffer, unsigned length) {
    std::strncpy(buffer, state.name, length);
    return answer(state.nameResult);
}
#endif
}
