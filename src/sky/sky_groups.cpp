#include "sky/sky_groups.h"

#include "core/bounded_reading.h"
#include "core/error.h"
#include "core/numbers.h"

#include <QJsonArray>
#include <QStringList>

namespace morvane {

const std::array<SkyGroupConstants, skyGroupCount>& skyGroups() {
    // The tip of column 5 speaks of light water, like that of column 32, and one has a slip: both as wanted.
    static const std::array<SkyGroupConstants, skyGroupCount> groups{{
        {1, 1, 1, 32, &clsSkyTextureSubSet::GroundDark,
         u"The aircraft/ground dark shadowing pixel is currently selected"_s,
         u"This pixel will adjust the ground and aircraft dark shadowing colors"_s},
        {2, 2, 2, 32, &clsSkyTextureSubSet::GroundLight,
         u"The aircraft/ground light shadowing pixel is currently selected"_s,
         u"This pixel will adjust the ground and aircraft light shadowing colors"_s},
        {3, 3, 3, 32, &clsSkyTextureSubSet::CloudDark,
         u"The cloud dark shadowing pixel is currently selected"_s,
         u"This pixel will adjust the cloud dark shadowing colors"_s},
        {4, 4, 4, 32, &clsSkyTextureSubSet::CloudLight,
         u"The cloud light shadowing pixel is currently selected"_s,
         u"This pixel will adjust the cloud light shadowing colors"_s},
        {5, 5, 5, 32, &clsSkyTextureSubSet::WaterDark,
         u"The water dark shadowing pixel is currently selected"_s,
         u"This pixel will adjust the water light shadowing colors"_s},
        {6, 6, 31, 32, &clsSkyTextureSubSet::WaterMain,
         u"The main water selection of pixels is currently selected"_s,
         u"This selection of pixels will create subtle color change on th water"_s},
        {7, 32, 32, 32, &clsSkyTextureSubSet::WaterLight,
         u"The water light shadowing pixel is currently selected"_s,
         u"This pixel will adjust the water light shadowing colors"_s},
        {8, 1, 32, 2, &clsSkyTextureSubSet::HorizonHigh,
         u"The high horizon row of pixels is currently selected"_s,
         u"This row of pixels will adjust the high horizon colors"_s},
        {9, 1, 32, 1, &clsSkyTextureSubSet::HorizonLow,
         u"The low horizon row of pixels is currently selected"_s,
         u"This row of pixels will adjust the low horizon colors"_s},
        {10, 1, 32, 255, &clsSkyTextureSubSet::SkyMain,
         u"The main sky block of pixels is currently selected"_s,
         u"This large block of pixels will adjust the main sky colors"_s},
    }};
    return groups;
}

const SkyGroupConstants& skyGroup(int number) {
    if (number < 1 || number > skyGroupCount) throw Error(ErrorCode::subscript);
    return skyGroups()[static_cast<std::size_t>(number - 1)];
}

SkyGroup& skyRecord(SkyGroupTable& table, int number) {
    return table[static_cast<std::size_t>(skyGroup(number).number - 1)];
}

const std::array<SkyField, 9>& skyFields() {
    static const std::array<SkyField, 9> fields{{{u"Saturation"_s, &SkyGroup::saturation},
                                                 {u"Red"_s, &SkyGroup::red},
                                                 {u"Green"_s, &SkyGroup::green},
                                                 {u"Blue"_s, &SkyGroup::blue},
                                                 {u"Brightness"_s, &SkyGroup::brightness},
                                                 {u"Contrast"_s, &SkyGroup::contrast},
                                                 {u"PixelXLow"_s, &SkyGroup::PixelXLow},
                                                 {u"PixelXHigh"_s, &SkyGroup::PixelXHigh},
                                                 {u"PixelY"_s, &SkyGroup::PixelY}}};
    return fields;
}

void setRegion(SkyGroup& record, const SkyGroupConstants& group) {
    record.PixelXLow = static_cast<float>(group.xLow);
    record.PixelXHigh = static_cast<float>(group.xHigh);
    record.PixelY = static_cast<float>(group.y);
}

QString skyRegionSuffix(const SkyGroupConstants& group) {
    return QString::number(group.xLow) + u':' + QString::number(group.xHigh) + u':' +
           QString::number(group.y);
}

QString skyColourString(const SkyGroup& colours, const SkyGroupConstants& group) {
    QString text;
    for (std::size_t i = 0; i < skyColourCount; ++i)
        text += floatText(colours.*skyFields()[i].value) + u':';
    return text + skyRegionSuffix(group);
}

std::optional<SkyGroup> parseSkyColourString(const QString& text) {
    if (trimmedBlanksView(text).isEmpty()) return std::nullopt;
    const QStringList numbers = text.split(u':');
    if (numbers.size() < static_cast<qsizetype>(skyFields().size())) throw Error(ErrorCode::subscript);
    SkyGroup record;
    auto number = numbers.begin();
    for (const SkyField& field : skyFields())
        record.*field.value = static_cast<float>(textToNumber(QString(*number++).replace(u',', u'.')));
    return record;
}

SkyGroupTable parseSkyGroups(const QByteArray& json) {
    const QJsonArray texts = parseJson(json).array();
    if (texts.size() != skyGroupCount) throw Error(ErrorCode::typeMismatch);
    SkyGroupTable groups;
    for (int number = 1; number <= skyGroupCount; ++number)
        if (const auto record = parseSkyColourString(texts[number - 1].toString()))
            skyRecord(groups, number) = *record;
    return groups;
}

} // namespace morvane
