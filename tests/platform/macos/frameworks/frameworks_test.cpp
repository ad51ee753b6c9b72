#include "platform/macos/frameworks/frameworks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <memory>
#include <set>
#include <string>

namespace vantor::frameworks_test {
namespace {

using testing::Contains;
using testing::IsEmpty;

/// Libraries that are not there, with a symbol for whatever is asked for.
struct FakeLibraries {
    std::set<std::string> missingLibraries;
    std::set<std::string> missingSymbols;
    std::map<std::string, std::unique_ptr<std::uintptr_t>> symbols;
    std::map<std::string, std::string> libraryOfSymbol;
    std::map<std::string, int> searches;  ///< by symbol
    std::set<std::string> opened;         ///< and not closed
};

FakeLibraries* fake = nullptr;

LibraryLoader fakeLoader() {
    return {[](const char* path) -> void* {
                if (fake->missingLibraries.contains(path)) return nullptr;
                return const_cast<std::string*>(&*fake->opened.insert(path).first);
            },
            [](void* library) { fake->opened.erase(*static_cast<std::string*>(library)); },
            [](void* library, const char* symbol) -> void* {
                if (fake->missingSymbols.contains(symbol)) return nullptr;
                ++fake->searches[symbol];
                fake->libraryOfSymbol[symbol] = *static_cast<std::string*>(library);
                auto& place = fake->symbols[symbol];
                if (!place) place = std::make_unique<std::uintptr_t>(fake->symbols.size());
                return place.get();
            }};
}

class FrameworksTest : public testing::Test {
  protected:
    FrameworksTest() { fake = &libraries; }
    ~FrameworksTest() override { fake = nullptr; }

    template <class Function>
    std::string nameOf(Function* function) const {
        for (const auto& [name, place] : libraries.symbols) {
            if (reinterpret_cast<const void*>(function) == place.get()) return name;
        }
        return "";
    }
    /// The value of a constant.
    std::uintptr_t valueOf(const std::string& name) const { return *libraries.symbols.at(name); }

