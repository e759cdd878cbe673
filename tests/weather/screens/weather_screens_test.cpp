
#include "support/window_program.h"
#include "ui/controls/foot_line.h"
#include "ui/controls/set_table.h"
#include "weather/cover_choice.h"
#include "weather/report_filter.h"
#include "weather/reports.h"
#include "weather/screens/airport_list.h"
#include "weather/screens/filter_choice.h"
#include "weather/screens/link_label.h"
#include "weather/screens/report_list.h"
#include "weather/weather_rows.h"
#include "weather/weather_state.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace morvane::test {
namespace {

const QString page = u"frm_WxControl"_s;

struct WeatherScreenTest : testing::Test {
    WeatherScreenTest() {
        addAirports(session,
                    {{u"kbfi"_s, u"Boeing Field"_s, u"Seattle"_s, u"Washington"_s, u"United States"_s,
                      u"47.53"_s, u"-122.30"_s},
                     {u"KORD"_s, u"O'Hare"_s, u"Chicago"_s, u"Illinois"_s, u"United States"_s, u"41,98"_s,
                      u"-87.9"_s},
                     {u"DIAP"_s, u"Abïdjan"_s, u"Abidjan"_s, {}, u"Côte d'Ivoire"_s, u"5.26"_s, u"-3.93"_s}});
        addStation(session, u"KSEA"_s, 3, 47.45, -122.31);
        addStation(session, u"DIAP"_s, 3, 5.26, -3.93);
        program.shell.goToPage(page);
    }
    template <class Control>
    Control& on(const QString& name) {
        return program.control<Control>(page, name);
    }
    QString label(const QString& name) { return program.text(page, name); }
    QStringList entries(const QString& name) {
        const auto& choice = on<FilterChoice>(name);
        QStringList texts;
        for (int i = 0; i < choice.count(); ++i)
            texts << choice.itemText(i);
        return texts;
    }
    QString codes() const {
        QStringList texts;
        for (int row = 0; row < list.airports().rowCount(); ++row)
            texts << list.airports().shownAirport(row).icao;
        return texts.join(u' ');
    }
    /// Entry 0 is "Any".
    void choose(const QString& name, int entry) {
        auto& choice = on<FilterChoice>(name);
        choice.setCurrentIndex(entry);
        Q_EMIT choice.activated(entry);
    }
    void type(const QString& name, const QString& text) { on<QLineEdit>(name).setText(text); }

