#include "core/install_lock.h"

#include "core/literals.h"

namespace morvane {

InstallLock::InstallLock(const FilePath& installFolder, const QString& fileName)
    : file_(installFolder.native() + u'/' + fileName) {
    file_.setStaleLockTime(0); // a holder may work for hours: it is gone when its process is
}

bool InstallLock::tryTake() {
    return file_.isLocked() || file_.tryLock(0) || file_.error() != QLockFile::LockFailedError;
}

QString InstallLock::holder() const {
    qint64 process = 0;
    QString computer, program;
    if (!file_.getLockInfo(&process, &computer, &program)) return u"another program"_s;
    return program + u" (process "_s + QString::number(process) + u')';
}

} // namespace morvane
