#pragma once

#include "core/file_path.h"
#include "core/registry.h"
#include "core/session.h"
#include "support/scripted_services.h"
#include "support/scripted_user.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace morvane::test {

/// How a run of the content tool ended and what it said.
struct ToolRun {
    int status = -1;
    QString errors;
};

/// Runs morvane-content with `home`, `simulator` and more options.
ToolRun runContentTool(const FilePath& home, const FilePath& simulator, const QStringList& options = {});

/// One whole install of density 1, made once by the real tool for all tests of the program; each of them
/// leaves it as it was.
class MadeInstall : public testing::Test {
protected:
    static void SetUpTestSuite();

    static FilePath home() { return *folder_ / u"Morvane"; }
    static FilePath simulator() { return *folder_ / u"Simulator"; }
    /// Another place beside them.
    static FilePath beside(QStringView name) { return *folder_ / name; }

    NativeFileSystem files;

private:
    static std::unique_ptr<TemporaryFolder> folder_;
};

/// The same with a session that has been started on the install.
class StartedInstall : public MadeInstall {
protected:
    StartedInstall();
    ~StartedInstall() override;

    ScriptedUser user;
    ScriptedClock clock;
    ScriptedRandom random;
    IniRegistry registry{files, home() / u"registry.ini"};
    Session session{{user, files, clock, random, registry}, home()};
    bool hasStarted;
};

} // namespace morvane::test
