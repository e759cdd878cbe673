// morvane-run: the main job at the console, on a sample install: a METAR, its cover word, a ground set for
// it, the question, the install, the simulator's start, and a contact sheet to look at.

#include "cli/console_user.h"
#include "cli/terminal.h"
#include "contact_sheet_samples.h"
#include "core/application.h"
#include "core/numbers.h"
#include "core/options.h"
#include "core/registry.h"
#include "core/text_decoding.h"
#include "ground/cloud_cover.h"
#include "ground/ground_generation.h"
#include "ground/ground_sets.h"
#include "simulator/flights.h"
#include "simulator/set_choice.h"
#include "simulator/set_matching.h"
#include "sky/sky_generation.h"
#include "sky/sky_sets.h"
#include "start_record.h"
#include "weather/metar_decoder.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>

using namespace morvane;

namespace {

void say(const QString& text) {
    writeStandardOutput(text + u'\n');
}

/// A report of the sample cycle with some weather in it.
QString sampleReport(FileSystem& files) {
    const QString cycle =
        decodeText(files.read(FilePath(QStringLiteral(MORVANE_DATA_DIR)) / u"metar\\02Z.TXT"));
    for (const QString& line : splitLines(cycle))
        if (line.startsWith(u"KSEA ")) return line;
    return {};
}

void describe(const clsDecodeMetar& report) {
    const std::pair<const char16_t*, QString> lines[] = {
        {u"Station", report.MetarICAO},
        {u"Wind", report.WindDirection + u' ' + report.WindSpeed + report.WindSpeedMeasurement},
        {u"Visibility", report.MetarVisiblity},
        {u"Weather", report.MetarWeatherStrength + report.MetarWeather},
        {u"Sky", report.MetarCloud},
        {u"Temperature", report.MetarTemp},
        {u"Pressure", report.MetarPressure},
    };
    for (const auto& [name, value] : lines)
        if (!trimmedBlanks(value).isEmpty())
            say(u"  %1 %2"_s.arg(QStringView(name).toString() + u':', -12).arg(value));
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
        ModalState& modal = session.modal;
        modal.setCounts = modal.skySetCounts = oneOf(cover);
        // An overcast sky is made of the base set of that name only, any other never of it.
        modal.skyBaseSets = QStringList{cover == u"Overcast" ? u"Overcast"_s : u"Pro Sky"_s};
        modal.setCountsConfirmed = screen == Screen::frm_TsRequired;
        modal.skySetsConfirmed = screen == Screen::frm_SelectSkyTexture;
    };
    if (!hasOwnSet(loadedGroundSets(session), cover))
        makeSet(u"ground"_s, cover, [&] {
            GroundGeneration(session).createTextureSets(true);
            return session.ground.SelectedGroundSet;
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
        session.modal.SelectedFlightName = flight;
        session.modal.FlightSelected = true;
    };
    return true;
}

void fly(Session& session) {
    QElapsedTimer timer;
    timer.start();
    const int copied = flyWithCover(session);
    if (copied < 0) {
        say(u"Nothing was installed."_s);
        return;
    }
    say(u"Installed ground set '%1' and sky set '%2': %3 files in %4 s, into %5"_s
            .arg(session.ground.SelectedGroundSet, session.sky.SelectedSkySet)
            .arg(copied)
            .arg(timer.elapsed() / 1000.0, 0, 'f', 1)
            .arg(session.FSPath.text()));
}

struct RunRequest {
    QString metar, flight, sheet;
};

int run(Session& session, ConsoleUser& user, const RunRequest& request) {
    const QString& metar = request.metar;
    if (!startUp(session)) return 1;
    getCustomSplashVal(session);
    say(u"METAR: "_s + metar);
    clsDecodeMetar report(user);
    report.decodeMetarString(metar);
    describe(report);
    if (!processMetarString(session, metar)) return 1;
    const QString cover = SetMatching::coverWord(SetMatching(session).getAverageCloudCover());
    say(u"Cloud cover: "_s + cover);
    makeMissingSets(session, user, cover);
    if (!prepareFlight(session, user, request.flight)) return 1;
    const QString simulator = session.FSPath.native();
    const qsizetype startsBefore = recordedStarts(simulator).size();
    fly(session);
    if (session.modal.FlightSelected || user.answers().flag(Question::launch))
        showStart(simulator, startsBefore);
    writeContactSheet(session, request.sheet);
    say(u"Contact sheet: "_s + request.sheet);
    closeDatabase(session);
    return user.hasFailed() ? 1 : 0;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"From a METAR to an installed ground set, on a sample install."_s);
    parser.addHelpOption();
    parser.addOption({u"home"_s, u"The install folder."_s, u"DIR"_s});
    parser.addOption({u"sheet"_s, u"Where the contact sheet goes."_s, u"PNG"_s});
    parser.addOption({u"metar"_s, u"A report of your own; else one of the sample cycle."_s, u"TEXT"_s});
    parser.addOption({u"flight"_s, u"A saved flight to start the simulator with; else none."_s, u"NAME"_s});
    parser.process(application);
    if (!parser.isSet(u"home"_s) || !parser.isSet(u"sheet"_s)) parser.showHelp(2);

    NativeFileSystem files;
    SystemClock clock;
    ReseedingRandomSource random;
    ConsoleUser user({isTerminal() ? AnswerPolicy::ask : AnswerPolicy::yes,
                      true,
                      {{Question::savedFlight, parser.isSet(u"flight"_s)}}});
    const FilePath home(QFileInfo(parser.value(u"home"_s)).absoluteFilePath());
    const auto registry = openRegistry(files, home);
    Session session({user, files, clock, random, *registry}, home);
    const QString metar = parser.isSet(u"metar"_s) ? parser.value(u"metar"_s) : sampleReport(files);
    const QString sheet = QFileInfo(parser.value(u"sheet"_s)).absoluteFilePath();
    return run(session, user, {metar, parser.value(u"flight"_s), sheet});
}
