#include "app/report_parts.h"

#include "app/delivered_texts.h"
#include "core/file_helpers.h"
#include "core/private_texts.h"
#include "core/registry.h"
#include "core/store_records.h"
#include "core/store_schema.h"
#include "core/store_statement.h"
#include "core/wine_prefixes.h"
#include "simulator/simulator_check.h"
#include "weather/active_sky.h"
#include "weather/weather_sources.h"

#include <QLocale>
#include <QRegularExpression>
#include <QSysInfo>
#include <sqlite3.h>

namespace morvane {

namespace {

constexpr std::int64_t largestList = 64 << 10;

QString line(const QString& name, const QString& text) {
    return (name + u':').leftJustified(24) + u' ' + (text.isEmpty() ? u"-"_s : text) + u'\n';
}

QString wineText(Session& session) {
    if (const QString version = wineVersion(); !version.isEmpty()) return version;
    const auto prefix =
        session.FSPath.isEmpty() ? std::nullopt : winePrefixAbove(session.files, session.FSPath / u"fs9.exe");
    if (!prefix) return u"no prefix above the simulator"_s;
    return prefix->keeper.isEmpty() ? u"a prefix of plain wine"_s : u"a prefix of "_s + prefix->keeper;
}

// Settings -----------------------------------------------------------------------------------------------

enum class SettingForm {
    text,
    ownText, ///< the pilot's own: whether there is one
};

struct ReportedSetting {
    const char16_t* name;
    SettingForm form = SettingForm::text;
};

constexpr ReportedSetting settings[] = {
    {u"FirstTime"},
    {u"IsWideClient"},
    {u"InhibitCustomSplash"},
    {u"KeepUndo"},
    {u"Palette"},
    {u"NonEnglishPath"},
    {u"DataFolder"},
    {u"WeatherFormat", SettingForm::ownText},
    {u"WeatherServer", SettingForm::ownText},
    {u"WeatherPath", SettingForm::ownText},
    {u"SimulatorRunner", SettingForm::ownText},
    {u"HomePage", SettingForm::ownText},
    {u"UpdateServer", SettingForm::ownText},
    {u"ActiveSkyPage", SettingForm::ownText},
};

QString weatherText(Session& session) {
    QStringList sources;
    for (const WeatherSource& source : weatherSources(session.registry))
        sources << withoutPrivate(session, source.text());
    return sources.join(u"; "_s);
}

// Rows ---------------------------------------------------------------------------------------------------

/// Columns that hold no word of the pilot's.
struct ReportedRows {
    const char16_t* table;
    const char16_t* columns;
};

constexpr ReportedRows reportedRows[] = {
    {u"TEXTURE_SETS", u"ID, CLOUD_COVER, ACTIVATED, DUTCH, INSTALLED, COLOR_SETTINGS"},
    {u"SKY_TEXTURE_SETS", u"ID, CLOUD_COVER, ACTIVATED, INSTALLED, TEXTURE_SET_GROUP"},
    {u"NIGHT_TEXTURE_SETS", u"ID, ACTIVATED, INSTALLED, COLOR_SETTINGS"},
    {u"MV_BACKUP", u"ID, BACKUP_DATE_TIME"},
    {u"MV_CONFIG", u"ID, TITLE, INSTALLED"},
    {u"TEXTURE_SWITCH", u"ISDUTCH, ISTROPICAL, ISHALO, ISFASTEXIT"},
    {u"WEATHER_SOURCES", u"ASKED_AT, NOT_BEFORE, REFUSALS, HAS_ANSWERED, IS_STORED, LAST_MODIFIED"},
};

QString textOf(const StoreValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) return QString::number(*number);
    if (const auto* fraction = std::get_if<double>(&value)) return QString::number(*fraction);
    const auto* text = std::get_if<QString>(&value);
    return text ? *text : u"-"_s;
}

QString rowsOf(Store& store, const ReportedRows& rows) {
    const QString table = QString::fromUtf16(rows.table), columns = QString::fromUtf16(rows.columns);
    QString text = u'\n' + table + u": "_s + columns + u'\n';
    StoreStatement statement(store, u"SELECT %1 FROM %2"_s.arg(columns, table));
    while (statement.step()) {
        QStringList values;
        for (int i = 0; i < statement.columnCount(); ++i)
            values << textOf(statement.value(i)).simplified();
        text += u"  "_s + values.join(u" | "_s) + u'\n';
    }
    return text;
}

std::int64_t countOf(Store& store, const QString& table) {
    StoreStatement statement(store, u"SELECT COUNT(*) FROM "_s + table);
    return statement.step() ? statement.number(0) : 0;
}

/// A set is named by its key alone.
QString keyOfName(const QString& name) {
    static const QRegularExpression key(u"^\\d+(?=-)"_s);
    const auto found = key.match(name);
    return found.hasMatch() ? u'#' + found.captured() : name;
}

} // namespace

