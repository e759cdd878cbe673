// morvane-content: makes a complete install folder and a sample simulator.

#include "base_image_list.h"
#include "core/error.h"
#include "core/install_lock.h"
#include "core/literals.h"
#include "install_content.h"
#include "skin_emblems.h"
#include "skin_icon_file.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdio>

using namespace morvane;

namespace {

constexpr int otherWriter = 3;

FilePath folder(const QCommandLineParser& parser, const QString& option) {
    if (!parser.isSet(option) && option != u"data") return {};
    return FilePath(QFileInfo(parser.value(option)).absoluteFilePath());
}

bool isUsageRight(const QCommandLineParser& parser) {
    const int density = parser.value(u"density"_s).toInt();
    if (parser.isSet(u"icon"_s)) return true;
    return parser.isSet(u"home"_s) && parser.positionalArguments().isEmpty() &&
           density >= lowestStockDensity && density <= highestStockDensity;
}

/// The data that were installed with the program, in its own folder or in the system's, else those of the
/// source tree it was built from.
QString defaultDataFolder() {
    const QString programs = QCoreApplication::applicationDirPath();
    for (const QString& installed : {programs + u"/data"_s, programs + u"/../share/morvane/data"_s})
        if (QFileInfo::exists(installed + u"/airports"_s)) return installed;
    return QStringLiteral(MORVANE_DATA_DIR);
}

/// Its ending tells the form.
bool writeIcon(const QString& file) {
    if (!file.endsWith(u".ico", Qt::CaseInsensitive)) return skin::drawProgramIcon(128).save(file);
    std::vector<QImage> pictures;
    for (const int side : {16, 24, 32, 48, 64, 256})
        pictures.push_back(skin::drawProgramIcon(side));
    QFile icon(file);
    const QByteArray bytes = skin::iconFile(pictures);
    return icon.open(QIODevice::WriteOnly) && icon.write(bytes) == bytes.size();
}

/// It lies beside this one.
FilePath simulatorProgram() {
    const QFileInfo self(QCoreApplication::applicationFilePath());
    const QString suffix = self.suffix().isEmpty() ? QString() : u'.' + self.suffix();
    return FilePath(self.path()) / (u"morvane-simulator"_s + suffix);
}

/// The tool draws words, but never a window: it needs neither a display nor a user's session. Qt asks for
/// the latter's folder and complains where there is none.
void setDefault(const char* variable, const QString& value) {
    if (!qEnvironmentVariableIsSet(variable)) qputenv(variable, value.toLocal8Bit());
}

int update(NativeFileSystem& files, const ContentRequest& request) {
    InstallLock lock(request.home, u"Writing.lock"_s);
    if (!lock.tryTake()) {
        std::fprintf(stderr, "morvane-content: %s is working on this install\n", qPrintable(lock.holder()));
        return otherWriter;
    }
    std::printf("%d files brought up to date\n", updateContent(files, request));
    return 0;
}

int run(const QCommandLineParser& parser) {
    if (parser.isSet(u"icon"_s)) return writeIcon(parser.value(u"icon"_s)) ? 0 : 1;
    NativeFileSystem files;
    ContentRequest request{
        folder(parser, u"home"_s), folder(parser, u"simulator"_s),     simulatorProgram(),
        folder(parser, u"data"_s), parser.value(u"density"_s).toInt(), parser.isSet(u"old-version"_s)};
    if (parser.isSet(u"check"_s)) return isContentCurrent(files, request) ? 0 : 1;
    if (parser.isSet(u"simulator"_s) && !files.exists(simulatorProgram())) {
        std::fprintf(stderr, "morvane-content: no sample simulator without the program %s\n",
                     qPrintable(simulatorProgram().text()));
        return 1;
    }
    if (parser.isSet(u"progress"_s))
        request.onProgress = [](int percent) {
            std::printf("%d\n", percent);
            std::fflush(stdout);
        };
    if (parser.isSet(u"update"_s)) return update(files, request);
    QElapsedTimer timer;
    timer.start();
    const int count = makeContent(files, request);
    std::printf("%d base images, their textures and the store made in %.1f s\n", count,
                static_cast<double>(timer.elapsed()) / 1000);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir runFolder;
    setDefault("XDG_RUNTIME_DIR", runFolder.path());
    setDefault("QT_QPA_PLATFORM", u"offscreen"_s);
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Makes a complete install folder and a sample simulator."_s);
    parser.addHelpOption();
    parser.addOption({u"home"_s, u"The install folder to make."_s, u"DIR"_s});
    parser.addOption(
        {u"simulator"_s, u"The sample simulator's folder to make; none without it."_s, u"DIR"_s});
    parser.addOption({u"data"_s, u"The source data."_s, u"DIR"_s, defaultDataFolder()});
    parser.addOption({u"progress"_s, u"Write the share of the work done, a number a line."_s});
    parser.addOption({u"density"_s, u"1 to 6: 1 makes about a thousand base images, 4 about four thousand."_s,
                      u"N"_s, u"1"_s});
    parser.addOption({u"old-version"_s, u"Make an install of version 2 that its next start upgrades."_s});
    parser.addOption({u"update"_s,
                      u"Make nothing anew: bring what an older version laid down up to date. The exit "
                      "status is 3 while another program works on the install."_s});
    parser.addOption({u"check"_s, u"Make nothing; the exit status is 0 when the install is current."_s});
    parser.addOption(
        {u"icon"_s, u"Draw the program's icon into that file, .png or .ico, and nothing else."_s, u"FILE"_s});
    parser.process(application);
    if (!isUsageRight(parser)) parser.showHelp(2);
    try {
        return run(parser);
    } catch (const Error& error) {
        std::fprintf(stderr, "morvane-content: %s\n", error.what());
        return 1;
    }
}
