#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"
#include "weather/cover_choice.h"
#include "weather/stored_reports.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <gtest/gtest.h>

namespace morvane::test {
namespace {

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
