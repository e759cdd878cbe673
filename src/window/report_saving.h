#pragma once

class QWidget;

namespace morvane {

class Session;

/// How the program before this one ended.
struct LastRun {
    bool wasCut = false; ///< it never came to its end
};

/// Lets the user choose the file, above the window of `parent`, and saves a report there (app/report.h).
void saveReportAs(Session& session, QWidget* parent);

/// Asks whether to save one, where the last run was cut; once.
void offerReport(Session& session, QWidget* parent);

} // namespace morvane
