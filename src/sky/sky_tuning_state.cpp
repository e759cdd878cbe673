#include "sky/sky_tuning_state.h"

#include "core/error.h"
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
void readTable(const IniFile& settings, SkyGroups& table) {
    for (const SkyGroupConstants& group : skyGroups())
        for (const SkyField& field : skyFields())
            skyRecord(table, group.number).*field.value =
                static_cast<float>(settings.number(field.name, QString::number(group.number)));
}

} // namespace

bool readSkySettings(const IniFile& settings, SkyTuningState& tuning, SkyGroups& table) {
    const QString coverWord = settings.text(coverSection, onlyKey);
    if (coverWord.isEmpty()) return false;
    tuning.cloudCover = coverWord.left(longestWord);
    if (const CloudCover* cover = cloudCover(coverWord)) tuning.cloudIndex = toInteger(cover->number);
    tuning.baseSet = settings.text(baseSection, onlyKey).left(longestWord);
    readTable(settings, table);
    return true;
}

void tuneCloudCover(Session& session, int cloudIndex) {
    const CloudCover* cover = cloudCover(cloudIndex);
    if (!cover) throw Error(ErrorCode::subscript);
    session.state<SkyTuningState>().cloudIndex = toInteger(cover->number);
    session.state<SkyTuningState>().cloudCover = cover->word;
}

void loadSkyTuning(Session& session) {
    SkyTuningState& tuning = session.state<SkyTuningState>();
    if (tuning.isLoaded) return;
    const IniFile settings = readIni(session.files, settingsFile(session));
    if (!readSkySettings(settings, tuning, session.state<SkyColourTables>().skyPaletteGroups))
        startAnew(session);
    tuning.selectedGroup = 1;
    tuning.isLoaded = true;
}

void saveLastSkySettings(Session& session) {
    if (!session.state<SkyTuningState>().isLoaded) return;
    const FilePath path = settingsFile(session);
    IniFile settings = loadIni(session.files, path);
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
