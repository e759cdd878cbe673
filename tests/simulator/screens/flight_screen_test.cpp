#include "simulator/simulator_launch.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct FlightScreenTest : testing::Test {
    FlightScreenTest() {
        test::writeFile(program.install.home() / u"Flights\\flights.cfg",
                        "[Flights]\r\ntotal=3\r\n1=Evening\r\n2=Late Rain\r\n3=Ünten\r\n4=Old\r\n");
    }
    /// The flight that the dialog leaves confirmed; "" for none.
    QString chosenBy(const std::function<void(DialogForm&, SetTable&)>& act) {
        choice.FlightSelected = false;
        program.show(Screen::frm_flight,
                     [&](DialogForm& dialog) { act(dialog, *dialog.findChild<SetTable*>(u"lstFlights"_s)); });
        return choice.FlightSelected ? choice.SelectedFlightName : QString();
    }

    test::WindowProgram program;
    FlightChoice& choice = program.session.state<FlightChoice>();
};

TEST_F(FlightScreenTest, aClickChoosesAndOnlyOkOrADoubleClickConfirms) {
    const auto enter = [](DialogForm&, SetTable& list) {
        EXPECT_TRUE(list.hasFocus());
        QTest::keyClick(&list, Qt::Key_Return);
    };
    EXPECT_EQ(chosenBy(enter), u"Evening"_s) << "chosen from the start";
    EXPECT_EQ(chosenBy([this](DialogForm& dialog, SetTable& list) {
                  EXPECT_EQ(test::columnOf(list, 0), (QStringList{u"Evening"_s, u"Late Rain"_s, u"Ünten"_s}));
                  test::clickRow(list, 2);
                  EXPECT_EQ(choice.SelectedFlightName, u"Late Rain"_s);
                  dialog.cancel();
              }),
              QString());
    EXPECT_EQ(chosenBy(enter), u"Late Rain"_s) << "what OK would start is seen";
    EXPECT_EQ(chosenBy([](DialogForm&, SetTable& list) { test::clickRow(list, 3, {.isDouble = true}); }),
              u"Ünten"_s);
}

TEST_F(FlightScreenTest, aMissingListIsToldAndNothingIsListed) {
    program.install.files.remove(program.install.home() / u"Flights\\flights.cfg");
    program.confirmNext(u"frm_Msg"_s);
    EXPECT_EQ(chosenBy([](DialogForm& dialog, SetTable& list) {
                  EXPECT_EQ(list.rowCount(), 0);
                  dialog.ok();
                  EXPECT_TRUE(dialog.isVisible()) << "there is nothing to start";
                  dialog.cancel();
              }),
              QString());
    EXPECT_EQ(program.text(u"frm_Msg"_s, u"lbl_Title"_s), u"Morvane Fatal Error"_s);
}

} // namespace
} // namespace morvane
