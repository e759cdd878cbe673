#pragma once

#include "app/start_up.h"
#include "ground/ground_selection.h"
#include "night/night_selection.h"
#include "sky/sky_install.h"
#include "sky/sky_selection.h"
#include "support/night_install.h"
#include "ui/controls/palette.h"
#include "ui/controls/picture_frame.h"
#include "ui/controls/set_table.h"
#include "ui/dialog_form.h"
#include "ui/skin.h"
#include "window/window_shell.h"
#include "window/window_user.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <functional>
#include <stdexcept>

namespace morvane::test {

/// How a row is clicked.
struct RowClick {
    int x = -1; ///< from the row's left; -1 for its middle
    Qt::KeyboardModifiers keys = {};
    bool isDouble = false;
};

/// Rows are counted from 1.
inline void clickRow(SetTable& list, int row, const RowClick& how = {}) {
    const QRect whole = list.visualItemRect(list.topLevelItem(row - 1));
    const QPoint place(how.x < 0 ? whole.center().x() : whole.left() + how.x, whole.center().y());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, how.keys, place);
    if (!how.isDouble) return;
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, how.keys, place);
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, how.keys, place);
}

/// The window program on a small install, as a start leaves it behind the splash. Where the install has no
/// skin, its windows and keys are the plain ones. Its own session and scripted user stay beside this one;
/// sets are added through it.
class WindowProgram {
public:
    explicit WindowProgram(const SmallInstallOptions& options = {})
        : install(options),
          session({user, install.files, install.clock, install.random, install.registry}, install.home()),
          skin(install.files, options.skin.isEmpty() ? install.home() / u"Media" : options.skin),
          shell(session, skin) {
        addSkyStock(install.home(), {u"sky_afternoon_3.bmp"_s});
        addNightStock(install);
        user.setShell(&shell);
        if (!startUp(session)) throw std::runtime_error("the window program does not start");
        session.state<GroundSelection>().RefreshGroundList = session.state<SkySelection>().RefreshSkyList =
            session.state<NightSelection>().RefreshNightList = true;
        shell.formatMainScreen();
        shell.form(u"frm_Main"_s)->show();
        if (!options.skin.isEmpty()) return;
        confirmNext(u"frm_Msg"_s); // the skin that is not there is told of once
        shell.reportMissingSkin();
    }

    ~WindowProgram() { palette::use(PaperPalette::day); }
    WindowProgram(const WindowProgram&) = delete;
    WindowProgram& operator=(const WindowProgram&) = delete;

    /// Runs `action` as soon as the screen of that name shows: arm it before the call that waits for the
    /// screen's answer. `action` has to close it.
    void whenShown(const QString& name, const std::function<void(DialogForm&)>& action) {
        auto* timer = new QTimer(&shell);
        QObject::connect(timer, &QTimer::timeout, timer, [this, timer, name, action] {
            auto* form = qobject_cast<DialogForm*>(shell.loadedForm(name));
            if (!form || !form->isVisible()) return;
            timer->stop();
            timer->deleteLater();
            QApplication::setActiveWindow(form); // nobody else does, on a platform without a display
            action(*form);
        });
        timer->start(0);
    }
    void confirmNext(const QString& name) {
        whenShown(name, [](DialogForm& form) { form.ok(); });
    }
    /// Opens a dialog as the engine does. `action` has to close it.
    void show(Screen screen, const std::function<void(DialogForm&)>& action) {
        whenShown(screenName(screen), action);
        user.showModal(screen);
    }
    /// Answers all that is told and asked during the action, with OK but for the titles in `refused`, and
    /// gives what stood in that label each time.
    QStringList toldDuring(const std::function<void()>& action, const QStringList& refused = {},
                           const QString& label = u"lbl_Title"_s) {
        QStringList told;
        QTimer timer;
        timer.callOnTimeout([&] {
            auto* message = qobject_cast<DialogForm*>(shell.loadedForm(u"frm_Msg"_s));
            if (!message || !message->isVisible() || !message->button(u"btn_Ok"_s)->isVisible()) return;
            told << text(u"frm_Msg"_s, label);
            if (refused.contains(text(u"frm_Msg"_s, u"lbl_Title"_s)))
                message->cancel();
            else
                message->ok();
        });
        timer.start(0);
        action();
        return told;
    }

    /// The named key or control of a screen; throws when it has none of that kind.
    template <class Control>
    Control& control(const QString& form, const QString& name) {
        auto* found = shell.form(form)->findChild<Control*>(name);
        if (!found) throw std::runtime_error(("no " + name + " on " + form).toStdString());
        return *found;
    }
    QString text(const QString& form, const QString& label) { return control<QLabel>(form, label).text(); }
    QImage picture(const QString& form, const QString& frame) {
        return control<PictureFrame>(form, frame).picture();
    }
    ButtonState stateOf(const QString& form, const QString& key) {
        return control<SkinnedButton>(form, key).state();
    }
    /// A click of the mouse on a skinned key.
    void press(const QString& form, const QString& name) {
        QTest::mouseClick(&control<SkinnedButton>(form, name), Qt::LeftButton);
    }

    SmallInstall install;
    WindowUser user;
    Session session;
    Skin skin;
    WindowShell shell;
};

} // namespace morvane::test
