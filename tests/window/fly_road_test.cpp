// From a cover word to the simulator's start, behind the real windows.

#include "app/command_line_run.h"
#include "ground/texture_sets.h"
#include "sets/options_in_force.h"
#include "sky/sky_texture_sets.h"
#include "start_record.h"
#include "support/printing.h"
#include "support/window_program.h"

#include <QDeadlineTimer>
#include <gtest/gtest.h>

namespace morvane {
namespace {

struct RoadCase {
    const char* description;
    QString cover = u"Overcast"_s; ///< of the only sets beside "Default"; both are called "5-Storm"
    bool isWideClient = false, isReadOnlyHalfWay = false;
    QString ground = u"5-Storm"_s, sky = u"5-Storm"_s; ///< installed in the end
    QByteArray splash = "splash OVC";
    QStringList told = {}; ///< titles
    bool starts = true;
};

const QString install = u"Install Textures?"_s, flight = u"Start Predefined Flight"_s,
              launch = u"Launch Flight Simulator?"_s;

void PrintTo(const RoadCase& c, std::ostream* out) {
    *out << c.description;
}

/// The weather is overcast throughout.
std::vector<RoadCase> roadCases() {
    return {
        {.description = "fitting sets", .told = {install, flight, launch}},
        {.description = "only a cover too far for the search",
         .cover = u"Sunny"_s,
         .ground = u"Default"_s,
         .sky = {},
         .splash = "splash SCT",
         .told = {install, u"No Activated Ground Texture Sets"_s, u"No Activated Sky Texture Sets"_s, flight,
                  launch}},
        {.description = "the simulator on a server",
         .isWideClient = true,
         .told = {install, u"Processing Complete"_s},
         .starts = false},
        {.description = "a read-only file half way",
         .isReadOnlyHalfWay = true,
         .told = {install, u"Morvane Error"_s, flight, launch}},
    };
}

class FlyRoad : public testing::TestWithParam<RoadCase> {
protected:
    test::WindowProgram program;
    test::SmallInstall& small = program.install;
    const RoadCase& c = GetParam();

    void SetUp() override {
        small.addGroundSet(u"5-Storm"_s, c.cover, true, {u"Texture\\029h2su6.bmp"_s, u"Texture\\new.bmp"_s});
        small.addSkySet(u"5-Storm"_s, c.cover, true, {u"sky_afternoon_3.bmp"_s});
        const FilePath standIn(QStringLiteral(MORVANE_BIN_DIR "/morvane-simulator"));
        small.files.copyContents(standIn, small.simulator() / u"fs9.exe");
        small.files.copyMode(standIn, small.simulator() / u"fs9.exe");
        Session& session = program.session;
        clsTextureSets::reload(session);
        clsSkyTextureSets::reload(session);
        session.state<OptionsInForce>().IsWideClient = c.isWideClient;
        session.state<OptionsInForce>().InhibitCustomSplash = false;
        session.CommandLineRun = true;
        if (c.isReadOnlyHalfWay)
            small.files.setReadOnly(small.simulator() / u"Scenery\\World\\texture\\029h2su6.bmp", true);
    }
    /// The start is detached: its record has to be waited for.
    qsizetype starts(qsizetype wanted) {
        const QDeadlineTimer watchdog(60000);
        qsizetype count = 0;
        while ((count = recordedStarts(small.simulator().native()).size()) < wanted &&
               !watchdog.hasExpired()) {
        }
        return count;
    }
};

TEST_P(FlyRoad, installsAsksAndStarts) {
    EXPECT_EQ(program.toldDuring([this] { runCommandLine(program.session, u"OVC"_s); }, {flight}), c.told);
    small.reload();
    EXPECT_EQ(small.installedSets(), QStringList{c.ground});
    EXPECT_EQ(small.installedSkySets(), c.sky.isEmpty() ? QStringList{} : QStringList{c.sky});
    EXPECT_EQ(test::readFile(small.simulator() / u"Uires\\dlgsplash.bmp"), c.splash);
    EXPECT_EQ(starts(c.starts), c.starts);
}

INSTANTIATE_TEST_SUITE_P(Cases, FlyRoad, testing::ValuesIn(roadCases()),
                         [](const auto& road) { return "case" + std::to_string(road.index); });

} // namespace
} // namespace morvane
