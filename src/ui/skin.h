#pragma once

#include "core/file_path.h"
#include "core/file_system.h"

#include <QCursor>
#include <QHash>
#include <QPixmap>
#include <QRegion>

namespace morvane {

/// The pictures, outlines and pointers under "\Media". No file of it is needed: what is missing or broken
/// gives an empty result, by which windows and buttons fall back to plain ones, and is noted for one report.
class Skin {
public:
    Skin(FileSystem& files, const FilePath& media) : files_(files), media_(media) {}

    /// The picture of that file, its key colour (255, 0, 255) transparent; null when it cannot be had.
    /// On a dense display the file of twice the size beside it ("name@2x.bmp") is taken.
    QPixmap picture(const QString& fileName);
    /// A page or the ground of a dialog: the picture of the palette in use, "name_night.png" beside the
    /// other; null where that cannot be had, as the other's letters could not be read on it.
    QPixmap ground(const QString& fileName);
    /// A picture in the colour of text, likewise; where the night's cannot be had, the day's.
    QPixmap sign(const QString& fileName);
    /// Where the animation of that name lies that is made for the palette in use.
    FilePath animation(const QString& fileName) const;
    /// The outline in a region file; empty when it cannot be had.
    QRegion outline(const QString& fileName);
    /// The pointer in a ".cur" file, else the system's of that shape.
    QCursor cursor(const QString& fileName, Qt::CursorShape otherwise);

    const QStringList& missing() const { return missing_; }

private:
    QByteArray bytesOf(const QString& fileName);
    QImage imageOf(const QString& fileName);
    void noteMissing(const QString& fileName, const QString& remark = {});

    FileSystem& files_;
    FilePath media_;
    QHash<QString, QPixmap> pictures_; ///< null ones included
    QHash<QString, QCursor> cursors_;
    QStringList missing_;
};

} // namespace morvane
