#include "sky/sky_tuning_state.h"

#include "core/error.h"
#include "core/ini_file.h"
#include "core/numbers.h"
#include "sets/cloud_cover.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_groups.h"

namespace morvane {

namespace {

constexpr qsizetype longestWord = 15;
const QString coverSection = u"Cloud Cover"_s;
const QString baseSection = u"Texture Set Group"_s;
const QString onlyKey = u"1"_s;

FilePath settingsFile(const Session& session) {
    return session.AppPath / u"LastSkySettings.cfg";
}

void startAnew(Session& session) {
    tuneCloudCover(session, 1);
    session.state<SkyTuningState>().baseSet = u"Default"_s;
    session.state<SkyColourTables>().skyPaletteGroups = {};
}

/// Numbers are read as whole ones: a fraction is cut off, what is missing or unreadable is 0.
void readTable(Session& session, const FilePath& file) {
    for (const SkyGroupConstants& group : skyGroups()) {
        SkyGroup& record = skyRecord(session.state<SkyColourTables>().skyPaletteGroups, group.number);
        for (const SkyField& field : skyFields())
            record.*field.value =
                static_cast<float>(GetIniInt(session.files, field.name, QString::number(group.number), file));
    }
}

void readSettings(Session& session, const FilePath& file, const QString& coverWord) {
    SkyTuningState& tuning = session.state<SkyTuningState>();
    tuning.cloudCover = coverWord.left(longestWord);
    if (const CloudCover* cover = cloudCover(coverWord)) tuning.cloudIndex = toInteger(cover->number);
    tuning.baseSet = GetIniString(session.files, baseSection, onlyKey, file).left(longestWord);
    readTable(session, file);
}

} // namespace

void tuneCloudCover(Session& session, int cloudIndex) {
    const CloudCover* cover = cloudCover(cloudIndex);
    if (!cover) throw Error(ErrorCode::subscript);
    session.state<SkyTuningState>().cloudIndex = toInteger(cover->number);
    session.state<SkyTuningState>().cloudCover = cover->word;
}

void loadSkyTuning(Session& session) {
    if (session.state<SkyTuningState>().isLoaded) return;
    const FilePath file = settingsFile(session);
    const QString coverWord = GetIniString(session.files, coverSection, onlyKey, file);
    if (coverWord.isEmpty())
        startAnew(session);
    else
        readSettings(session, file, coverWord);
    session.state<SkyTuningState>().selectedGroup = 1;
    session.state<SkyTuningState>().isLoaded = true;
}

void saveLastSkySettings(Session& session) {
    if (!session.state<SkyTuningState>().isLoaded) return;
    const FilePath path = settingsFile(session);
    IniFile settings;
    if (session.files.exists(path)) settings = IniFile::parse(session.files.read(path));
    settings.setRawValue(coverSection, onlyKey, trimmedBlanks(session.state<SkyTuningState>().cloudCover));
    settings.setRawValue(baseSection, onlyKey, trimmedBlanks(session.state<SkyTuningState>().baseSet));
    for (const SkyGroupConstants& group : skyGroups()) {
        SkyGroup record = skyRecord(session.state<SkyColourTables>().skyPaletteGroups, group.number);
        setRegion(record, group);
        for (const SkyField& field : skyFields())
            settings.setRawValue(field.name, QString::number(group.number), floatText(record.*field.value));
    }
    session.files.write(path, settings.toBytes());
}

} // namespace morvane
