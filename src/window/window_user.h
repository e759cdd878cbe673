#pragma once

#include "core/user_interface.h"

class QWidget;

namespace morvane {

class ProgressTaker;
class WindowShell;
class frm_Msg;

/// The seam's windows. The shell is told once the session is there; before that only plain boxes can be
/// shown.
class WindowUser : public UserInterface {
public:
    void setShell(WindowShell* shell) { shell_ = shell; }

    void showMessage(const Message& message) override;
    void updateProgress(const QString& title, const QString& text, double value) override;
    void setProgressFile(const QString& line) override;
    void hideMessage() override;
    void tellDone(const DoneLine& line) override;
    bool allowsRun(const RunSize& run) override;
    bool isMessageVisible() const override;
    bool systemBox(const QString& text, const QString& title, SystemBoxButtons buttons) override;
    QString browseForFolder(const QString& startFolder) override;
    void showModal(Screen screen) override;
    void showScreen(Screen screen) override;
    void hideScreen(Screen screen) override;
    void refreshScreen(Screen screen) override;
    void minimiseProgram() override;
    void pumpMessages() override;

private:
    frm_Msg& messageForm() const;
    /// Null where messages have their own screen.
    ProgressTaker* taker() const;
    /// On the way out of the program nobody is asked any more: every answer is "no".
    bool isSilent() const;
    bool isMessageFormVisible() const;
    QWidget* boxParent() const;

    WindowShell* shell_ = nullptr;
};

} // namespace morvane
