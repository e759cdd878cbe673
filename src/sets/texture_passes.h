#pragma once

#include "core/job.h"
#include "imaging/colour_values.h"
#include "imaging/pixel_buffer.h"
#include "sets/catalogue_file.h"
#include "sets/spelled_files.h"
#include "sets/texture_image.h"

#include <array>
#include <vector>

namespace morvane {

/// What tells one kind of set from another in the two passes that make its files.
struct PassDescription {
    QString caption;                 ///< of the progress message
    QString duration;                ///< the sentence on how long it takes, up to "on your "
    Screen hiddenScreen;             ///< the screen that started the run
    FilePath setFolder;              ///< the set's own folder
    QStringList subfolders;          ///< made where they are missing
    int setNumber = 1, setTotal = 1; ///< shown as "set 2 of 5"
    /// What stands behind "Process 1 of 2 " and "2 of 2 "; empty where it is made of the duration.
    std::array<QString, 2> warnings{};
    bool canCancel = true;
};

/// Pass one recolours the base files into intermediate bitmaps, pass two compresses those into the set's
/// folder. Files are read, worked on and written over all cores; messages are shown and cancels seen on the
/// caller's thread and in list order. A cancel or a failure may leave the next few files of the list behind.
class TexturePasses {
public:
    TexturePasses(Session& session, const Job& job, const PassDescription& description)
        : session_(session), job_(job), description_(description) {}

    /// Each pass ends early on a cancel, and on a failure after having told it.
    void colourFiles(const std::vector<CatalogueFile>& files, const ColourValues& colours);
    void convertFiles(const std::vector<CatalogueFile>& files);

private:
    struct Progress {
        QString text;
        double step, position = 0;
    };
    Progress openProgress(const QString& verb, int process, std::size_t count);
    void showProgress(const QString& text);
    void advance(Progress& progress, std::size_t index, std::size_t count);
    void takeColoured(ColouredFile&& coloured, const FilePath& target);
    void makeTempFolders(const std::vector<CatalogueFile>& files);
    void makeSetFolders();
    SpelledFiles spelled(const std::vector<CatalogueFile>& files, FilePath CatalogueFile::*folder);

    Session& session_;
    const Job& job_;
    PassDescription description_;
    cDIBSection resultDib_; ///< keeps the last picture: a base file that fails to load gets it under its name
};

} // namespace morvane
