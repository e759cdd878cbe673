#include "made_install.h"

#include "imaging/picture_reader.h"
#include "simulator/flights.h"
#include "start_record.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <QFileInfo>
#include <QProcess>

namespace morvane {
namespace {

using SkyFiles = test::MadeInstall;
using SampleFlights = test::StartedInstall;

TEST_F(SkyFiles, everyFolderHoldsSkyMapsAndTheDefaultSetThoseOfItsBase) {
    const FilePath sky = home() / u"Resources\\Sky";
    const QStringList folders = files.listFolders(sky);
    EXPECT_EQ(folders.size(), 9);
    for (const QString& folder : folders) {
        const QStringList names = files.list(sky.child(folder), u"*.*"_s);
        EXPECT_EQ(names.size(), 24) << folder.toStdString();
        EXPECT_EQ(names.contains(u"sky_afternoon_3.bmp"_s),
                  !folder.startsWith(u"Sunr") && folder != u"Sunset");
        for (const QString& name : names) {
            const QByteArray map = files.read(sky.child(folder).child(name));
            EXPECT_EQ(map.at(28), 24) << name.toStdString(); // bits a pixel
            const Picture picture = readPicture(map);
            EXPECT_EQ(std::pair(picture.width, picture.height), std::pair(32, 32));
        }
    }
    EXPECT_TRUE(test::contentsBelow(home() / u"Sky Texture Sets\\Default") ==
                test::contentsBelow(sky / u"Default"));
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

TEST_F(SkyFiles, theSimulatorIsAProgramThatRecordsItsStart) {
    const QString program = (simulator() / u"fs9.exe").native();
    EXPECT_EQ(QProcess::execute(program, {u"a flight.FLT"_s}), 0);
    const QByteArrayList starts = recordedStarts(simulator().native());
    ASSERT_EQ(starts.size(), 1);
    EXPECT_TRUE(starts[0].contains("\"arguments\":[\"a flight.FLT\"]")) << starts[0].toStdString();
    files.remove(simulator() / u"fs9.starts.jsonl");
}

} // namespace
} // namespace morvane
