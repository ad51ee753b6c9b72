# One place for the warnings; every target of ours links it.
add_library(vantor_warnings INTERFACE)
target_compile_options(vantor_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(VANTOR_STRICT)
    target_compile_options(vantor_warnings INTERFACE -Werror)
endif()
