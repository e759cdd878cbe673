#include "simulator/set_matching.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"
#include "weather/cover_choice.h"
#include "weather/stored_reports.h"
#include "weather/weather_state.h"

#include <QLabel>
#include <QRadioButton>
#include <gtest/gtest.h>

namespace morvane {
namespace {

const QString choiceName = u"frm_Select_CC_Method"_s;

struct CoverScreensTest : testing::Test {
    CoverScreensTest() {
        test::addStation(session, u"KSEA"_s, 4, 47.45, -122.31);
        test::addStation(session, u"KPDX"_s, 5, 45.59, -122.60);
        session.MyDocumentsPath = (program.install.folder / u"Dokümente").native();
    }
    void writePlan(const QString& name, const QByteArray& contents) {
        test::writeFile(program.install.folder / u"Dokümente\\Flight Simulator Files" / name, contents);
    }
    static void press(DialogForm& dialog, const QString& key) {
        QTest::mouseClick(dialog.button(key), Qt::LeftButton);
    }
    /// On its circle: the room behind a short caption is none of the option.
    static void clickOption(DialogForm& dialog, const QString& name) {
        QTest::mouseClick(dialog.findChild<QRadioButton*>(name), Qt::LeftButton, {}, {8, 12});
    }
    /// The one way to its OK; gives the cover.
    QString coverBy(int method, const QString& screen, const std::function<void(DialogForm&)>& act) {
        session.state<FlightWeather>().WxCloudList = QStringList{u"9"_s};
        program.whenShown(choiceName, [=, this](DialogForm& dialog) {
            clickOption(dialog, u"optMethod%1"_s.arg(method));
            program.whenShown(screen, [act](DialogForm& way) {
                act(way);
                press(way, u"btn_Ok"_s);
            });
            press(dialog, u"btn_Ok"_s);
        });
        selectCloudCoverMethod(session);
        EXPECT_TRUE(program.shell.form(u"frm_Main"_s)->isVisible());
        return session.state<FlightWeather>().CoverCancelled
                   ? u"cancelled"_s
                   : session.state<FlightWeather>().WxCloudList.join(u',');
    }
    static QString textOf(QWidget& dialog, const QString& name) {
        return dialog.findChild<QLabel*>(name)->text();
    }
    static bool isOkAlive(const DialogForm& dialog) {
        return dialog.button(u"btn_Ok"_s)->state() != ButtonState::disabled;
    }
    void openPlan(DialogForm& dialog, int row) {
        test::clickRow(*dialog.findChild<SetTable*>(u"lvwFPList"_s), row, {.isDouble = true});
    }

    test::WindowProgram program;
    Session& session = program.session;
};

TEST_F(CoverScreensTest, aFlightPlan) {
    writePlan(u"a north.pln"_s,
              "departure_name=Seattle\r\ndestination_name=Portland\r\n"
              "cruising_altitude=9500\r\nwaypoint.0=KSEA, A, N47* 27.0', W122* 18.6', 0,\r\n"
              "waypoint.1=FIX, I, N45* 50.0', W122* 30.0', 0, V23\r\n");
    writePlan(u"b none.PLN"_s, "departure_name=London\n");
    writePlan(u"c xml.pln"_s, "<?xml version=\"1.0\"?>\nwaypoint.0=KSEA,A,,\n");
    EXPECT_EQ(coverBy(0, u"frm_FlightPlan"_s,
                      [this](DialogForm& dialog) {
                          EXPECT_TRUE(isOkAlive(dialog)) << "the first plan is chosen from the start";
                          openPlan(dialog, 2);
                          EXPECT_EQ(textOf(dialog, u"lblDepVal"_s), "London");
                          EXPECT_FALSE(isOkAlive(dialog));
                          EXPECT_EQ(program.toldDuring([&] { openPlan(dialog, 3); }),
                                    QStringList{u"FSX Flight Plan"_s});
                          EXPECT_FALSE(isOkAlive(dialog));
                          openPlan(dialog, 1);
                          const auto& rows = *dialog.findChild<SetTable*>(u"lvwFlightPlan"_s);
                          ASSERT_EQ(rows.rowCount(), 2);
                          EXPECT_EQ(rows.topLevelItem(1)->toolTip(5), "Overcast") << "its neighbour's";
                          EXPECT_EQ(textOf(dialog, u"lblCloudCover"_s), "Broken Clouds");
                      }),
              "4");
    // OK takes the plan that is selected, be it read already or not.
    EXPECT_EQ(coverBy(0, u"frm_FlightPlan"_s, [](DialogForm&) {}), "4");
}

} // namespace
} // namespace morvane
