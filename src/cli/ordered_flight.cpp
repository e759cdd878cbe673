#include "cli/ordered_flight.h"

#include "cli/command_helpers.h"
#include "cli/command_slips.h"
#include "cli/json_output.h"
#include "cli/nearest_word.h"
#include "core/error.h"
#include "core/file_helpers.h"
#include "core/numbers.h"
#include "sets/cloud_cover.h"
#include "sets/options_in_force.h"
#include "sets/simulator_note.h"
#include "simulator/flights.h"
#include "simulator/set_matching.h"
#include "simulator/simulator_launch.h"
#include "weather/flight_weather.h"
#include "weather/report_age.h"
#include "weather/reports.h"
#include "weather/weather_refresh.h"

#include <QJsonArray>
#include <algorithm>

namespace morvane {

namespace {

const QString fromOption = u"--from"_s, toOption = u"--to"_s, planOption = u"--plan"_s,
              coverOption = u"--cover"_s, metarOption = u"--metar"_s, refreshOption = u"--refresh"_s,
              maxAgeOption = u"--max-age"_s, flightOption = u"--flight"_s, noStartOption = u"--no-start"_s;
constexpr qint64 usualMaxAge = 180; ///< minutes

const QStringList& sources() {
    static const QStringList names{fromOption, planOption, coverOption, metarOption};
    return names;
}

bool isCode(const QString& word) {
    constexpr qsizetype longestCode = 8;
    const auto isPart = [](QChar letter) { return letter.isLetterOrNumber(); };
    return !word.isEmpty() && word.size() <= longestCode && std::ranges::all_of(word, isPart);
}

Operand codeOperand() {
    return {.name = u"ICAO"_s, .takes = u"an airport's code"_s, .isTaken = isCode};
}

Operand textOperand(const QString& name, const QString& takes) {
    return {.name = name, .takes = takes, .isTaken = [](const QString& word) {
                return !word.trimmed().isEmpty();
            }};
}

QString fitWord(SetFit fit) {
    switch (fit) {
    case SetFit::fitting:
        return u"fitting"_s;
    case SetFit::nearest:
        return u"nearest"_s;
    case SetFit::standard:
        break;
    }
    return u"Default"_s;
}

QJsonObject toJson(const ChosenSet& set) {
    return {{u"name"_s, set.name}, {u"why"_s, fitWord(set.fit)}};
}

QJsonValue toJson(std::optional<qint64> minutes) {
    return minutes ? QJsonValue(*minutes) : QJsonValue();
}

QString setText(const QString& kind, const ChosenSet& set) {
    return u"%1 set '%2' (%3)"_s.arg(kind, set.name, fitWord(set.fit));
}

/// One run along the road.
class OrderedFlight {
public:
    explicit OrderedFlight(CommandContext& context)
        : user_(context.user), session_(context.session), options_(context.options) {}

    void run();
    QJsonObject told() const;

private:
    QJsonValue problem() const;
    bool has(const QString& option) const { return options_.contains(option); }
    bool isTrial() const { return has(dryRunOption.name); }
    bool isByStoredReports() const { return has(fromOption) || has(planOption); }
    void say(const QString& text) { user_.tellDone({text}); }

    void findFlight();
    void refresh();
    void judgeStoredReports();
    std::optional<FlightWeather> weather();
    const CloudCover* cover();
    void tellWeather(const FlightWeather& weather, const CloudCover& cover);
    void tellTrial(const CloudCover& cover);
    void install(const CloudCover& cover);
    void start();

