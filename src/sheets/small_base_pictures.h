#pragma once

#include "imaging/small_picture.h"
#include "sheets/small_picture_file.h"

#include <map>
#include <mutex>

namespace morvane {

/// Small pictures of base textures. They are kept in "Resources\Small Pictures", a file for each folder of
/// the stock, with a note of what the base texture was: one that has changed is made anew, and so are all of
/// a file that is damaged or not ours. Nothing else is written, and without these files nothing is lost but
/// time.
class SmallBasePictures {
public:
    static constexpr int side = 64;

    SmallBasePictures(FileSystem& files, const FilePath& appPath);

    /// Reads what is kept of that folder; call it before `of`, on one thread.
    void open(const FilePath& folder);
    /// Of a base texture in a folder that was opened, no smaller than `side` where the base is not; any
    /// thread may ask. Raises as loadSmallPicture.
    SmallPicture of(const FilePath& base);
    /// Keeps what was made since; a failure is passed over, as it costs no more than the time of the next
    /// one.
    void keep();

private:
    struct Folder {
        FilePath file;
        KeptSmallPictures kept;
        bool hasNew = false;
    };
    void keep(const QString& folder, const FileStamp& stamp, const QString& name, const SmallPicture& small);

    FileSystem& files_;
    FilePath place_;
    std::mutex mutex_;
    std::map<QString, Folder> folders_; ///< by their text
};

} // namespace morvane
