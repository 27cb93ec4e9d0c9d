# Headers that nearly every file of a kind includes, precompiled once for each kind of target. A source still includes what it uses: nothing may
# rely on these, which a build with -DZG_PRECOMPILED=OFF verifies.
option(ZG_PRECOMPILED "Compile the headers of the standard library, the toolkit and the test framework once" ON)

# zg_precompiled(NAME LINKS ... OPTIONS ... HEADERS ...): a kind. All targets of the kind are compiled with its options.
function(zg_precompiled name)
    cmake_parse_arguments(ARG "" "" "LINKS;OPTIONS;HEADERS" ${ARGN})
    set_property(GLOBAL PROPERTY ${name}_OPTIONS ${ARG_OPTIONS})
    if(NOT ZG_PRECOMPILED)
        return()
    endif()
    file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp CONTENT "// Only its precompiled header is wanted.\n")
    add_library(${name} OBJECT EXCLUDE_FROM_ALL ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} zg_flags)
    target_compile_options(${name} PRIVATE ${ARG_OPTIONS})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()

# zg_precompile(TARGET KIND): compile the target with the options and the headers of the kind.
function(zg_precompile target kind)
    get_property(options GLOBAL PROPERTY ${kind}_OPTIONS)
    target_compile_options(${target} PRIVATE ${options})
    if(ZG_PRECOMPILED)
        target_precompile_headers(${target} REUSE_FROM ${kind})
    endif()
endfunction()

set(ZG_LANGUAGE_HEADERS <algorithm> <array> <charconv> <cmath> <cstdint> <cstdio> <exception> <functional> <limits> <map> <memory> <optional> <span>
                        <stdexcept> <string> <string_view> <utility> <vector>)
# The header of files is dear, and of no use to what is optimised fully.
set(ZG_STANDARD_HEADERS ${ZG_LANGUAGE_HEADERS} <filesystem>)
set(ZG_TOOLKIT_HEADERS <QApplication> <QBoxLayout> <QCheckBox> <QComboBox> <QDialog> <QEvent> <QFile> <QGroupBox> <QImage> <QKeyEvent>
                       <QLabel> <QLineEdit> <QListWidget> <QMenu> <QMouseEvent> <QPainter> <QPushButton> <QRadioButton>
                       <QScrollBar> <QSignalBlocker> <QString> <QTimer> <QWidget>)
set(ZG_TOOLKIT_LIBRARIES Qt6::Widgets Qt6::PrintSupport)

zg_precompiled(zg_pch_plain OPTIONS ${ZG_PLAIN_OPTIMISATION} HEADERS ${ZG_STANDARD_HEADERS})
zg_precompiled(zg_pch_hot OPTIONS ${ZG_HOT_OPTIMISATION} HEADERS ${ZG_LANGUAGE_HEADERS})
if(ZG_TOOLKIT)
    zg_precompiled(zg_pch_qt LINKS ${ZG_TOOLKIT_LIBRARIES} OPTIONS ${ZG_FORM_OPTIMISATION} HEADERS ${ZG_STANDARD_HEADERS} ${ZG_TOOLKIT_HEADERS})
endif()
if(ZG_TESTS)
    zg_precompiled(zg_pch_test LINKS GTest::gtest OPTIONS ${ZG_TEST_OPTIMISATION} HEADERS ${ZG_STANDARD_HEADERS} <gtest/gtest.h>)
    if(ZG_TOOLKIT)
        zg_precompiled(zg_pch_qt_test LINKS ${ZG_TOOLKIT_LIBRARIES} Qt6::Test GTest::gtest OPTIONS ${ZG_TEST_OPTIMISATION}
                       HEADERS ${ZG_STANDARD_HEADERS} ${ZG_TOOLKIT_HEADERS} <QTest> <gtest/gtest.h>)
    endif()
endif()
