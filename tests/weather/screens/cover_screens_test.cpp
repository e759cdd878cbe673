#include "simulator/set_matching.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"
#include "weather/cover_choice.h"
#include "weather/stored_reports.h"
#include "weather/weather_state.h"

#include <QLabel>
#include <QPlainTextEdit>
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
    /// What the user does on the choice, and then on the screen that it leads to. Each arms the next.
    using Act = std::function<void(DialogForm&)>;
    void chooseMethod(int method, const QString& screen, const Act& act) {
        program.whenShown(choiceName, [=, this](DialogForm& dialog) {
            clickOption(dialog, u"optMethod%1"_s.arg(method));
            program.whenShown(screen, act);
            press(dialog, u"btn_Ok"_s);
        });
    }
    /// The one way to its OK; gives the cover.
    QString coverBy(int method, const QString& screen, const Act& act) {
        session.state<FlightWeather>().WxCloudList = QStringList{u"9"_s};
        chooseMethod(method, screen, [act](DialogForm& dialog) {
            act(dialog);
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
    /// What the next message says.
    void noteMessage(QString& title) {
        program.whenShown(u"frm_Msg"_s, [&title](DialogForm& message) {
            title = textOf(message, u"lbl_Title"_s);
            message.ok();
        });
    }
    static bool isOkAlive(const DialogForm& dialog) {
        return dialog.button(u"btn_Ok"_s)->state() != ButtonState::disabled;
    }
    void openPlan(DialogForm& dialog, int row) {
        auto& list = *dialog.findChild<SetTable*>(u"lvwFPList"_s);
        const QPoint place = list.visualItemRect(list.topLevelItem(row - 1)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    }

    test::WindowProgram program;
    Session& session = program.session;
};

TEST_F(CoverScreensTest, eachCancelGoesOneStepBackAndTheLastEndsTheRoad) {
    const auto before = test::contentsBelow(program.install.simulator());
    const QString screens[] = {u"frm_FlightPlan"_s, u"frm_FromDepDestVal"_s, u"frm_CC_From_Option"_s,
                               u"frm_CC_From_Metar_String"_s};
    QStringList seen;
    // From the innermost outward: after the fourth screen's cancel the choice is cancelled, too.
    std::function<void(int)> walk = [&](int method) {
        if (method == 4)
            return program.whenShown(choiceName, [&](DialogForm& dialog) {
                EXPECT_TRUE(dialog.findChild<QRadioButton*>(u"optMethod3"_s)->isChecked());
                press(dialog, u"btn_Cancel"_s);
            });
        chooseMethod(method, screens[method], [&, method](DialogForm& dialog) {
            seen << dialog.formName();
            EXPECT_FALSE(program.shell.form(u"frm_Main"_s)->isVisible());
            walk(method + 1);
            press(dialog, u"btn_Cancel"_s);
        });
    };
    writePlan(u"One.pln"_s, "waypoint.0=KSEA,A,,\n");
    walk(0);
    EXPECT_EQ(flyNow(session).filesCopied, -1);
    EXPECT_TRUE(session.state<FlightWeather>().CoverCancelled);
    EXPECT_EQ(seen.size(), 4);
    EXPECT_TRUE(program.shell.form(u"frm_Main"_s)->isVisible());
    EXPECT_EQ(test::contentsBelow(program.install.simulator()), before);
}

TEST_F(CoverScreensTest, aCoverByHandIsInForceAtOnce) {
    const auto opened = [](DialogForm& dialog) {
        EXPECT_TRUE(dialog.findChild<QRadioButton*>(u"optCloudCover2"_s)->isChecked());
    };
    EXPECT_EQ(coverBy(2, u"frm_CC_From_Option"_s, opened), "3");
    EXPECT_EQ(coverBy(2, u"frm_CC_From_Option"_s,
                      [](DialogForm& dialog) { clickOption(dialog, u"optCloudCover4"_s); }),
              "5");
    EXPECT_EQ(session.state<FlightWeather>().WxStrengthList, QStringList{QString()});
}

TEST_F(CoverScreensTest, theAirportsOfTheWeatherPage) {
    const QString screen = u"frm_FromDepDestVal"_s;
    chooseMethod(1, screen, [this](DialogForm& dialog) {
        EXPECT_EQ(textOf(dialog, u"lblAverageCCVal"_s), "No Airport data entered for processing");
        EXPECT_FALSE(isOkAlive(dialog));
        QTest::keyClick(&dialog, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible()) << "Enter is no way round a dead key";
        program.whenShown(choiceName, [](DialogForm& choice) { choice.cancel(); });
        press(dialog, u"btn_Cancel"_s);
    });
    selectCloudCoverMethod(session);
    session.state<WeatherState>().DepIcao = u"EHAM"_s;
    session.state<WeatherState>().DepMetar = u"EHAM 241225Z 24015KT 9999 OVC030 18/09 Q1012"_s;
    session.state<WeatherState>().DestCity = u"Zürich"_s;
    session.state<WeatherState>().DestMetar = u"LSZH 241220Z 24015KT 9999 BKN030 18/09 Q1012"_s;
    EXPECT_EQ(coverBy(1, screen,
                      [](DialogForm& dialog) {
                          EXPECT_EQ(textOf(dialog, u"lblDepIcaoVal"_s), "EHAM");
                          EXPECT_EQ(textOf(dialog, u"lblDestCityVal"_s), "Zürich");
                          EXPECT_EQ(textOf(dialog, u"lblAverageCCVal"_s), "Broken Clouds");
                      }),
              "4");
}

TEST_F(CoverScreensTest, aReportTypedIn) {
    const QString screen = u"frm_CC_From_Metar_String"_s;
    EXPECT_EQ(coverBy(3, screen, [](DialogForm&) {}), "9") << "OK before it was processed keeps the cover";
    QString title;
    const auto process = [&](const QString& report) {
        return [&, report](DialogForm& dialog) {
            dialog.findChild<QPlainTextEdit*>(u"txtMetarString"_s)->setPlainText(report);
            press(dialog, u"btn_MetarProcess"_s);
        };
    };
    EXPECT_EQ(coverBy(3, screen,
                      [&](DialogForm& dialog) {
                          process(u"  EGLL 241220Z VV001\n18/18 Q1012 "_s)(dialog);
                          EXPECT_EQ(session.state<WeatherState>().MetarStringInput.left(4), "EGLL");
                          EXPECT_EQ(textOf(dialog, u"lblCloudCover"_s), "Scattered Clouds");
                      }),
              "6");
    EXPECT_EQ(coverBy(3, screen,
                      [&](DialogForm& dialog) {
                          noteMessage(title);
                          process(u"EGLL 241220Z 24015KT 18/18 Q1012"_s)(dialog);
                          EXPECT_EQ(textOf(dialog, u"lblCloudCover"_s), "");
                      }),
              "0");
    EXPECT_EQ(title, "METAR Format Error!");
}

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
                          EXPECT_TRUE(dialog.findChild<QLabel*>(u"lblNoWaypoints"_s)->isVisible());
                          EXPECT_FALSE(isOkAlive(dialog));
                          QString title;
                          noteMessage(title);
                          openPlan(dialog, 3);
                          EXPECT_EQ(title, "FSX Flight Plan");
                          EXPECT_FALSE(isOkAlive(dialog));
                          openPlan(dialog, 1);
                          const auto& rows = *dialog.findChild<SetTable*>(u"lvwFlightPlan"_s);
                          ASSERT_EQ(rows.rowCount(), 2);
                          EXPECT_EQ(rows.textOf(2, 1), "Intersection/Fix");
                          EXPECT_EQ(rows.textOf(2, 4), "V23");
                          EXPECT_EQ(rows.topLevelItem(1)->toolTip(5), "Overcast") << "its neighbour's";
                          EXPECT_EQ(textOf(dialog, u"lblDestVal"_s), "Portland");
                          EXPECT_EQ(textOf(dialog, u"lblCloudCover"_s), "Broken Clouds");
                      }),
              "4");
    // OK takes the plan that is selected, be it read already or not.
    EXPECT_EQ(coverBy(0, u"frm_FlightPlan"_s, [](DialogForm&) {}), "4");
    const auto lastPlan = [&](DialogForm& dialog) {
        auto& list = *dialog.findChild<SetTable*>(u"lvwFPList"_s);
        EXPECT_TRUE(list.hasFocus());
        QTest::keyClick(&list, Qt::Key_Return);
        EXPECT_EQ(textOf(dialog, u"lblDepVal"_s), "Seattle");
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Return);
        EXPECT_EQ(textOf(dialog, u"lblDepVal"_s), "London");
        QTest::keyClick(&list, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible()) << "no way on from a plan without waypoints";
        QTest::keyClick(&list, Qt::Key_Up);
        EXPECT_TRUE(isOkAlive(dialog));
    };
    EXPECT_EQ(coverBy(0, u"frm_FlightPlan"_s, lastPlan), "4");
}

TEST_F(CoverScreensTest, noFlightPlansAtAll) {
    test::writeFile(program.install.folder / u"Dokümente\\Flight Simulator Files\\note.txt", "none");
    program.whenShown(u"frm_FlightPlan"_s, [](DialogForm& dialog) {
        EXPECT_TRUE(
            textOf(dialog, u"lblNoFlightPlans"_s).startsWith(u"No flight plans have been detected.  "));
        QTest::keyClick(&dialog, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        dialog.cancel();
    });
    program.user.showModal(Screen::frm_FlightPlan);
}

} // namespace
} // namespace morvane