    FakeLibraries libraries;
};

TEST_F(FrameworksTest, FindsFunctionsByTheirNames) {
    const auto found = loadFrameworks(fakeLoader());
    EXPECT_EQ(nameOf(found->coreFoundation.release), "CFRelease");
    EXPECT_EQ(nameOf(found->coreFoundation.stringGetBytes), "CFStringGetBytes");
    EXPECT_EQ(nameOf(found->coreFoundation.dictionaryGetKeysAndValues),
              "CFDictionaryGetKeysAndValues");
    EXPECT_EQ(nameOf(found->systemConfiguration.dynamicStoreCopyValue), "SCDynamicStoreCopyValue");
    EXPECT_EQ(nameOf(found->ioKit.connectCallStructMethod), "IOConnectCallStructMethod");
    EXPECT_EQ(nameOf(found->ioKit.copyPowerSourcesInfo), "IOPSCopyPowerSourcesInfo");
    EXPECT_EQ(nameOf(found->metal.createSystemDefaultDevice), "MTLCreateSystemDefaultDevice");
    EXPECT_EQ(nameOf(found->objectiveC.sendDouble), "objc_msgSend");
#if defined(__x86_64__)
    EXPECT_EQ(nameOf(found->objectiveC.sendVersion), "objc_msgSend_stret");
#else
    EXPECT_EQ(nameOf(found->objectiveC.sendVersion), "objc_msgSend");
#endif
}

TEST_F(FrameworksTest, TakesTheValuesOfConstantsAndTheAddressesOfCallbacks) {
    const auto found = loadFrameworks(fakeLoader());
    const CoreFoundationTable& cf = found->coreFoundation;
    const std::map<std::string, CFTypeRef> texts{
        {"kCFURLVolumeIsLocalKey", cf.volumeIsLocalKey},
        {"kCFURLVolumeIsBrowsableKey", cf.volumeIsBrowsableKey},
        {"kCFURLVolumeNameKey", cf.volumeNameKey},
        {"kCFURLVolumeTotalCapacityKey", cf.volumeTotalCapacityKey},
        {"kCFURLVolumeAvailableCapacityKey", cf.volumeAvailableCapacityKey},
        {"kCFURLVolumeIsInternalKey", cf.volumeIsInternalKey},
        {"kCFURLVolumeIsRemovableKey", cf.volumeIsRemovableKey},
        {"kCFURLVolumeIsReadOnlyKey", cf.volumeIsReadOnlyKey}};
    for (const auto& [name, text] : texts)
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(text), valueOf(name)) << name;
    EXPECT_EQ(found->coreFoundation.arrayCallBacks,
              libraries.symbols.at("kCFTypeArrayCallBacks").get());
    EXPECT_EQ(found->mainPort, valueOf("kIOMainPortDefault"));
    EXPECT_EQ(found->task, valueOf("mach_task_self_"));
}

TEST_F(FrameworksTest, LeavesNothingUnfound) {
    const auto found = loadFrameworks(fakeLoader());
    const auto expectWhole = [](const auto& table) {
        for (std::size_t i = 0; i < sizeof table / sizeof(void*); ++i) {
            const void* entry = nullptr;
            std::memcpy(&entry, reinterpret_cast<const std::byte*>(&table) + i * sizeof entry,
                        sizeof entry);
            EXPECT_TRUE(entry) << i;
        }
    };
    expectWhole(found->coreFoundation);
    expectWhole(found->systemConfiguration);
    expectWhole(found->ioKit);
    expectWhole(found->metal);
    expectWhole(found->objectiveC);
}

TEST_F(FrameworksTest, SeeksEachSymbolInItsFramework) {
    loadFrameworks(fakeLoader());
    for (const auto& [symbol, library] : libraries.libraryOfSymbol) {
        const std::string prefix = symbol.substr(0, 2);
        const std::string expected = prefix == "CF" || prefix == "kC"   ? "CoreFoundation"
                                     : prefix == "SC"                   ? "SystemConfiguration"
                                     : prefix == "IO" || prefix == "kI" ? "IOKit"
                                     : prefix == "MT"                   ? "Metal"
                                     : symbol == "mach_task_self_"      ? "libSystem.B.dylib"
                                                                        : "libobjc.A.dylib";
        EXPECT_EQ(library.substr(library.rfind('/') + 1), expected) << symbol;
    }
}

TEST_F(FrameworksTest, SeeksNoSymbolTwice) {
    loadFrameworks(fakeLoader());
    for (const auto& [symbol, times] : libraries.searches) {
        // That one is found under several types.
        if (symbol == "objc_msgSend") continue;
        EXPECT_EQ(times, 1) << symbol;
    }
}

TEST_F(FrameworksTest, KeepsTheLibrariesAsLongAsTheFunctions) {
    {
        const auto found = loadFrameworks(fakeLoader());
        EXPECT_THAT(libraries.opened,
                    Contains("/System/Library/Frameworks/Foundation.framework/Foundation"));
        EXPECT_THAT(libraries.opened,
                    Contains("/System/Library/Frameworks/CoreGraphics.framework/CoreGraphics"));
        EXPECT_EQ(libraries.opened.size(), 8u);
    }
    EXPECT_THAT(libraries.opened, IsEmpty());
}

TEST_F(FrameworksTest, LosesNothingButWhatIsMissing) {
    libraries.missingLibraries = {"/System/Library/Frameworks/Metal.framework/Metal"};
    libraries.missingSymbols = {"kIOMainPortDefault", "mach_task_self_", "CFDataGetLength",
                                "kCFURLVolumeIsInternalKey", "kCFTypeArrayCallBacks"};
    const auto found = loadFrameworks(fakeLoader());
    EXPECT_FALSE(found->metal.copyAllDevices);
    EXPECT_FALSE(found->metal.createSystemDefaultDevice);
    EXPECT_EQ(found->mainPort, 0u);
    EXPECT_EQ(found->task, 0u);
    EXPECT_FALSE(found->coreFoundation.dataGetLength);
    EXPECT_FALSE(found->coreFoundation.volumeIsInternalKey);
    EXPECT_FALSE(found->coreFoundation.arrayCallBacks);
    EXPECT_TRUE(found->coreFoundation.dataGetBytePtr);
    EXPECT_TRUE(found->coreFoundation.volumeIsRemovableKey);
}

TEST_F(FrameworksTest, LoadsOnAnySystem) {
    ASSERT_TRUE(loadFrameworks());
}

TEST_F(FrameworksTest, ClosesALibraryOnce) {
    LoadedFramework first(fakeLoader(), "/first");
    LoadedFramework second(fakeLoader(), "/second");
    EXPECT_TRUE(first.find("anything"));
    second = std::move(first);
    EXPECT_EQ(libraries.opened, std::set<std::string>{"/first"});
    LoadedFramework third = std::move(second);
    EXPECT_FALSE(second);  // NOLINT(bugprone-use-after-move): that is what is tested
    EXPECT_EQ(second.find("anything"), nullptr);
    EXPECT_EQ(second.findConstant("anything"), nullptr);
    EXPECT_EQ(libraries.opened, std::set<std::string>{"/first"});
    third = LoadedFramework(fakeLoader(), "/third");
    EXPECT_EQ(libraries.opened, std::set<std::string>{"/third"});
}

}  // namespace
}  // namespace vantor::frameworks_test
