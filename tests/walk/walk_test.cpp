// The walk: every control that is alive on a screen, by the mouse and by the keyboard, on the platform's own
// plug-in.

#include "skin_files.h"
#include "walk/walk_tables.h"
#include "window/form_table.h"

#include <QWindow>
#include <gtest/gtest.h>

namespace morvane::test {

void PrintTo(const WalkScreen& screen, std::ostream* out) {
    *out << screen.name;
}

namespace {

FilePath skin() {
    static const TemporaryFolder folder;
    static const bool isWritten = [] {
        NativeFileSystem files;
        files.makeFolder(folder / u"Media");
        writeSkin([&](const FilePath& file, const QByteArray& contents) { files.write(file, contents); },
                  folder / u"Media");
        return true;
    }();
    return isWritten ? folder / u"Media" : FilePath();
}

std::vector<WalkScreen> allScreens() {
    return mainScreens() + groundScreens() + skyScreens() + nightScreens() + weatherScreens() +
           coverScreens() + setDialogs() + messageScreens();
}

TEST(Walk, leavesNoScreenOut) {
    QStringList walked{u"frm_Splash"_s}; // nothing to press, and gone when the windows come
    for (const WalkScreen& screen : allScreens())
        walked << screen.form;
    for (const QString& name : formNames())
        EXPECT_TRUE(walked.contains(name)) << name.toStdString();
}

/// The window is gone before the window system has given it the keyboard.
TEST(Walk, aShortProgressLeavesTheKeyboardWhereItWas) {
    Walk walk(skin(), furnish);
    UserInterface& user = walk.session().user;
    const QWindow* window = walk.program().shell.form(u"frm_Main"_s)->windowHandle();
    for (int i = 0; i < 10; ++i) {
        user.showMessage({MessageKind::progress, u"Working"_s, u"A moment"_s, false, false, true});
        user.pumpMessages();
        user.hideMessage();
        ASSERT_TRUE(QTest::qWaitFor([window] { return window->isActive(); })) << "after " << i << " times";
    }
}

class WalkTest : public testing::TestWithParam<WalkScreen> {};

TEST_P(WalkTest, usesEveryControl) {
    Walk(skin(), furnish).everyRow(GetParam());
}

std::string nameOf(const testing::TestParamInfo<WalkScreen>& info) {
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(main, WalkTest, testing::ValuesIn(mainScreens()), nameOf);
INSTANTIATE_TEST_SUITE_P(ground, WalkTest, testing::ValuesIn(groundScreens()), nameOf);
INSTANTIATE_TEST_SUITE_P(sky, WalkTest, testing::ValuesIn(skyScreens()), nameOf);
INSTANTIATE_TEST_SUITE_P(night, WalkTest, testing::ValuesIn(nightScreens()), nameOf);
INSTANTIATE_TEST_SUITE_P(weather, WalkTest, testing::ValuesIn(weatherScreens()), nameOf);
INSTANTIATE_TEST_SUITE_P(cover, WalkTest, testing::ValuesIn(coverScreens()), nameOf);
INSTANTIATE_TEST_SUITE_P(dialogs, WalkTest, testing::ValuesIn(setDialogs()), nameOf);
INSTANTIATE_TEST_SUITE_P(messages, WalkTest, testing::ValuesIn(messageScreens()), nameOf);

} // namespace
} // namespace morvane::test