QString versionsText(Session& session) {
    return line(u"Morvane"_s, programVersion()) + line(u"Qt"_s, QString::fromLatin1(qVersion())) +
           line(u"SQLite"_s, QString::fromLatin1(sqlite3_libversion())) +
           line(u"System"_s, QSysInfo::prettyProductName()) +
           line(u"Kernel"_s, QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion()) +
           line(u"Processor"_s, QSysInfo::currentCpuArchitecture()) +
           line(u"Built for"_s, QSysInfo::buildAbi()) + line(u"Wine"_s, wineText(session)) +
           line(u"Language"_s, QLocale::system().name());
}

QString settingsText(Session& session) {
    const Registry& registry = session.registry;
    QString text;
    for (const ReportedSetting& setting : settings) {
        const QString name = QString::fromUtf16(setting.name);
        const QString value = ownValue(registry, name);
        const bool isOwn = setting.form == SettingForm::ownText && !value.isEmpty();
        text += line(name, isOwn ? u"set"_s : withoutPrivate(session, value));
    }
    text += line(u"Weather in force"_s, weatherText(session));
    for (const auto& [name, key, value] : {std::tuple(u"Simulator"_s, simulatorKey, u"EXE Path"_s),
                                           std::tuple(u"Active Sky"_s, activeSkyKey, u"Install_Path"_s)})
        text += line(name, withoutPrivate(registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, key, value), {}));
    return text + line(u"Data"_s, withoutPrivate(session.AppPath.native(), {}));
}

QString rowsText(Session& session) {
    Store& store = connectedStore(session);
    QString text;
    for (const SchemaTable& table : programSchema())
        if (store.hasTable(table.name))
            text += table.name.leftJustified(24) + QString::number(countOf(store, table.name)) + u'\n';
    for (const ReportedRows& rows : reportedRows)
        if (store.hasTable(QString::fromUtf16(rows.table))) text += rowsOf(store, rows);
    return text;
}

QString verifyText(Session& session) {
    SimulatorCheck check = checkSimulator(session, CheckDepth::changedFiles, true);
    for (InstalledPart& part : check.installed)
        part.name = keyOfName(part.name);
    QStringList lines = check.text().split(u'\n');
    for (QString& each : lines)
        each = withoutPrivate(session, each);
    return lines.join(u'\n');
}

QString simulatorListText(Session& session) {
    const FilePath own = session.AppPath / u"real-simulator.txt";
    const QString ticked = QString::fromUtf8(readBounded(session.files, own, largestList));
    QStringList lines = realSimulatorList().split(u'\n');
    for (QString& each : lines)
        if (const QString tick = QString(each).replace(u"- [ ]"_s, u"- [x]"_s);
            tick != each && ticked.contains(tick, Qt::CaseInsensitive))
            each = tick;
    return lines.join(u'\n');
}

} // namespace morvane
