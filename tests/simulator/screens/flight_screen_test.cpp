#include "simulator/simulator_launch.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"
#include "window/dispatch_table.h"

#include <QLabel>
#include <gtest/gtest.h>

namespace morvane {
namespace {

struct FlightScreenTest : testing::Test {
    FlightScreenTest() {
        test::writeFile(program.install.home() / u"Flights\\flights.cfg",
                        "[Flights]\r\ntotal=3\r\n1=Evening\r\n2=Late Rain\r\n3=Ünten\r\n4=Old\r\n");
    }
    void show(const std::function<void(DialogForm&, SetTable&)>& action) {
        modal.FlightSelected = false;
        program.whenShown(u"frm_flight"_s, [action](DialogForm& dialog) {
            action(dialog, *dialog.findChild<SetTable*>(u"lstFlights"_s));
        });
        program.user.showModal(Screen::frm_flight);
    }
    static void click(SetTable& list, int row, bool isDouble = false) {
        const QPoint place = list.visualItemRect(list.topLevelItem(row - 1)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        if (isDouble) QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    }

    test::WindowProgram program;
    FlightChoice& modal = program.session.state<FlightChoice>();
};

TEST_F(FlightScreenTest, listsTheFlightsInTheirColour) {
    show([](DialogForm& dialog, SetTable& list) {
        ASSERT_EQ(list.rowCount(), 3);
        EXPECT_EQ(list.textOf(2, 0), u"Late Rain"_s);
        EXPECT_EQ(list.storedColour(1), qRgb(0, 101, 161));
        EXPECT_EQ(list.selectedNames(), QStringList{u"Evening"_s});
        dialog.cancel();
    });
    EXPECT_FALSE(modal.FlightSelected);
}

TEST_F(FlightScreenTest, aClickChoosesAndOnlyOkOrADoubleClickConfirms) {
    show([this](DialogForm& dialog, SetTable& list) {
        click(list, 2);
        EXPECT_EQ(modal.SelectedFlightName, u"Late Rain"_s);
        EXPECT_FALSE(modal.FlightSelected);
        click(list, 1);
        EXPECT_EQ(list.selectedNames(), QStringList{u"Evening"_s});
        QTest::mouseClick(dialog.button(u"btn_Cancel"_s), Qt::LeftButton);
    });
    EXPECT_FALSE(modal.FlightSelected);
    show([](DialogForm&, SetTable& list) {
        EXPECT_EQ(list.selectedNames(), QStringList{u"Evening"_s}) << "what OK would start is seen";
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Return);
    });
    EXPECT_TRUE(modal.FlightSelected);
    EXPECT_EQ(modal.SelectedFlightName, u"Late Rain"_s);
    show([](DialogForm&, SetTable& list) { click(list, 3, true); });
    EXPECT_TRUE(modal.FlightSelected);
    EXPECT_EQ(modal.SelectedFlightName, u"Ünten"_s);
}

TEST_F(FlightScreenTest, theFirstFlightIsChosenFromTheStart) {
    show([](DialogForm&, SetTable& list) {
        EXPECT_TRUE(list.hasFocus());
        QTest::keyClick(&list, Qt::Key_Return);
    });
    EXPECT_TRUE(modal.FlightSelected);
    EXPECT_EQ(modal.SelectedFlightName, u"Evening"_s);
}

TEST_F(FlightScreenTest, aMissingListIsToldAndNothingIsListed) {
    program.install.files.remove(program.install.home() / u"Flights\\flights.cfg");
    QString title;
    program.whenShown(u"frm_Msg"_s, [&](DialogForm& message) {
        title = message.findChild<QLabel*>(u"lbl_Title"_s)->text();
        message.ok();
    });
    show([](DialogForm& dialog, SetTable& list) {
        EXPECT_EQ(list.rowCount(), 0);
        dialog.ok();
        EXPECT_TRUE(dialog.isVisible()) << "there is nothing to start";
        dialog.cancel();
    });
    EXPECT_EQ(title, u"Morvane Fatal Error"_s);
}

TEST_F(FlightScreenTest, itsKeyAsksForAFlight) {
    const ButtonAction action = actionOf(ButtonFamily::LargeButton, u"frm_WxControl"_s, u"selectflight"_s);
    ASSERT_NE(action, nullptr);
    QString title;
    program.whenShown(u"frm_Msg"_s, [&](DialogForm& message) {
        title = message.findChild<QLabel*>(u"lbl_Title"_s)->text();
        message.cancel();
    });
    action(program.shell, program.control<SkinnedButton>(u"frm_Main"_s, u"btn_About"_s));
    EXPECT_EQ(title, u"Start Predefined Flight"_s);
}

} // namespace
} // namespace morvane
