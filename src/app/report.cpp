#include "app/report.h"

#include "app/report_parts.h"
#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/program_log.h"
#include "core/session.h"
#include "core/zip_file.h"

namespace morvane {

namespace {

constexpr std::int64_t largestLogFile = 2'000'000;

struct ReportPart {
    const char16_t* name;
    QString (*text)(Session&);
};

constexpr ReportPart parts[] = {{u"versions.txt", versionsText},
                                {u"settings.txt", settingsText},
                                {u"rows.txt", rowsText},
                                {u"verify.txt", verifyText},
                                {u"real-simulator.txt", simulatorListText}};

QByteArray contentsOf(Session& session, const ReportPart& part) {
    try {
        return part.text(session).toUtf8();
    } catch (const Error& error) {
        if (error.code() == ErrorCode::interrupted) throw;
        return u"This part could not be had: %1\n"_s.arg(withoutPrivate(session, error.description()))
            .toUtf8();
    }
}

std::vector<ZipEntry> entriesOf(Session& session) {
    std::vector<ZipEntry> entries;
    for (const ReportPart& part : parts)
        entries.push_back({QString::fromUtf16(part.name), contentsOf(session, part)});
    for (const FilePath& file : logFiles(session.AppPath))
        if (session.files.exists(file))
            entries.push_back({file.fileName(), readBounded(session.files, file, largestLogFile)});
    return entries;
}

} // namespace

Reported saveReport(Session& session, const FilePath& file) {
    bool isWritten = false;
    const bool cameToItsEnd = reportFailures(session.user, morvaneError, [&] {
        if (!mayReplace(session, file)) return;
        session.user.showMessage({MessageKind::progress, u"Save a Report"_s,
                                  u"Morvane is gathering the report.  Please wait......."_s, false, false,
                                  true});
        session.files.write(file, zipOf(entriesOf(session), session.clock.utcTime()));
        isWritten = true;
    });
    session.user.hideMessage();
    if (isWritten) session.user.tellDone({u"The report is saved"_s, file.text()});
    return cameToItsEnd && isWritten;
}

} // namespace morvane
