#pragma once

#include "core/file_system.h"

namespace morvane {

/// What a complete install and a sample simulator are made of. The source data come from `data`, the
/// repository's data folder.
struct ContentRequest {
    FilePath home;
    FilePath simulator;
    FilePath data;
    int density = 1;
};

/// True when `home` holds an install that this version of the tool made with that density.
bool isContentCurrent(FileSystem& files, const ContentRequest& request);

/// Makes the install and the simulator. Both folders must be missing or empty, else it raises "Permission
/// denied" and touches neither: a pilot's own simulator can be named by mistake. The version mark is written
/// last, so that a run that was cut short is never taken for a whole one. A density that the stock has not
/// raises before a folder is made. Returns the number of base images. Needs a QGuiApplication: the skin's
/// pictures hold words.
int makeContent(FileSystem& files, const ContentRequest& request);

} // namespace morvane
