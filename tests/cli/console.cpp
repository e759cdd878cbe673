#include "cli/console.h"

#include "cli/process_interrupt.h"

#include <QDir>
#include <QJsonDocument>

namespace morvane::test {

namespace {

constexpr int watchdogMilliseconds = 60000;

QStringList wordsOf(const QString& commandLine) {
    return commandLine.split(u' ', Qt::SkipEmptyParts);
}

} // namespace

std::vector<QJsonObject> ConsoleRun::objects() const {
    std::vector<QJsonObject> found;
    for (const QByteArray& line : output.split('\n'))
        if (!line.isEmpty()) found.push_back(QJsonDocument::fromJson(line).object());
    return found;
}

QJsonArray ConsoleRun::array() const {
    return QJsonDocument::fromJson(output).array();
}

Console::Console(const QStringList& arguments) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"MORVANE_HOME"_s);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    process_.setProcessEnvironment(environment);
    allowInterrupt(process_);
    process_.start(QStringLiteral(MORVANE_BIN_DIR "/morvane-cli"), arguments);
    if (!process_.waitForStarted(watchdogMilliseconds)) throw std::runtime_error("no console program");
}

bool Console::waitForMessage(const QString& text) {
    process_.setReadChannel(QProcess::StandardError);
    while (!errors_.contains(text.toUtf8())) {
        if (!process_.waitForReadyRead(watchdogMilliseconds)) return false;
        errors_ += process_.readAllStandardError();
    }
    return true;
}

void Console::interrupt() {
    test::interrupt(process_);
}

void Console::kill() {
    process_.kill();
    process_.waitForFinished(watchdogMilliseconds);
}

ConsoleRun Console::finish(const QByteArray& input) {
    process_.write(input);
    process_.closeWriteChannel();
    const bool ended =
        process_.state() == QProcess::NotRunning || process_.waitForFinished(watchdogMilliseconds);
    if (!ended) {
        process_.kill();
        process_.waitForFinished();
    }
    errors_ += process_.readAllStandardError();
    const bool sound = ended && process_.exitStatus() == QProcess::NormalExit;
    return {sound ? process_.exitCode() : -1, process_.readAllStandardOutput(), QString::fromUtf8(errors_)};
}

ConsoleRun runConsole(const QString& commandLine, const QStringList& more, const QByteArray& input) {
    return Console(wordsOf(commandLine) + more).finish(input);
}

ConsoleInstall::ConsoleInstall(const SmallInstallOptions& options) : SmallInstall(options) {
    closeDatabase(session);
}

QStringList ConsoleInstall::withHome(const QString& commandLine) const {
    return QStringList{u"--answer"_s, u"yes"_s, u"--home"_s, home().native()} + wordsOf(commandLine);
}

ConsoleRun ConsoleInstall::run(const QString& commandLine, const QStringList& more) const {
    return Console(withHome(commandLine) + more).finish();
}

void ConsoleInstall::addSet(const QString& name, const QString& cover, bool activated,
                            const QStringList& names) {
    withStore([&](Session&) { addGroundSet(name, cover, activated, names); });
}

void ConsoleInstall::addSky(const QString& name, const QString& cover, bool activated,
                            const QStringList& names) {
    withStore([&](Session&) { addSkySet(name, cover, activated, names); });
}

QStringList ConsoleInstall::setFolders() const {
    return QDir((home() / u"Texture Sets").native()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

void expectSteps(ConsoleInstall& install, const std::vector<ConsoleStep>& steps) {
    for (const auto& [words, said, status] : steps) {
        const auto run = install.run({}, words.split(u'|'));
        const QString all = QString::fromUtf8(run.output) + run.messages;
        EXPECT_EQ(run.status, status) << words.toStdString() << '\n' << all.toStdString();
        for (const QString& part : said)
            EXPECT_TRUE(all.contains(part)) << words.toStdString() << '\n'
                                            << part.toStdString() << '\n'
                                            << all.toStdString();
    }
}

QString quoted(QString path) {
    return u'"' + path.replace(u'\\', u"\\\\"_s) + u'"';
}

QStringList manyFiles(const QString& folder, int count) {
    QStringList names;
    for (int number = 0; number < count; ++number)
        names << folder + u"\\029b2su%1.bmp"_s.arg(number, 3, 10, QChar(u'0'));
    return names;
}

} // namespace morvane::test
