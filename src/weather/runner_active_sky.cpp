#include "core/registry.h"
#include "simulator/program_start.h"
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
    void startASv6(Session& session) override {
        const QString runner =
            session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"SimulatorRunner"_s);
        startProgram(session.weather.ASv6Path / u"ASv6.exe", {}, runner);
    }
    void rest() override { QThread::msleep(restMilliseconds); }
};

} // namespace

ActiveSkyPlatform& systemActiveSky() {
    static RunnerActiveSky platform;
    return platform;
}

} // namespace morvane
