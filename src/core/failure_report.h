#pragma once

#include "core/error.h"
#include "core/reported.h"
#include "core/user_interface.h"

#include <new>

namespace morvane {

/// How a routine tells of its failure: what stands in front of the error's description, under which title.
struct FailureReport {
    QString title = u"Morvane Error"_s;
    MessageKind kind = MessageKind::error;
    QString prefix = {}; ///< such as "Sub Main\n"; nothing is put between it and the description
    bool withCancel = false;
};

/// How a routine tells that has no words of its own.
inline const FailureReport morvaneError{};

void showFailure(UserInterface& user, const FailureReport& report, const QString& description);

/// The boundary of a routine: runs it, and turns an exception into the one message of the report, but for
/// `interrupted`, which ends the routine without a word.
/// A failure is told once and never crosses this line, so the caller goes on with what it has.
template <class Routine>
Reported reportFailures(UserInterface& user, const FailureReport& report, Routine&& routine) {
    try {
        routine();
        return true;
    } catch (const Error& error) {
        if (error.code() != ErrorCode::interrupted) showFailure(user, report, error.description());
    } catch (const std::bad_alloc&) {
        showFailure(user, report, Error(ErrorCode::outOfMemory).description());
    } catch (const std::exception& error) {
        showFailure(user, report, QString::fromUtf8(error.what()));
    }
    return false;
}

} // namespace morvane
