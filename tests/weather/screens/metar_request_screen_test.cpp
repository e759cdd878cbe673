#include "loopback_server.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "weather/report_rows.h"
#include "weather/reports.h"
#include "window/splash_screen.h"

#include <QLabel>
#include <gtest/gtest.h>

namespace morvane {
namespace {

struct MetarRequestTest : testing::Test {
    void pressRefresh() { program.press(u"frm_WxControl"_s, u"btn_WxRefresh"_s); }

    test::WindowProgram program;
    Session& session = program.session;
    LoopbackServer server{[](const QByteArray&) {
        return LoopbackServer::textReply("KSEA 010950Z 03007KT OVC030\nEHAM 010955Z CLR\n");
    }};
};

TEST_F(MetarRequestTest, yesFetchesAndNoDoesNot) {
    storeOwnValue(program.install.registry, u"WeatherServer"_s, server.address());
    pressRefresh(); // nothing is loaded, so nothing is asked
    EXPECT_EQ(server.requests(), 1);
    EXPECT_EQ(session.rows<clsWxFinders>()->Count(), 2);
    for (const bool ok : {false, true}) {
        program.whenShown(u"frm_metar_request"_s,
                          [ok](DialogForm& dialog) { ok ? dialog.ok() : dialog.cancel(); });
        pressRefresh();
        EXPECT_EQ(server.requests(), ok ? 2 : 1);
    }
    EXPECT_FALSE(program.user.isMessageVisible());
}

TEST_F(MetarRequestTest, aStartShowsTheTableOnTheSplash) {
    auto& splash = program.shell.screen<frm_Splash>(u"frm_Splash"_s);
    auto& text = program.control<QLabel>(u"frm_Splash"_s, u"lblScanning"_s);
    session.StartingUp = true;
    splash.showStep(u"before"_s, 1);
    EXPECT_TRUE(clsWxFinders::reload(session));
    EXPECT_EQ(text.text(), u"before"_s) << "an empty table is passed over";
    clsWxFinder report;
    report.WxFinderIcao = u"KSEA"_s;
    storeReport(session, report);
    EXPECT_TRUE(clsWxFinders::reload(session));
    EXPECT_EQ(text.text(), u"Loading Metars from Database. Please Wait............."_s);
    EXPECT_FALSE(program.user.isMessageVisible());
}

} // namespace
} // namespace morvane
