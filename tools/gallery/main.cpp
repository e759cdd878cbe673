// morvane-gallery: a picture of every screen, made without a display, at 100, 150 and 200 per cent.

#include "app/start_up.h"
#include "core/clock.h"
#include "core/file_system.h"
#include "core/install_folder.h"
#include "core/registry.h"
#include "core/session.h"
#include "gallery.h"
#include "imaging/program_font.h"
#include "sets/resource_folders.h"
#include "simulator/flights.h"
#include "ui/controls/paper_style.h"
#include "ui/skin.h"
#include "weather/reports.h"
#include "window/window_user.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
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
    WindowShell shell(session, skin);
    user.setShell(&shell);
    if (!startUp(session)) return 1;
    clsResourceFolders::reload(session);
    clsWxFinders::reload(session);
    loadFlightFiles(session);
    Gallery gallery(shell, folder);
    gallery.saveAll();
    std::printf("%d pictures in %s\n", gallery.pictureCount(), qPrintable(folder));
    if (!skin.missing().isEmpty())
        std::fprintf(stderr, "missing: %s\n", qPrintable(skin.missing().join(u", "_s)));
    return skin.missing().isEmpty() ? 0 : 1;
}

/// The scale of a program is fixed when it starts, so the dense ones are runs of their own, in folders below.
int runScaled(const QString& home, const QString& folder) {
    for (const auto& [scale, name] : {std::pair(u"1.5"_s, u"at-150"_s), std::pair(u"2"_s, u"at-200"_s)}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_SCALE_FACTOR"_s, scale);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QCoreApplication::applicationFilePath(),
                      {u"--home"_s, home, QDir(folder).filePath(name)});
        if (!process.waitForFinished(-1) || process.exitCode() != 0) return 1;
    }
    return 0;
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
    const QString home = QFileInfo(parser.value(u"home"_s)).absoluteFilePath();
    const QString folder = parser.positionalArguments()[0];
    const int status = run(FilePath(home), folder);
    return status != 0 || qEnvironmentVariableIsSet("QT_SCALE_FACTOR") ? status : runScaled(home, folder);
}
