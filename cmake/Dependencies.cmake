# Test and benchmark dependencies only; the program itself needs nothing beyond the standard library.

if(QUORVANE_BUILD_TESTS)
    if(QUORVANE_GTEST_FROM_SOURCE)
        set(QUORVANE_GTEST_SOURCE_DIR "/usr/src/googletest" CACHE PATH "GoogleTest sources")
        if(NOT EXISTS "${QUORVANE_GTEST_SOURCE_DIR}/CMakeLists.txt")
            message(FATAL_ERROR
                "GoogleTest sources not found in ${QUORVANE_GTEST_SOURCE_DIR}. "
                "Install the Debian package 'googletest' (apt-get install googletest) "
                "or set QUORVANE_GTEST_SOURCE_DIR.")
        endif()
        set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
        set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
        add_subdirectory("${QUORVANE_GTEST_SOURCE_DIR}" "${CMAKE_BINARY_DIR}/_deps/googletest"
                         EXCLUDE_FROM_ALL SYSTEM)
        # Recent GoogleTest sources define the namespaced names themselves.
        foreach(name gtest gtest_main gmock)
            if(NOT TARGET GTest::${name})
                add_library(GTest::${name} ALIAS ${name})
            endif()
        endforeach()
    else()
        find_package(GTest CONFIG QUIET)
        if(NOT GTest_FOUND)
            find_package(GTest QUIET)
        endif()
        if(NOT TARGET GTest::gtest OR NOT TARGET GTest::gtest_main OR NOT TARGET GTest::gmock)
            message(FATAL_ERROR
                "GoogleTest was not found. Install it: on Debian or Ubuntu "
                "'apt-get install libgtest-dev libgmock-dev googletest', on macOS 'brew install googletest'. "
                "Or configure with -DQUORVANE_BUILD_TESTS=OFF.")
        endif()
    endif()
    include(GoogleTest)
endif()

if(QUORVANE_BUILD_BENCH)
    find_package(benchmark CONFIG QUIET)
    if(NOT TARGET benchmark::benchmark)
        message(FATAL_ERROR
            "Google Benchmark was not found. Install it: on Debian or Ubuntu "
            "'apt-get install libbenchmark-dev', on macOS 'brew install google-benchmark'. "
            "Or configure with -DQUORVANE_BUILD_BENCH=OFF.")
    endif()
endif()
