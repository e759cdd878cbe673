#include "window/end_requests.h"

#include "window/close_request.h"
#include "window/end_signals.h"
#include "window/window_shell.h"

#include <QApplication>

namespace morvane {

namespace {

bool isBlocked(const QWidget* window) {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal && modal->window() != window;
}

} // namespace

EndRequests::EndRequests() {
    connect(qApp, &QGuiApplication::commitDataRequest, this, &EndRequests::end);
    qApp->installEventFilter(this);
    qApp->installNativeEventFilter(this);
    listenToEndSignals(*this, [this] { end(); });
}

void EndRequests::end() {
    hasEnded_ = true;
    if (shell_)
        shell_->endWithSession();
    else
        QCoreApplication::exit(0);
}

/// The session's last word, also where no data was asked to be saved. The program itself never quits.
bool EndRequests::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver != qApp || event->type() != QEvent::Quit) return false;
    end();
    return true;
}

bool EndRequests::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
    if (isSessionOver(type, message)) Q_EMIT sessionIsOver();
    const WId id = windowToClose(type, message);
    QWidget* window = id ? QWidget::find(id) : nullptr;
    if (!shell_ || !window || !isBlocked(window) || !windowNames.contains(window->objectName())) return false;
    // Not from inside the reading of events, as a question may follow.
    QMetaObject::invokeMethod(shell_.data(), &WindowShell::exitProgram, Qt::QueuedConnection);
    return true;
}

} // namespace morvane
