#pragma once

#include "core/literals.h"
#include "core/run_size.h"
#include "core/user_answers.h"

#include <QString>

namespace morvane {

/// Kinds of a message; the word also names the icon file. The last two are misspelt by their only callers and
/// have icons of their own under that spelling: data, not to be repaired.
enum class MessageKind { information, exclamation, error, question, progress, exlamation, exclamtion };

/// "Information", "Exclamation", "Error", "Question", "Progress", "Exlamation", "Exclamtion".
QString kindWord(MessageKind kind);

struct Message {
    MessageKind kind = MessageKind::information;
    QString title;
    QString text;
    bool withOk = true;
    bool withCancel = false;
    bool isProgress = false;
    /// Shows "Click here if you do not want to see this message again"; a tick is stored at once.
    bool offersFastExit = false;
    /// A picture that takes the place of the icon, below "\\Media"; a ".gif" moves. Empty: the kind's icon.
    QString picture = {};
    bool hasQuietTitle = false; ///< the title in grey instead of red: nothing is asked of the user
};

/// What a job says when it is done: one line, such as "1,183 textures backed up", that asks for nothing.
struct DoneLine {
    QString text;
    QString remark = {};     ///< a second, quieter text
    bool hasLeftOut = false; ///< something was left out: a warning sign in place of the tick
};

/// Screens by the names that the whole program uses for them.
enum class Screen {
    frm_Main,
    frm_Msg,
    frm_Splash,
    frm_MVTextures,
    frm_NightTextures,
    frm_KMTextures,
    frm_TsRequired,
    frm_MultiDelete,
    frm_AddFav,
    frm_SelectTexture,
    frm_GroundColorize,
    frm_Config,
    frm_SkyColorize,
    frm_SelectSkyTexture,
    frm_SelectBaseSky,
    frm_flight,
    frm_WxControl,
    frm_WxFinder,
    frm_metar,
    frm_metar_request,
    frm_Select_CC_Method,
    frm_FlightPlan,
    frm_FromDepDestVal,
    frm_CC_From_Option,
    frm_CC_From_Metar_String,
    frm_NightColorize,
    frm_SelectNightTexture,
    frm_BackupList,
    frm_MoreSettings,
    frm_WhatIsKept,
    frm_Switcher,
    frm_InSimulator,
    frm_Ready,
    frm_SetSheet,
};

/// Names as text, for logs of tests and for windows.
QString screenName(Screen screen);

enum class SystemBoxButtons { ok, okCancel, yesNo };

/// Hears what the user is told and what he answers, for the log. It shows nothing itself.
class UserListener {
public:
    virtual ~UserListener() = default;
    virtual void hear(const QString& kind, const QString& title, const QString& text) = 0;
};

/// The one seam between the engine and whoever sits in front of it: windows, a console or a test's script.
/// The engine never asks which one it has.
class UserInterface {
public:
    virtual ~UserInterface() = default;

    /// Shows the message. A progress message returns at once; every other one returns when it was answered,
    /// after `answers().answer(ok)`.
    virtual void showMessage(const Message& message) = 0;
    /// Sets title and text where not empty, moves the bar (0 to 100) and lets the message loop run.
    /// Called a row or a file at a time, so it must be cheap.
    virtual void updateProgress(const QString& title, const QString& text, double value) = 0;
    /// The second line of a progress message, such as "Processing file 3 of 900 files".
    virtual void setProgressFile(const QString& line) = 0;
    virtual void hideMessage() = 0;
    /// Shows the line until the user's next click or key. Called when the job's own messages are closed.
    virtual void tellDone(const DoneLine& line) = 0;
    /// True while a message of any kind stands on the screen.
    virtual bool isMessageVisible() const = 0;

    /// Asked before a run that makes sets. False when it is not to start: it does not fit, which was told, or
    /// somebody who could be asked does not want it. Who gave the numbers in a command is not asked.
    virtual bool allowsRun(const RunSize& run) = 0;

    /// A plain system box; true for OK or Yes.
    virtual bool systemBox(const QString& text, const QString& title, SystemBoxButtons buttons) = 0;
    /// The system's folder choice, "Please select a folder..."; empty on Cancel. The path is as the system
    /// spells it.
    virtual QString browseForFolder(const QString& startFolder) = 0;

    /// Shows a modal screen and returns when it is closed. What it shows and what was chosen is a struct that
    /// its room declares, in the session's state.
    virtual void showModal(Screen screen) = 0;
    virtual void showScreen(Screen screen) = 0;
    virtual void hideScreen(Screen screen) = 0;
    /// Rebuilds what the screen shows: lists, status lines.
    virtual void refreshScreen(Screen screen) = 0;
    /// Minimises the window that is shown, to make room for the simulator.
    virtual void minimiseProgram() = 0;
    /// Lets waiting events run: the only place where a click on cancel gets through in a long loop.
    virtual void pumpMessages() = 0;

    UserAnswers& answers() { return answers_; }
    const UserAnswers& answers() const { return answers_; }

    /// Marks the question, shows the message (kind Question, OK and Cancel), unmarks it and gives its flag.
    bool ask(Question question, const QString& title, const QString& text);
    bool ask(Question question, const Message& message);

    /// Null for none. It has to outlive what it hears.
    void setListener(UserListener* listener) { listener_ = listener; }

protected:
    // For who shows them: each is heard once, when it is shown.
    void noteShown(const Message& message);
    void noteShown(const DoneLine& line);
    void noteShown(const QString& kind, const QString& title, const QString& text);

private:
    UserAnswers answers_;
    UserListener* listener_ = nullptr;
};

} // namespace morvane
