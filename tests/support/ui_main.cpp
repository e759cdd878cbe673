#include "imaging/program_font.h"
#include "ui/controls/paper_style.h"

#include <QApplication>
#include <gtest/gtest.h>

namespace {

void setUnlessSet(const char* name, const char* value) {
    if (!qEnvironmentVariableIsSet(name)) qputenv(name, value);
}

} // namespace

/// Widgets need an application, and the offscreen platform is there on every machine; sizes are pinned.
int main(int count, char** arguments) {
    setUnlessSet("QT_QPA_PLATFORM", "offscreen");
    setUnlessSet("QT_FONT_DPI", "96");
    setUnlessSet("QT_SCALE_FACTOR", "1");
    testing::InitGoogleTest(&count, arguments);
    QApplication application(count, arguments);
    QApplication::setApplicationVersion(QStringLiteral("2.1.0")); // some systems know one of their own
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // a test sees into its own alone
    morvane::loadProgramFont();
    morvane::applyPaperStyle();
    return RUN_ALL_TESTS();
}
