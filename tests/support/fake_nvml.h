#pragma once

namespace vantor {

/// What the made-up NVML answers, and what it has been asked. One for each library that is built of
/// fake_nvml.cpp; its function fakeNVML hands it out.
struct FakeNVML {
    int initResult = 0;
    int handleResult = 0;
    int utilizationResult = 0;
    int memoryResult = 0;
    int temperatureResult = 0;
    int nameResult = 0;

    unsigned utilization = 42;
    unsigned long long memoryTotal = 8589934592;
    unsigned long long memoryUsed = 1073741824;
    unsigned temperature = 55;
    const char* name = "NVIDIA GeForce RTX 3070";

    int inits = 0;
    int shutdowns = 0;
    int handles = 0;
    int questions = 0;       ///< about a device
    int strayQuestions = 0;  ///< when it was not initialised
    char lastAddress[32] = {};
    int device = 0;  ///< its place is what stands for the device
};

}  // namespace vantor
