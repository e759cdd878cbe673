#include "core/failure_report.h"

namespace morvane {

void showFailure(UserInterface& user, const FailureReport& report, const QString& description) {
    user.showMessage(
        {report.kind, report.title, report.prefix + description, true, report.withCancel, false});
}

} // namespace morvane
