#pragma once

#include "core/user_interface.h"
#include "window/window_shell.h"

#include <QDir>
#include <functional>

namespace morvane {

/// Opens the screens of a program on an install and saves a picture of each, cut to its outline.
class Gallery {
public:
    /// Pictures go into `folder`, which is made.
    Gallery(WindowShell& shell, const QString& folder);

    void saveAll();
    int pictureCount() const { return count_; }

private:
    void save(const QString& name, QWidget& window);
    /// Saves the dialog that the call opens, as soon as it waits and `act` has worked on it, and cancels it.
    void saveModal(
        const QString& name, const QString& form, const std::function<void()>& call,
        const std::function<void(QWidget& dialog)>& act = [](QWidget&) {});
    void saveMessage(const QString& name, const Message& message);

    void saveSplash();
    void saveMainWindow();
    void savePages();
    void saveWeather();
    void saveFinder();
    void saveCovers();
    void saveGround();
    void saveSky();
    void saveNight();
    void saveSheets();
    void saveDialogs();
    void saveMessages();
    void saveProgress();
    void saveFootLine();

    WindowShell& shell_;
    QDir folder_;
    int count_ = 0;
};

} // namespace morvane
