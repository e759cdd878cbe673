#include "skin_files.h"

#include "core/error.h"
#include "imaging/program_font.h"
#include "imaging/window_region.h"
#include "skin_animation.h"
#include "skin_emblems.h"
#include "skin_help.h"
#include "skin_icon_file.h"
#include "skin_icons.h"
#include "skin_keys.h"
#include "skin_pages.h"
#include "skin_palette.h"
#include "skin_previews.h"
#include "skin_splash.h"
#include "skin_windows.h"

#include <QBuffer>
#include <QStringBuilder>

namespace morvane {

namespace {

using namespace skin;

class SkinWriter {
public:
    SkinWriter(const PutFile& put, const FilePath& media) : put_(put), media_(media) {}

    /// `draw(scale)` gives the picture; it is written as a bitmap in both sizes.
    template <class Draw>
    void writeBothSizes(QStringView name, Draw draw) {
        writePicture(QString(name % u".bmp"), draw(1));
        writePicture(QString(name % u"@2x.bmp"), draw(2));
    }

    /// `draw(scale, palette)`: the night's stands beside the day's, packed, as there are many dots of few
    /// colours.
    template <class Draw>
    void writeBothPalettes(QStringView name, Draw draw) {
        writeBothSizes(name, [&](int scale) { return draw(scale, PaperPalette::day); });
        writePicture(QString(name % u"_night.png"), draw(1, PaperPalette::night));
        writePicture(QString(name % u"_night@2x.png"), draw(2, PaperPalette::night));
    }

    /// In the format that the file's ending tells.
    void writePicture(QStringView fileName, const QImage& picture) {
        const QByteArray format = fileName.mid(fileName.lastIndexOf(u'.') + 1).toLatin1();
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        if (!picture.save(&buffer, format.constData(), format == "jpg" ? photoQuality : -1))
            throw Error(ErrorCode::ioFailure, fileName.toString());
        write(fileName, buffer.data());
    }

    void write(QStringView fileName, const QByteArray& contents) {
        put_(media_.child(fileName.toString()), contents);
    }

private:
    static constexpr int photoQuality = 92;

    const PutFile& put_;
    FilePath media_;
};

void writeWindows(SkinWriter& writer) {
    for (const WindowPicture& window : windowPictures()) {
        const auto draw = [&](int scale, PaperPalette palette) {
            return drawWindow(window.name, scale, palette);
        };
        if (hasPaper(window))
            writer.writeBothPalettes(window.name, draw);
        else
            writer.writeBothSizes(window.name, [&](int scale) { return draw(scale, PaperPalette::day); });
        if (!window.regionFile.isEmpty())
            writer.write(window.regionFile,
                         writeWindowRegion(scanRegion(draw(1, PaperPalette::day), keyColour.rgb())));
    }
}

void writeKeys(SkinWriter& writer) {
    for (const KeyImage& image : keyImages())
        writer.writeBothSizes(image.name, [&](int scale) { return drawKeyStrip(image, scale); });
}

void writePages(SkinWriter& writer) {
    for (const PagePicture& page : pagePictures())
        writer.writeBothPalettes(
            page.name, [&](int scale, PaperPalette palette) { return drawPage(page, scale, palette); });
}

void writeIcons(SkinWriter& writer) {
    for (const IconImage& icon : iconImages())
        writer.writeBothPalettes(
            icon.name, [&](int scale, PaperPalette palette) { return drawIcon(icon, scale, palette); });
    for (const CoverImage& cover : coverImages())
        writer.writeBothPalettes(
            cover.name, [&](int scale, PaperPalette palette) { return drawCover(cover, scale, palette); });
}

void writePhotos(SkinWriter& writer) {
    writer.writePicture(u"splash_screen.jpg", drawStartPicture());
    writer.writePicture(u"ASv6.jpg", drawWeatherProgramPicture());
    writer.writePicture(u"orrinsoft.jpg", drawReportServerPicture());
    for (const PreviewPicture& preview : previewPictures())
        writer.writePicture(preview.fileName, drawPreview(preview));
}

void writeEmblems(SkinWriter& writer) {
    writer.write(u"HMOVE.cur", cursorFile(drawMoveCursor(), moveHotSpot));
    writer.write(u"Hand.cur", cursorFile(drawHandCursor(), handHotSpot));
    writer.write(u"ASv6Process.gif", turningArrowsAnimation(PaperPalette::day));
    writer.write(u"ASv6Process_night.gif", turningArrowsAnimation(PaperPalette::night));
    writer.write(u"morvane.ico", iconFile({drawProgramIcon(16), drawProgramIcon(32), drawProgramIcon(48)}));
    writer.writePicture(u"morvane.png", drawProgramIcon(128));
}

} // namespace

void writeSkin(const PutFile& put, const FilePath& media) {
    loadProgramFont();
    SkinWriter writer(put, media);
    writeWindows(writer);
    writeKeys(writer);
    writePages(writer);
    writeIcons(writer);
    writePhotos(writer);
    writeEmblems(writer);
}

void writeHelp(const PutFile& put, const FilePath& folder) {
    put(folder / u"index.html", helpPage());
}

} // namespace morvane
