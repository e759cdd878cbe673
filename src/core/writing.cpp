#include "core/writing.h"

#include "core/changed_rows.h"
#include "core/session.h"

#include <QDeadlineTimer>
#include <QThread>

namespace morvane {

namespace {

constexpr unsigned long restMilliseconds = 50;
const QString title = u"Another Program Is Writing"_s;

} // namespace

WritingLock::WritingLock(const FilePath& installFolder) : file(installFolder, u"Writing.lock"_s) {}

void WritingLock::beUnattended() {
    isUnattended = true;
    patience = std::chrono::minutes(2);
}

Writing::Writing(Session& session, Waiting waiting) : session_(session) {
    WritingLock& lock = *session.writing;
    if (!lock.isUnattended) lock.wasRefused = false;
    if (lock.wasRefused) return;
    isHeld_ = lock.holders > 0 || lock.file.tryTake() || (waiting == Waiting::wanted && waitForOther());
    if (isHeld_ && ++lock.holders == 1) reloadChangedRows(session);
}

Writing::~Writing() {
    if (isHeld_ && --session_.writing->holders == 0) session_.writing->file.release();
}

bool Writing::waitForOther() {
    WritingLock& lock = *session_.writing;
    UserAnswers& answers = session_.user.answers();
    answers.cancelRequested = false;
    session_.user.showMessage(
        {MessageKind::progress, title,
         lock.file.holder() +
             u" is working on this install.  Morvane waits for its end.  Please wait......."_s,
         false, true, true});
    const QDeadlineTimer deadline(lock.patience);
    bool isTaken = false;
    while (!isTaken && !isWorkCancelled(session_) && !deadline.hasExpired()) {
        session_.user.pumpMessages();
        QThread::msleep(restMilliseconds);
        isTaken = lock.file.tryTake();
    }
    session_.user.hideMessage();
    if (!isTaken && !isWorkCancelled(session_)) tellOfOther();
    answers.cancelRequested = false;
    return isTaken;
}

void Writing::tellOfOther() {
    WritingLock& lock = *session_.writing;
    lock.wasRefused = true;
    session_.user.showMessage({MessageKind::exclamation, title,
                               lock.file.holder() + u" is still working on this install.  Please try again "
                                                    "when it has ended."_s,
                               !lock.isUnattended, false, lock.isUnattended});
}

} // namespace morvane
