#pragma once

#include "core/exit_progress.h"
#include "ui/form.h"

#include <QHash>
#include <QObject>
#include <memory>

class QUrl;

namespace morvane {

class ShapedForm;
class Skin;

/// The screens of the program: makes each at its first use, swaps the pages of the windows, and sends every
/// click on a skinned key to its action.
class Shell : public QObject {
    Q_OBJECT
public:
    Shell(Session& session, Skin& skin);
    ~Shell() override;

    Session& session() const { return session_; }
    Skin& skin() const { return skin_; }

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

    // Each tells when there is nothing to open, or no program here that opens it.
    /// The help file, or its pages where the compiled one is missing.
    void openHelp();
    /// Opens the address in the browser; anything but a web address counts as none, as the text may come from
    /// a file that others write. `registryValue` is where such a text stands; empty for a fixed address.
    void openWebPage(const QString& address, const QString& registryValue = {});
    /// Asks the maker's server for newer versions.
    void openUpdatePage();
    void minimiseProgram();
    /// Brings the program to the front, out of the taskbar where it lies there: the dialog that waits, or the
    /// window.
    void bringToFront();

    /// The exit key and every close of a window: the program ends behind what runs. Where something is being
    /// written the user is asked first.
    void exitProgram();
    /// The same, behind a question in any case.
    void exitAfterQuestion(const QString& question);
    /// The desktop's session ends: no questions, and copies end at the next whole file.
    void endWithSession();

    /// Says once which files of the skin could not be had.
    void reportMissingSkin();

    /// The window that messages are centred over: the first visible one, else the main window's place.
    QWidget* messageAnchor() const;

public Q_SLOTS:
    void dispatch(SkinnedButton* button);

private:
    bool isAsShown(const SkinnedButton& button);
    /// Every loop is left, dialogs and messages with a "no"; the exit flow runs behind the main one.
    void leave(ExitStage stage);
    void openOutside(const QUrl& address);
    void giveFocus(Form& page);

    Session& session_;
    Skin& skin_;
    QHash<QString, Form*> forms_; ///< by lower-cased name
    QHash<QString, QPointer<QWidget>> formerParents_;
    bool hasReportedSkin_ = false;
};

/// True for an http or https address.
bool isWebAddress(const QString& text);

/// The four windows; every other screen is a page in one of them or a dialog.
extern const QStringList windowNames;

} // namespace morvane
