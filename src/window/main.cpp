#include "app/first_install.h"
#include "app/logged_run.h"
#include "core/clock.h"
#include "core/file_system.h"
#include "core/install_folder.h"
#include "core/private_texts.h"
#include "core/registry.h"
#include "core/session.h"
#include "imaging/program_font.h"
#include "simulator/palette_choice.h"
#include "simulator/screens/palette_keeper.h"
#include "ui/controls/palette.h"
#include "ui/controls/paper_style.h"
#include "ui/skin.h"
#include "window/content_update.h"
#include "window/end_requests.h"
#include "window/first_start.h"
#include "window/letter_engine.h"
#include "window/program.h"
#include "window/report_saving.h"
#include "window/screen_scale.h"
#include "window/single_window.h"
#include "window/typed_texts.h"
#include "window/window_line.h"
#include "window/window_shell.h"
#include "window/window_user.h"

#include <QApplication>
#include <QFileInfo>
#include <cstdio>

using namespace morvane;

namespace {

constexpr int wrongUsage = 2;

/// Help needs no display, so it is looked for before the application that does. What that one takes for
/// itself, as "-platform NAME", is no slip yet.
bool showsHelp(int argc, char** argv) {
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words << QString::fromLocal8Bit(argv[i]);
    const QString text = readWindowLine(words).output;
    std::fputs(qPrintable(text), stdout);
    return !text.isEmpty();
}

/// A package lays it down; on Windows the program holds it. The skin's comes with the install folder, and so
/// behind the first start.
void showInstalledIcon() {
    const QString file =
        QCoreApplication::applicationDirPath() + u"/../share/icons/hicolor/128x128/apps/morvane.png"_s;
    if (QFileInfo::exists(file)) QApplication::setWindowIcon(QIcon(file));
}

} // namespace

int main(int argc, char** argv) {
    QApplication::setApplicationName(u"Morvane"_s);
    QApplication::setApplicationVersion(QStringLiteral(MORVANE_VERSION));
    QGuiApplication::setDesktopFileName(u"morvane"_s); // by it a desktop finds name and icon
    if (showsHelp(argc, argv)) return 0;
    chooseLetterEngine();
    fitScaleToScreen(argc, argv);
    QApplication application(argc, argv);
    const WindowLine line = readWindowLine(QApplication::arguments().mid(1));
    if (!line.slip.isEmpty()) {
        std::fputs(qPrintable(u"morvane: "_s + line.slip + u'\n'), stderr);
        return wrongUsage;
    }
    // Windows come and go as pages do; only the exit flow ends the program.
    QApplication::setQuitOnLastWindowClosed(false);
    showInstalledIcon();
    loadProgramFont();
    applyPaperStyle();

    const QString file = line.file.isEmpty() ? QString() : QFileInfo(line.file).absoluteFilePath();
    if (!file.isEmpty() && !isThere(file)) return 1;
    const QString home = line.home.isEmpty() ? defaultInstallFolder() : line.home;
    const bool isUsual = line.home.isEmpty() && !qEnvironmentVariableIsSet("MORVANE_HOME");
    const bool isFirstStart = isUsual && awaitsFirstStart(home);
    EndRequests requests;
    if (isFirstStart && !makeInstallFolder(home)) return requests.hasEnded() ? 0 : 1;
    const FilePath folder(QFileInfo(home).absoluteFilePath());
    SingleWindow window(folder);
    if (line.coverCode.isEmpty() && !window.take(file)) return 0;
    window.releaseBehind(requests);
    NativeFileSystem files;
    SystemClock clock;
    const auto registry =
        openRegistry(files, folder, line.home.isEmpty() ? FolderChoice::usual : FolderChoice::named);
    palette::use(paletteNow(*registry, clock));
    // A run for another program is to be short, and shows no windows.
    if (line.coverCode.isEmpty() && awaitsContentUpdate(folder)) updateDeliveredContent(folder);
    if (requests.hasEnded()) return 0;
    ReseedingRandomSource random;
    WindowUser user;
    Session session({user, files, clock, random, *registry}, folder);
    Skin skin(files, folder / u"Media");
    QApplication::setWindowIcon(skin.picture(u"morvane.png"_s));
    WindowShell shell(session, skin);
    user.setShell(&shell);
    const PaletteKeeper keeper(session);
    session.state<LastRun>().wasCut = window.wasLastOneCut();
    window.serve(shell);
    requests.handTo(shell);
    session.state<PrivateTexts>().sources.emplace_back(typedInWindows);
    const LoggedRun run(session, u"morvane"_s, line.coverCode.isEmpty() ? QString() : u"for a cover"_s);
    shell.openFile(file);
    return runProgram(shell, line.coverCode);
}
