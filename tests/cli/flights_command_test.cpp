#include "cli/console.h"

#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(FlightsCommand, loadsTheUsersFlightsAndListsThem) {
    test::ConsoleInstall install;
    const FilePath user = install.folder / u"Own flights";
    test::writeFile(user / u"Evening.flt", "flight");
    test::writeFile(user / u"Ünten.FLT", "flight");
    install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"NonEnglishPath"_s, user.native());
    const auto before = install.run(u"flights list"_s);
    EXPECT_EQ(before.status, 1) << "nothing was loaded yet";
    EXPECT_TRUE(before.messages.contains(u"Error: Morvane Fatal Error"_s));
    EXPECT_EQ(install.run(u"flights load"_s).status, 0);
    const auto listed = install.run(u"flights list"_s);
    EXPECT_EQ(listed.status, 0);
    EXPECT_EQ(listed.array().toVariantList(), (QVariantList{u"Evening"_s, u"Ünten"_s}));
}

TEST(FlightsCommand, asksNobodyWhereNobodyIs) {
    test::ConsoleInstall install;
    EXPECT_EQ(install.run(u"flights load"_s).status, 0);
    EXPECT_EQ(install.run(u"flights list"_s).array().size(), 0);
}

} // namespace
} // namespace morvane
