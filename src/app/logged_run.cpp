#include "app/logged_run.h"

#include "app/delivered_texts.h"
#include "core/private_texts.h"
#include "core/program_log.h"
#include "core/registry.h"
#include "ground/texture_sets.h"
#include "night/night_texture_sets.h"
#include "sets/set_names.h"
#include "simulator/flights.h"
#include "sky/sky_texture_sets.h"
#include "weather/weather_sources.h"

#include <QCoreApplication>
#include <QSysInfo>

namespace morvane {

namespace {

using Texts = std::vector<PrivateText>;

/// Of what is in memory: the log is to cost nothing, and to tell nothing.
template <class Rows>
void addNames(Session& session, Texts& texts) {
    if (const auto& rows = session.rows<Rows>())
        for (const auto& set : *rows)
            if (nameOf(*set) != defaultSetName) texts.push_back({nameOf(*set), u'#' + keyOf(*set)});
}

void addFolder(const QString& folder, const QString& standIn, Texts& texts) {
    const Texts spellings = folderTexts(folder, standIn);
    texts.insert(texts.end(), spellings.begin(), spellings.end());
}

/// Those that the pilot entered himself.
void addWeatherServers(const Registry& registry, Texts& texts) {
    for (const WeatherSource& source : weatherSources(registry)) {
        const QString value = u"WeatherSource-"_s + source.name;
        const bool isDelivered = deliveredSourceNames().contains(source.name);
        if (isDelivered && ownValue(registry, value).isEmpty()) continue;
        for (const QString& part :
             {source.address.toString(), source.address.host(), source.address.userName(),
              source.address.password(), source.address.path(), isDelivered ? QString() : source.name})
            if (part.size() > 1) texts.push_back({part, u"<server>"_s});
    }
}

Texts privateTextsOf(Session& session) {
    Texts texts;
    addFolder(session.AppPath.native(), u"<data>"_s, texts);
    if (!session.FSPath.isEmpty()) addFolder(session.FSPath.native(), u"<simulator>"_s, texts);
    addNames<clsTextureSets>(session, texts);
    addNames<clsNightTextureSets>(session, texts);
    addNames<clsSkyTextureSets>(session, texts);
    for (const QString& flight : session.state<KnownFlights>().names)
        texts.push_back({flight, u"<flight>"_s});
    addWeatherServers(session.registry, texts);
    if (const QString runner = ownValue(session.registry, u"SimulatorRunner"_s); !runner.isEmpty())
        texts.push_back({runner, u"<runner>"_s});
    const Texts others = session.state<PrivateTexts>().all();
    texts.insert(texts.end(), others.begin(), others.end());
    return texts;
}

} // namespace

QString withoutPrivate(Session& session, const QString& text) {
    return text.isEmpty() ? QString() : withoutPrivate(text, privateTextsOf(session));
}

LoggedRun::LoggedRun(Session& session, const QString& program, const QString& what) : session_(session) {
    ProgramLog& log = session.state<ProgramLog>();
    log.open({session.files, session.clock, session.AppPath, program},
             [&session](const QString& text) { return withoutPrivate(session, text); });
    session.user.setListener(&log);
    log.note(u"Begin"_s, programVersion() + u", "_s + QSysInfo::prettyProductName() +
                             (what.isEmpty() ? QString() : u": "_s + what));
}

LoggedRun::~LoggedRun() {
    session_.user.setListener(nullptr);
    session_.state<ProgramLog>().note(u"End"_s, {});
}

} // namespace morvane
