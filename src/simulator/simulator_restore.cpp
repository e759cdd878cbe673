#include "simulator/simulator_restore.h"

#include "core/failure_report.h"
#include "core/numbers.h"
#include "sets/simulator_copy.h"
#include "sets/simulator_note.h"
#include "sets/undo_step.h"
#include "simulator/installed_rows.h"

#include <QSet>

namespace morvane {

namespace {

const QString ownFilesTitle = u"Put My Own Files Back"_s;

QString ownFilesQuestion(const Originals& originals) {
    qsizetype files = 0;
    QSet<QString> folders;
    for (const auto& [path, record] : originals.records().all().asKeyValueRange()) {
        if (record.madeFolder) continue;
        ++files;
        folders.insert(path.left(path.lastIndexOf(u'\\')));
    }
    return u"Morvane has put files of its own into the simulator, or kept yours, in "_s +
           countText(files, u"place"_s) + u" of "_s + countText(folders.size(), u"folder"_s) +
           u".  Do you wish to put your own files back as they were before Morvane's first copy?\n\nNo set "
           u"will "
           u"be installed then. What another program has changed since is left as it is and named."_s;
}

} // namespace

std::optional<OriginalsReport> restoreOriginals(Session& session) {
    return runRestore(session,
                      {.title = ownFilesTitle,
                       .text = u"Morvane is putting your own files back.  Please wait......."_s,
                       .restore =
                           [&](const auto& progress) {
                               Originals originals = originalsOf(session);
                               forgetLastStep(session); // what it would bring back is ours
                               return originals.restore(progress);
                           },
                       .finish =
                           [&](const OriginalsReport& report) {
                               giveBackRows(session, {});
                               if (!report.failure && report.left.isEmpty() && report.damaged.isEmpty())
                                   removeSimulatorNote(session);
                           }});
}

std::optional<OriginalsReport> askRestoreOriginals(Session& session) {
    if (session.jobRunning) return std::nullopt;
    QString question;
    const auto ask = [&] { question = ownFilesQuestion(originalsOf(session)); };
    if (!reportFailures(session.user, morvaneError, ask)) return std::nullopt;
    if (!session.user.ask(Question::putOwnBack, ownFilesTitle, question)) return std::nullopt;
    return restoreOriginals(session);
}

} // namespace morvane
