# Project code is warning-free; third-party code (GoogleTest built from source) is not held to it.
add_library(quorvane_warnings INTERFACE)
target_compile_options(quorvane_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Werror
    -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
