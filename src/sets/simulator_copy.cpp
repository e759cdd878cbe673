#include "sets/simulator_copy.h"

#include "core/error.h"
#include "core/safe_copy.h"
#include "sets/simulator_note.h"
#include "sets/undo_step.h"

namespace morvane {

Originals originalsOf(const Session& session) {
    return {session.files, session.FSPath, session.AppPath, session.clock.localTime().date()};
}

void endWithSession(const Session& session) {
    if (session.ExitInProgress.endsCopies()) throw Error(ErrorCode::interrupted);
}

SimulatorCopier::SimulatorCopier(Session& session) : session_(session), originals_(originalsOf(session)) {}

void SimulatorCopier::prepare(const std::vector<FileCopy>& copies) {
    noteSimulator(session_);
    clearStrays(copies);
    // Outside a job a click could begin something else in the middle.
    std::vector<FilePath> places = originals_.prepare(copies, [this] {
        if (session_.jobRunning) session_.user.pumpMessages();
        endWithSession(session_);
    });
    keepForUndo(session_, originals_);
    ahead_.emplace(session_.files, originals_, copies, std::move(places));
}

void SimulatorCopier::keepAll(const std::vector<FileCopy>& copies) {
    noteSimulator(session_);
    originals_.keepAll(copies);
}

void SimulatorCopier::clearStrays(const std::vector<FileCopy>& copies) {
    for (const FileCopy& copy : copies)
        originals_.clearStraysBeside(copy.target);
}

void SimulatorCopier::copy(const FileCopy& copy, const std::optional<SeenFile>& standing) {
    endWithSession(session_);
    put(copy, originals_.place(copy, standing));
}

void SimulatorCopier::copyOverReadOnly(const FileCopy& copy) {
    endWithSession(session_);
    const FilePath place = originals_.place(copy);
    if (originals_.takeReadOnlyMark(place)) {
        replaceFile(session_.files, copy.source, place);
        originals_.notePlaced(copy, place);
    } else {
        put(copy, place);
    }
}

void SimulatorCopier::put(const FileCopy& copy, const FilePath& place) {
    const AheadOfCopy done = ahead_ ? ahead_->next(copy) : AheadOfCopy::nothing;
    if (done == AheadOfCopy::part) {
        putPart(session_.files, place);
        ahead_->noteTaken();
    } else if (done == AheadOfCopy::nothing && !originals_.stands(copy, place)) {
        replaceFile(session_.files, copy.source, place);
    }
    originals_.notePlaced(copy, place);
}

void copyIntoSimulator(Session& session, const FilePath& source, const FilePath& target) {
    SimulatorCopier copier(session);
    copier.prepare({{source, target}});
    copier.copy({source, target});
    copier.finish();
}

FilePath splashTarget(const Session& session) {
    return session.FSPath / u"Uires\\dlgsplash.bmp";
}

void addFolderFiles(Session& session, const FilePath& source, const QString& mask, const FilePath& target,
                    std::vector<FileCopy>& copies) {
    for (const FilePath& file : filesIn(session.files, source, mask))
        copies.push_back({file, target.child(file.fileName())});
}

} // namespace morvane
