#pragma once

#include "app/start_up.h"
#include "ground/ground_selection.h"
#include "night/night_selection.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_selection.h"
#include "support/night_install.h"
#include "ui/dialog_form.h"
#include "ui/skin.h"
#include "window/window_shell.h"
#include "window/window_user.h"

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <stdexcept>

namespace morvane::test {

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
        addSkyStock();
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

    /// The named key or control of a screen; throws when it has none of that kind.
    template <class Control>
    Control& control(const QString& form, const QString& name) {
        auto* found = shell.form(form)->findChild<Control*>(name);
        if (!found) throw std::runtime_error(("no " + name + " on " + form).toStdString());
        return *found;
    }
    /// A click of the mouse on a skinned key.
    void press(const QString& form, const QString& name) {
        QTest::mouseClick(&control<SkinnedButton>(form, name), Qt::LeftButton);
    }

    /// A sky texture for every base set and for the other times of day, no two alike.
    void addSkyStock() {
        const FilePath stock = install.home() / u"Resources\\Sky";
        int shade = 30;
        for (const QString& base : skyBaseSetBoxes())
            writeFile(stock / base / u"sky_afternoon_3.bmp", smallBitmap(32, shade += 9));
        writeFile(stock / u"Sunrise\\sky_sunrise_1.bmp", smallBitmap(32, 11));
        writeFile(stock / u"Sunset\\sky_sunset_1.bmp", smallBitmap(32, 12));
    }

    SmallInstall install;
    WindowUser user;
    Session session;
    Skin skin;
    WindowShell shell;
};

} // namespace morvane::test
