#pragma once

#include "core/file_system.h"
#include "imaging/recolouring.h"

#include <exception>
#include <memory>
#include <optional>

namespace morvane {

/// A base file's picture in a set's colours, or why there is none. After a failure half way through the
/// pixels there are both.
struct ColouredFile {
    std::unique_ptr<cDIBSection> picture;
    std::optional<QString> failure; ///< the error's description
    bool isSaved = false;           ///< the picture stands in its place; for the one who makes sure of it
    std::exception_ptr saveFailure = {};
};

/// Loads the file and recolours it. Touches nothing but its arguments, so any thread may call it; a failure
/// is carried to the thread that may show it.
ColouredFile openImageForTextureSet(FileSystem& files, const FilePath& path, const Recolouring& recolouring);

} // namespace morvane
