#pragma once

#include "cli/console_user.h"

namespace morvane {

/// Tells failures only.
class QuietUser : public ConsoleUser {
public:
    QuietUser() : ConsoleUser({}) {}
    void showMessage(const Message& message) override {
        if (!message.isProgress) ConsoleUser::showMessage(message);
    }
    void updateProgress(const QString&, const QString&, double) override {}
    bool isMessageVisible() const override { return true; }
};

} // namespace morvane
