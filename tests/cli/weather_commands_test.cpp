#include "cli/console.h"

#include "weather/active_sky.h"
#include "weather/weather_rows.h"

#include <QFile>
#include <QProcess>
#include <algorithm>

namespace morvane::test {
namespace {

TEST(CycleCommands, importAFileInEachForm) {
    ConsoleInstall install;
    expectSteps(install, {{u"metar|import|missing.txt"_s, {}, 1},
                          {u"metar|download"_s, {u"No weather server is set."_s}, 1}});
    EXPECT_EQ(install.run(u"metar rows"_s).output, "");
    const QString sample = QStringLiteral(MORVANE_DATA_DIR "/metar/");
    const std::pair<QStringList, qsizetype> cases[] = {
        {{sample + "Export_Cycle.dat", "asv6"}, 250},
        {{sample + "02Z.TXT", "noaa"}, 611}, // some stations are in both
        {{sample + "02Z.TXT"}, 614},         // and two date lines and an empty line
        {{sample + "metars.cache.csv", "awc"}, 614},
    };
    for (const auto& [arguments, count] : cases) {
        EXPECT_EQ(install.run("metar import", arguments).status, 0);
        EXPECT_EQ(install.run("metar rows").objects().size(), static_cast<std::size_t>(count));
    }
    const auto rows = install.run(u"metar rows"_s).objects();
    const auto gusty = std::find_if(rows.begin(), rows.end(), [](const QJsonObject& row) {
        return row[u"METAR_WIND_GUSTING"_s].toBool();
    });
    ASSERT_NE(gusty, rows.end());
    EXPECT_TRUE((*gusty)[u"METAR_MAX_CLOUD"_s].isDouble() && (*gusty)[u"METAR_LAT"_s].isNull());
    EXPECT_EQ(gusty->size(), 28) << "every column";
}

/// The server answers while the console waits for it, so it has a program of its own.
TEST(CycleCommands, tellTheSourceAndItsAge) {
    QProcess server;
    server.start(QStringLiteral(MORVANE_BIN_DIR "/morvane-weather-server"), QStringList());
    ASSERT_TRUE(server.waitForReadyRead());
    const QString address = QString::fromLatin1(server.readLine().trimmed());
    ConsoleInstall install;
    storeOwnValue(install.registry, u"WeatherServer"_s, address);
    storeOwnValue(install.registry, u"WeatherPath"_s, u"/bad/page"_s);
    storeOwnValue(install.registry, u"WeatherSource-club"_s,
                  u"awc "_s + address + u"/data/cache/metars.cache.csv.gz"_s);
    const QString source = u"\"source\":\"club, all current reports\""_s;
    expectSteps(install,
                {{u"config|get|weather"_s, {u"{\"weather\":\"none\"}"_s}},
                 {u"config|set|weather|noaa;moon"_s, {u"There is no weather source \"moon\""_s}, 1},
                 {u"config|set|weather|club;CLUB"_s, {u"{\"weather\":\"club\"}"_s}},
                 {u"metar|sources"_s, {u"\"reports\":0,\"source\":null"_s, u"\"state\":\"not asked yet\""_s}},
                 {u"metar|download|--json"_s,
                  {u"127.0.0.1: the server answers with status 404"_s, u"\"said\":\"delivered\""_s,
                   u"\"ageMinutes\":"_s, u"\"end\":\"delivered\""_s, u"\"reports\":133"_s, source}},
                 {u"metar|download"_s, {u"(club: nothing newer)"_s}},
                 {u"metar|sources"_s, {u"\"state\":\"nothing newer; asked "_s, source}}});
    server.kill();
    server.waitForFinished();
    expectSteps(install, {{u"metar|download|--json"_s,
                           {u"No source answered; 133 stored reports, the youngest "_s,
                            u"\"end\":\"failed\",\"reports\":133"_s, source},
                           1}});
}

TEST(CycleCommands, anActiveSkyOutOfReachFailsThemAlone) {
    ConsoleInstall install;
    install.registry.CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, activeSkyKey);
    install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, activeSkyKey, u"Install_Path"_s,
                                  u"\\\\Wx\\ASv6"_s);
    const std::pair<QString, int> cases[] = {
        {u"metar rows"_s, 1}, {u"ground list"_s, 0}, {u"airport find K"_s, 0}, {u"option get halo"_s, 0}};
    for (const auto& [command, status] : cases) {
        const auto run = install.run(command);
        EXPECT_EQ(run.status, status) << command.toStdString();
        EXPECT_EQ(run.messages.count(u"Exclamation: Path not found"_s), status) << run.messages.toStdString();
    }
}

