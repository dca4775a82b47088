# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
set(CMAKE_AUTOMOC ON)

# add_quillets_test(NAME [FATAL_WARNINGS]): one executable of this folder's tests, which links the library of the same
# floor, on the platform without a screen. With FATAL_WARNINGS any warning of Qt's ends it; tests that allow some say
# which by `failOnWarnings`.
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
    target_link_libraries(${name} PRIVATE quillets_${floor} Qt6::Test)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_compile_definitions(${name} PRIVATE
        TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data" TEST_RESOURCES="${PROJECT_SOURCE_DIR}/resources")
    add_test(NAME ${floor}.${name} COMMAND ${name})
    set_tests_properties(${floor}.${name} PROPERTIES ENVIRONMENT "${environment}" TIMEOUT 300)
endfunction()
