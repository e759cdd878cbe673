#pragma once

#include "support/small_install.h"
#include "support/testing.h"

namespace morvane::test {

/// A test of what a session does on a small install.
struct InstallTest : testing::Test {
    explicit InstallTest(const SmallInstallOptions& options = {}) : install(options) {}

    SmallInstall install;
    Session& session = install.session;
    ScriptedUser& user = install.user;
};

} // namespace morvane::test
