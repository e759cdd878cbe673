#pragma once

#include "core/user_interface.h"

namespace morvane {

/// The bar of a loop over thousands of reports. It moves with each of them but is shown, and lets the message
/// loop run, a hundred times in all.
class CycleProgress {
public:
    CycleProgress(UserInterface& user, const QString& text, double step)
        : user_(user), text_(text), step_(step) {}

    void advance() {
        value_ += step_;
        if (value_ - shown_ < 1) return;
        shown_ = value_;
        user_.updateProgress({}, text_, value_);
    }

private:
    UserInterface& user_;
    QString text_;
    double step_, value_ = 2, shown_ = 2;
};

} // namespace morvane
