# Every folder of the map is one library, and its link list is the promise of what it may use:
# a folder that links no toolkit cannot use one.

add_library(zg_flags INTERFACE)
# Version 12 of the compiler sees overlapping copies in string concatenation where there are none.
target_compile_options(zg_flags INTERFACE -Wall -Wextra -Wconversion -Wshadow -Wno-restrict)
if(ZG_WERROR)
    target_compile_options(zg_flags INTERFACE -Werror)
endif()
if(ZG_SANITIZE)
    target_compile_options(zg_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                              -fno-omit-frame-pointer -g)
    target_link_options(zg_flags INTERFACE -fsanitize=address,undefined)
endif()

# zg_library(NAME SOURCES a.cpp ... LINKS zg_base ...)
# Headers are included by their path from the project's root.
function(zg_library name)
    cmake_parse_arguments(ARG "QT" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE zg_flags)
    if(ZG_SANITIZE)
        target_link_libraries(${name} PUBLIC zg_flags)
    endif()
    if(ARG_QT)
        set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
    endif()
endfunction()

# zg_test(NAME SOURCES a.cpp ... LINKS zg_base ...): one test program, each of its cases a test of ctest.
function(zg_test name)
    cmake_parse_arguments(ARG "QT" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} zg_test_support zg_flags GTest::gtest)
    target_compile_definitions(${name} PRIVATE ZG_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
                                               ZG_BINARY_DIR="${PROJECT_BINARY_DIR}")
    if(ARG_QT)
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
        target_link_libraries(${name} PRIVATE zg_qt_test_main Qt6::Test)
    else()
        target_link_libraries(${name} PRIVATE GTest::gtest_main)
    endif()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
                         PROPERTIES TIMEOUT 120 ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
endfunction()
