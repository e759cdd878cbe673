#include "sheets/folder_files.h"

#include "core/literals.h"

namespace morvane {

const FilePath* FolderFiles::find(const FilePath& folder, const QString& name) {
    const QString text = folder.text();
    auto known = folders_.constFind(text);
    if (known == folders_.cend()) {
        Names names;
        for (const FilePath& file : filesIn(files_, folder, u"*.bmp"_s))
            names.insert(file.fileName().toCaseFolded(), file);
        known = folders_.insert(text, names);
    }
    const auto file = known->constFind(name.toCaseFolded());
    return file == known->cend() ? nullptr : &*file;
}

} // namespace morvane
