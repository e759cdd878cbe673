#include "simulator/program_runner.h"
#include "weather/active_sky.h"

#include <QThread>

namespace morvane {

namespace {

constexpr unsigned long restMilliseconds = 20;

/// Where Windows programs are run by another one.
class RunnerActiveSky : public ActiveSkyPlatform {
public:
    /// Nobody here knows the windows of the runner's programs.
    bool isWindowOpen(const QString&) override { return false; }
    bool startASv6(Session& session) override {
        return startWithRunner(session, u"Active Sky"_s, session.weather.ASv6Path / u"ASv6.exe");
    }
    void rest() override { QThread::msleep(restMilliseconds); }
};

} // namespace

ActiveSkyPlatform& systemActiveSky() {
    static RunnerActiveSky platform;
    return platform;
}

} // namespace morvane