    WindowProgram program;
    Session& session = program.session;
    AirportList& list = on<AirportList>(u"lvwAirports"_s);
};

TEST_F(WeatherScreenTest, filterListsNarrowOneAfterTheOtherAndAHeadSortsByDegrees) {
    choose(u"cboCountry"_s, 2);
    choose(u"cboState"_s, 1);
    EXPECT_EQ(entries(u"cboCity"_s), (QStringList{u"Any"_s, u"CHICAGO"_s}));
    EXPECT_EQ(codes(), u"KORD"_s);
    choose(u"cboCountry"_s, 1);
    EXPECT_EQ(codes(), u"DIAP"_s) << "the lists behind it are at \"Any\" again";
    choose(u"cboCountry"_s, 0);
    EXPECT_EQ(entries(u"cboState"_s), (QStringList{u"Any"_s, u"ILLINOIS"_s, u"WASHINGTON"_s}));
    for (const auto& [text, found] :
         {std::pair(u"o'h"_s, u"KORD"_s), {u" ABÏ"_s, u"DIAP"_s}, {u"n%b"_s, {}}}) {
        type(u"txtAirportName"_s, text);
        EXPECT_EQ(codes(), found) << text.toStdString();
    }
    type(u"txtAirportName"_s, u"%"_s);
    list.setCurrentIndex(list.airports().index(0, 0));
    const QHeaderView& head = *list.header();
    QTest::mouseClick(head.viewport(), Qt::LeftButton, {},
                      QPoint(head.sectionViewportPosition(5) + 8, head.height() / 2));
    EXPECT_EQ(codes(), u"DIAP KORD KBFI"_s) << "5 before 41";
    EXPECT_EQ(list.currentIndex().data(), QVariant(u"DIAP"_s)) << "the row in hand goes along";
}

TEST_F(WeatherScreenTest, aChosenAirportShowsItsReportAndItsEndKeepsIt) {
    program.install.clock.now = QDateTime({2007, 5, 30}, {12, 0}, Qt::UTC).toLocalTime(); // in every zone
    type(u"txtAirportName"_s, u"%"_s); // DIAP, KBFI, KORD by name
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualRect(list.airports().index(0, 1)).center());
    on<QRadioButton>(u"optDestAirport"_s).click();
    on<QCheckBox>(u"chkNoWeatherReports"_s).click();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return}) { // chosen, and shown once more
        QString first, last;
        program.whenShown(u"frm_metar"_s, [&](DialogForm& form) {
            first = program.text(u"frm_metar"_s, u"lblDecodedMetar_0"_s);
            last = program.text(u"frm_metar"_s, u"lblDecodedMetar_10"_s);
            form.ok();
        });
        QTest::keyClick(&list, key);
        EXPECT_EQ(first, u"ICAO Code: KBFI, City: SEATTLE, Airport Name: BOEING FIELD"_s);
        EXPECT_EQ(last, u"KBFI 010000Z 00000KT"_s);
    }
    EXPECT_EQ(label(u"lblDepMetar"_s), u"DIAP 010000Z 00000KT"_s);
    EXPECT_EQ(label(u"lblDestMetar"_s), u"KBFI 010000Z 00000KT"_s);
    EXPECT_EQ(label(u"lblDepAge"_s), u"00:00Z, 29 days old"_s);
    EXPECT_EQ(label(u"lblDestAge"_s), u"00:00Z, 29 days old"_s);
}

TEST_F(WeatherScreenTest, theFinderFiltersAtEachKeyAndItsReportBecomesTheEndThatWasSet) {
    const WeatherState& weather = session.state<WeatherState>();
    program.whenShown(u"frm_WxFinder"_s, [&](DialogForm& dialog) {
        const QAbstractItemModel& reports = *dialog.findChild<ReportList*>(u"lstMetar"_s)->model();
        EXPECT_EQ(reports.rowCount(), 2);
        QTest::keyClicks(dialog.findChild<QLineEdit*>(u"txtFilter"_s), u"d"_s);
        EXPECT_EQ(reports.rowCount(), 1);
        EXPECT_TRUE(dialog.findChild<QRadioButton*>(u"optAirport0"_s)->isChecked());
        dialog.findChild<QRadioButton*>(u"optAirport1"_s)->click();
        EXPECT_TRUE(weather.optDepAirport) << "the page's choice waits for OK";
        dialog.ok();
    });
    showWxFinder(session);
    EXPECT_TRUE(weather.optDestAirport && !weather.optDepAirport);
    EXPECT_EQ(weather.DestIcao, u"DIAP"_s);
}

TEST_F(WeatherScreenTest, theFootLineWarnsWhereNoSourceAnswered) {
    const auto& line = *program.shell.form(u"frm_Main"_s)->findChild<FootLine*>();
    EXPECT_EQ(line.shown().text, u"2 reports, none with a time"_s);
    program.toldDuring([&] { clsWxFinderData(session).GetWeatherFromNOAA(); });
    EXPECT_EQ(line.shown().text, u"No source answered; 2 stored reports, none with a time"_s);
    QTest::keyClick(&list, Qt::Key_Tab); // takes away what the job said
    EXPECT_EQ(line.shown().text, u"No source answered; 2 stored reports, none with a time"_s);
    EXPECT_EQ(line.shown().sign, FootSign::warning);
    EXPECT_EQ(line.shown().remark, u"No weather source is set"_s);
    EXPECT_EQ(label(u"lblDepAge"_s), QString()) << "there is no report in the box";
}

