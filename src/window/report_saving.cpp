#include "window/report_saving.h"

#include "app/report.h"
#include "core/session.h"
#include "ui/file_choice.h"

#include <utility>

namespace morvane {

void saveReportAs(Session& session, QWidget* parent) {
    const QString day = session.clock.localTime().date().toString(Qt::ISODate);
    const QString file = chooseFileToSave(parent, u"Save a Report"_s, u"Morvane report "_s + day,
                                          fileKinds(u"Archives"_s, reportEnding), reportEnding);
    if (!file.isEmpty()) saveReport(session, FilePath(file));
}

void offerReport(Session& session, QWidget* parent) {
    if (!std::exchange(session.state<LastRun>().wasCut, false)) return;
    const QString text =
        u"Morvane did not come to its end the last time it ran.\n\nWould you like to save a report of what "
        "happened?  You choose where; nothing that you typed is in it, and nothing is sent."_s;
    if (session.user.ask(Question::saveReport, u"Save a Report?"_s, text)) saveReportAs(session, parent);
}

} // namespace morvane
