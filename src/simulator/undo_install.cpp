#include "simulator/undo_install.h"

#include "core/failure_report.h"
#include "core/numbers.h"
#include "sets/simulator_copy.h"
#include "sets/undo_step.h"
#include "simulator/installed_rows.h"

namespace morvane {

namespace {

const QString undoTitle = u"Undo Last Install"_s;

QString questionOf(const UndoRecord& step) {
    return u"The last install, of "_s + step.time.toString(u"yyyy/MM/dd hh:mm"_s) + u":\n"_s +
           step.parts.join(u"\n"_s) + u"\n\nDo you wish to give "_s +
           countText(static_cast<std::int64_t>(step.stood.size()), u"file"_s) +
           u" of the simulator back as they were before it?"_s;
}

/// Another program may have installed something while the question stood.
void requireSame(const UndoRecord& asked, const std::optional<UndoRecord>& now) {
    if (now && now->time == asked.time && now->parts == asked.parts) return;
    throw Error::withDescription(
        ErrorCode::permissionDenied,
        u"Another program has installed or undone something since you were asked."_s);
}

} // namespace

std::optional<OriginalsReport> undoLastInstall(Session& session) {
    if (session.jobRunning) return std::nullopt;
    std::optional<UndoRecord> step;
    if (!reportFailures(session.user, morvaneError, [&] { step = lastStep(session); })) return std::nullopt;
    if (!step) {
        session.user.showMessage({MessageKind::information, undoTitle, u"There is no install to undo."_s});
        return std::nullopt;
    }
    if (!session.user.ask(Question::undoInstall, undoTitle, questionOf(*step))) return std::nullopt;
    return runRestore(session, {.title = undoTitle,
                                .text = u"Morvane is undoing the last install.  Please wait......."_s,
                                .restore =
                                    [&](const auto& progress) {
                                        requireSame(*step, lastStep(session));
                                        return originalsOf(session).undo(step->stood, savedForUndo(session),
                                                                         progress);
                                    },
                                .finish =
                                    [&](const OriginalsReport& report) {
                                        giveBackRows(session, step->rows);
                                        if (!report.failure && report.damaged.isEmpty())
                                            forgetLastStep(session);
                                    }});
}

} // namespace morvane