TEST(DecodeCommand, answersEveryLineWhateverItsBytes) {
    const std::pair<QByteArray, QStringList> cases[] = {
        // The station of each object.
        {{}, {}},
        {"EHAM 241225Z", {u"EHAM"_s}}, // without a line end
        {"EHAM 241225Z\r\n\r\n\nKSEA\r\n", {u"EHAM"_s, {}, {}, u"KSEA"_s}},
        {"\xc3\x89HAM 241225Z\n", {u"ÉHAM"_s}},                   // UTF-8
        {"\xc9HAM 241225Z\nCAF\xc9 1\n", {u"ÉHAM"_s, u"CAFÉ"_s}}, // Latin-1
        {QByteArray("EHAM\0Z\n\0\n", 9), {u"EHAM"_s, {}}},        // a NUL is a blank
        {"\357\273\277EHAM\n", {u"EHAM"_s}},                      // a mark of the byte order
        {QByteArray(1 << 20, 'A') + '\n', {QString(1 << 20, u'A')}},
    };
    for (const auto& [input, expected] : cases) {
        const auto run = runConsole(u"decode"_s, {}, input);
        EXPECT_EQ(run.status, 0);
        QStringList stations;
        for (const QJsonObject& report : run.objects())
            stations << report[u"MetarICAO"].toString();
        EXPECT_EQ(stations, expected) << input.left(40).constData();
    }
}

struct AirportCommands : testing::Test {
    AirportCommands() {
        std::vector<Airport> airports{{"EHAM", "Schiphol", "Amsterdam", {}, "Netherlands", "52.31", "4.76"}};
        for (int i = 100; i < 250; ++i)
            airports.push_back({u"K%1"_s.arg(i), {}, {}, {}, {}, {}, {}});
        install.withStore([&](Session& session) {
            addAirports(session, airports);
            addStation(session, "EHRD", 3, 51.96, 4.44);
            addStation(session, "KSEA", 0, 47.45, -122.31);
            addStation(session, "KPDX", 5, 45.59, -122.60);
        });
    }
    ConsoleInstall install;
};

TEST_F(AirportCommands, tellOfAirportsStationsAndTheirReports) {
    const QString report = u"EHAM 010000Z 00000KT"_s; // its neighbour's
    expectSteps(
        install,
        {{u"metar|show|eham"_s, {u"ICAO Code: EHAM, City: Amsterdam, Airport Name: Schiphol\n"_s, report}},
         {u"metar|show|eham|--json"_s,
          {u"\"icao\":\"EHAM\""_s, u"\"metar\":\""_s + report, u"\"WindDirection\":\"Calm\""_s}},
         {u"metar|show|XXXX"_s, {}, 1}, // neither a report nor a position
         {u"airport|find|eh"_s,
          {u"[{\"city\":\"Amsterdam\",\"country\":\"Netherlands\",\"icao\":\"EHAM\",\"latitude\":\"52.31\",\"longitude\":\"4.76\",\"name\":\"Schiphol\",\"state\":\"\"}]"_s}},
         {u"airport|find|XX"_s, {u"[]"_s}},
         {u"station|nearest|52.31|4.76"_s, {u"\"distanceNM\":24."_s, u"\"icao\":\"EHRD\""_s}}});
    EXPECT_EQ(install.run(u"metar show eham"_s).output.count('\n'), 11);
    const std::pair<QString, int> found[] = {
        {u"airport find K"_s, 100},
        {u"metar find --icao k --max 1"_s, 1},
        {u"metar find --precipitation None --obscuration Any --cover Any --intensity Heavy --max 0"_s, 3},
        {u"metar find --tcu --cb --cu"_s, 0}};
    for (const auto& [command, count] : found)
        EXPECT_EQ(install.run(command).array().size(), count) << command.toStdString();
}

