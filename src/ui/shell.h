#pragma once

#include <QObject>

class QWidget;

namespace morvane {

class Session;
class Skin;
class SkinnedButton;

/// What a screen may ask of the program that shows it. The window program is one (ui/shell.h).
class Shell : public QObject {
    Q_OBJECT
public:
    Shell(Session& session, Skin& skin) : session_(session), skin_(skin) {}

    Session& session() const { return session_; }
    Skin& skin() const { return skin_; }

    /// Takes a file that was dropped or that the program was started with: a flight plan is shown with its
    /// weather, a shared set is imported. Returns at once; what runs or waits for an answer comes to its end
    /// before. A file of another kind is passed over.
    virtual void openFile(const QString& file) = 0;

    // Each tells when there is nothing to open, or no program here that opens it.
    /// The help file, or its pages where the compiled one is missing.
    virtual void openHelp() = 0;
    /// Opens the address in the browser; anything but a web address counts as none, as the text may come from
    /// a file that others write. `registryValue` is where such a text stands; empty for a fixed address.
    virtual void openWebPage(const QString& address, const QString& registryValue = {}) = 0;

    /// The exit key and every close of a window: the program ends behind what runs. Where something is being
    /// written the user is asked first.
    virtual void exitProgram() = 0;
    /// The same, behind a question in any case.
    virtual void exitAfterQuestion(const QString& question) = 0;

    /// The window that messages are centred over: the first visible one, else the main window's place.
    virtual QWidget* messageAnchor() const = 0;

    /// Does what a click on that key does.
    virtual void dispatch(SkinnedButton* button) = 0;

private:
    Session& session_;
    Skin& skin_;
};

} // namespace morvane
