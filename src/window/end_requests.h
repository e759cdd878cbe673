#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QPointer>

namespace morvane {

class WindowShell;

/// Takes what comes from outside the windows' own events: the end of the desktop's session, the signals that
/// ask a process to end (not on Windows), and the wish to close a window that a dialog, a message or a job
/// blocks, which the toolkit passes over. The shell acts on it; before there is one, an end leaves every
/// loop. One lives at a time.
class EndRequests : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT
public:
    EndRequests();

    /// From now on, as long as it lives.
    void handTo(WindowShell& shell) { shell_ = &shell; }
    /// True once the session has ended.
    bool hasEnded() const { return hasEnded_; }

    bool eventFilter(QObject* receiver, QEvent* event) override;
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

Q_SIGNALS:
    /// The last that the program hears: whoever is connected acts before it returns.
    void sessionIsOver();

private:
    void end();

    QPointer<WindowShell> shell_;
    bool hasEnded_ = false;
};

} // namespace morvane
