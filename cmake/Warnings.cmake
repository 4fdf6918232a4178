# Project code is warning-free; third-party code (GoogleTest built from source) is not held to it.
add_library(quorvane_warnings INTERFACE)
target_compile_options(quorvane_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Werror
    -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
    # GCC 12 at -O2 and above reports impossible overlaps inside std::string's own operator+
    # (GCC bug 105329), which would fail every release build of ordinary string code.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
