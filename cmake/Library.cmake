# Every folder of the map is one library; its link list enforces what it may use:
# a folder that does not link the toolkit cannot use it.

add_library(zg_flags INTERFACE)
target_compile_options(zg_flags INTERFACE -Wall -Wextra -Wconversion -Wshadow)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Version 12 of the compiler reports overlapping copies in string concatenation where there are none.
    target_compile_options(zg_flags INTERFACE -Wno-restrict -Wno-stringop-overflow)
    # It takes a source that is compiled together with others for a header, and warns of its unnamed namespace.
    target_compile_options(zg_flags INTERFACE -Wno-subobject-linkage)
endif()
if(ZG_WERROR)
    target_compile_options(zg_flags INTERFACE -Werror)
endif()
if(ZG_SANITIZE)
    target_compile_options(zg_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                              -fno-omit-frame-pointer)
    target_link_options(zg_flags INTERFACE -fsanitize=address,undefined)
endif()

if(ZG_FUZZER)
    target_compile_options(zg_flags INTERFACE -O1 -gline-tables-only -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined)
endif()

# What runs for every point, record or pixel is optimised fully. The rest waits for a person, a disk or the toolkit, and optimising it costs much
# of the time of a build. What a test itself computes is little.
if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT ZG_FUZZER)
    set(ZG_HOT_OPTIMISATION -O3)
    set(ZG_PLAIN_OPTIMISATION -O1)
    set(ZG_FORM_OPTIMISATION -O0)
endif()
set(ZG_TEST_OPTIMISATION -O0)

# The compiler collects its garbage when its heap has grown by this many per cent of at least this many KiB: with large precompiled headers it
# would look through them again and again.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(--param=ggc-min-expand=1000 --param=ggc-min-heapsize=1000000)
endif()

# A program without the toolkit needs no library of the compiler's beside it.
if(WIN32)
    set(ZG_ALONE -static)
    # The toolkit there cannot unpack what the one here packs by default.
    set(ZG_RESOURCE_OPTIONS OPTIONS --no-zstd)
endif()

include(${CMAKE_CURRENT_LIST_DIR}/Precompiled.cmake)

option(ZG_UNITY "Compile several sources of a library at once" ON)
set(ZG_UNITY_SOURCES 16 CACHE STRING "So many sources of a library, or all: 0")

# zg_compile_together(TARGET KIND): for a fast build, sources of one library are compiled in groups, so names in their unnamed namespaces
# must differ, and headers that nearly all of them include are precompiled.
function(zg_compile_together target kind)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ${ZG_UNITY} UNITY_BUILD_BATCH_SIZE ${ZG_UNITY_SOURCES})
    zg_precompile(${target} ${kind})
endfunction()

# zg_library(NAME [QT] [SOURCES a.cpp ...] [HOT b.cpp ...] [OBJECTS c.h ...] [RESOURCES d.qrc] LINKS zg_base ...)
#   HOT: what runs for every point or record.  OBJECTS: headers with Q_OBJECT; a vtable that the linker misses is one that is not named here.
# Headers are included by their path from the project's root.
function(zg_library name)
    cmake_parse_arguments(ARG "QT" "" "SOURCES;HOT;OBJECTS;RESOURCES;LINKS" ${ARGN})
    # Called this way the toolkit's compiler does not read the toolkit's own headers, of which it needs nothing, again for each of ours. What it makes
    # is compiled together with the library's sources.
    set(made)
    if(ARG_OBJECTS)
        qt_wrap_cpp(made ${ARG_OBJECTS})
    endif()
    if(ARG_RESOURCES)
        qt_add_resources(made ${ARG_RESOURCES} ${ZG_RESOURCE_OPTIONS})
    endif()
    if(made)
        # What is made by a command for one target waits for all that the target links; for two only for what both do, here nothing.
        add_custom_target(${name}_made DEPENDS ${made})
        list(APPEND ARG_SOURCES ${made})
    endif()
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE zg_flags)
    if(ZG_SANITIZE)
        target_link_libraries(${name} PUBLIC zg_flags)
    endif()
    if(ARG_QT)
        zg_compile_together(${name} zg_pch_qt)
    else()
        zg_compile_together(${name} zg_pch_plain)
    endif()
    if(ARG_HOT)
        add_library(${name}_hot OBJECT ${ARG_HOT})
        target_include_directories(${name}_hot PRIVATE ${PROJECT_SOURCE_DIR})
        target_link_libraries(${name}_hot PRIVATE ${ARG_LINKS} zg_flags)
        zg_compile_together(${name}_hot zg_pch_hot)
        target_sources(${name} PRIVATE $<TARGET_OBJECTS:${name}_hot>)
        set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
    endif()
endfunction()
