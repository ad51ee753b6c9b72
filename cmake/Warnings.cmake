# One place for the warnings; every target of ours links it.
add_library(vantor_warnings INTERFACE)
target_compile_options(vantor_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion)
# Among the sources of a batch a local variable would shadow whatever another file keeps to itself.
# The build without batches asks.
if(NOT CMAKE_UNITY_BUILD)
    target_compile_options(vantor_warnings INTERFACE -Wshadow)
endif()
if(VANTOR_STRICT)
    target_compile_options(vantor_warnings INTERFACE -Werror)
endif()
