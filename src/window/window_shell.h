#pragma once

#include "core/exit_progress.h"
#include "ui/form.h"
#include "ui/shell.h"

#include <QHash>
#include <QTimer>

class QUrl;

namespace morvane {

class ShapedForm;
class Skin;

/// The screens of the program: makes each at its first use, swaps the pages of the windows, and sends every
/// click on a skinned key to its action.
class WindowShell : public Shell {
    Q_OBJECT
public:
    WindowShell(Session& session, Skin& skin);
    ~WindowShell() override;

    /// The one instance of the screen of that name, in any case of letters; made when it is not there yet.
    /// Null for a name that no screen has.
    Form* form(const QString& name);
    /// The same, null as long as nobody has used it.
    Form* loadedForm(const QString& name) const;
    template <class Screen>
    Screen& screen(const QString& name) {
        return static_cast<Screen&>(*form(name));
    }

    /// Name of the page that stands in a window now, and the one that the navigation last chose; empty for
    /// the window's own.
    QString CurrentChildScreen, CurrentMainScreen;

    /// Takes every other page out of its window and shows this one in its own.
    void showChildScreen(const QString& formName);
    /// Takes the page out and hides it. An unknown name does nothing.
    void hideChildScreen(const QString& formName);
    /// What a navigation key does: the page, its formatting, the two names above.
    void goToPage(const QString& formName);
    /// The main window's own page in the place of whichever stands there.
    void goHome();

    /// The main page: its keys, its title, its numbers.
    void formatMainScreen();
    void refreshMainStatus();
    /// The list window of ground, sky or night in the place of the main window.
    void showHost(const QString& formName);
    /// Back from a list window to the main one.
    void leaveHost(const QString& formName);
    /// The list page of a list window in the place of its colour page.
    void showList(const QString& formName);

    void openFile(const QString& file) override;
    void openHelp() override;
    void openWebPage(const QString& address, const QString& registryValue = {}) override;
    /// Asks the maker's server for newer versions.
    void openUpdatePage();
    void minimiseProgram() const;
    /// Brings the program to the front, out of the taskbar where it lies there: the dialog that waits, or the
    /// window.
    void bringToFront() const;

    void exitProgram() override;
    void exitAfterQuestion(const QString& question) override;
    /// The desktop's session ends: no questions, and copies end at the next whole file.
    void endWithSession();

    /// Says once which files of the skin could not be had.
    void reportMissingSkin();

    QWidget* messageAnchor() const override;

    void dispatch(SkinnedButton* button) override;

private:
    bool isAsShown(const SkinnedButton& button);
    /// Every loop is left, dialogs and messages with a "no"; the exit flow runs behind the main one.
    void leave(ExitStage stage);
    void openOutside(const QUrl& address);
    void showOnlyList(const QString& formName);
    bool isIdle() const;
    void openWaitingFile();
    void giveFocus(Form& page);

    QHash<QString, Form*> forms_; ///< by lower-cased name
    QHash<QString, QPointer<QWidget>> formerParents_;
    QString waitingFile_; ///< to be opened; the last one counts
    QTimer fileTimer_;
    bool hasReportedSkin_ = false;
};

/// True for an http or https address.
bool isWebAddress(const QString& text);

/// The four windows; every other screen is a page in one of them or a dialog.
extern const QStringList windowNames;

} // namespace morvane
