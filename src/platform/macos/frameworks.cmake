# What answers from the system's frameworks. These are found at run time, so the sources build on
# every system: on a Mac they are part of the core, elsewhere of their tests alone, which run them
# on a stand-in for the frameworks.
set(vantor_macos_frameworks
    frameworks.cpp
    library_loader.cpp
    mac_accelerators.cpp
    mac_dynamic_store.cpp
    mac_foundation_info.cpp
    mac_graphics_devices.cpp
    mac_hid_event_system.cpp
    mac_mounted_volumes.cpp
    mac_power_sources.cpp
    mac_system_controller.cpp
    property_conversion.cpp)
list(TRANSFORM vantor_macos_frameworks PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
