#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace morvane {

class Shell;

/// The toolkit drops the wish to close a window that a modal one blocks. Ours go to the shell all the same:
/// it knows what the program is at. Lives as long as the shell.
class BlockedCloses : public QObject, public QAbstractNativeEventFilter {
public:
    explicit BlockedCloses(Shell& shell);

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    Shell& shell_;
};

} // namespace morvane
