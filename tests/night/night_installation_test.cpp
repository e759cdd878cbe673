#include "night/night_installation.h"
#include "night/night_sets.h"
#include "sets/options_in_force.h"
#include "support/night_install.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::addNightSet;
using test::nightSets;
using test::writeFile;

struct NightInstall : testing::Test {
    NightInstall() {
        test::addNightStock(install);
        addNightSet(install, u"Default"_s, true);
        addNightSet(install, u"2-Red"_s, true,
                    {u"Texture\\008b2lm1.bmp"_s, u"Texture\\new.bmp"_s, u"Texture\\no.txt"_s,
                     u"Dutch\\008b2lm1.bmp"_s, u"Dutch\\005a2lm2.bmp"_s});
        writeFile(install.home() / u"DUTCH\\005a2an.agn", "Dutch annotation");
        writeFile(install.home() / u"GENERIC WORLD\\029b2an.agn", "annotation");
        writeFile(install.home() / u"GENERIC WORLD NIGHT\\more.agn", "night body");
        writeFile(install.home() / u"DUTCH NIGHT\\dutch.txt", "Dutch night body");
        before = test::contentsBelow(install.simulator());
    }
    void installSet(const QString& name) {
        clickNightRow(session, name);
        NightInstallation(session).installNightTextureSet();
    }
    FilePath world() { return install.simulator() / u"Scenery\\World\\texture"; }
    /// What the simulator has now and had not, or had otherwise, before; file names in upper case.
    QStringList changes() {
        QStringList lines;
        const auto now = test::contentsBelow(install.simulator());
        for (auto file = now.begin(); file != now.end(); ++file)
            if (before.value(file.key()) != file.value())
                lines << file.key().section(u'/', -1).toUpper() + u": "_s + QString::fromUtf8(file.value());
        lines.sort();
        return lines;
    }

    test::SmallInstall install;
    Session& session = install.session;
    QMap<QString, QByteArray> before;
};

/// The whole of what each of the four roads copies.
TEST_F(NightInstall, goldenCopyLists) {
    const QString generic = u"008B2LM1.BMP: 2-Red Texture\\008b2lm1.bmp"_s,
                  news = u"NEW.BMP: 2-Red Texture\\new.bmp"_s;
    const QString bodies[] = {u"008B2LM1.BMP: body of GENERIC WORLD NIGHT\\008b2lm1.bmp"_s,
                              u"029B2LM1.BMP: body of GENERIC WORLD NIGHT\\029b2lm1.bmp"_s,
                              u"045B2LM1.BMP: body of GENERIC WORLD NIGHT\\045b2lm1.bmp"_s,
                              u"MORE.AGN: night body"_s};
    const struct {
        QString set;
        bool isDutch;
        QStringList copied;
    } cases[] = {
        {u"2-Red"_s, false, {generic, news}},
        {u"Default"_s, false, {bodies[0], bodies[1], bodies[2], bodies[3]}},
        // The Dutch file of the same name comes last. The annotation is the day's: no night brings another.
        {u"2-Red"_s,
         true,
         {u"005A2AN.AGN: Dutch annotation"_s, u"005A2LM2.BMP: 2-Red Dutch\\005a2lm2.bmp"_s,
          u"008B2LM1.BMP: 2-Red Dutch\\008b2lm1.bmp"_s, news}},
        {u"Default"_s,
         true,
         {u"005A2LM2.BMP: body of DUTCH NIGHT\\005a2lm2.bmp"_s,
          u"008B2LM1.BMP: body of DUTCH NIGHT\\008b2lm1.bmp"_s, u"DUTCH.TXT: Dutch night body"_s, bodies[1],
          bodies[2], bodies[3]}},
    };
    for (const auto& road : cases) {
        for (const QString& name : install.files.list(world(), u"*.*"_s))
            install.files.remove(world().child(name));
        session.state<OptionsInForce>().IsDutch = road.isDutch;
        before = test::contentsBelow(install.simulator());
        installSet(road.set);
        QStringList expected = road.copied;
        expected.sort();
        EXPECT_EQ(changes(), expected) << road.set.toStdString() << road.isDutch;
        EXPECT_EQ(nightSets(session), road.set == u"2-Red" ? u"Default+ 2-Red+*"_s : u"Default+* 2-Red+"_s);
    }
    EXPECT_EQ(install.user.messages[0].text,
              "Processing your Night Texture Files.  Please wait until the process has finished.  This may "
              "take a few moments!");
    EXPECT_TRUE(install.user.told().isEmpty());
    EXPECT_EQ(test::readFile(install.simulator() / u"Uires\\dlgsplash.bmp"), "the pilot's splash");
}

} // namespace
} // namespace morvane
