#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace morvane {

class Shell;

/// Hands the shell what comes from outside its windows' own events: the end of the desktop's session, the
/// signals that ask a process to end (not on Windows), and the wish to close a window that a dialog, a
/// message or a job blocks, which the toolkit passes over. One at a time.
class EndRequests : public QObject, public QAbstractNativeEventFilter {
public:
    explicit EndRequests(Shell& shell);

    bool eventFilter(QObject* receiver, QEvent* event) override;
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    void listenToSignals();

    Shell& shell_;
};

} // namespace morvane
