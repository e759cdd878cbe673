#include "simulator/restored_files.h"

#include "core/failure_report.h"
#include "core/job.h"
#include "core/numbers.h"
#include "sets/simulator_copy.h"

#include <algorithm>

namespace morvane {

namespace {

void tellLeft(Session& session, const QString& title, const OriginalsReport& report) {
    if (!report.damaged.isEmpty())
        session.user.showMessage(
            {MessageKind::exclamation, title,
             u"These files could not be put back, as the kept ones are damaged or gone:\n"_s +
                 listedPaths(report.damaged)});
    if (!report.left.isEmpty())
        session.user.showMessage(
            {MessageKind::information, title,
             u"These files were left as they are, as another program has changed them since, or as it is not "
             u"known what stood there before:\n"_s +
                 listedPaths(report.left)});
}

QString doneText(const OriginalsReport& report) {
    QString text = countText(report.putBack, u"file"_s) + u" put back"_s;
    if (report.takenAway > 0) text += u", "_s + countText(report.takenAway) + u" taken away"_s;
    const qsizetype left = report.left.size() + report.damaged.size();
    return left > 0 ? text + u", "_s + countText(left) + u" left as they are"_s : text;
}

void tellRestored(Session& session, const QString& title, const OriginalsReport& report) {
    if (report.failure) showFailure(session.user, {}, report.failure->description());
    tellLeft(session, title, report);
    session.user.tellDone({doneText(report), {}, !report.left.isEmpty() || !report.damaged.isEmpty()});
}

} // namespace

QString listedPaths(const QStringList& paths) {
    constexpr qsizetype most = 10;
    QString text = paths.first(std::min(most, paths.size())).join(u"\n"_s);
    if (paths.size() > most) text += u"\nand "_s + countText(paths.size() - most) + u" more"_s;
    return text;
}

std::optional<OriginalsReport> runRestore(Session& session, const RestoreRun& run) {
    const Job job(session, run.title);
    if (!job) return std::nullopt;
    std::optional<OriginalsReport> report;
    reportFailures(session.user, morvaneError, [&] {
        session.user.showMessage({MessageKind::progress, run.title, run.text, false, false, true});
        report = run.restore([&](double part) {
            session.user.updateProgress({}, {}, 100 * part);
            endWithSession(session);
        });
        // The rows come last: a kill before them leaves what the next run finishes.
        const bool isUntouched = report->failure && report->putBack + report->takenAway == 0;
        if (!isUntouched) run.finish(*report);
        session.user.hideMessage();
    });
    if (report) tellRestored(session, run.title, *report);
    return report;
}

} // namespace morvane
