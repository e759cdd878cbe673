// From a cover word to the simulator's start: the same road and the same words behind a scripted user and
// behind the real windows.

#include "app/command_line_run.h"
#include "ground/texture_sets.h"
#include "sets/options_in_force.h"
#include "sky/sky_texture_sets.h"
#include "start_record.h"
#include "support/printing.h"
#include "support/window_program.h"

#include <QDeadlineTimer>
#include <QLabel>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::WindowProgram;
using test::writeFile;

struct Set {
    QString name, cover;
};

struct RoadCase {
    const char* description;
    std::vector<Set> grounds = {}, skies = {}; ///< activated ones, beside "Default"
    QString before = {};                       ///< the ground set that stands in the simulator already
    bool isWideClient = false, inhibitSplash = false, isReadOnlyHalfWay = false;
    QString ground = {}, sky = {}; ///< installed in the end
    QByteArray splash = {};
    QStringList told = {}; ///< titles
    bool starts = true;
};

const QString install = u"Install Textures?"_s, flight = u"Start Predefined Flight"_s,
              launch = u"Launch Flight Simulator?"_s, noGround = u"No Activated Ground Texture Sets"_s,
              noSky = u"No Activated Sky Texture Sets"_s;
const std::vector<Set> storms{{u"5-Storm"_s, u"Overcast"_s}}, clear{{u"1-Blue"_s, u"Sunny"_s}},
    broken{{u"4-Grey"_s, u"Mostly Cloudy"_s}};

void PrintTo(const RoadCase& c, std::ostream* out) {
    *out << c.description;
}

/// The weather is overcast throughout.
std::vector<RoadCase> roadCases() {
    const QStringList straight{install, flight, launch};
    return {
        {.description = "no sets at all",
         .ground = u"Default"_s,
         .splash = "splash SCT",
         .told = {install, noGround, noSky, flight, launch}},
        {.description = "fitting sets",
         .grounds = storms,
         .skies = storms,
         .ground = u"5-Storm"_s,
         .sky = u"5-Storm"_s,
         .splash = "splash OVC",
         .told = straight},
        {.description = "only a near cover",
         .grounds = broken,
         .skies = broken,
         .ground = u"4-Grey"_s,
         .sky = u"4-Grey"_s,
         .splash = "splash BKN",
         .told = {install, noGround, noSky, flight, launch}},
        {.description = "only a cover too far for the search",
         .grounds = clear,
         .skies = clear,
         .ground = u"Default"_s,
         .splash = "splash SCT",
         .told = {install, noGround, noSky, flight, launch}},
        {.description = "installed equals chosen",
         .grounds = storms,
         .skies = storms,
         .before = u"5-Storm"_s,
         .ground = u"5-Storm"_s,
         .sky = u"5-Storm"_s,
         .splash = "splash OVC",
         .told = straight},
        {.description = "the simulator on a server",
         .grounds = storms,
         .skies = storms,
         .isWideClient = true,
         .ground = u"5-Storm"_s,
         .sky = u"5-Storm"_s,
         .splash = "splash OVC",
         .told = {install, u"Processing Complete"_s},
         .starts = false},
        {.description = "the simulator's own splash",
         .grounds = storms,
         .skies = storms,
         .inhibitSplash = true,
         .ground = u"5-Storm"_s,
         .sky = u"5-Storm"_s,
         .splash = "the pilot's splash",
         .told = straight},
        {.description = "a read-only file half way",
         .grounds = storms,
         .skies = storms,
         .isReadOnlyHalfWay = true,
         .ground = u"5-Storm"_s,
         .sky = u"5-Storm"_s,
         .splash = "splash OVC",
         .told = {install, u"Morvane Error"_s, flight, launch}},
    };
}

