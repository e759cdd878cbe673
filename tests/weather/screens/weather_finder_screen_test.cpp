#include "core/store.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "weather/report_filter.h"
#include "weather/screens/report_list.h"
#include "weather/stored_reports.h"
#include "weather/weather_state.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <gtest/gtest.h>

namespace morvane {
namespace {

struct WxFinderScreenTest : testing::Test {
    WxFinderScreenTest() {
        StoreTransaction transaction(*session.adoConn);
        for (int number = 0; number < 40; ++number)
            test::addStation(session, u"K%1"_s.arg(number, 3, 10, QChar(u'0')), 3);
        transaction.commit();
        session.adoConn->execute(
            u"INSERT INTO AIRPORTDATA(ICAO, AIRPORT_NAME) VALUES ('K007', 'Own Field')"_s);
        clsWxFinders::reload(session);
    }
    void open(const std::function<void(DialogForm&)>& act) {
        program.whenShown(u"frm_WxFinder"_s, [&](DialogForm& dialog) {
            EXPECT_FALSE(program.shell.form(u"frm_Main"_s)->isVisible());
            list = dialog.findChild<ReportList*>(u"lstMetar"_s);
            act(dialog);
        });
        showWxFinder(session);
        EXPECT_TRUE(program.shell.form(u"frm_Main"_s)->isVisible());
    }
    int rows() const { return list->model()->rowCount(); }

    test::WindowProgram program;
    Session& session = program.session;
    ReportList* list = nullptr;
};

TEST_F(WxFinderScreenTest, everyChangeFiltersAnewAndTheMostResultsAreKept) {
    open([this](DialogForm& dialog) {
        EXPECT_EQ(rows(), 25);
        auto& most = *dialog.findChild<QLineEdit*>(u"txtWxMaxResults"_s);
        most.setFocus();
        QTest::keyClicks(&most, u"x0"_s);
        EXPECT_EQ(rows(), 40) << "0 means all";
        most.clear();
        EXPECT_EQ(rows(), 25) << "an empty box means the usual number";
        QTest::keyClicks(&most, u"50"_s);
        dialog.cancel();
    });
    open([this](DialogForm& dialog) {
        EXPECT_EQ(rows(), 40);
        auto& intensity = *dialog.findChild<QComboBox*>(u"cboIntensity"_s);
        EXPECT_FALSE(intensity.isEnabled());
        dialog.findChild<QComboBox*>(u"cboPrecipitation"_s)->setCurrentText(u"Rain"_s);
        EXPECT_TRUE(intensity.isEnabled());
        intensity.setCurrentText(u"Heavy"_s);
        EXPECT_EQ(rows(), 0);
        EXPECT_EQ(dialog.button(u"btn_Ok"_s)->state(), ButtonState::disabled) << "nothing to choose";
        dialog.cancel();
    });
}

TEST_F(WxFinderScreenTest, theReportChosenBecomesTheEndThatWasSetWithOk) {
    for (const bool isTaken : {false, true})
        open([&](DialogForm& dialog) {
            EXPECT_EQ(session.state<WxFilter>().WxSelectedIcao, "K000") << "the first from the start";
            EXPECT_TRUE(dialog.findChild<QRadioButton*>(u"optAirport0"_s)->isChecked());
            dialog.findChild<QRadioButton*>(u"optAirport1"_s)->click();
            EXPECT_TRUE(session.state<WeatherState>().optDepAirport) << "the page's choice waits for OK";
            const QPoint place = list->visualRect(list->model()->index(7, 0)).center();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
            isTaken ? dialog.ok() : dialog.cancel();
        });
    EXPECT_TRUE(session.state<WeatherState>().optDestAirport && !session.state<WeatherState>().optDepAirport);
    EXPECT_EQ(session.state<WeatherState>().DestAirportName, "Own Field");
    EXPECT_EQ(session.state<WeatherState>().DepMetar, "");
}

} // namespace
} // namespace morvane
