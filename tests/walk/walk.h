#pragma once

#include "support/window_program.h"
#include "walk/native_hands.h"

#include <QPointer>
#include <QUrl>
#include <optional>

namespace morvane::test {

class Walk;

/// What must be seen after a control was used: a text that is read before and after and has to change, and to
/// become `expected` where that is told.
struct Effect {
    std::function<QString(Walk&)> probe;
    std::optional<QString> expected = {};
    bool isNothing = false; ///< nothing may change
    bool endsProgram = false;
    /// Keys for the questions on the way there; what is seen counts after the last of them. Without any, what
    /// comes up is closed by Escape once it was seen.
    QList<Qt::Key> answers = {};

    bool isLasting = false; ///< the next row needs a new program

    Effect after(const QList<Qt::Key>& keys) const;
    Effect lasting() const;
};

/// The screen is that one; see `Walk::screen`.
Effect shows(const QString& screen);
/// What the user sees of the control itself: its tick, text, value, row.
Effect itself();
/// The named label says something else, or just that.
Effect label(const QString& name, const std::optional<QString>& text = {});
/// A browser or the help opens that address.
Effect opens(const QString& address);
Effect opensHelp();
/// Something of the session or on the disk becomes another thing, or just that.
Effect becomes(const std::function<QString(Session&)>& what, const std::optional<QString>& expected = {});
template <class State>
Effect becomes(QString State::*text, const std::optional<QString>& expected = {}) {
    return becomes([text](Session& session) { return session.state<State>().*text; }, expected);
}
/// For the answer of a dialog.
template <class State>
std::function<bool(Session&)> isSet(bool State::*flag) {
    return [flag](Session& session) { return session.state<State>().*flag; };
}
/// The dialog closes, and the flag that says whether it was confirmed stands so.
Effect closes(const std::function<bool(Session&)>& isConfirmed, bool expected);
/// The process ends with status 0.
Effect ends();
/// The reason is for the reader of the table.
Effect nothing(const char* reason);

/// A control of a screen and what it does, by the mouse as by the keyboard. It is named by its object; "*" at
/// the end stands for `count` of them. Behind a list's name may stand "|head", "|tick" or "|twice", a double
/// click; by the keyboard a head does nothing, on purpose: the order changes nothing that can be done. A name
/// in round brackets is a key that is pressed where the keyboard is when the screen opens, or "(close)".
struct WalkRow {
    QString control;
    Effect effect;
    int count = 1;
    QString typed = u"7"_s; ///< into an edit
};

using WalkRows = std::vector<WalkRow>;

/// A screen, and a row for every control that is alive on it when it opens, but for those that only have to
/// show themselves what was done to them.
struct WalkScreen {
    const char* name;
    QString form; ///< which it is: a window, a page or a dialog; empty for one of the system's
    /// Brings the screen up; for a dialog, waits for its end.
    std::function<void(Walk&)> open;
    bool isDialog;
    WalkRows rows;
};

/// Goes over screens by native events alone: a widget that is sent an event gets it even where a modal window
/// blocks it or another one covers it.
class Walk : public QObject {
    Q_OBJECT
public:
    /// `skin` is a finished skin's folder; `furnish` gives each new program the rows that its screens need.
    Walk(const FilePath& skin, const std::function<void(WindowProgram&)>& furnish);
    ~Walk() override;

    WindowProgram& program() { return *program_; }
    Session& session() { return program_->session; }

    /// What stands in front: "frm_Main/frm_About", "frm_AddFav", "message TITLE", "progress TITLE", "box
    /// TITLE", "popup", "minimised"; empty for nothing.
    QString screen() const;
    const QUrl& address() const { return address_; }
    /// Of the row that is walked; the window itself for a key in brackets.
    QWidget& control() const { return *control_; }
    /// Whether the screen that is walked is still there.
    bool isOpen() const;
    /// Throws where the window has none of that name.
    QWidget& find(const QString& name) const;

    /// Each row in each way, and what holds of the screen as a whole.
    void everyRow(const WalkScreen& screen);

    Q_INVOKABLE void noteAddress(const QUrl& address) { address_ = address; }

private:
    /// The foremost window.
    QWidget* front() const;
    QString formOn(const QWidget& window) const;
    void renew();
    void onScreen(const WalkScreen& screen, const std::function<void()>& body);
    void inDialog(const WalkScreen& screen, const std::function<void()>& body);
    void oneWay(const WalkScreen& screen, const WalkRow& row, const QString& name, Way way);
    void untilTheEnd(const std::function<void()>& gesture);
    void settle();
    bool act(const std::function<void()>& gesture, const Effect& effect, QStringList& trail);
    WalkRows withSilentRows(WalkRows rows, const QStringList& live) const;
    void checkContents(const WalkRows& rows, const QStringList& live);
    void checkReach(const QStringList& live);
    void checkBlocked();
    QStringList tabStops();

    FilePath skin_;
    std::function<void(WindowProgram&)> furnish_;
    std::unique_ptr<WindowProgram> program_;
    QUrl address_;
    int failures_ = 0;
    bool isLost_ = false; ///< the keyboard
    int repeats_ = 0;
    QPointer<QWidget> window_, control_;
};

} // namespace morvane::test
