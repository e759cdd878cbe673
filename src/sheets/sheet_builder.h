#pragma once

#include "core/session.h"
#include "sheets/folder_files.h"
#include "sheets/sheet.h"

#include <QSet>

namespace morvane {

/// Fills a sheet, texture by texture. A place is taken once, however often it is named.
class SheetBuilder {
public:
    SheetBuilder(FileSystem& files, const QStringList& columns);

    /// Where the texture goes: a row by its name, and a column; without one the row has a single cell.
    struct Place {
        QString row;
        std::optional<std::size_t> column = {};
        bool keepsColours = false;
    };
    /// One of a set: the base file of that name, which is there, and the set's file where there is one.
    void addOfSet(const Place& place, const FilePath& baseFolder, const QString& name,
                  const FilePath& ownFolder);
    /// One that lies there, over what was before; false when it lies there no more or is on the sheet.
    bool add(const Place& place, const FilePath& own, const FilePath& base);
    FolderFiles& folders() { return folders_; }

    /// Of the textures those that the set has files of.
    std::size_t ownFiles() const;
    Sheet& sheet() { return sheet_; }

private:
    void put(const Place& place, SheetTexture texture);

    Sheet sheet_;
    FolderFiles folders_;
    QHash<QString, std::size_t> rows_;
    QSet<QString> places_;
};

} // namespace morvane
