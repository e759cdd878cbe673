// morvane-gallery: a picture of every screen, made without a display.

#include "core/application.h"
#include "core/clock.h"
#include "core/file_system.h"
#include "core/install_folder.h"
#include "core/registry.h"
#include "core/session.h"
#include "gallery.h"
#include "simulator/resource_folders.h"
#include "ui/controls/paper_style.h"
#include "ui/program_font.h"
#include "ui/skin.h"
#include "ui/window_user.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <cstdio>

using namespace morvane;

namespace {

int run(const FilePath& home, const QString& folder) {
    NativeFileSystem files;
    SystemClock clock;
    ReseedingRandomSource random;
    WindowUser user;
    const auto registry = openRegistry(files, home);
    Session session({user, files, clock, random, *registry}, home);
    Skin skin(files, home / u"Media");
    Shell shell(session, skin);
    user.setShell(&shell);
    if (!startUp(session)) return 1;
    clsResourceFolders::reload(session);
    Gallery gallery(shell, folder);
    gallery.saveAll();
    std::printf("%d pictures in %s\n", gallery.pictureCount(), qPrintable(folder));
    if (!skin.missing().isEmpty())
        std::fprintf(stderr, "missing: %s\n", qPrintable(skin.missing().join(u", "_s)));
    return skin.missing().isEmpty() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setApplicationVersion(QStringLiteral(MORVANE_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    loadProgramFont();
    applyPaperStyle(application);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Saves a picture of every screen."_s);
    parser.addHelpOption();
    parser.addOption({u"home"_s, u"The install folder."_s, u"DIR"_s, defaultInstallFolder()});
    parser.addPositionalArgument(u"OUTDIR"_s, u"Where the pictures go."_s);
    parser.process(application);
    if (parser.positionalArguments().size() != 1) parser.showHelp(2);
    return run(FilePath(QFileInfo(parser.value(u"home"_s)).absoluteFilePath()),
               parser.positionalArguments()[0]);
}
