// morvane-run: the main job at the console, on a sample install: the weather of a flight, its cover word, a
// ground set for it, the question, the install, the simulator's start, and a contact sheet to look at.

#include "app/start_up.h"
#include "cli/console_user.h"
#include "cli/terminal.h"
#include "contact_sheet_samples.h"
#include "core/registry.h"
#include "core/store_connection.h"
#include "core/text_decoding.h"
#include "flight_weather.h"
#include "ground/ground_generation.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "sample_endpoint.h"
#include "sets/cloud_cover.h"
#include "sets/set_choice.h"
#include "simulator/flights.h"
#include "simulator/options.h"
#include "simulator/set_matching.h"
#include "simulator/simulator_launch.h"
#include "sky/sky_generation.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"
#include "start_record.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>

using namespace morvane;

namespace {

/// A report of the sample cycle with some weather in it.
QString sampleReport(FileSystem& files) {
    const QString cycle =
        decodeText(files.read(FilePath(QStringLiteral(MORVANE_DATA_DIR)) / u"metar\\02Z.TXT"));
    for (const QString& line : splitLines(cycle))
        if (line.startsWith(u"KSEA ")) return line;
    return {};
}

/// Whether there is another activated set for the cover than the delivered one.
template <class Sets>
bool hasOwnSet(const Sets& sets, const QString& cover) {
    const QStringList names = namesForCover(activatedSets(sets), cover);
    return std::any_of(names.begin(), names.end(), [](const QString& name) { return name != u"Default"; });
}

std::array<std::int16_t, 5> oneOf(const QString& cover) {
    std::array<std::int16_t, 5> counts{};
    counts[static_cast<std::size_t>(cloudCover(cover)->number - 1)] = 1;
    return counts;
}

/// `make` makes a set and gives its name.
template <class Make>
void makeSet(const QString& kind, const QString& cover, Make make) {
    say(u"There is no activated %1 set for %2 yet, so one is made."_s.arg(kind, cover));
    QElapsedTimer timer;
    timer.start();
    const QString name = make();
    say(u"Made '%1' in %2 s."_s.arg(name).arg(static_cast<double>(timer.elapsed()) / 1000, 0, 'f', 1));
}

void makeMissingSets(Session& session, ConsoleUser& user, const QString& cover) {
    user.onModal = [&](Screen screen) {
        auto& grounds = session.state<GroundSetCounts>();
        auto& skies = session.state<SkySetCounts>();
        grounds.setCounts = skies.skySetCounts = oneOf(cover);
        // An overcast sky is made of the base set of that name only, any other never of it.
        skies.skyBaseSets = QStringList{cover == u"Overcast" ? u"Overcast"_s : u"Pro Sky"_s};
        grounds.setCountsConfirmed = screen == Screen::frm_TsRequired;
        skies.skySetsConfirmed = screen == Screen::frm_SelectSkyTexture;
    };
    if (!hasOwnSet(loadedGroundSets(session), cover))
        makeSet(u"ground"_s, cover, [&] {
            GroundGeneration(session).createTextureSets(true);
            return session.state<GroundSelection>().SelectedGroundSet;
        });
    if (!hasOwnSet(loadedSkySets(session), cover))
        makeSet(u"sky"_s, cover, [&] {
            SkyGeneration(session).createSkySets(true);
            const auto& sets = loadedSkySets(session);
            return sets.GetItem(sets.Count())->SkyTextureSet;
        });
}

/// What the sample simulator's stand-in recorded; a real simulator keeps no record and has a window to show.
void showStart(const QString& simulator, qsizetype startsBefore) {
    for (const QDeadlineTimer deadline(3000); !deadline.hasExpired(); QThread::msleep(20))
        if (const QByteArrayList starts = recordedStarts(simulator); starts.size() > startsBefore)
            return say(u"Simulator started: "_s + QString::fromUtf8(starts.last()));
    say(u"The simulator recorded no start."_s);
}

/// The saved flights are gathered as a start of the program does it; the one asked for is chosen from them.
bool prepareFlight(Session& session, ConsoleUser& user, const QString& flight) {
    loadFlightFiles(session);
    if (flight.isEmpty()) return true;
    const QStringList flights = savedFlights(session);
    if (!flights.contains(flight, Qt::CaseInsensitive)) {
        say(u"There is no saved flight '%1'. There are: %2"_s.arg(flight, flights.join(u", "_s)));
        return false;
    }
    user.onModal = [&session, flight](Screen screen) {
        if (screen != Screen::frm_flight) return;
        session.state<FlightChoice>().SelectedFlightName = flight;
        session.state<FlightChoice>().FlightSelected = true;
    };
    return true;
}

FlyReport fly(Session& session, const CloudCover& cover) {
    QElapsedTimer timer;
    timer.start();
    const FlyReport report = flyWithCover(session, cover);
    if (!report.installed)
        say(u"Nothing was installed."_s);
    else
        say(u"Installed ground set '%1' and sky set '%2': %3 files in %4 s, into %5"_s
                .arg(report.installed->ground.name, report.installed->sky.name)
                .arg(report.installed->filesCopied)
                .arg(timer.elapsed() / 1000.0, 0, 'f', 1)
                .arg(session.FSPath.text()));
    return report;
}

struct RunRequest {
    QString metar, departure, destination, plan, flight, sheet;
    bool refreshes;
};

std::int16_t cloudClassOf(Session& session, ConsoleUser& user, const RunRequest& request) {
    if (!request.plan.isEmpty()) return classOfPlan(session, request.plan);
    if (!request.departure.isEmpty() || !request.destination.isEmpty())
        return classOfAirports(session, user, request.departure, request.destination);
    return classOfReport(session, request.metar.isEmpty() ? sampleReport(session.files) : request.metar);
}

int run(Session& session, ConsoleUser& user, const RunRequest& request) {
    if (!startUp(session)) return 1;
    getCustomSplashVal(session);
    if (request.refreshes && !refreshCycle(session, user)) return 1;
    const std::int16_t cloudClass = cloudClassOf(session, user, request);
    if (cloudClass == 0) return 1;
    const CloudCover& cover = coverOfClass(cloudClass);
    say(u"Cloud cover: "_s + cover.word);
    makeMissingSets(session, user, cover.word);
    if (!prepareFlight(session, user, request.flight)) return 1;
    const QString simulator = session.FSPath.native();
    const qsizetype startsBefore = recordedStarts(simulator).size();
    if (fly(session, cover).isSimulatorStarted) showStart(simulator, startsBefore);
    writeContactSheet(session, request.sheet);
    say(u"Contact sheet: "_s + request.sheet);
    closeDatabase(session);
    return user.hasFailed() ? 1 : 0;
}

void addOptions(QCommandLineParser& parser) {
    const auto add = [&](const QString& name, const QString& meaning, const QString& value = {}) {
        parser.addOption({name, meaning, value});
    };
    add(u"home"_s, u"The install folder."_s, u"DIR"_s);
    add(u"sheet"_s, u"Where the contact sheet goes."_s, u"PNG"_s);
    add(u"metar"_s, u"A report of your own; else one of the sample cycle."_s, u"TEXT"_s);
    add(u"from"_s, u"The departure, for its stored report."_s, u"ICAO"_s);
    add(u"to"_s, u"The destination, for its stored report."_s, u"ICAO"_s);
    add(u"plan"_s, u"A flight plan, for the stored reports along it."_s, u"FILE"_s);
    add(u"serve-sample"_s, u"Refresh first, from a server on the loopback that has the sample cycle."_s);
    add(u"flight"_s, u"A saved flight to start the simulator with; else none."_s, u"NAME"_s);
}

int runSample(const QCommandLineParser& parser) {
    NativeFileSystem files;
    SystemClock clock;
    ReseedingRandomSource random;
    ConsoleUser user({isTerminal() ? AnswerPolicy::ask : AnswerPolicy::yes,
                      true,
                      {{Question::savedFlight, parser.isSet(u"flight"_s)}}});
    const FilePath home(QFileInfo(parser.value(u"home"_s)).absoluteFilePath());
    const auto registry = openRegistry(files, home, FolderChoice::named);
    std::optional<SampleEndpoint> sample;
    if (parser.isSet(u"serve-sample"_s)) say(u"Weather server: "_s + sample.emplace(*registry).address());
    Session session({user, files, clock, random, sample ? *sample : *registry}, home);
    const RunRequest request{
        parser.value(u"metar"_s),  parser.value(u"from"_s),
        parser.value(u"to"_s),     parser.value(u"plan"_s),
        parser.value(u"flight"_s), QFileInfo(parser.value(u"sheet"_s)).absoluteFilePath(),
        sample.has_value()};
    return run(session, user, request);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"From a METAR to an installed ground set, on a sample install."_s);
    parser.addHelpOption();
    addOptions(parser);
    parser.process(application);
    if (!parser.isSet(u"home"_s) || !parser.isSet(u"sheet"_s)) parser.showHelp(2);
    try {
        return runSample(parser);
    } catch (const RoadEnded&) {
        return 1;
    } catch (const Error& error) {
        say(error.description());
        return 1;
    }
}