TEST_F(AirportCommands, giveThePlanOverTheStoredWeather) {
    const QString plans = QStringLiteral(MORVANE_DATA_DIR "/plans/");
    expectSteps(
        install,
        {{u"plan|--json|"_s + plans + u"c01_own_form_vfr_direct.pln"_s,
          {u"{\"altitude\":"_s, u"\"average\":3,\"class\":3,\"cover\":\"Partly Cloudy\",\"departure\":"_s,
           u"\"destination\":\"Portland International Airport\",\"waypoints\":[{\"airway\":\"\",\"class\":0,"_s}},
         {u"plan|"_s + plans + u"c05_header_only.pln"_s, {u"\"altitude\":\"19000\""_s, u"\"cover\":\"\""_s}},
         {u"plan|"_s + plans + u"fsx fsbuilderror.pln"_s, {u"\"departure\":\"BEN_GURION\""_s}},
         {u"plan|"_s + plans + u"../README.md/x.pln"_s, {}, 1}});
}

struct FlyCommand : testing::Test {
    ConsoleInstall install;

    void SetUp() override {
        install.addSet(u"2-Storm"_s, u"Overcast"_s);
        install.addSet(u"3-Calm"_s, u"Sky Clear"_s);
        placeSimulator("#!/bin/sh\n");
    }
    void placeSimulator(const QByteArray& contents) {
        const FilePath program = install.simulator() / u"fs9.exe";
        writeFile(program, contents);
        QFile::setPermissions(program.native(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
};

TEST_F(FlyCommand, installsTheSetOfTheWordOrOfTheReport) {
    writeFile(install.home() / u"METAR\\02Z.txt", "EHAM");
    const QString storm = u"Default+ 2-Storm+* 3-Calm+"_s, calm = u"Default+ 2-Storm+ 3-Calm+*"_s;
    const QString standard = u"Default+* 2-Storm+ 3-Calm+"_s;
    const std::pair<QString, QString> cases[] = {
        {u"OVC"_s, storm},
        {u"CLR"_s, calm},
        {u"EHAM 241225Z 24015KT 9999 OVC010 18/09 Q1012"_s, storm},
        {u" EHAM 241225Z 24015KT CLR 18/09 Q1012 "_s, calm},
        {u"EHAM 241225Z 24015KT 0100 FG VV001 18/18 Q1012"_s, standard},
    };
    for (const auto& [text, sets] : cases) {
        const bool isReport = text.contains(u' ');
        const auto run = install.run(isReport ? u"fly --json --metar"_s : u"fly"_s, {text});
        EXPECT_EQ(run.status, 0) << run.messages.toStdString();
        EXPECT_EQ(install.sets(), sets) << text.toStdString();
        EXPECT_EQ(run.messages.contains(u"Question: "_s), !isReport) << "whose option is the yes";
        const QJsonObject told = run.objects().at(0);
        const auto nameOf = [&](const QJsonValue& set) { return isReport ? set[u"name"_s] : set; };
        EXPECT_TRUE(sets.contains(nameOf(told[u"ground"_s]).toString() + u"+*"_s));
        EXPECT_EQ(nameOf(told[u"sky"_s]), QJsonValue(u"Default"_s));
        EXPECT_GT(told[u"files"_s].toInt(), 0);
        EXPECT_EQ(told[u"start"_s], QJsonValue(u"simulator"_s));
    }
    EXPECT_EQ(readFile(install.home() / u"METAR\\02Z.txt"), "EHAM"); // no exit of the program
    placeSimulator("MZ");
    expectSteps(
        install,
        {{u"config|set|runner|true"_s, {u"{\"runner\":\"true\"}"_s}},
         {u"config|set|runner|false"_s},
         {u"fly|OVC"_s, {u"Exclamation: Flight Simulator Not Started"_s, u"\"start\":\"none\""_s}, 1}});
}

TEST_F(FlyCommand, aReportWithoutCloudsOrANoInstallsNothing) {
    const auto before = contentsBelow(install.simulator());
    // The first word is the station's, whatever it says.
    for (const QString& text : {u"EHAM 241225Z 24015KT 9999 18/09 Q1012"_s, u"OVC010"_s, u" "_s, QString()}) {
        const auto run = install.run(u"fly --metar"_s, {text});
        EXPECT_EQ(run.status, 1) << text.toStdString();
        EXPECT_EQ(run.messages, u"Error: METAR Format Error!\n  METAR String format not recognised please "
                                u"enter new string to process\n"_s);
    }
    const QByteArray nothing = R"({"files":0,"ground":null,"sky":null,"start":"none"})"
                               "\n";
    const auto refused = install.run(u"--answer no fly OVC"_s);
    EXPECT_EQ(refused.status, 0) << "a no is no failure";
    EXPECT_EQ(refused.output, nothing);
    const auto unasked = runConsole(u"fly OVC --home"_s, {install.home().native()});
    EXPECT_EQ(unasked.status, 1) << "but nobody to say it is one";
    EXPECT_EQ(unasked.output, nothing);
    EXPECT_EQ(unasked.messages.count(u"No; use --answer yes"_s), 3) << unasked.messages.toStdString();
    EXPECT_EQ(contentsBelow(install.simulator()), before);
    EXPECT_FALSE(install.sets().contains(u'*'));
}

// By its name, as there is no screen to choose on; a slip costs no install.
TEST_F(FlyCommand, theFlightThatAYesMeansIsAskedFor) {
    writeFile(install.simulator() / u"Flights\\Morvane\\Évening Rain.flt", "flight");
    const QStringList home{u"--answer"_s, u"ask"_s, u"--home"_s, install.home().native()};
    const std::pair<QByteArray, QByteArray> cases[] = {{"y\ny\névening rian\névening rain\n", "saved flight"},
                                                       {"y\ny\n\ny\n", "simulator"}};
    for (const auto& [typed, start] : cases) {
        const auto run = runConsole(u"fly OVC"_s, home, typed);
        EXPECT_EQ(run.status, 0) << run.messages.toStdString();
        EXPECT_TRUE(run.output.contains("\"start\":\"" + start + '"')) << run.output.toStdString();
        EXPECT_EQ(run.messages.contains(u"'évening rian'; did you mean 'Évening Rain'?"),
                  start == "saved flight")
            << run.messages.toStdString();
    }
    const auto ordered = install.run(u"fly --cover OVC --flight"_s, {u"évening rian"_s});
    EXPECT_TRUE(ordered.messages.contains(u"did you mean 'Évening Rain'?"_s))
        << ordered.messages.toStdString();
    const QByteArray log = readFile(install.home() / u"Morvane.log");
    EXPECT_TRUE(log.contains(" End") && !log.contains("Rain") && !log.contains("rian")) << log.toStdString();
}

/// What an order ends in: its status and what it says, and of the object some values, joined by "|".
struct OrderCase {
    QString words; ///< parted by "|"
    int status;
    QString said, told;
};

struct FlightOrder : FlyCommand {
    void SetUp() override {
        FlyCommand::SetUp();
        install.addSky(u"2-Gloom"_s, u"Overcast"_s);
        install.withStore([&](Session& session) {
            addAirports(session, {{"EHXX", "Near Rotterdam", {}, {}, {}, "52.0", "4.5"},
                                  {"ZZZZ", "Nowhere", {}, {}, {}, {}, {}}});
            addStation(session, "EHRD", 0, 51.96, 4.44);
        });
        const QDateTime utc = SystemClock().utcTime().addSecs(-100 * 60);
        const FilePath cycle = install.folder / u"cycle.txt";
        writeFile(cycle,
                  utc.toString(u"'EHRD 'ddHHmm'Z 24015KT 9999 OVC010 18/09 Q1012\nEHAM 'ddHHmm'Z 24015KT"
                               " 9999 FEW010 18/09 Q1012\nEHEH 'ddHHmm'Z 24015KT'\n"_s)
                      .toUtf8());
        install.run(u"metar import"_s, {cycle.native()});
        writeFile(install.simulator() / u"Flights\\Morvane\\Évening Rain.flt", "flight");
        install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"WeatherServer"_s,
                                      u"http://127.0.0.1:1"_s);
        before = contentsBelow(install.simulator());
    }
    void expectOrders(const std::vector<OrderCase>& cases) {
        for (const auto& [words, status, said, told] : cases) {
            const auto run = runConsole({}, QStringList{u"fly"_s, u"--json"_s, u"--answer"_s, u"no"_s,
                                                        u"--home"_s, install.home().native()} +
                                                words.split(u'|'));
            EXPECT_EQ(run.status, status) << words.toStdString() << run.messages.toStdString();
            EXPECT_TRUE(run.messages.contains(said)) << words.toStdString() << '\n'
                                                     << run.messages.toStdString();
            ASSERT_EQ(run.objects().size(), 1U);
            const QJsonObject object = run.objects()[0];
            const QJsonValue ground = object[u"ground"_s], sky = object[u"sky"_s];
            EXPECT_EQ((QStringList{object[u"weather"_s][u"cover"_s].toString(), ground[u"name"_s].toString(),
                                   ground[u"why"_s].toString(), sky[u"name"_s].toString(),
                                   sky[u"why"_s].toString(), object[u"start"_s].toString()})
                          .join(u'|'),
                      told)
                << words.toStdString();
            EXPECT_EQ(object[u"problem"_s].isNull(), status == 0) << words.toStdString();
        }
    }
    QMap<QString, QByteArray> before;
};

TEST_F(FlightOrder, isTheYesAndTellsWhatWasTakenAndWhy) {
    const QString plans = QStringLiteral(MORVANE_DATA_DIR "/../tests/fuzz/samples/flight_plans/");
    const QString storm = u"Overcast|2-Storm|fitting|2-Gloom|fitting|"_s;
    expectOrders({
        {u"--cover|OVC|--no-start"_s, 0, u"Installed ground set '2-Storm' (fitting)"_s, storm + u"none"_s},
        {u"--from|ehrd|--flight|évening rain"_s, 0, u"with the flight 'Évening Rain'"_s,
         storm + u"saved flight"_s},
        {u"--from|EHXX|--no-start|--max-age|110"_s, 0, u"EHXX "_s, storm + u"none"_s},
        {u"--from|EHAM|--to|EHRD"_s, 0, u"1"_s, u"Mostly Cloudy|Default|nearest|Default|Default|simulator"_s},
        {u"--from|EHRD|--refresh|--no-start"_s, 0, u"the stored reports serve, the youngest is 10"_s,
         storm + u"none"_s},
        {u"--metar|EHAM 241225Z 24015KT CLR|--refresh|--no-start"_s, 0, u"is not needed for this cover"_s,
         u"Sky Clear|3-Calm|fitting|Default|Default|none"_s},
    });
    EXPECT_NE(contentsBelow(install.simulator()), before);
}

TEST_F(FlightOrder, installsNothingWithoutWeatherOrOnTrial) {
    const QString home = install.home().native();
    const QString nothing = u"|||||none"_s;
    writeFile(install.folder / u"half.pln",
              "<?xml version='1.0'?>\n<SimBase.Document><FlightPlan.FlightPlan>\n<Title>");
    writeFile(install.folder / u"page.pln", "<?xml version='1.0'?><html/>");
    const QString folder = install.folder.path().native() + u'/';
    expectOrders({
        {u"--from|QQQQ"_s, 1, u"'QQQQ' is no airport that Morvane knows"_s, nothing},
        {u"--from|EHRD|--to|ZZZZ"_s, 1, u"no stored report of ZZZZ, and none near it"_s, nothing},
        {u"--from|EHEH"_s, 1, u"The report tells of no clouds: EHEH"_s, nothing},
        {u"--from|EHRD|--max-age|60"_s, 1, u"minutes old, and only 60 minutes would do"_s, nothing},
        {u"--from|EHRD|--refresh|--max-age|60"_s, 1, u"minutes old, and only 60 minutes would do"_s, nothing},
        {u"--plan|/nowhere/route.pln"_s, 1, u"not found"_s, nothing},
        {u"--plan|"_s + folder + u"half.pln"_s, 1, u"damaged in line 3"_s, nothing},
        {u"--plan|"_s + folder + u"page.pln"_s, 1, u"FSX Flight Plan"_s, nothing},
        {u"--cover|OVC|--flight|Evening Rain"_s, 1,
         u"no saved flight 'Evening Rain'; did you mean 'Évening Rain'?"_s, nothing},
        {u"--metar|EHAM 241225Z 24015KT"_s, 1, u"METAR Format Error!"_s, nothing},
    });
    // Even what a first start looks after waits.
    install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"FirstTime"_s, u"True"_s);
    const auto stored = contentsBelow(install.home());
    const QString storm = u"Overcast|2-Storm|fitting|2-Gloom|fitting|"_s;
    expectOrders({
        {u"--dry-run|--cover|OVC"_s, 0, u"Would install ground set '2-Storm' (fitting)"_s,
         storm + u"simulator"_s},
        {u"--dry-run|--from|EHRD|--refresh|--flight|Évening Rain"_s, 0, u"would be refreshed first"_s,
         storm + u"saved flight"_s},
        {u"--dry-run|--from|QQQQ"_s, 1, u"is no airport"_s, nothing},
    });
    EXPECT_EQ(contentsBelow(install.home()), stored);
    EXPECT_EQ(contentsBelow(install.simulator()), before);
}

TEST_F(FlightOrder, startsNothingOnHalfASet) {
    const FilePath texture = install.simulator() / u"Scenery\\World\\texture\\029h2su6.bmp";
    QFile::remove(texture.native());
    writeFile(texture / u"in the way", "a folder");
    expectOrders({{u"--cover|OVC"_s, 1, u"Error"_s, u"Overcast|2-Storm|fitting|2-Gloom|fitting|none"_s}});
}

TEST_F(FlightOrder, doesNotTakeOverAnothersSimulator) {
    const FilePath note = install.simulator() / u"Morvane note.ini";
    writeFile(note, "[Morvane]\nInstallFolder=" + install.folder.path().native().toUtf8() + "\n");
    before = contentsBelow(install.simulator());
    expectOrders({{u"--cover|OVC"_s, 0, u"Question: Another Morvane"_s, u"Overcast|||||none"_s},
                  {u"--cover|OVC|--dry-run"_s, 0, u"an install would ask first"_s,
                   u"Overcast|2-Storm|fitting|2-Gloom|fitting|simulator"_s}});
    EXPECT_EQ(contentsBelow(install.simulator()), before);
}

TEST(FlightsCommand, loadsTheUsersFlightsAndListsThem) {
    ConsoleInstall install;
    expectSteps(install, {{u"flights|list"_s, {}, 1}, // nothing was loaded yet
                          {u"flights|load"_s},        // nobody is asked where nobody is
                          {u"flights|list"_s, {u"[]"_s}}});
    const FilePath user = install.folder / u"Own flights";
    writeFile(user / u"Evening.flt", "flight");
    writeFile(user / u"Ünten.FLT", "flight");
    install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"NonEnglishPath"_s, user.native());
    expectSteps(install, {{u"flights|load"_s}, {u"flights|list"_s, {u"[\"Evening\",\"Ünten\"]"_s}}});
}

} // namespace
} // namespace morvane::test
