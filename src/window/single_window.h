#pragma once

#include "core/install_lock.h"

#include <QLocalServer>

namespace morvane {

class EndRequests;
class WindowShell;

/// Keeps an install to one window program at a time: a second one brings the first to the front.
class SingleWindow {
public:
    explicit SingleWindow(const FilePath& installFolder);

    /// False when another process has the windows open; it was told to show them, and to open the file where
    /// one is named, and this one is to end.
    bool take(const QString& file = {});
    /// Behind `take`: whether the last window program of this install was killed, or never came to its end
    /// otherwise. False behind one that ended while this one waited for it.
    bool wasLastOneCut() const { return wasLastOneCut_; }
    /// From now on the calls of later ones reach this shell, and their files.
    void serve(WindowShell& shell);
    /// No crash is seen in a program that the system kills behind the session's end.
    void releaseBehind(EndRequests& requests);

private:
    bool callOther(const QString& file) const;

    InstallLock lock_;
    bool wasLastOneCut_ = false;
    QString name_; ///< by which the one calls the other, the same for every spelling of the folder
    QLocalServer server_;
};

} // namespace morvane
