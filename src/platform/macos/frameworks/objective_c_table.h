#pragma once

#include <cstdint>

namespace vantor {

/// The functions of the Objective-C runtime that are used, each null where it was not found.
struct ObjectiveCTable {
    using Object = const void*;    ///< an instance or a class; null is none
    using Selector = const void*;  ///< the registered name of a method
    /// BOOL, which is a signed char on one kind of Mac and a truth value on the other: both fill
    /// the lowest byte with 0 or 1.
    using Truth = signed char;
    /// NSOperatingSystemVersion.
    struct Version {
        long major = 0;
        long minor = 0;
        long patch = 0;
    };

    Object (*getClass)(const char* name) = nullptr;
    Selector (*registerName)(const char* name) = nullptr;
    void* (*autoreleasePoolPush)() = nullptr;
    void (*autoreleasePoolPop)(void* pool) = nullptr;
    void (*release)(Object) = nullptr;

    // objc_msgSend under the type of the method that it is to call, by what that gives.
    Object (*sendObject)(Object, Selector) = nullptr;
    Truth (*sendTruth)(Object, Selector) = nullptr;
    Truth (*sendTruthOfSelector)(Object, Selector, Selector) = nullptr;
    std::int64_t (*sendInteger)(Object, Selector) = nullptr;
    std::uint64_t (*sendUnsigned)(Object, Selector) = nullptr;
    double (*sendDouble)(Object, Selector) = nullptr;
    /// On Intel by objc_msgSend_stret: the structure is larger than two registers.
    Version (*sendVersion)(Object, Selector) = nullptr;
};

}  // namespace vantor
