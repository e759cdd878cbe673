#include "loopback_server.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "weather/wx_finders.h"
#include "window/dispatch_table.h"
#include "window/splash_screen.h"

#include <QLabel>
#include <gtest/gtest.h>

namespace morvane {
namespace {

class MetarRequestTest : public testing::Test {
protected:
    void pressRefresh() {
        const ButtonAction action = actionOf(ButtonFamily::LargeButton, u"frm_WxControl"_s, u"WxRefresh"_s);
        ASSERT_NE(action, nullptr);
        action(program.shell, program.control<SkinnedButton>(u"frm_Main"_s, u"btn_About"_s));
    }

    test::WindowProgram program;
    Session& session = program.session;
    LoopbackServer server{[](const QByteArray&) {
        return LoopbackServer::textReply("KSEA 010950Z 03007KT OVC030\nEHAM 010955Z CLR\n");
    }};
};

TEST_F(MetarRequestTest, yesFetchesAndNoAndEscapeDoNot) {
    program.install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"WeatherServer"_s,
                                          server.address());
    pressRefresh(); // nothing is loaded, so nothing is asked
    EXPECT_EQ(server.requests(), 1);
    EXPECT_EQ(session.rows<clsWxFinders>()->Count(), 2);
    const auto answer = [&](const std::function<void(DialogForm&)>& act) {
        program.whenShown(u"frm_metar_request"_s, [&](DialogForm& dialog) {
            EXPECT_EQ(program.control<QLabel>(u"frm_metar_request"_s, u"lblRequest"_s).text(),
                      u"Do you wish Morvane to download and decode the latest METAR cycle from Orrinsoft?"_s);
            act(dialog);
        });
        pressRefresh();
    };
    answer([](DialogForm& dialog) { QTest::mouseClick(dialog.button(u"btn_Cancel"_s), Qt::LeftButton); });
    answer([](DialogForm& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(server.requests(), 1);
    answer([](DialogForm& dialog) { QTest::mouseClick(dialog.button(u"btn_Ok"_s), Qt::LeftButton); });
    EXPECT_EQ(server.requests(), 2);
    EXPECT_FALSE(program.user.isMessageVisible());
}

TEST_F(MetarRequestTest, aStartShowsTheTableOnTheSplash) {
    auto& splash = program.shell.screen<frm_Splash>(u"frm_Splash"_s);
    auto& text = program.control<QLabel>(u"frm_Splash"_s, u"lblScanning"_s);
    session.StartingUp = true;
    splash.showStep(u"before"_s, 1);
    EXPECT_TRUE(clsWxFinders::reload(session));
    EXPECT_EQ(text.text(), u"before"_s) << "an empty table is passed over";
    DecodedMetarRow row;
    row.report.WxFinderIcao = u"KSEA"_s;
    clsWxFinderData(session).insertDecodedMetar(row);
    EXPECT_TRUE(clsWxFinders::reload(session));
    EXPECT_EQ(text.text(), u"Loading Metars from Database. Please Wait............."_s);
    EXPECT_FALSE(program.user.isMessageVisible());
}

} // namespace
} // namespace morvane
