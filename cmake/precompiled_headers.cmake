# Headers of the system, Qt and GoogleTest that most files include, parsed once a group of targets. Parsing them is
# most of the time that a small file costs. The preset "plain" builds without, so that no include goes missing.
option(MORVANE_PRECOMPILED_HEADERS "Parse the common headers once" ON)

# Compilers' caches need to see the headers that stand in the precompiled one.
if(MORVANE_PRECOMPILED_HEADERS AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess)
endif()

# What is left of a small file's time is mostly the reading of that header: four files are compiled as one. Not for
# Windows, whose own files no machine of ours compiles every day, nor in the preset "plain".
option(MORVANE_JOINED_SOURCES "Compile the programs' sources by fours" ${MORVANE_PRECOMPILED_HEADERS})
if(MORVANE_JOINED_SOURCES AND NOT WIN32)
    set(joined_sources ON)
endif()
set(CMAKE_UNITY_BUILD_BATCH_SIZE 4)

set(morvane_engine_headers
    <algorithm> <array> <cmath> <cstdint> <functional> <memory> <optional> <span> <string> <vector>
    <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QImage> <QJsonArray> <QJsonObject> <QString> <QStringList>)
set(morvane_window_headers ${morvane_engine_headers}
    <QAbstractButton> <QApplication> <QEvent> <QLabel> <QLineEdit> <QPainter> <QPixmap> <QWidget>)
set(morvane_test_headers ${morvane_engine_headers} <gmock/gmock.h> <gtest/gtest.h>)
set(morvane_window_test_headers ${morvane_window_headers} <gmock/gmock.h> <gtest/gtest.h> <QTest>)
set(morvane_walk_test_headers ${morvane_window_test_headers}) # QTest defines the folder, so a folder has its own

# morvane_precompile(TARGET GROUP): GROUP is engine, window, test, window_test or walk_test. The first target of a group makes
# its header, so that one has no definitions of its own; the later ones use it.
function(morvane_precompile target group)
    if(NOT MORVANE_PRECOMPILED_HEADERS)
        return()
    endif()
    get_property(maker GLOBAL PROPERTY morvane_${group}_header)
    if(maker)
        target_precompile_headers(${target} REUSE_FROM ${maker})
    else()
        target_precompile_headers(${target} PRIVATE ${morvane_${group}_headers})
        set_property(GLOBAL PROPERTY morvane_${group}_header ${target})
    endif()
endfunction()
