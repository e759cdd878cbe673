// morvane-gallery: a picture of every screen, made without a display, at 100, 150 and 200 per cent and in
// both palettes. With --against it names those that differ from earlier ones, which shows what a change did
// to the screens.

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
#include "ui/controls/palette.h"
#include "ui/controls/paper_style.h"
#include "ui/skin.h"
#include "weather/reports.h"
#include "window/window_user.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <functional>
#include <vector>

using namespace morvane;

namespace {

/// Nobody is there to answer what a first start tells.
bool startUnattended(Session& session) {
    QTimer timer;
    timer.callOnTimeout([] {
        auto* dialog = qobject_cast<Form*>(QApplication::activeModalWidget());
        const auto* ok = dialog ? dialog->findChild<QWidget*>(u"btn_Ok"_s) : nullptr;
        if (ok && ok->isVisible()) dialog->cancel(); // progress ends by itself
    });
    timer.start(0);
    return startUp(session);
}

/// Tells of each picture that is not, pixel for pixel, the one of its name in the folder of earlier ones.
bool isLike(const QDir& folder, const QDir& earlier) {
    QStringList names = folder.entryList({u"*.png"_s}) + earlier.entryList({u"*.png"_s});
    names.removeDuplicates();
    const auto isOther = [&](const QString& name) {
        return QImage(folder.filePath(name)) != QImage(earlier.filePath(name));
    };
    names.erase(std::remove_if(names.begin(), names.end(), std::not_fn(isOther)), names.end());
    for (const QString& name : names)
        std::printf("differs: %s\n", qPrintable(folder.filePath(name)));
    return names.isEmpty();
}

QString homeOf(const QCommandLineParser& parser) {
    return QFileInfo(parser.value(u"home"_s)).absoluteFilePath();
}

int run(const FilePath& home, const QString& folder) {
    NativeFileSystem files;
    SystemClock clock;
    ReseedingRandomSource random;
    WindowUser user;
    const auto registry = openRegistry(files, home, FolderChoice::named);
    Session session({user, files, clock, random, *registry}, home);
    Skin skin(files, home / u"Media");
    WindowShell shell(session, skin);
    user.setShell(&shell);
    if (!startUnattended(session)) return 1;
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

/// One run of this program: what it saves goes below the folder of the whole.
struct GalleryPart {
    QString folder, scale;
    bool isAtNight;
};

/// The scale of a program is fixed when it starts, and screens of the other palette are to be as fresh.
int runPart(const GalleryPart& part, const QCommandLineParser& parser) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!part.scale.isEmpty()) environment.insert(u"QT_SCALE_FACTOR"_s, part.scale);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    const QString earlier = parser.value(u"against"_s);
    QStringList arguments{u"--home"_s, homeOf(parser), u"--one"_s};
    if (part.isAtNight) arguments << u"--night"_s;
    if (!earlier.isEmpty()) arguments << u"--against"_s << QDir(earlier).filePath(part.folder);
    arguments << QDir(parser.positionalArguments()[0]).filePath(part.folder);
    process.start(QCoreApplication::applicationFilePath(), arguments);
    return process.waitForFinished(-1) && process.exitCode() == 0 ? 0 : 1;
}

int runGallery(const QCommandLineParser& parser) {
    const bool isAtNight = parser.isSet(u"night"_s);
    palette::use(isAtNight ? PaperPalette::night : PaperPalette::day);
    const QString folder = parser.positionalArguments()[0], earlier = parser.value(u"against"_s);
    int status = run(FilePath(homeOf(parser)), folder);
    if (status == 0 && !earlier.isEmpty() && !isLike(folder, earlier)) status = 1;
    if (parser.isSet(u"one"_s)) return status;
    std::vector<GalleryPart> parts{{u"at-150"_s, u"1.5"_s, isAtNight}, {u"at-200"_s, u"2"_s, isAtNight}};
    if (!isAtNight)
        parts.insert(
            parts.end(),
            {{u"night"_s, {}, true}, {u"night/at-150"_s, u"1.5"_s, true}, {u"night/at-200"_s, u"2"_s, true}});
    for (const GalleryPart& part : parts)
        status = std::max(status, runPart(part, parser));
    return status;
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setApplicationVersion(QStringLiteral(MORVANE_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    loadProgramFont();
    applyPaperStyle();
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Saves a picture of every screen."_s);
    parser.addHelpOption();
    parser.addOption({u"home"_s, u"The install folder."_s, u"DIR"_s, defaultInstallFolder()});
    parser.addOption({u"against"_s, u"Earlier pictures; those that differ are named."_s, u"DIR"_s});
    parser.addOption({u"night"_s, u"Only the pictures at night."_s});
    parser.addOption({u"one"_s, u"Only those of one palette at the display's own scale."_s});
    parser.addPositionalArgument(u"OUTDIR"_s, u"Where the pictures go."_s);
    parser.process(application);
    if (parser.positionalArguments().size() != 1) parser.showHelp(2);
    try {
        return runGallery(parser);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