TEST_F(WeatherScreenTest, anImportOfActiveSkysFileThatIsDueIsOffered) {
    WeatherState& weather = session.state<WeatherState>();
    weather.ASv6ExportDate = QDateTime(QDate(2007, 6, 14), QTime(14, 7));
    weather.ASv6Present = weather.ASv6Imported = true;
    program.user.refreshScreen(Screen::frm_WxControl);
    EXPECT_EQ(on<LinkLabel>(u"lblASv6Support"_s).text(),
              u"ASv6 Detected, update required, click to update ASv6"_s);
    EXPECT_EQ(label(u"lblASv6FileTime"_s), u"ASv6 File Updated 2007/06/14 14:07:00"_s);
    weather.ASv6VersionOK = true;
    program.user.refreshScreen(Screen::frm_WxControl);
    EXPECT_EQ(on<LinkLabel>(u"lblASv6Support"_s).text(), u"ASv6 Detected and version supported"_s);
}

TEST(CoverScreens, aFlightPlan) {
    WindowProgram program;
    Session& session = program.session;
    addStation(session, u"KSEA"_s, 4, 47.45, -122.31);
    addStation(session, u"KPDX"_s, 5, 45.59, -122.60);
    const FilePath documents = program.install.folder / u"Dokümente";
    session.MyDocumentsPath = documents.native();
    const auto writePlan = [&](const QString& name, const QByteArray& contents) {
        writeFile(documents / u"Flight Simulator Files" / name, contents);
    };
    writePlan(u"a north.pln"_s,
              "departure_name=Seattle\r\ndestination_name=Portland\r\n"
              "cruising_altitude=9500\r\nwaypoint.0=KSEA, A, N47* 27.0', W122* 18.6', 0,\r\n"
              "waypoint.1=FIX, I, N45* 50.0', W122* 30.0', 0, V23\r\n");
    writePlan(u"b none.PLN"_s, "departure_name=London\n");
    writePlan(u"c xml.pln"_s, "<?xml version=\"1.0\"?>\nwaypoint.0=KSEA,A,,\n");
    program.show(Screen::frm_FlightPlan, [&](DialogForm& dialog) {
        const auto isOkAlive = [&] { return dialog.button(u"btn_Ok"_s)->state() != ButtonState::disabled; };
        const auto openPlan = [&](int row) {
            clickRow(*dialog.findChild<SetTable*>(u"lvwFPList"_s), row, {.isDouble = true});
        };
        const auto textOf = [&](const QString& name) { return dialog.findChild<QLabel*>(name)->text(); };
        EXPECT_TRUE(isOkAlive()) << "the first plan is chosen from the start";
        openPlan(2);
        EXPECT_EQ(textOf(u"lblDepVal"_s), "London");
        EXPECT_FALSE(isOkAlive());
        EXPECT_EQ(program.toldDuring([&] { openPlan(3); }), QStringList{u"FSX Flight Plan"_s});
        EXPECT_FALSE(isOkAlive());
        openPlan(1);
        EXPECT_EQ(dialog.focusWidget()->objectName(), "lvwFPList") << "as before it was read";
        const auto& rows = *dialog.findChild<SetTable*>(u"lvwFlightPlan"_s);
        ASSERT_EQ(rows.rowCount(), 2);
        EXPECT_EQ(rows.topLevelItem(1)->toolTip(5), "Overcast") << "its neighbour's";
        EXPECT_EQ(textOf(u"lblCloudCover"_s), "Broken Clouds");
        dialog.ok();
    });
    EXPECT_TRUE(session.state<CoverChoice>().coverConfirmed);
    EXPECT_EQ(session.state<CoverChoice>().cloudClass, 4);
}

TEST(CoverScreens, aReportTypedInOverSeveralLines) {
    WindowProgram program;
    program.show(Screen::frm_CC_From_Metar_String, [&](DialogForm& dialog) {
        dialog.findChild<QPlainTextEdit*>()->setPlainText(u"  EGLL 241220Z VV001\n18/18 Q1012 "_s);
        dialog.button(u"btn_MetarProcess"_s)->click();
        EXPECT_EQ(dialog.findChild<QLabel*>(u"lblCloudCover"_s)->text(), "Scattered Clouds");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_FALSE(program.session.state<CoverChoice>().coverConfirmed);
    EXPECT_EQ(program.session.state<CoverChoice>().cloudClass, 6);
}

} // namespace
} // namespace morvane::test
