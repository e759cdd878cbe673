#include "core/registry.h"
#include "support/printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

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
    test::TemporaryFolder folder;
    NativeFileSystem files;
    FilePath file = folder / u"system.ini";
    bool isClosed = true;
    IniRegistry system{files, file}; ///< past what a user may do
    UserRegistry registry{files, std::make_unique<ClosedRegistry>(files, file, isClosed)};

    QString simulator(const QString& name) {
        test::writeFile(folder / name / u"fs9.exe", "MZ");
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

TEST_F(UserRegistryTest, theSimulatorsPathIsTheMachinesWhereItLeadsToOne) {
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
}

TEST_F(UserRegistryTest, theSimulatorsPathIsWrittenToTheMachineWhereThatTakesIt) {
    for (const bool closed : {false, true}) {
        isClosed = closed;
        files.write(file, {});
        const QString path = simulator(u"Sim"_s);
        registry.CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, simulatorKey);
        registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, exePath, path);
        EXPECT_EQ(system.hasValue(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, exePath), !closed);
        EXPECT_EQ(system.hasValue(HKEY_CURRENT_USER_ROOT, simulatorKey, exePath), closed);
        EXPECT_EQ(registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, exePath), path);
    }
}

} // namespace
} // namespace morvane
