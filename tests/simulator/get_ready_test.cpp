// What a new pilot needs before the first flight.

#include "ground/ground_sets.h"
#include "simulator/backups.h"
#include "simulator/get_ready.h"
#include "simulator/ready_sets.h"
#include "simulator/stock_requests.h"
#include "sky/sky_sets.h"
#include "support/small_install.h"

#include <map>

namespace morvane::test {
namespace {

struct GetReadyTest : InstallTest {
    GetReadyTest() {
        for (const QString& baseSet : {u"Sunny"_s, u"Overcast"_s, u"Pro Sky"_s})
            writeFile(install.home() / u"Resources\\Sky Textures" / baseSet / u"clouds.bmp",
                      smallBitmap(32, 90));
    }

    bool run(const ReadyWishes& wishes) {
        GetReady ready(session, wishes);
        current = &ready;
        lines.clear();
        const bool isReady = ready.run([this](ReadyStep step, const ReadyLine& line) {
            lines[step] = line;
            onLine(step, line);
        });
        current = nullptr;
        return isReady;
    }
    QString marks() const {
        QString text;
        for (const auto& [step, line] : lines)
            text += QStringLiteral("-*+o!")[static_cast<int>(line.mark)];
        return text;
    }
    template <class Kind>
    int activated() {
        return static_cast<int>(setKind<Kind>().activated(session).size());
    }

    ReadyWishes noWeather{.isWanted = {true, true, true, true, false}};
    std::map<ReadyStep, ReadyLine> lines;
    std::function<void(ReadyStep, const ReadyLine&)> onLine = [](ReadyStep, const ReadyLine&) {};
    GetReady* current = nullptr;
};

TEST_F(GetReadyTest, everyWeatherHasItsSetsAndNothingIsDoneTwice) {
    EXPECT_TRUE(run(noWeather)) << user.told().join(u'\n').toStdString();
    EXPECT_EQ(marks(), u"++++o"_s);
    EXPECT_TRUE(missingReadySets(session, 3).empty());
    // "Default" is a partly cloudy one of each.
    EXPECT_EQ(activated<GroundKind>(), 15);
    EXPECT_EQ(activated<SkyKind>(), 15);
    EXPECT_EQ(session.rows<clsBackups>()->Count(), 1);
    EXPECT_TRUE(lines[ReadyStep::backup].text.endsWith(u"in Backup\\1-Backup"_s));
    EXPECT_TRUE(user.answersToGive.empty());

    user.calls.clear();
    EXPECT_TRUE(run(noWeather));
    EXPECT_EQ(activated<GroundKind>(), 15);
    EXPECT_EQ(session.rows<clsBackups>()->Count(), 1);
}

TEST_F(GetReadyTest, theBaseTexturesStayUnlessOthersAreAskedFor) {
    writeFile(install.simulator() / u"Scenery\\World\\Texture\\029h2su6.bmp", smallBitmap(16, 40));
    ReadyWishes wishes = noWeather;
    wishes.setsOfEach = 1;
    wishes.baseTextures = BaseTextures::own;
    EXPECT_TRUE(run(wishes)) << user.told().join(u'\n').toStdString();
    EXPECT_TRUE(hasKeptStock(session));
    wishes.baseTextures = BaseTextures::asTheyAre;
    EXPECT_TRUE(run(wishes));
    EXPECT_TRUE(hasKeptStock(session));
    EXPECT_EQ(lines[ReadyStep::baseTextures].text, u"My simulator's own"_s);
    wishes.baseTextures = BaseTextures::delivered;
    EXPECT_TRUE(run(wishes));
    EXPECT_FALSE(hasKeptStock(session));
}

TEST_F(GetReadyTest, aCancelKeepsWhatIsWhole) {
    onLine = [this](ReadyStep step, const ReadyLine& line) {
        if (step == ReadyStep::sets && line.text.startsWith(u"Set 4 "_s)) current->cancel();
    };
    EXPECT_FALSE(run(noWeather));
    EXPECT_EQ(marks(), u"+++-"_s) << "what comes behind it is not begun";
    EXPECT_EQ(activated<GroundKind>() + activated<SkyKind>(), 1 + 3);
    onLine = [](ReadyStep, const ReadyLine&) {};
    EXPECT_TRUE(run(noWeather));
    EXPECT_EQ(activated<GroundKind>() + activated<SkyKind>(), 30);
}

TEST_F(GetReadyTest, aFailedStepCostsNoOther) {
    onLine = [this](ReadyStep step, const ReadyLine& line) {
        if (step != ReadyStep::backup) return;
        if (line.mark == ReadyMark::working) install.files.failAt(1, true);
        if (line.mark == ReadyMark::failed) install.files.heal();
    };
    ReadyWishes wishes = noWeather;
    wishes.setsOfEach = 1;
    EXPECT_FALSE(run(wishes));
    EXPECT_EQ(marks(), u"+!++o"_s);
    EXPECT_FALSE(user.told().isEmpty());
}

} // namespace
} // namespace morvane::test
