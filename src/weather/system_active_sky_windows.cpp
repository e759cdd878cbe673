#include "core/program_runner.h"
#include "weather/active_sky.h"
#include "weather/weather_state.h"

#include <windows.h>

#include <shellapi.h>

namespace morvane {

namespace {

constexpr DWORD restMilliseconds = 20;

const wchar_t* wide(const QString& text) {
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

class WindowsActiveSky : public ActiveSkyPlatform {
public:
    bool isWindowOpen(const QString& title) override { return FindWindowW(nullptr, wide(title)) != nullptr; }
    bool startASv6(Session& session) override {
        const QString program = (session.state<WeatherState>().ASv6Path / u"ASv6.exe").text();
        constexpr INT_PTR lastFailure = 32;
        const HINSTANCE answer =
            ShellExecuteW(nullptr, L"Open", wide(program), L"Hide", nullptr, SW_SHOWNORMAL);
        const bool isStarted = reinterpret_cast<INT_PTR>(answer) > lastFailure;
        if (!isStarted)
            tellNotStarted(session, u"Active Sky"_s, u"Active Sky could not be started: "_s + program);
        return isStarted;
    }
    void rest() override { Sleep(restMilliseconds); }
};

} // namespace

ActiveSkyPlatform& systemActiveSky() {
    static WindowsActiveSky platform;
    return platform;
}

} // namespace morvane
