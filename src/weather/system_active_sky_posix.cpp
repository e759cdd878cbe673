#include "core/numbers.h"
#include "core/program_runner.h"
#include "weather/active_sky.h"
#include "weather/weather_state.h"

#include <QDir>
#include <QFile>
#include <QThread>

namespace morvane {

namespace {

constexpr unsigned long restMilliseconds = 20;

/// True when a process has that program among its words: its own name, or what a runner was given.
bool isProgramRunning(const QString& program) {
    for (const QString& process : QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile commandLine(u"/proc/"_s + process + u"/cmdline"_s);
        if (!isDigits(process) || !commandLine.open(QIODevice::ReadOnly)) continue;
        for (const QByteArray& word : commandLine.readAll().split('\0')) {
            const QString path = QString::fromLocal8Bit(word).replace(u'\\', u'/');
            if (path.section(u'/', -1).compare(program, Qt::CaseInsensitive) == 0) return true;
        }
    }
    return false;
}

/// Where Windows programs are run by another one.
class RunnerActiveSky : public ActiveSkyPlatform {
public:
    /// Nobody here knows the windows of the runner's programs; the program of that name stands for its
    /// window.
    bool isWindowOpen(const QString& title) override { return isProgramRunning(title + u".exe"_s); }
    bool startASv6(Session& session) override {
        return startWithRunner(session, u"Active Sky"_s,
                               session.state<WeatherState>().ASv6Path / u"ASv6.exe");
    }
    void rest() override { QThread::msleep(restMilliseconds); }
};

} // namespace

ActiveSkyPlatform& systemActiveSky() {
    static RunnerActiveSky platform;
    return platform;
}

} // namespace morvane
