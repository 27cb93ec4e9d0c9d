# Fewer than in a library: tests are changed more often than they are built from scratch.
set(ZG_UNITY_SOURCES 10)

# Under Wine this system's root is a drive.
if(CMAKE_CROSSCOMPILING)
    set(ZG_DRIVE "Z:")
endif()

# zg_test_library(NAME [QT] SOURCES a.cpp ... LINKS ...): what several test programs share.
function(zg_test_library name)
    cmake_parse_arguments(ARG "QT" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} GTest::gtest PRIVATE zg_flags)
    target_compile_definitions(${name} PRIVATE ZG_SOURCE_DIR="${ZG_DRIVE}${PROJECT_SOURCE_DIR}" ZG_BINARY_DIR="${ZG_DRIVE}${PROJECT_BINARY_DIR}")
    if(ARG_QT)
        zg_compile_together(${name} zg_pch_qt_test)
    else()
        zg_compile_together(${name} zg_pch_test)
    endif()
endfunction()

# All test programs that need no toolkit.
add_custom_target(fast_tests)

# zg_test(NAME [QT] SOURCES a.cpp ... LINKS zg_base ... [NEEDS target ...] [PARTS n])
# One test program, which can also be run by itself. ctest runs it whole, or in n parts side by side. Its labels are the folders on its path
# below tests/ and "toolkit" or "fast". NEEDS names the programs and libraries that it starts or loads: they are built with it.
function(zg_test name)
    cmake_parse_arguments(ARG "QT" "PARTS" "SOURCES;LINKS;NEEDS" ${ARGN})
    list(TRANSFORM ARG_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    list(REMOVE_ITEM ARG_SOURCES ${ZG_SOURCES_LEFT_OUT})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} zg_test_support zg_flags GTest::gtest)
    target_compile_definitions(${name} PRIVATE ZG_SOURCE_DIR="${ZG_DRIVE}${PROJECT_SOURCE_DIR}"
                                               ZG_BINARY_DIR="${ZG_DRIVE}${PROJECT_BINARY_DIR}")
    if(ARG_QT)
        target_link_libraries(${name} PRIVATE zg_qt_test_main Qt6::Test)
        zg_compile_together(${name} zg_pch_qt_test)
        set(kind toolkit)
    else()
        target_link_libraries(${name} PRIVATE zg_test_main)
        target_link_options(${name} PRIVATE ${ZG_ALONE})
        zg_compile_together(${name} zg_pch_test)
        add_dependencies(fast_tests ${name})
        set(kind fast)
    endif()

    set(needs "")
    foreach(target IN LISTS ARG_NEEDS)
        add_dependencies(${name} ${target})
        string(APPEND needs "${target} $<TARGET_FILE:${target}>\n")
    endforeach()
    file(GENERATE OUTPUT ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name}${CMAKE_EXECUTABLE_SUFFIX}.needs CONTENT "${needs}")

    if(NOT ARG_PARTS)
        set(ARG_PARTS 1)
    endif()
    foreach(part RANGE 1 ${ARG_PARTS})
        math(EXPR index "${part} - 1")
        if(ARG_PARTS EQUAL 1)
            set(run ${name})
        else()
            set(run ${name}.${part})
        endif()
        zg_add_test_run(${run} ${name} ${kind} GTEST_TOTAL_SHARDS=${ARG_PARTS} GTEST_SHARD_INDEX=${index})
    endforeach()
endfunction()

# zg_add_test_run(RUN PROGRAM KIND [VARIABLE=VALUE ...]): the program as a test of ctest, with these environment variables.
function(zg_add_test_run run program kind)
    add_test(NAME ${run} COMMAND ${program} --gtest_brief=1)
    zg_label(${run} ${kind})
    set_property(TEST ${run} PROPERTY ENVIRONMENT "QT_QPA_PLATFORM=offscreen"
                 "GTEST_OUTPUT=xml:${ZG_DRIVE}${PROJECT_BINARY_DIR}/Testing/cases/${run}.xml" ${ARGN})
    set_property(TEST ${run} PROPERTY TIMEOUT 600)
    if(ZG_CASES_LEFT_OUT_OF_${program})
        set_property(TEST ${run} APPEND PROPERTY ENVIRONMENT "GTEST_FILTER=-${ZG_CASES_LEFT_OUT_OF_${program}}")
    endif()
endfunction()

# zg_label(TEST LABEL ...): labels the test with these and with the folders on the path below tests/.
function(zg_label test)
    file(RELATIVE_PATH folders ${PROJECT_SOURCE_DIR}/tests ${CMAKE_CURRENT_SOURCE_DIR})
    string(REPLACE "/" ";" folders "${folders}")
    set_property(TEST ${test} PROPERTY LABELS ${folders} ${ARGN})
endfunction()
