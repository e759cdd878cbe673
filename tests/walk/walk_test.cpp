// The walk: every control that is alive on a screen, by the mouse and by the keyboard, on the platform's own
// plug-in.

#include "skin_files.h"
#include "support/contrast.h"
#include "ui/controls/palette.h"
#include "walk/walk_tables.h"
#include "window/form_table.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
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

/// The ink of what is written, against what it was painted on.
double contrastOf(QWidget& form, const QWidget& written, QPalette::ColorRole ink) {
    const QRect place(written.mapTo(&form, QPoint()), written.size());
    const QRect inside = place.adjusted(2, 2, -2, -2); // without a button's border
    return contrast(written.palette().color(ink).rgb(), commonest(form.grab(inside).toImage()));
}

TEST(Walk, everyTextIsReadableInBothPalettes) {
    Walk walk(skin(), furnish);
    WindowShell& shell = walk.program().shell;
    for (const PaperPalette palette : {PaperPalette::day, PaperPalette::night}) {
        palette::use(palette);
        QCoreApplication::processEvents();
        int texts = 0;
        for (const QString& name : formNames()) {
            QWidget* form = shell.form(name);
            if (childPage(name)) shell.goToPage(name);
            const auto expectReadable = [&](const QWidget& written, const QString& text,
                                            QPalette::ColorRole ink) {
                if (text.isEmpty() || !written.isVisibleTo(form) || written.size().isEmpty()) return;
                ++texts;
                EXPECT_GE(contrastOf(*form, written, ink), 4.5)
                    << int(palette) << ", " << name.toStdString() << ": " << text.toStdString();
            };
            for (const QLabel* label : form->findChildren<QLabel*>())
                expectReadable(*label, label->text(), label->foregroundRole());
            for (const QAbstractButton* button : form->findChildren<QAbstractButton*>())
                expectReadable(*button, button->text(),
                               qobject_cast<const QPushButton*>(button) ? QPalette::ButtonText
                                                                        : QPalette::WindowText);
        }
        EXPECT_GT(texts, 200);
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
