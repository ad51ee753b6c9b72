#include <type_traits>

#include "platform/macos/mac_machine.h"

// Proof, by the compiler, that this adapter answers the very list of calls that a machine has.
//
// All calls of a machine, and of what it hands out, are pure (a test reads the headers for that):
// whatever is left out makes a class abstract, and nothing can fall back to a default. What is left
// to prove is that no class in between answers in this one's place.
namespace vantor {

namespace {

template <class Call>
struct CallOf;
template <class Answer, class Declaring>
struct CallOf<Answer (Declaring::*)()> {
    using Class = Declaring;
};
template <class Answer, class Declaring>
struct CallOf<Answer (Declaring::*)() const> {
    using Class = Declaring;
};

/// A call that is only inherited belongs to the class that it is inherited from.
template <class Class, auto... calls>
constexpr bool answersItself = (std::is_same_v<typename CallOf<decltype(calls)>::Class, Class> &&
                                ...);

template <class Interface, class Answering>
constexpr bool answers = std::is_abstract_v<Interface> && !std::is_abstract_v<Answering> &&
                         std::is_base_of_v<Interface, Answering>;

}  // namespace

static_assert(answers<Machine, MacMachine> && std::is_final_v<MacMachine>);
static_assert(answersItself<MacMachine, &MacMachine::accelerators, &MacMachine::graphicsDevices,
                            &MacMachine::hostMemory, &MacMachine::hostProcessors,
                            &MacMachine::kernelValues, &MacMachine::loadAverages,
                            &MacMachine::mountedVolumes, &MacMachine::networkInterfaces,
                            &MacMachine::powerSources, &MacMachine::primaryInterface,
                            &MacMachine::processInfo, &MacMachine::processTable,
                            &MacMachine::temperatures, &MacMachine::wallClock, &MacMachine::words>);

static_assert(answers<Accelerators, MacAccelerators>);
static_assert(answers<GraphicsDevices, MacGraphicsDevices>);
static_assert(answers<HostMemory, MacHostMemory>);
static_assert(answers<HostProcessors, MacHostProcessors>);
static_assert(answers<KernelValues, MacKernelValues>);
static_assert(answers<LoadAverages, MacLoadAverages>);
static_assert(answers<MountedVolumes, MacMountedVolumes>);
static_assert(answers<NetworkInterfaces, DarwinNetworkInterfaces>);
static_assert(answers<PowerSources, MacPowerSources>);
static_assert(answers<PrimaryInterface, DarwinPrimaryInterface>);
static_assert(answers<ProcessInfo, MacProcessInfo>);
static_assert(answers<ProcessTable, MacProcessTable>);
static_assert(answers<Temperatures, DarwinTemperatures>);
static_assert(answers<WallClock, SystemWallClock>);

// And the calls that the last of these are read by.
static_assert(answers<DynamicStore, MacDynamicStore>);
static_assert(answers<HIDEventSystem, MacHIDEventSystem>);
static_assert(answers<InterfaceCalls, MacInterfaceCalls>);
static_assert(answers<SystemController, MacSystemController>);

}  // namespace vantor
