#include "simulator/simulator_copy.h"

#include "core/error.h"
#include "core/safe_copy.h"

#include <QSet>

namespace morvane {

SimulatorCopier::SimulatorCopier(Session& session)
    : session_(session), originals_(session.files, session.FSPath, session.AppPath) {}

void SimulatorCopier::prepare(const std::vector<FileCopy>& copies) {
    clearStrays(copies);
    originals_.announce(copies);
}

void SimulatorCopier::clearStrays(const std::vector<FileCopy>& copies) {
    QSet<QString> seen;
    for (const FileCopy& copy : copies) {
        const FilePath folder = copy.target.parent();
        if (seen.contains(folder.relative())) continue;
        seen.insert(folder.relative());
        removePartialCopies(session_.files, folder);
    }
}

void SimulatorCopier::copy(const FileCopy& copy) {
    if (session_.ExitInProgress.endsCopies()) throw Error(ErrorCode::interrupted);
    const FilePath target = copy.target.resolved();
    originals_.keep(target);
    replaceFile(session_.files, copy.source, target);
}

void SimulatorCopier::copyOverReadOnly(const FileCopy& copy) {
    FileSystem& files = session_.files;
    if (files.exists(copy.target) && files.isReadOnly(copy.target)) files.setReadOnly(copy.target, false);
    this->copy(copy);
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
    for (const QString& name : session.files.list(source, mask))
        copies.push_back({source.child(name), target.child(name)});
}

} // namespace morvane