    ConsoleUser& user_;
    Session& session_;
    const QHash<QString, QString>& options_;
    QString flight_;
    bool isRefreshed_ = false;
    QJsonValue weather_, ground_, sky_, files_ = 0;
    QString start_ = u"none"_s;
};

void OrderedFlight::run() {
    findFlight();
    refresh();
    const CloudCover* cover = this->cover();
    if (!cover) return;
    user_.endWhereInterrupted();
    if (isTrial()) return tellTrial(*cover);
    install(*cover);
}

QJsonObject OrderedFlight::told() const {
    return {{u"dryRun"_s, isTrial()},
            {u"weather"_s, weather_},
            {u"ground"_s, ground_},
            {u"sky"_s, sky_},
            {u"files"_s, files_},
            {u"start"_s, start_},
            {u"flight"_s, flight_.isEmpty() ? QJsonValue() : QJsonValue(flight_)},
            {u"problem"_s, problem()}};
}

QJsonValue OrderedFlight::problem() const {
    if (user_.hasFailed()) return user_.lastFailure();
    return user_.wasLeftOpen() ? QJsonValue(u"Nobody answered a question"_s) : QJsonValue();
}

/// Gathered as every start of the program does it, as a flight may have been saved since.
void OrderedFlight::findFlight() {
    if (!has(flightOption)) return;
    if (session_.state<OptionsInForce>().IsWideClient)
        throw Error::withDescription(
            ErrorCode::invalidCall,
            u"This computer is a WideFS client: the saved flights are those of the server"_s);
    constexpr int documents = 5;
    session_.MyDocumentsPath = GetSpecialFolder(documents);
    if (!isTrial()) loadFlightFiles(session_);
    const QStringList names = isTrial() ? flightsToGather(session_) : savedFlights(session_);
    flight_ = flightNamed(options_[flightOption], names);
}

/// A trial writes no reports either.
void OrderedFlight::refresh() {
    if (!has(refreshOption)) return;
    if (isTrial()) return say(u"The weather would be refreshed first; this is by the stored reports"_s);
    isRefreshed_ = refreshUnasked(session_);
    user_.endWhereInterrupted();
    if (isRefreshed_ || isByStoredReports()) return;
    user_.makeGood();
    say(u"The weather was not refreshed, and is not needed for this cover"_s);
}

/// Stored reports that a refresh was to replace serve as long as they are young enough.
void OrderedFlight::judgeStoredReports() {
    if (!session_.rows<clsWxFinders>()) clsWxFinders::reload(session_);
    const auto age = youngestReportAge(session_);
    if (!age)
        throw Error::withDescription(ErrorCode::invalidCall,
                                     u"There are no stored reports; --refresh fetches them"_s);
    const bool hasFailed = has(refreshOption) && !isRefreshed_ && !isTrial();
    const qint64 most = has(maxAgeOption) ? options_[maxAgeOption].toLongLong() : usualMaxAge;
    const bool isJudged = hasFailed || (has(maxAgeOption) && !has(refreshOption));
    if (isJudged && *age > most)
        throw Error::withDescription(ErrorCode::invalidCall,
                                     u"The stored reports are %1, and only %2 would do (--max-age)"_s.arg(
                                         ageText(*age), countText(most, u"minute"_s)));
    if (!hasFailed) return;
    user_.makeGood();
    say(u"The weather was not refreshed; the stored reports serve, the youngest is "_s + ageText(*age));
}

std::optional<FlightWeather> OrderedFlight::weather() {
    if (has(metarOption)) return weatherOfReport(session_, options_[metarOption]);
    judgeStoredReports();
    if (has(fromOption)) return weatherOfAirports(session_, options_[fromOption], options_[toOption]);
    return weatherOfPlan(session_, pathOfArgument(options_[planOption]));
}

/// Nothing after the message of why there is none.
const CloudCover* OrderedFlight::cover() {
    if (has(coverOption)) {
        const CloudCover* cover = cloudCoverOfCode(options_[coverOption]);
        tellWeather({.cloudClass = static_cast<std::int16_t>(cover->number)}, *cover);
        return cover;
    }
    const auto found = weather();
    if (!found) return nullptr;
    const CloudCover& cover = coverOfClass(found->cloudClass);
    tellWeather(*found, cover);
    return &cover;
}

void OrderedFlight::tellWeather(const FlightWeather& weather, const CloudCover& cover) {
    QJsonArray reports;
    std::optional<qint64> age = isByStoredReports() ? youngestReportAge(session_) : std::nullopt;
    for (const clsWxFinder& report : weather.reports) {
        const auto own = observationAge(session_, report.WxFinderDate, report.WxFinderTime);
        if (!isByStoredReports()) age = own;
        reports << QJsonObject{{u"report"_s, report.WxFinderMetar}, {u"ageMinutes"_s, toJson(own)}};
        say(report.WxFinderMetar + (own ? u", "_s + ageText(*own) : QString()));
    }
    if (!weather.route.isEmpty()) say(weather.route);
    weather_ = QJsonObject{{u"source"_s, orderedBy(options_).mid(2)},
                           {u"refreshed"_s, isRefreshed_},
                           {u"ageMinutes"_s, toJson(age)},
                           {u"class"_s, weather.cloudClass},
                           {u"cover"_s, cover.word},
                           {u"reports"_s, reports}};
    say(cover.word +
        (age && isByStoredReports() ? u", the youngest report is "_s + ageText(*age) : QString()));
}

void OrderedFlight::tellTrial(const CloudCover& cover) {
    const MatchedSets chosen = chooseMatchingSets(session_, cover);
    ground_ = toJson(chosen.ground);
    sky_ = toJson(chosen.sky);
    say(u"Would install "_s + setText(u"ground"_s, chosen.ground) + u" and "_s +
        setText(u"sky"_s, chosen.sky));
    if (belongsToAnother(session_))
        say(u"The textures in the simulator are those of another Morvane: an install would ask first"_s);
    if (has(noStartOption)) return;
    const bool isClient = session_.state<OptionsInForce>().IsWideClient;
    start_ = isClient ? u"on the server"_s : flight_.isEmpty() ? u"simulator"_s : u"saved flight"_s;
    if (!isClient)
        say(u"Would start Flight Simulator"_s +
            (flight_.isEmpty() ? QString() : u" with the flight '%1'"_s.arg(flight_)));
}

/// Without all of its files nothing is started. A No to the take-over ends the road as well.
void OrderedFlight::install(const CloudCover& cover) {
    if (!claimSimulator(session_)) return;
    const MatchedSets installed = installMatchingSets(session_, cover);
    ground_ = toJson(installed.ground);
    sky_ = toJson(installed.sky);
    files_ = installed.filesCopied;
    if (!installed.isWhole) return;
    say(u"Installed "_s + setText(u"ground"_s, installed.ground) + u" and "_s +
        setText(u"sky"_s, installed.sky) + u": "_s + countText(installed.filesCopied, u"file"_s));
    user_.endWhereInterrupted();
    if (!has(noStartOption)) start();
}

void OrderedFlight::start() {
    if (startUnasked(session_, flight_)) {
        start_ = flight_.isEmpty() ? u"simulator"_s : u"saved flight"_s;
        say(u"Started Flight Simulator"_s +
            (flight_.isEmpty() ? QString() : u" with the flight '%1'"_s.arg(flight_)));
    } else if (session_.state<OptionsInForce>().IsWideClient)
        start_ = u"on the server"_s;
}

} // namespace

std::vector<CommandOption> flightOptions() {
    return {{fromOption, u"the weather of the departure, by the stored reports"_s, codeOperand()},
            {toOption, u"and of the destination"_s, codeOperand()},
            {planOption, u"the weather along a flight plan"_s, textOperand(u"FILE"_s, u"a file"_s)},
            {coverOption, u"a cloud cover, without a question"_s, coverOperand()},
            {metarOption, u"the cloud cover of a report"_s, {u"TEXT"_s, {}}},
            {refreshOption, u"fetches the newest reports first"_s},
            {maxAgeOption,
             u"how old the youngest stored report may be where that fails; 180 when nothing is said"_s,
             {.name = u"MINUTES"_s,
              .takes = u"a whole number of minutes"_s,
              .isTaken = [](const QString& word) { return isDigits(word) && word.size() < 10; }}},
            {flightOption, u"starts the simulator with that saved flight"_s,
             textOperand(u"NAME"_s, u"a saved flight's name"_s)},
            {noStartOption, u"does not start the simulator"_s},
            dryRunOption,
            {jsonOption.name, u"prints what was done as one JSON object"_s}};
}

QString orderedBy(const QHash<QString, QString>& options) {
    const auto isGiven = [&](const QString& name) { return options.contains(name); };
    const auto found = std::ranges::find_if(sources(), isGiven);
    return found == sources().end() ? QString() : *found;
}

bool isOrdered(const QHash<QString, QString>& options) {
    return !orderedBy(options).isEmpty();
}

QString orderProblem(const QHash<QString, QString>& options) {
    QStringList given;
    for (const QString& source : sources())
        if (options.contains(source)) given << source;
    if (given.size() > 1) return given[0] + u" and "_s + given[1] + u" exclude each other"_s;
    if (options.contains(toOption) && !options.contains(fromOption)) return u"--to goes with --from ICAO"_s;
    if (options.contains(flightOption) && options.contains(noStartOption))
        return u"--flight and --no-start exclude each other"_s;
    if (!given.isEmpty()) return {};
    for (const CommandOption& option : flightOptions())
        if (option.name != jsonOption.name && options.contains(option.name))
            return option.name + u" goes with "_s + either(sources());
    return {};
}

QString flightNamed(const QString& wanted, const QStringList& names) {
    const auto isMeant = [&](const QString& name) { return name.compare(wanted, Qt::CaseInsensitive) == 0; };
    if (const auto found = std::ranges::find_if(names, isMeant); found != names.end()) return *found;
    const QString nearest = nearestWord(wanted, names);
    throw Error::withDescription(ErrorCode::fileNotFound,
                                 u"There is no saved flight '%1'; "_s.arg(wanted) +
                                     (nearest.isEmpty() ? u"'morvane-cli flights list' names them"_s
                                                        : u"did you mean '%1'?"_s.arg(nearest)));
}

void flyAsOrdered(CommandContext& context) {
    OrderedFlight flight(context);
    try {
        flight.run();
    } catch (const Error& error) { // in one line, as the slips of a command line are
        context.user.systemBox(error.description(), {}, SystemBoxButtons::ok);
    }
    if (context.options.contains(jsonOption.name)) printJson(QJsonDocument(flight.told()));
}

} // namespace morvane
