#include "core/install_lock.h"

#include "core/literals.h"

#include <QFileInfo>
#include <QSysInfo>

namespace morvane {

namespace {

/// Windows names a machine in capitals here, and by its first letters alone.
bool isThisComputer(const QString& name) {
    constexpr qsizetype longestShortName = 15;
    const QString own = QSysInfo::machineHostName();
    return name.compare(name.size() == longestShortName ? own.left(longestShortName) : own,
                        Qt::CaseInsensitive) == 0;
}

} // namespace

InstallLock::InstallLock(const FilePath& installFolder, const QString& fileName)
    : file_(installFolder.native() + u'/' + fileName) {
    file_.setStaleLockTime(0); // a holder may work for hours: it is gone when its process is
}

/// A holder that comes to its end takes its file along.
bool InstallLock::tryTake() {
    if (file_.isLocked()) return true;
    const bool isThere = QFileInfo::exists(file_.fileName());
    const bool isTaken = tryTakeFile();
    wasLeftBehind_ = isThere && isTaken && file_.isLocked();
    return isTaken;
}

/// The number of a killed holder may be that of another program now, or of this very one: whether anybody
/// holds the file is then for the file itself to tell, which cannot be removed while it is held here.
bool InstallLock::tryTakeFile() {
    if (file_.tryLock(0) || file_.error() != QLockFile::LockFailedError) return true;
    qint64 process = 0;
    QString computer, program;
    const bool isHere = file_.getLockInfo(&process, &computer, &program) && isThisComputer(computer);
    return isHere && file_.removeStaleLockFile() && file_.tryLock(0);
}

QString InstallLock::holder() const {
    qint64 process = 0;
    QString computer, program;
    if (!file_.getLockInfo(&process, &computer, &program)) return u"another program"_s;
    return program + u" (process "_s + QString::number(process) + u')';
}

} // namespace morvane
