#include "loopback_server.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "weather/reports.h"

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

} // namespace
} // namespace morvane
