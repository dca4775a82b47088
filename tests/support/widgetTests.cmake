# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
set(CMAKE_AUTOMOC ON)
# One executable for a test of windows, run on the platform without a screen.
function(add_widget_test folder name library)
    add_executable(${name} ${name}.cpp)
    target_link_libraries(${name} PRIVATE ${library} Qt6::Test)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_compile_definitions(${name} PRIVATE
        TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data" TEST_RESOURCES="${PROJECT_SOURCE_DIR}/resources")
    add_test(NAME ${folder}.${name} COMMAND ${name})
    set_tests_properties(${folder}.${name} PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen TIMEOUT 300)
endfunction()