/// Says OK to every message but the question of a saved flight, and notes the titles.
class Pilot : public QObject {
public:
    explicit Pilot(WindowShell& shell) : shell_(shell) { startTimer(0); }
    QStringList told;

protected:
    void timerEvent(QTimerEvent*) override {
        auto* message = qobject_cast<DialogForm*>(shell_.loadedForm(u"frm_Msg"_s));
        if (!message || !message->isVisible() || !message->button(u"btn_Ok"_s)->isVisible()) return;
        told << message->findChild<QLabel*>(u"lbl_Title"_s)->text();
        if (told.last() == flight)
            message->cancel();
        else
            message->ok();
    }

private:
    WindowShell& shell_;
};

class FlyRoad : public testing::TestWithParam<RoadCase> {
protected:
    WindowProgram program;
    test::SmallInstall& small = program.install;
    const RoadCase& c = GetParam();

    void SetUp() override {
        for (const Set& set : c.grounds)
            small.addGroundSet(set.name, set.cover, true,
                               {u"Texture\\029h2su6.bmp"_s, u"Texture\\new.bmp"_s});
        for (const Set& set : c.skies)
            small.addSkySet(set.name, set.cover, true, {u"sky_afternoon_3.bmp"_s});
        const FilePath standIn(QStringLiteral(MORVANE_BIN_DIR "/morvane-simulator"));
        small.files.copyContents(standIn, simulatorProgram());
        small.files.copyMode(standIn, simulatorProgram());
    }
    void prepare(Session& session) {
        clsTextureSets::reload(session);
        clsSkyTextureSets::reload(session);
        session.state<OptionsInForce>().IsWideClient = c.isWideClient;
        session.state<OptionsInForce>().InhibitCustomSplash = c.inhibitSplash;
        if (!c.before.isEmpty()) fly(session);
        if (c.isReadOnlyHalfWay)
            small.files.setReadOnly(small.simulator() / u"Scenery\\World\\texture\\029h2su6.bmp", true);
        small.user.messages.clear();
    }
    static void fly(Session& session) {
        session.CommandLineRun = true;
        runCommandLine(session, u"OVC"_s);
    }
    FilePath simulatorProgram() { return small.simulator() / u"fs9.exe"; }
    /// The start is detached: its record has to be waited for.
    qsizetype starts(qsizetype wanted) {
        const QDeadlineTimer watchdog(60000);
        qsizetype count = 0;
        while ((count = recordedStarts(small.simulator().native()).size()) < wanted &&
               !watchdog.hasExpired()) {
        }
        return count;
    }
    void expectTheEnd(const QStringList& told, qsizetype startCount) {
        EXPECT_EQ(told, c.told);
        EXPECT_EQ(small.installedSets(), QStringList{c.ground});
        EXPECT_EQ(small.installedSkySets(), c.sky.isEmpty() ? QStringList{} : QStringList{c.sky});
        EXPECT_EQ(test::readFile(small.simulator() / u"Uires\\dlgsplash.bmp"), c.splash);
        EXPECT_EQ(starts(startCount), startCount);
    }
};

TEST_P(FlyRoad, behindTheScriptedUser) {
    prepare(small.session);
    const qsizetype before = starts(c.before.isEmpty() ? 0 : 1);
    small.user.onMessage = [&](const Message& message) { small.user.otherwise = message.title != flight; };
    fly(small.session);
    QStringList told;
    for (const QString& line : small.user.told())
        told << line.section(u'|', 1, 1);
    expectTheEnd(told, before + (c.starts ? 1 : 0));
}

TEST_P(FlyRoad, behindTheWindows) {
    Pilot pilot(program.shell);
    prepare(program.session);
    const qsizetype before = starts(c.before.isEmpty() ? 0 : 1);
    pilot.told.clear();
    fly(program.session);
    small.reload();
    expectTheEnd(pilot.told, before + (c.starts ? 1 : 0));
}

INSTANTIATE_TEST_SUITE_P(Cases, FlyRoad, testing::ValuesIn(roadCases()),
                         [](const auto& road) { return "case" + std::to_string(road.index); });

} // namespace
} // namespace morvane
