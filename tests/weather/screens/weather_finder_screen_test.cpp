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
            u"UPDATE DECODED_METAR SET METAR_WEATHER = 'Rain', METAR_WEATHER_STRENGTH = 'Moderate ' WHERE "
            "METAR_ICAO = 'K007'"_s);
        session.adoConn->execute(
            u"INSERT INTO AIRPORTDATA(ICAO, AIRPORT_NAME, CITY) VALUES ('K007', 'Own Field', 'Home')"_s);
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
    void click(int row, bool isDouble = false) {
        const QPoint place = list->visualRect(list->model()->index(row, 0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        if (isDouble) QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    }

    test::WindowProgram program;
    Session& session = program.session;
    ReportList* list = nullptr;
};

TEST_F(WxFinderScreenTest, everyChangeFiltersAnew) {
    open([this](DialogForm& dialog) {
        EXPECT_EQ(rows(), 25);
        auto& most = *dialog.findChild<QLineEdit*>(u"txtWxMaxResults"_s);
        most.setFocus();
        EXPECT_EQ(most.selectedText(), "25");
        QTest::keyClicks(&most, u"x0"_s);
        EXPECT_EQ(rows(), 40) << "0 means all";
        most.clear();
        EXPECT_EQ(rows(), 25) << "an empty box means the usual number";
        QTest::keyClicks(&most, u"50"_s);
        dialog.cancel();
    });
    open([this](DialogForm& dialog) {
        EXPECT_EQ(rows(), 40) << "it opens with any weather, and the most results that were chosen";
        auto& intensity = *dialog.findChild<QComboBox*>(u"cboIntensity"_s);
        auto& precipitation = *dialog.findChild<QComboBox*>(u"cboPrecipitation"_s);
        EXPECT_FALSE(intensity.isEnabled());
        precipitation.setCurrentText(u"Rain"_s);
        EXPECT_TRUE(intensity.isEnabled());
        intensity.setCurrentText(u"Heavy"_s);
        EXPECT_EQ(rows(), 0);
        dialog.cancel();
    });
}

TEST_F(WxFinderScreenTest, theReportChosenBecomesAnEndOfTheFlight) {
    open([this](DialogForm& dialog) {
        EXPECT_EQ(session.state<WxFilter>().WxSelectedIcao, "K000") << "the first is chosen from the start";
        EXPECT_TRUE(list->hasFocus());
        auto& filter = *dialog.findChild<QLineEdit*>(u"txtFilter"_s);
        filter.setText(u"X"_s);
        EXPECT_EQ(dialog.button(u"btn_Ok"_s)->state(), ButtonState::disabled) << "nothing to choose";
        QTest::keyClick(&dialog, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        filter.clear();
        click(7);
        dialog.ok();
    });
    EXPECT_EQ(session.state<WeatherState>().DepAirportName, "Own Field");
    EXPECT_EQ(session.state<WeatherState>().DestMetar, "");
    for (const bool isTaken : {false, true})
        open([&](DialogForm& dialog) {
            EXPECT_TRUE(dialog.findChild<QRadioButton*>(u"optAirport0"_s)->isChecked());
            dialog.findChild<QRadioButton*>(u"optAirport1"_s)->click();
            EXPECT_TRUE(session.state<WeatherState>().optDepAirport) << "the page's choice waits for OK";
            isTaken ? click(7, true) : dialog.cancel();
        });
    EXPECT_TRUE(session.state<WeatherState>().optDestAirport && !session.state<WeatherState>().optDepAirport);
    EXPECT_EQ(session.state<WeatherState>().DestCity, "Home");
}

} // namespace
} // namespace morvane
