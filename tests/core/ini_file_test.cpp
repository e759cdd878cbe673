#include "core/ini_file.h"
#include "core/registry.h"
#include "support/printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::readFile;
using test::TemporaryFolder;
using test::writeFile;

TEST(IniFile, readsAsTheSystemsProfilesDo) {
    TemporaryFolder folder;
    const FilePath file = folder / u"settings.cfg";
    const QByteArray longValue(600, 'x');
    writeFile(file,
              QByteArrayLiteral(
                  "; a remark\r\n[ Sky ]\r\nBlank =   a b  \r\nQuoted=\"  a b  \"\r\nEmpty=\r\n"
                  "TWICE=first\nTwice=second\nNumber=-12 apples\nNul=a\0b\n[Other]\nBlank=other\nLong=") +
                  longValue);
    NativeFileSystem files;
    const std::pair<QString, QString> cases[] = {
        {"blank", "a b"}, {"Quoted", "a b"}, {"Empty", ""}, {"Twice", "first"},
        {"Missing", ""},  {"Nul", "a b"},    {"Long", ""},
    };
    for (const auto& [key, value] : cases)
        EXPECT_EQ(GetIniString(files, "sky", key, file), value) << qPrintable(key);
    EXPECT_EQ(GetIniString(files, "OTHER", "Blank", file), "other");
    EXPECT_EQ(GetIniString(files, "Other", "Long", file).size(), 511);
    EXPECT_EQ(GetIniInt(files, "Sky", "Number", file), -12);
    EXPECT_EQ(GetIniInt(files, "Sky", "Missing", file), 0);
    EXPECT_EQ(GetIniString(files, "Sky", "Blank", folder / u"missing.cfg"), "");
}

TEST(IniFile, writesOneKeyAndKeepsTheRest) {
    TemporaryFolder folder;
    const FilePath file = folder / u"settings.cfg";
    NativeFileSystem files;
    EXPECT_EQ(WriteIni(files, "A", "one", "1.5", file), 1);
    EXPECT_EQ(WriteIni(files, "B", "two", "Ünï", file), 1);
    EXPECT_EQ(WriteIni(files, "a", "three", "3", file), 1);
    EXPECT_EQ(WriteIni(files, "A", "ONE", "2", file), 1);
    EXPECT_EQ(readFile(file), "[A]\r\nONE=2\r\nthree=3\r\n[B]\r\ntwo=Ünï\r\n");
    EXPECT_EQ(WriteIni(files, "A", "one", "1", folder / u"no such folder\\settings.cfg"), 0);
}

TEST(IniRegistry, keepsTextsAndTypes) {
    TemporaryFolder folder;
    NativeFileSystem files;
    IniRegistry registry(files, folder / u"registry.ini");
    const QString key = "Software\\Orrinsoft\\Morvane";
    registry.SetRegString(1, key, "FirstTime", "lost"); // the key must exist
    EXPECT_EQ(registry.GetRegString(1, key, "FirstTime"), "");
    EXPECT_TRUE(registry.CreateRegKey(1, key));
    for (const QString& text :
         {QString("True"), QString("  C:\\Ünï \"x\"\\ "), QString("dword:1"), QString("")}) {
        registry.SetRegString(1, key, "Value", text);
        EXPECT_EQ(registry.GetRegString(1, key.toUpper(), "VALUE"), text);
        EXPECT_FALSE(registry.RegValueIsDword(1, key, "Value"));
    }
    registry.SetRegString(1, key, "Value",
                          "a\n[HKEY_LOCAL_MACHINE\\Evil]"); // a text is never a key of its own
    EXPECT_EQ(registry.GetRegString(1, key, "Value"), "");
    EXPECT_EQ(registry.GetRegString(1, key, "Value", "OTHERPC"), "");
    EXPECT_FALSE(registry.CreateRegKey(4, key));
    EXPECT_FALSE(registry.CreateRegKey(-1, key));
}

TEST(IniRegistry, readsWhatAHandWrote) {
    TemporaryFolder folder;
    NativeFileSystem files;
    writeFile(folder / u"registry.ini",
              QByteArrayLiteral("[HKEY_LOCAL_MACHINE\\Software\\HiFi\\Asv6]\nLocal=dword:0000001f\n"
                                "Install_Path=C:\\Asv6\0junk\n"));
    const IniRegistry registry(files, folder / u"registry.ini");
    EXPECT_TRUE(registry.RegValueIsDword(1, "Software\\HiFi\\Asv6", "local"));
    EXPECT_EQ(registry.GetRegString(1, "Software\\HiFi\\Asv6", "Local"), "31");
    EXPECT_EQ(registry.GetRegString(1, "Software\\HiFi\\Asv6", "Install_Path"), "C:\\Asv6");
}

} // namespace
} // namespace morvane
