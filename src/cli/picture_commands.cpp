#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "core/bounded_reading.h"
#include "core/error.h"
#include "core/reading_limits.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"
#include "sets/colour_settings.h"
#include "sky/sky_groups.h"

namespace morvane {

namespace {

/// Within the ranges that `ColourValues` names.
bool areColours(const QString& word) {
    constexpr double ranges[] = {100, 20, 20, 20, 30, 30};
    const QStringList fields = word.split(u':');
    if (fields.size() != static_cast<qsizetype>(std::size(ranges))) return false;
    for (qsizetype i = 0; i < fields.size(); ++i)
        if (!isNumberWithin(fields[i], -ranges[i], ranges[i])) return false;
    return true;
}

void recolour(CommandContext& context) {
    const ColourValues colours = parseColourSettings(context.arguments[0]);
    recolourFile(context, [&](const cDIBSection& source, cDIBSection& result) {
        cColourise colourise(context.user);
        colourise.saturation = colours.saturation;
        colourise.Red = colours.red;
        colourise.green = colours.green;
        colourise.blue = colours.blue;
        colourise.brightness = colours.brightness;
        colourise.contrast = colours.contrast;
        colourise.process(source, result);
    });
}

/// Whatever is wrong with the file is told with its name.
SkyGroupTable readGroups(Session& session, const FilePath& path) {
    const QByteArray json = readAtMost(session.files, path, largestColourFile, u"ten colour texts"_s);
    try {
        return parseSkyGroups(json);
    } catch (const Error& error) {
        throw Error::withDescription(error.code(), error.description() + u": "_s + path.text());
    }
}

void recolourSky(CommandContext& context) {
    const SkyGroupTable groups = readGroups(context.session, pathOfArgument(context.arguments[0]));
    recolourFile(context, [&](const cDIBSection& source, cDIBSection& result) {
        cColourise colourise(context.user);
        colourise.skyTextureGroups = groups;
        colourise.processSkyTexture(source, result);
    });
}

/// The codec does not tell why it made none.
void compress(CommandContext& context) {
    FileSystem& files = context.session.files;
    const FilePath source = pathOfArgument(context.arguments[0]);
    const FilePath target = pathOfArgument(context.arguments[1]);
    if (BMPScompressBMPVB(files, source, u"1"_s, 10, -1, 0, target)) return;
    const Picture picture = loadPicture(files, source, largestTextureSide);
    if (isTextureSide(picture.width) && isTextureSide(picture.height))
        return fail(context, u"The texture could not be written to "_s + target.text());
    fail(context, u"No texture was made of "_s + source.text() + u", which has "_s +
                      u"%1 by %2 pixels"_s.arg(picture.width).arg(picture.height) +
                      u": a texture's sides are powers of two, from 4 to "_s +
                      QString::number(largestTextureSide));
}

} // namespace

std::vector<Command> pictureCommands() {
    const Operand colours{.name = u"COLOURS"_s,
                          .meaning = u"S:R:G:B:BR:C: saturation -100 to 100, red, green and blue -20 to 20, "
                                     "brightness and contrast -30 to 30"_s,
                          .takes = u"S:R:G:B:BR:C, saturation -100 to 100, red, green, blue -20 to 20, "
                                   "brightness and contrast -30 to 30"_s,
                          .isTaken = areColours};
    return {{.words = u"recolour"_s,
             .operands = {colours, inPicture, outFile},
             .needs = Needs::nothing,
             .run = recolour,
             .meaning = u"recolours a picture"_s,
             .example = u"recolour -10:2:1:-3:6:3 base.bmp out.bmp"_s},
            {.words = u"recolour-sky"_s,
             .operands = {{u"GROUPS"_s,
                           u"a file with a JSON array of ten colour texts, \"0:12:0:0:0:-5:1:32:255\""_s},
                          inPicture,
                          outFile},
             .needs = Needs::nothing,
             .run = recolourSky,
             .meaning = u"lays the ten groups of a file on a sky texture"_s,
             .example = u"recolour-sky groups.json sky.bmp out.bmp"_s},
            {.words = u"compress"_s,
             .operands = {inPicture, outFile},
             .needs = Needs::nothing,
             .run = compress,
             .meaning = u"makes a ground texture of a picture"_s,
             .example = u"compress picture.bmp texture.bmp"_s}};
}

} // namespace morvane
