#include "skin_files.h"

#include "core/literals.h"
#include "imaging/window_region.h"
#include "skin_icons.h"
#include "skin_keys.h"
#include "skin_pages.h"
#include "skin_palette.h"
#include "skin_splash.h"
#include "skin_windows.h"
#include "ui/program_font.h"

#include <QBuffer>

namespace morvane {

namespace {

using namespace skin;

class SkinWriter {
public:
    SkinWriter(FileSystem& files, const FilePath& media) : files_(files), media_(media) {}

    /// `draw(scale)` gives the picture; it is written in both sizes.
    template <class Draw>
    void writePicture(QStringView name, Draw draw) {
        write(name.toString() + u".bmp"_s, bytesOf(draw(1), "BMP"));
        write(name.toString() + u"@2x.bmp"_s, bytesOf(draw(2), "BMP"));
    }
    void writePhoto(QStringView name, const QImage& picture) { write(name, bytesOf(picture, "JPG", 92)); }
    void write(QStringView name, const QByteArray& contents) {
        files_.write(media_.child(name.toString()), contents);
    }

private:
    static QByteArray bytesOf(const QImage& picture, const char* format, int quality = -1) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        picture.save(&buffer, format, quality);
        return buffer.data();
    }

    FileSystem& files_;
    FilePath media_;
};

void writeWindows(SkinWriter& writer) {
    for (const WindowPicture& window : windowPictures()) {
        writer.writePicture(window.name, [&](int scale) { return drawWindow(window.name, scale); });
        if (!window.regionFile.isEmpty())
            writer.write(window.regionFile,
                         writeWindowRegion(scanRegion(drawWindow(window.name, 1), keyColour.rgb())));
    }
}

void writeKeys(SkinWriter& writer) {
    for (const KeyImage& image : keyImages())
        writer.writePicture(image.name, [&](int scale) { return drawKeyStrip(image, scale); });
}

void writePages(SkinWriter& writer) {
    for (const PagePicture& page : pagePictures())
        writer.writePicture(page.name, [&](int scale) { return drawPage(page, scale); });
}

void writeIcons(SkinWriter& writer) {
    for (const IconImage& icon : iconImages())
        writer.writePicture(icon.name, [&](int scale) { return drawIcon(icon, scale); });
    for (const CoverImage& cover : coverImages())
        writer.writePicture(cover.name, [&](int scale) { return drawCover(cover, scale); });
}

} // namespace

void writeSkin(FileSystem& files, const FilePath& media) {
    loadProgramFont();
    SkinWriter writer(files, media);
    writeWindows(writer);
    writeKeys(writer);
    writePages(writer);
    writeIcons(writer);
    writer.writePhoto(u"splash_screen.jpg", drawStartPicture());
}

} // namespace morvane
