#include "core/clock.h"
#include "core/file_system.h"
#include "core/install_folder.h"
#include "core/registry.h"
#include "core/session.h"
#include "ui/controls/paper_style.h"
#include "ui/end_requests.h"
#include "ui/first_start.h"
#include "ui/program.h"
#include "ui/program_font.h"
#include "ui/shell.h"
#include "ui/single_window.h"
#include "ui/skin.h"
#include "ui/window_user.h"

#include <QApplication>
#include <QFileInfo>

using namespace morvane;

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Morvane"_s);
    QApplication::setApplicationVersion(QStringLiteral(MORVANE_VERSION));
    // Windows come and go as pages do; only the exit flow ends the program.
    QApplication::setQuitOnLastWindowClosed(false);
    loadProgramFont();
    applyPaperStyle(application);

    QStringList words = QApplication::arguments().mid(1);
    QString home = defaultInstallFolder();
    if (words.size() >= 2 && words[0] == u"--home") {
        home = words[1];
        words.remove(0, 2);
    }
    const bool isFirstStart = home == userInstallFolder() && !QFileInfo::exists(home);
    EndRequests requests;
    if (isFirstStart && !makeInstallFolder(home)) return requests.hasEnded() ? 0 : 1;
    const FilePath folder(QFileInfo(home).absoluteFilePath());
    SingleWindow window(folder);
    if (words.isEmpty() && !window.take()) return 0;
    NativeFileSystem files;
    SystemClock clock;
    ReseedingRandomSource random;
    WindowUser user;
    const auto registry = openRegistry(files, folder);
    Session session({user, files, clock, random, *registry}, folder);
    Skin skin(files, folder / u"Media");
    QApplication::setWindowIcon(skin.picture(u"morvane.png"_s));
    Shell shell(session, skin);
    user.setShell(&shell);
    window.serve(shell);
    requests.handTo(shell);
    return runProgram(shell, words.join(u' '));
}
