# SPDX-License-Identifier: MIT

# What nearly every source of the adapters and the tests includes, compiled once: a build takes half the time. A source
# includes what it uses all the same; clang-tidy reads it without this.
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/empty.cpp CONTENT "")

function(add_precompiled_headers name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;LINK")
    add_library(${name} STATIC ${CMAKE_BINARY_DIR}/empty.cpp)
    target_link_libraries(${name} PRIVATE ${arg_LINK})
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

add_precompiled_headers(velto_qt_headers LINK Qt6::Widgets
    HEADERS <QPainter> <QTimer> <QWidget> <functional> <memory> <optional> <string> <vector>)
if(VELTO_TESTS)
    add_precompiled_headers(velto_test_headers LINK Qt6::Widgets GTest::gtest
        HEADERS <QWidget> <gtest/gtest.h> <algorithm> <functional> <string> <vector>)
endif()
