#include "cli/json_output.h"

#include "cli/terminal.h"
#include "ground/texture_sets.h"
#include "night/night_texture_sets.h"
#include "sets/catalogue_file.h"
#include "sky/sky_texture_sets.h"
#include "sky/sky_texture_sub_sets.h"
#include "weather/weather_report.h"

#include <QDir>
#include <QJsonArray>

namespace morvane {

QJsonObject toJson(const clsWxFinder& report) {
    return {
        {u"MetarICAO"_s, report.WxFinderIcao},
        {u"WindSpeedMeasurement"_s, report.WxFinderWindSpeedMeasurement},
        {u"WindDirection"_s, report.WxFinderWindDirection},
        {u"WindSpeed"_s, report.WxFinderWindSpeed},
        {u"WindGusting"_s, report.WxFinderWindGusting},
        {u"WindGust"_s, report.WxFinderWindGust},
        {u"WindVarying"_s, report.WxFinderWindVarying},
        {u"WindVaryingFrom"_s, report.WxFinderWindVaryingFrom},
        {u"WindVaryingTo"_s, report.WxFinderWindVaryingTo},
        {u"MetarDate"_s, report.WxFinderDate},
        {u"MetarTime"_s, report.WxFinderTime},
        {u"MetarMonth"_s, report.WxFinderMonth},
        {u"MetarYear"_s, report.WxFinderYear},
        {u"MetarVisiblity"_s, report.WxFinderVisibility},
        {u"MetarVisibilityFormat"_s, report.WxFinderVisibilityFormat},
        {u"MetarWeather"_s, report.WxFinderWeather},
        {u"MetarWeatherStrength"_s, report.WxFinderWeatherStrength},
        {u"MetarObscuration"_s, report.WxFinderFog},
        {u"MetarCloud"_s, report.WxFinderCloudCover},
        {u"MetarMaxCloud"_s, report.WxFinderMaxCloud},
        {u"MetarTemp"_s, report.WxFinderTemperature},
        {u"MetarDewpoint"_s, report.WxFinderDewpoint},
        {u"MetarPressure"_s, report.WxFinderPressure},
    };
}

namespace {

QString withPoints(QString colours, const QString& decimalSeparator) {
    return colours.replace(decimalSeparator, u"."_s);
}

} // namespace

QJsonObject toJson(const clsTextureSet& set, const QString& decimalSeparator) {
    return {
        {u"Installed"_s, set.Installed},
        {u"IsNew"_s, set.IsNew},
        {u"TsID"_s, set.TsID},
        {u"ColorSettings"_s, withPoints(set.ColorSettings, decimalSeparator)},
        {u"TextureSet"_s, set.TextureSet},
        {u"Actvated"_s, set.Actvated},
        {u"Description"_s, set.Description},
        {u"CloudCover"_s, set.CloudCover},
        {u"IsDutch"_s, set.IsDutch},
    };
}

QJsonObject toJson(const clsNightTextureSet& set, const QString& decimalSeparator) {
    return {
        {u"Installed"_s, set.Installed},
        {u"IsNew"_s, set.IsNew},
        {u"NtsID"_s, set.NtsID},
        {u"ColorSettings"_s, withPoints(set.ColorSettings, decimalSeparator)},
        {u"TextureSet"_s, set.TextureSet},
        {u"Actvated"_s, set.Actvated},
        {u"Description"_s, set.Description},
    };
}

QJsonObject toJson(const clsSkyTextureSet& set, const QString&) {
    return {
        {u"TextureSetGroup"_s, set.TextureSetGroup},
        {u"Description"_s, set.Description},
        {u"Activated"_s, set.Activated},
        {u"CloudCover"_s, set.CloudCover},
        {u"IsNew"_s, set.IsNew},
        {u"Installed"_s, set.Installed},
        {u"StsID"_s, set.StsID},
        {u"SkyTextureSet"_s, set.SkyTextureSet},
    };
}

QJsonObject toJson(const clsSkyTextureSubSet& subSet) {
    return {
        {u"timeOfDay"_s, subSet.timeOfDay},
        {u"IsNew"_s, subSet.IsNew},
        {u"StsID"_s, subSet.StsID},
        {u"StsSubID"_s, subSet.StsSubID},
        {u"SkyTextureSubSet"_s, subSet.SkyTextureSubSet},
        {u"GroundDark"_s, subSet.GroundDark},
        {u"GroundLight"_s, subSet.GroundLight},
        {u"CloudDark"_s, subSet.CloudDark},
        {u"CloudLight"_s, subSet.CloudLight},
        {u"WaterDark"_s, subSet.WaterDark},
        {u"WaterMain"_s, subSet.WaterMain},
        {u"WaterLight"_s, subSet.WaterLight},
        {u"SkyMain"_s, subSet.SkyMain},
        {u"HorizonLow"_s, subSet.HorizonLow},
        {u"HorizonHigh"_s, subSet.HorizonHigh},
    };
}

QJsonObject toJson(const std::vector<CatalogueFile>& files) {
    QJsonArray names, sources, targets, temps;
    for (const CatalogueFile& file : files) {
        names << file.fileName;
        sources << file.sourceFolder.text();
        targets << file.targetFolder.text();
        temps << QString(file.tempFolder.text() + QDir::separator());
    }
    return {{u"fileNames"_s, names},
            {u"sourceFolders"_s, sources},
            {u"targetFolders"_s, targets},
            {u"tempFolders"_s, temps}};
}

void printJson(const QJsonDocument& document) {
    writeStandardOutput(QString::fromUtf8(document.toJson(QJsonDocument::Compact)) + u'\n');
}

} // namespace morvane
