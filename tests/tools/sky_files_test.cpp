#include "made_install.h"

#include "simulator/flights.h"
#include "support/printing.h"
#include "support/small_install.h"

namespace morvane {
namespace {

using SkyFiles = test::MadeInstall;
using SampleFlights = test::StartedInstall;

TEST_F(SkyFiles, theDefaultSetHasThoseOfItsBase) {
    const auto maps = test::contentsBelow(home() / u"Resources\\Sky\\Default");
    EXPECT_EQ(maps.size(), 24);
    EXPECT_TRUE(maps == test::contentsBelow(home() / u"Sky Texture Sets\\Default"));
}

TEST_F(SampleFlights, areGatheredWithoutAQuestionAndThePilotsWin) {
    const auto delivered = test::contentsBelow(home() / u"Flights");
    EXPECT_EQ(delivered.size(), 6);
    EXPECT_TRUE(delivered == test::contentsBelow(simulator() / u"Flights\\Morvane"));
    loadFlightFiles(session);
    EXPECT_EQ(savedFlights(session),
              (QStringList{u"Island Hop"_s, u"My Circuit"_s, u"Schiphol Evening"_s, u"Seattle Rain"_s}));
    EXPECT_TRUE(files.read(savedFlightFile(session, u"Schiphol Evening"_s)).contains("The pilot's own"));
    EXPECT_FALSE(files.exists(home() / u"Flights\\Lost.wx"));
    EXPECT_EQ(user.countOfKind(MessageKind::question), 0);
    for (const QString& name : files.list(home() / u"Flights", u"*.*"_s))
        files.remove(home() / u"Flights" / name);
    for (auto flight = delivered.begin(); flight != delivered.end(); ++flight)
        files.write(home() / u"Flights" / flight.key(), flight.value());
}

} // namespace
} // namespace morvane
