#pragma once

#include "core/reported.h"
#include "core/session.h"

#include <functional>

namespace morvane {

inline const QString activeSkyKey = u"Software\\HiFi\\Asv6"_s;

/// What the link asks of the system: Active Sky is a Windows program.
class ActiveSkyPlatform {
public:
    virtual ~ActiveSkyPlatform() = default;
    /// A window of exactly that title is open; where windows cannot be seen, the program of that name runs.
    virtual bool isWindowOpen(const QString& title) = 0;
    /// Starts ASv6.exe and does not wait for it. False after the message that it cannot be started here.
    virtual bool startASv6(Session& session) = 0;
    /// Lets a moment pass between two looks at the file.
    virtual void rest() = 0;
};

/// The system's own.
ActiveSkyPlatform& systemActiveSky();

/// The step of a start: sets ASv6Path, ASv6Present, ASv6Local, ASv6VersionOK and ASv6ExportDate from the
/// registry and the folder named there. What is missing is kept in ASv6Problem and not told: most commands of
/// the console have nothing to do with the weather, and an unattended run waits for nobody.
void findActiveSky(Session& session);
/// Shows ASv6Problem where there is one.
void tellActiveSkyProblem(Session& session);

FilePath exportCycleFile(const Session& session);
/// The file's own time, to the minute; invalid after the message that it cannot be read.
QDateTime exportCycleTime(Session& session, const FilePath& file);

/// The link to a supported Active Sky: no protocol, only its program, its window and its file.
class ActiveSky {
public:
    ActiveSky(Session& session, ActiveSkyPlatform& platform) : session_(session), platform_(platform) {}

    /// Loads the export file; where Active Sky runs on this computer and is not running yet, starts it and
    /// waits for a new one first. False after the message of a failure and when the wait was left.
    Reported refresh();

    bool isExportCycleUpdated(const QDateTime& baseTime);
    QDateTime getExportCycleTime();
    /// Waits for a file time other than `baseTime`, earlier ones included, and then 15 seconds more. There is
    /// no time-out; false when it was cancelled or the program ends.
    bool waitForExportCycle(const QDateTime& baseTime);

private:
    bool waitForNewTime(const QDateTime& baseTime);
    bool giveTimeToWrite();
    /// Until `isOver` says so; false when it is left before.
    bool waitUntil(const std::function<bool()>& isOver);

    Session& session_;
    ActiveSkyPlatform& platform_;
};

} // namespace morvane
