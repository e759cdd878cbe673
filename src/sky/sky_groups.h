#pragma once

#include "imaging/sky_group.h"
#include "sky/sky_texture_sub_sets.h"

#include <array>
#include <optional>

namespace morvane {

/// The two tables of ten records that the colouriser reads; group 1 stands at index 0.
using SkyGroupTable = SkyGroups;

/// Two tables, so that looking at stored sets does not disturb what is being tuned.
struct SkyColourTables {
    SkyGroups skyTextureGroups; ///< of the set that is shown or written
    SkyGroups skyPaletteGroups; ///< of the colour page
};

/// What the program knows of a pixel group of the sky textures. A region never moves: it is written into
/// every colour text and into the settings file from here, whatever a table holds.
struct SkyGroupConstants {
    int number;                             ///< 1 to 10
    int xLow, xHigh;                        ///< first and last column, counted from 1
    int y;                                  ///< row, counted from 1 at the bottom; 255 is the block above
    QString clsSkyTextureSubSet::*property; ///< where a sub set keeps the group's colour text
    QString text;                           ///< shown while the group is selected
    QString tip;                            ///< shown while the pointer is over it
};

inline constexpr int skyGroupCount = 10;

/// The ten groups in order.
const std::array<SkyGroupConstants, skyGroupCount>& skyGroups();
/// The group of that number; any other than 1 to 10 raises "Subscript out of range".
const SkyGroupConstants& skyGroup(int number);
/// The record of that number in a table; raises as above.
SkyGroup& skyRecord(SkyGroupTable& table, int number);

/// A field of a group record, and its section in the settings file.
struct SkyField {
    QString name;
    float SkyGroup::*value;
};

/// The nine fields in the order of a colour text: saturation, red, green, blue, brightness, contrast; first
/// column, last column, row.
const std::array<SkyField, 9>& skyFields();
/// The first of them are the colours.
inline constexpr std::size_t skyColourCount = 6;

/// Writes the group's region into the record; its colours stay.
void setRegion(SkyGroup& record, const SkyGroupConstants& group);

/// "6:31:32": what a colour text ends with.
QString skyRegionSuffix(const SkyGroupConstants& group);
/// "0:12:0:0:0:-5:1:32:255": the six colours of the record and the region of the group, without a colon at
/// the end.
QString skyColourString(const SkyGroup& colours, const SkyGroupConstants& group);
/// The nine fields of a colour text; nothing when it is blank. A number is read with "," as with ".". Raises
/// "Subscript out of range" with fewer fields and "Type mismatch" when one is no number.
std::optional<SkyGroup> parseSkyColourString(const QString& text);
/// The table of a JSON array of ten colour texts; a blank one leaves its record at zero. Raises as above,
/// "Type mismatch" also for anything but such an array.
SkyGroupTable parseSkyGroups(const QByteArray& json);

} // namespace morvane
