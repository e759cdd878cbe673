#include "cli/console.h"
#include "core/store_connection.h"
#include "support/night_install.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::contentsBelow;

struct NightCommands : testing::Test {
    test::ConsoleInstall install;

    NightCommands() { test::addNightStock(install); }
    void add(const QString& name, bool activated) {
        connectDatabase(install.session);
        test::addNightSet(install, name, activated);
        closeDatabase(install.session);
    }
    QString nights() {
        connectDatabase(install.session);
        const QString names = test::nightSets(install.session);
        closeDatabase(install.session);
        return names;
    }
    void expectDone(const QString& command, const QString& name, const QString& nightsAfterwards) {
        const auto run = install.run(u"night "_s + command, {name});
        EXPECT_EQ(run.status, 0) << command.toStdString() << '\n' << run.messages.toStdString();
        EXPECT_EQ(nights(), nightsAfterwards);
    }
};

TEST_F(NightCommands, aFavouriteIsMadeActivatedInstalledSwitchedOffAndDeleted) {
    add(u"Default"_s, true);
    const auto made = install.run(u"night favourite"_s, {u"Cold lights"_s, u"0:-30:-30:80:0:0"_s});
    EXPECT_EQ(made.status, 0) << made.messages.toStdString();
    const QString name = u"2-Cold lights"_s;
    EXPECT_EQ(nights(), u"Default+ "_s + name);
    const QJsonObject set = install.run(u"night list"_s).array().at(1).toObject();
    EXPECT_EQ(set, (QJsonObject{{u"Installed"_s, false},
                                {u"IsNew"_s, false},
                                {u"NtsID"_s, 2},
                                {u"ColorSettings"_s, u"0:-6:-6:16:0:0"_s},
                                {u"TextureSet"_s, name},
                                {u"Actvated"_s, u"False"_s},
                                {u"Description"_s, u""_s}}));
    expectDone(u"activate"_s, name, u"Default+ "_s + name + u'+');
    expectDone(u"install"_s, name, u"Default+ "_s + name + u"+*"_s);
    expectDone(u"install"_s, u"Default"_s, u"Default+* "_s + name + u'+');
    EXPECT_EQ(install.run(u"originals restore"_s).status, 0);
    EXPECT_EQ(nights(), u"Default+ "_s + name + u'+') << "none is installed any more";
    expectDone(u"deactivate"_s, name, u"Default+ "_s + name);
    expectDone(u"delete"_s, name, u"Default+"_s);
}

TEST_F(NightCommands, refusalsAreToldAndChangeNothing) {
    add(u"Default"_s, true);
    add(u"2-Red"_s, false);
    const auto before = contentsBelow(install.folder.path());
    const std::pair<QString, QString> cases[] = {
        {u"activate Fog"_s, u"There is no night texture set named 'Fog'"_s},
        {u"install Fog"_s, u"There is no night texture set named 'Fog'"_s},
        {u"install 2-Red"_s, u"The night texture set '2-Red' is not activated"_s},
        {u"activate Default"_s, u"The night texture set 'Default' is activated already"_s},
        {u"delete Default"_s, u"This is a protected texture set and no changes can be made"_s},
    };
    for (const auto& [words, text] : cases) {
        const auto run = install.run(u"night "_s + words);
        EXPECT_EQ(run.status, 1) << words.toStdString();
        EXPECT_EQ(run.messages.count(text), 1) << run.messages.toStdString();
    }
    EXPECT_EQ(contentsBelow(install.folder.path()), before);
}

} // namespace
} // namespace morvane
