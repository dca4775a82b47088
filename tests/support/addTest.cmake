# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
set(CMAKE_AUTOMOC ON)

# Tests are compiled once and run once: without optimisation and from precompiled headers they take half the time. The
# compiler takes such a header only where the same of these libraries are used, so all tests use the network; and not
# with the definitions that Qt6::Test brings, which hold the folder of each test.
function(use_qt_test target)
    target_link_libraries(${target} PRIVATE quillets_flags Qt6::Network $<LINK_ONLY:Qt6::Test>)
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_include_directories(${target} SYSTEM PRIVATE $<TARGET_PROPERTY:Qt6::Test,INTERFACE_INCLUDE_DIRECTORIES>)
    target_compile_definitions(${target} PRIVATE QT_TESTLIB_LIB)
    target_compile_options(${target} PRIVATE -O0)
    set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
endfunction()
add_library(quillets_tests_core OBJECT ${CMAKE_CURRENT_LIST_DIR}/pch.cpp)
target_precompile_headers(quillets_tests_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/pchCore.h)
add_library(quillets_tests_windows OBJECT ${CMAKE_CURRENT_LIST_DIR}/pch.cpp)
target_link_libraries(quillets_tests_windows PRIVATE Qt6::Widgets)
target_precompile_headers(quillets_tests_windows PRIVATE ${CMAKE_CURRENT_LIST_DIR}/pchWindows.h)
foreach(owner quillets_tests_core quillets_tests_windows)
    use_qt_test(${owner})
    set_target_properties(${owner} PROPERTIES AUTOMOC OFF)
endforeach()
set(FLOORS_WITHOUT_WINDOWS model net search transfer)

# add_quillets_test(NAME [FATAL_WARNINGS] [WINDOWS]): one executable of this folder's tests, which links the library of
# the same floor, on the platform without a screen. With FATAL_WARNINGS any warning of Qt's ends it; tests that allow
# some say which by `failOnWarnings`. WINDOWS is said where the floor has none and the test does.
function(add_quillets_test name)
    get_filename_component(floor ${CMAKE_CURRENT_SOURCE_DIR} NAME)
    # Qt wants a folder of the session that is its owner's alone.
    set(runtime ${CMAKE_CURRENT_BINARY_DIR}/runtime)
    file(MAKE_DIRECTORY ${runtime})
    file(CHMOD ${runtime} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    set(environment "QT_QPA_PLATFORM=offscreen;XDG_RUNTIME_DIR=${runtime}")
    if("FATAL_WARNINGS" IN_LIST ARGN)
        list(APPEND environment QT_FATAL_WARNINGS=1)
    endif()
    add_executable(${name} ${name}.cpp)
    target_link_libraries(${name} PRIVATE quillets_${floor})
    use_qt_test(${name})
    if(floor IN_LIST FLOORS_WITHOUT_WINDOWS AND NOT "WINDOWS" IN_LIST ARGN)
        target_precompile_headers(${name} REUSE_FROM quillets_tests_core)
    else()
        target_precompile_headers(${name} REUSE_FROM quillets_tests_windows)
    endif()
    target_compile_definitions(${name} PRIVATE
        TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data" TEST_RESOURCES="${PROJECT_SOURCE_DIR}/resources")
    add_test(NAME ${floor}.${name} COMMAND ${name})
    set_tests_properties(${floor}.${name} PROPERTIES ENVIRONMENT "${environment}" TIMEOUT 300)
endfunction()
