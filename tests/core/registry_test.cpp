#include "core/ini_file.h"
#include "core/reading_limits.h"
#include "core/registry.h"
#include "support/temporary_folder.h"
#include "support/testing.h"

namespace morvane::test {
namespace {

struct IniFileTest : testing::Test {
    TemporaryFolder folder;
    NativeFileSystem files;
    FilePath file = folder / u"settings.cfg";
    IniRegistry registry{files, folder / u"registry.ini"};
    const QString key = u"Software\\Orrinsoft\\Morvane"_s;
};

TEST_F(IniFileTest, readsAsTheSystemsProfilesDo) {
    writeFile(file, "; a remark\r\n[ Sky ]\r\nBlank =   a b  \r\nQuoted=\"  a b  \"\r\nEmpty=\r\n"
                    "TWICE=first\nTwice=second\nNumber=-12 apples\n" +
                        QByteArrayLiteral("Nul=a\0b\n[Other]\nBlank=other\nLong=") + QByteArray(600, 'x'));
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
    writeFile(file, "; a remark\n[A]\none=1.5\n[B]\ntwo=Ünï\n");
    EXPECT_EQ(WriteIni(files, "a", "three", "3", file), 1);
    EXPECT_EQ(WriteIni(files, "A", "ONE", "2", file), 1);
    EXPECT_EQ(WriteIni(files, "C", "four", "", file), 1);
    EXPECT_EQ(readFile(file), "; a remark\r\n[A]\r\nONE=2\r\nthree=3\r\n[B]\r\ntwo=Ünï\r\n[C]\r\nfour=\r\n");
    EXPECT_EQ(WriteIni(files, "A", "one", "1", folder / u"no such folder\\settings.cfg"), 0);
    writeFile(file, QByteArray(largestSettings + 1, ';'));
    EXPECT_EQ(WriteIni(files, "A", "one", "1", file), 0) << "nobody knows what stands in it";
    EXPECT_EQ(readFile(file).size(), largestSettings + 1);
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
    writeFile(folder / u"registry.ini", "[HKEY_USERS\\Asv6]\nLocal=dword:0000001f\n"); // by a hand
    EXPECT_TRUE(registry.RegValueIsDword(2, "Asv6", "local"));
    EXPECT_EQ(registry.GetRegString(2, "Asv6", "Local"), "31");
    EXPECT_EQ(registry.GetRegString(2, "Asv6", "Local", "OTHERPC"), "");
}

const QString exePath = u"EXE Path"_s, firstTime = u"FirstTime"_s;

/// The system's, as one without rights has it: the machine's part takes nothing.
class ClosedRegistry : public IniRegistry {
public:
    ClosedRegistry(FileSystem& files, const FilePath& file, const bool& isClosed)
        : IniRegistry(files, file), isClosed_(isClosed) {}

    void SetRegString(int root, const QString& key, const QString& name, const QString& text,
                      const QString& machine) override {
        if (!isClosed_ || root != HKEY_LOCAL_MACHINE_ROOT)
            IniRegistry::SetRegString(root, key, name, text, machine);
    }
    bool CreateRegKey(int root, const QString& key) override {
        return (!isClosed_ || root != HKEY_LOCAL_MACHINE_ROOT) && IniRegistry::CreateRegKey(root, key);
    }

private:
    const bool& isClosed_;
};

struct UserRegistryTest : testing::Test {
    TemporaryFolder folder;
    NativeFileSystem files;
    FilePath file = folder / u"system.ini";
    bool isClosed = true;
    IniRegistry system{files, file}; ///< past what a user may do
    UserRegistry registry{files, std::make_unique<ClosedRegistry>(files, file, isClosed)};

    QString simulator(const QString& name) const {
        writeFile(folder / name / u"fs9.exe", "MZ");
        return (folder / name).native();
    }
    void put(int root, const QString& key, const QString& name, const QString& text) {
        system.CreateRegKey(root, key);
        system.SetRegString(root, key, name, text);
    }
};

TEST_F(UserRegistryTest, ownValuesAreTheUsersAndElseTheMachines) {
    put(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, firstTime, u"True"_s);
    EXPECT_EQ(ownValue(registry, firstTime), "True");
    EXPECT_TRUE(registry.CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, morvaneKey));
    for (const QString& text : {u"False"_s, QString()}) {
        storeOwnValue(registry, firstTime, text);
        EXPECT_EQ(ownValue(registry, firstTime), text) << "an empty one counts as well";
        EXPECT_EQ(system.GetRegString(HKEY_CURRENT_USER_ROOT, morvaneKey, firstTime), text);
    }
    EXPECT_EQ(system.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, firstTime), "True");
}

TEST_F(UserRegistryTest, theSimulatorsPathIsTheMachinesWhereThatLeadsToOneAndTakesOne) {
    const QString right = simulator(u"Sim"_s), other = simulator(u"Öther Sim"_s);
    const QString wrong = (folder / u"gone").native();
    const std::tuple<QString, QString, QString> cases[] = {
        {right, other, right}, {wrong, other, other}, {{}, other, other}, {wrong, {}, wrong}};
    for (const auto& [machine, user, expected] : cases) {
        files.write(file, {});
        if (!machine.isEmpty()) put(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, exePath, machine);
        if (!user.isEmpty()) put(HKEY_CURRENT_USER_ROOT, simulatorKey, exePath, user);
        EXPECT_EQ(registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, exePath), expected)
            << machine.toStdString() << ' ' << user.toStdString();
    }
    for (const bool closed : {false, true}) {
        isClosed = closed;
        files.write(file, {});
        registry.CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, simulatorKey);
        registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, exePath, right);
        EXPECT_EQ(system.hasValue(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, exePath), !closed);
        EXPECT_EQ(system.hasValue(HKEY_CURRENT_USER_ROOT, simulatorKey, exePath), closed);
        EXPECT_EQ(registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, exePath), right);
    }
}

} // namespace
} // namespace morvane::test
