#include "core/ini_file.h"
#include "core/registry.h"
#include "support/printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

class IniFileTest : public testing::Test {
protected:
    test::TemporaryFolder folder;
    NativeFileSystem files;
    FilePath file = folder / u"settings.cfg";
    IniRegistry registry{files, folder / u"registry.ini"};
    const QString key = u"Software\\Orrinsoft\\Morvane"_s;
};

TEST_F(IniFileTest, readsAsTheSystemsProfilesDo) {
    test::writeFile(file, "; a remark\r\n[ Sky ]\r\nBlank =   a b  \r\nQuoted=\"  a b  \"\r\nEmpty=\r\n"
                          "TWICE=first\nTwice=second\nNumber=-12 apples\n" +
                              QByteArrayLiteral("Nul=a\0b\n[Other]\nBlank=other\nLong=") +
                              QByteArray(600, 'x'));
    const std::pair<QString, QString> cases[] = {
        {"blank", "a b"}, {"Quoted", "a b"}, {"Empty", ""}, {"Twice", "first"}, {"Nul", "a b"}, {"Long", ""},
    };
    for (const auto& [name, value] : cases)
        EXPECT_EQ(GetIniString(files, "sky", name, file), value) << qPrintable(name);
    EXPECT_EQ(GetIniString(files, "OTHER", "Blank", file), "other");
    EXPECT_EQ(GetIniString(files, "Other", "Long", file).size(), 511);
    EXPECT_EQ(GetIniInt(files, "Sky", "Number", file), -12);
    EXPECT_EQ(GetIniInt(files, "Sky", "Number", folder / u"missing.cfg"), 0);
}

TEST_F(IniFileTest, writesOneKeyAndKeepsTheRest) {
    test::writeFile(file, "; a remark\n[A]\none=1.5\n[B]\ntwo=Ünï\n");
    EXPECT_EQ(WriteIni(files, "a", "three", "3", file), 1);
    EXPECT_EQ(WriteIni(files, "A", "ONE", "2", file), 1);
    EXPECT_EQ(WriteIni(files, "C", "four", "", file), 1);
    EXPECT_EQ(test::readFile(file),
              "; a remark\r\n[A]\r\nONE=2\r\nthree=3\r\n[B]\r\ntwo=Ünï\r\n[C]\r\nfour=\r\n");
    EXPECT_EQ(WriteIni(files, "A", "one", "1", folder / u"no such folder\\settings.cfg"), 0);
}

TEST_F(IniFileTest, theRegistryKeepsTextsAndTypes) {
    registry.SetRegString(1, key, "FirstTime", "lost"); // the key must exist
    EXPECT_EQ(registry.GetRegString(1, key, "FirstTime"), "");
    EXPECT_TRUE(registry.CreateRegKey(1, key));
    for (const QString& text : {u"True"_s, u"  C:\\Ünï \"x\"\\ "_s, u"dword:1"_s, QString()}) {
        registry.SetRegString(1, key, "Value", text);
        EXPECT_EQ(registry.GetRegString(1, key.toUpper(), "VALUE"), text);
        EXPECT_FALSE(registry.RegValueIsDword(1, key, "Value"));
    }
    registry.SetRegString(1, key, "Value", "a\n[HKEY_USERS\\Evil]"); // a text is never a key of its own
    EXPECT_EQ(registry.GetRegString(1, key, "Value"), "");
    test::writeFile(folder / u"registry.ini", "[HKEY_USERS\\Asv6]\nLocal=dword:0000001f\n"); // by a hand
    EXPECT_TRUE(registry.RegValueIsDword(2, "Asv6", "local"));
    EXPECT_EQ(registry.GetRegString(2, "Asv6", "Local"), "31");
    EXPECT_EQ(registry.GetRegString(2, "Asv6", "Local", "OTHERPC"), "");
}

} // namespace
} // namespace morvane
