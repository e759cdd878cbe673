#include "walk/walk.h"

#include "walk/screen_contents.h"
#include "window/form_table.h"

#include <QAccessible>
#include <QDesktopServices>
#include <QLabel>
#include <QRadioButton>
#include <QWindow>
#include <gtest/gtest.h>

#include <iostream>

namespace morvane::test {

namespace {

constexpr int patience = 6'000; ///< milliseconds that anything may take; far more than it needs
constexpr int mostFailures = 5; ///< of a screen; what follows is seldom worth its wait
constexpr int keyboardPatience = 1'000;
constexpr int mostRepeats = 3; ///< of a screen

/// On the screen and, but for a list below its box, with the keyboard: what comes later would find it gone.
/// "Active" does not tell: a dialog counts as that already while its parent has the keyboard.
bool isShown(const QWidget* window) {
    const QWindow* native = window ? window->windowHandle() : nullptr;
    const bool isPopup = window && window == QApplication::activePopupWidget();
    return native && window->isVisible() && native->isExposed() &&
           (isPopup || native == QGuiApplication::focusWindow());
}

bool comesUp(const QWidget* window) {
    return QTest::qWaitFor([window] { return isShown(window); }, patience);
}

/// Come or gone: the window system is done with it.
bool isSettled(const QWidget* window) {
    return !window || (window->isMinimized() ? !window->windowHandle()->isExposed() : isShown(window));
}

QWidget* foremostAbove(const QWidget* base) {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    QWidget* modal = QApplication::activeModalWidget();
    return modal == base ? nullptr : modal;
}

bool isShownOn(const QWidget& window, const QString& name) {
    const auto* control = window.findChild<QWidget*>(name);
    return control && control->isVisible();
}

bool isProgress(const QWidget& window) {
    return window.objectName() == u"frm_Msg" && !isShownOn(window, u"btn_Ok"_s) &&
           !isShownOn(window, u"btn_Cancel"_s);
}

/// Where nothing else helps: whoever waits for them goes on.
void hideDialogs() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (qobject_cast<DialogForm*>(window) || window->isModal()) window->hide();
}

QString modalName(const QWidget& window) {
    if (!qobject_cast<const Form*>(&window)) return u"box "_s + window.windowTitle();
    if (window.objectName() != u"frm_Msg") return window.objectName();
    return (isProgress(window) ? u"progress "_s : u"message "_s) +
           window.findChild<QLabel*>(u"lbl_Title"_s)->text();
}

/// "lstFlights|head" is the control and the part.
QString controlOf(const QString& name) {
    return name.section(u'|', 0, 0);
}

QString partOf(const QString& name) {
    return name.section(u'|', 1);
}

bool isBracketed(const QString& name) {
    return name.startsWith(u'(');
}

QString sorted(QStringList names) {
    names.sort();
    return names.join(u' ');
}

/// The names that a row stands for.
QStringList controlsOf(const WalkRow& row, const QStringList& live) {
    if (!row.control.endsWith(u'*')) return {row.control};
    QStringList names;
    for (const QString& name : live)
        if (name.startsWith(row.control.chopped(1))) names << name;
    return names;
}

/// An option that is chosen already has nothing to show.
void chooseAnother(const QWidget& control) {
    const auto* option = qobject_cast<const QRadioButton*>(&control);
    if (!option || !option->isChecked()) return;
    for (QRadioButton* other : control.parentWidget()->findChildren<QRadioButton*>())
        if (!other->isChecked() && other->group() == option->group()) {
            other->setFocus();
            return other->click();
        }
}

void useBracketed(QWidget& window, const QString& name) {
    static const QMap<QString, Qt::Key> keys{{u"(Escape)"_s, Qt::Key_Escape},
                                             {u"(Enter)"_s, Qt::Key_Return},
                                             {u"(F1)"_s, Qt::Key_F1},
                                             {u"(Down)"_s, Qt::Key_Down}};
    if (name == u"(close)")
        window.windowHandle()->close();
    else
        pressKey(window, keys.value(name));
}

} // namespace

// Effects -------------------------------------------------------------------------------------------------

Effect Effect::after(const QList<Qt::Key>& keys) const {
    Effect effect = *this;
    effect.answers = keys;
    return effect.lasting();
}

Effect Effect::lasting() const {
    Effect effect = *this;
    effect.isLasting = true;
    return effect;
}

Effect shows(const QString& screen) {
    return {[](Walk& walk) { return walk.screen(); }, screen};
}

Effect itself() {
    return {[](Walk& walk) { return stateOf(walk.control()); }};
}

Effect label(const QString& name, const std::optional<QString>& text) {
    return {[name](Walk& walk) { return static_cast<QLabel&>(walk.find(name)).text(); }, text};
}

Effect opens(const QString& address) {
    return {[](Walk& walk) { return walk.address().adjusted(QUrl::RemoveQuery).toString(); }, address};
}

Effect opensHelp() {
    return {[](Walk& walk) { return walk.address().path().section(u'/', -2); }, u"MV Help/index.html"_s};
}

Effect becomes(const std::function<QString(Session&)>& what, const std::optional<QString>& expected) {
    return {[what](Walk& walk) { return what(walk.session()); }, expected};
}

Effect closes(const std::function<bool(Session&)>& isConfirmed, bool expected) {
    const auto probe = [isConfirmed](Walk& walk) {
        return walk.isOpen() ? u"open"_s : isConfirmed(walk.session()) ? u"confirmed"_s : u"cancelled"_s;
    };
    return {probe, expected ? u"confirmed"_s : u"cancelled"_s};
}

Effect ends() {
    Effect effect{[](Walk& walk) { return walk.screen(); }};
    effect.endsProgram = true;
    return effect.lasting();
}

Effect nothing(const char*) {
    Effect effect{[](Walk& walk) { return walk.screen() + stateOf(walk.control()); }};
    effect.isNothing = true;
    return effect;
}

// The walk ------------------------------------------------------------------------------------------------

Walk::Walk(const FilePath& skin, const std::function<void(WindowProgram&)>& furnish)
    : skin_(skin), furnish_(furnish) {
    for (const QString& scheme : {u"http"_s, u"https"_s, u"file"_s})
        QDesktopServices::setUrlHandler(scheme, this, "noteAddress");
    QCursor::setPos(0, 0);
    renew();
}

Walk::~Walk() {
    for (const QString& scheme : {u"http"_s, u"https"_s, u"file"_s})
        QDesktopServices::unsetUrlHandler(scheme);
}

void Walk::renew() {
    program_.reset();
    isLost_ = false;
    SmallInstallOptions options;
    options.skin = skin_;
    program_ = std::make_unique<WindowProgram>(options);
    EXPECT_TRUE(comesUp(program_->shell.form(u"frm_Main"_s)));
    furnish_(*program_);
}

QWidget* Walk::front() const {
    if (QWidget* above = foremostAbove(nullptr)) return above;
    for (const QString& name : windowNames)
        if (Form* window = program_->shell.loadedForm(name); window && window->isVisible()) return window;
    return nullptr;
}

QString Walk::screen() const {
    const QWidget* window = front();
    if (!window) return {};
    if (window == QApplication::activePopupWidget()) return u"popup"_s;
    if (window == QApplication::activeModalWidget()) return modalName(*window);
    if (window->isMinimized()) return u"minimised"_s;
    const QString form = formOn(*window);
    return form == window->objectName() ? form : window->objectName() + u'/' + form;
}

bool Walk::isOpen() const {
    return window_ && window_->isVisible();
}

/// The page that stands in the window, or the window itself.
QString Walk::formOn(const QWidget& window) const {
    for (const ChildPage& page : childPages())
        if (const Form* form = program_->shell.loadedForm(page.form); form && form->isVisible())
            return page.form;
    return window.objectName();
}

QWidget& Walk::find(const QString& name) const {
    for (QWidget* widget : window_->findChildren<QWidget*>())
        if (nameOf(*widget) == name) return *widget;
    throw std::runtime_error(("no " + name + " on " + screen()).toStdString());
}

void Walk::onScreen(const WalkScreen& screen, const std::function<void()>& body) {
    if (screen.isDialog) return inDialog(screen, body);
    const auto comesToTheFront = [&] {
        screen.open(*this);
        window_ = front();
        return comesUp(window_);
    };
    if (comesToTheFront()) return body();
    if (repeats_ < mostRepeats) {
        ++repeats_;
        std::cout << "again, " << screen.name << ": it did not come to the front\n";
        renew();
        if (comesToTheFront()) return body();
    }
    ++failures_;
    FAIL() << screen.name << " does not come to the front";
}

/// The call that opens the dialog waits for its end, so what is done meanwhile is done by a timer.
void Walk::inDialog(const WalkScreen& screen, const std::function<void()>& body) {
    bool isWalked = false;
    QElapsedTimer clock;
    clock.start();
    QTimer timer;
    timer.callOnTimeout([&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!isWalked && clock.elapsed() > patience) hideDialogs();
        if (isWalked || !isShown(modal)) return;
        isWalked = true;
        window_ = modal;
        body();
        if (isOpen() && !isProgress(*window_)) pressKey(*window_, Qt::Key_Escape);
        if (isOpen()) hideDialogs();
    });
    timer.start(0);
    screen.open(*this);
    EXPECT_TRUE(isWalked) << "the dialog did not open";
}

/// A window system that was not done with a window yet would mix its coming up with its going.
void Walk::settle() {
    if (!QTest::qWaitFor([this] { return isSettled(front()); }, keyboardPatience)) isLost_ = true;
}

/// Does it, answers what comes up, and waits until the effect is seen and nothing stands above the screen any
/// more. `trail` is what was seen on the way.
bool Walk::act(const std::function<void()>& gesture, const Effect& effect, QStringList& trail) {
    const QWidget* base = QApplication::activeModalWidget();
    const QString before = effect.probe(*this);
    QElapsedTimer clock;
    clock.start();
    bool isSeen = false, isBusy = false, hasOpened = false;
    qsizetype answered = 0;
    const auto look = [&] {
        if (isBusy) return;
        isBusy = true;
        QWidget* above = foremostAbove(base);
        hasOpened = hasOpened || above;
        const bool isAnswered = answered == effect.answers.size();
        const QString now = effect.probe(*this);
        if (trail.isEmpty() || trail.last() != now) trail << now;
        if (isAnswered && !(above && answered > 0))
            isSeen = isSeen || (now != before && (!effect.expected || now == *effect.expected));
        const bool isDue =
            isSeen || !isAnswered || answered > 0 || effect.isNothing || clock.elapsed() > patience;
        if (isDue && isShown(above) && !isProgress(*above))
            pressKey(*above, isAnswered ? Qt::Key_Escape : effect.answers[answered++]);
        if (above && clock.elapsed() > 2 * patience) hideDialogs();
        isBusy = false;
    };
    QTimer watch;
    watch.callOnTimeout(look);
    watch.start(1);
    gesture();
    const bool isOver = QTest::qWaitFor(
        [&] {
            look();
            const bool isDone = effect.isNothing || isSeen || clock.elapsed() > patience;
            return isDone && !foremostAbove(base);
        },
        2 * patience);
    settle();
    return isOver && (effect.isNothing ? !isSeen && !hasOpened : isSeen);
}

/// In the loop that a running program waits in.
void Walk::untilTheEnd(const std::function<void()>& gesture) {
    constexpr int notEnded = 99;
    QTimer answer, watchdog;
    answer.callOnTimeout([] {
        if (QWidget* above = foremostAbove(nullptr); isShown(above)) pressKey(*above, Qt::Key_Escape);
    });
    answer.start(5);
    watchdog.callOnTimeout([] { QCoreApplication::exit(notEnded); });
    watchdog.start(patience);
    QTimer::singleShot(0, gesture);
    EXPECT_EQ(QApplication::exec(), 0) << "the program goes on";
}

/// What is in no row and holds something, shows what was done to it.
WalkRows Walk::withSilentRows(WalkRows rows, const QStringList& live) const {
    QStringList told;
    for (const WalkRow& row : rows)
        told += controlsOf(row, live);
    for (const QString& name : live)
        if (!told.contains(name) && !stateOf(find(controlOf(name))).isEmpty())
            rows.push_back({name, itself()});
    return rows;
}

void Walk::everyRow(const WalkScreen& screen) {
    QStringList live;
    WalkRows rows;
    QMap<QString, std::vector<Way>> ways;
    onScreen(screen, [&] {
        live = liveControls(*window_);
        const bool isSystems = screen.form.isEmpty(); // its inside is no matter of ours
        rows = isSystems ? screen.rows : withSilentRows(screen.rows, live);
        for (const WalkRow& row : rows)
            for (const QString& name : controlsOf(row, live))
                ways[name] =
                    isBracketed(name) ? std::vector{Way::key} : waysOf(find(controlOf(name)), partOf(name));
        if (isSystems) return;
        EXPECT_EQ(formOn(*window_), screen.form);
        EXPECT_NE(window_->focusWidget(), nullptr) << "nowhere for the keyboard to begin";
        checkContents(rows, live);
        checkReach(live);
    });
    for (const WalkRow& row : rows)
        for (const QString& name : controlsOf(row, live))
            for (const Way way : ways[name])
                if (failures_ < mostFailures) oneWay(screen, row, name, way);
}

void Walk::oneWay(const WalkScreen& screen, const WalkRow& row, const QString& name, Way way) {
    SCOPED_TRACE((name + u" by "_s + wayName(way)).toStdString());
    bool isSeen = true;
    QStringList trail;
    onScreen(screen, [&] {
        address_.clear();
        control_ = way == Way::key ? window_.data() : &find(controlOf(name));
        chooseAnother(*control_);
        const auto gesture = [&] {
            if (way == Way::key)
                useBracketed(*window_, name);
            else
                use(*control_, partOf(name), way, row.typed);
        };
        if (row.effect.endsProgram) return untilTheEnd(gesture);
        isSeen = act(gesture, row.effect, trail);
    });
    // Where windows come and go within milliseconds, as no hand can do it, Qt's plug-in may miss that X has
    // given one the keyboard. That passes with a new program; what is wrong with ours does not.
    const bool isWorthAnother = !isSeen && repeats_ < mostRepeats;
    if (row.effect.isLasting || isLost_ || isWorthAnother) renew();
    if (isWorthAnother) {
        ++repeats_;
        std::cout << "again, " << screen.name << ": " << (name + u" by "_s + wayName(way)).toStdString()
                  << '\n';
        return oneWay(screen, row, name, way);
    }
    failures_ += !isSeen;
    EXPECT_TRUE(isSeen) << screen.name
                        << ", wanted: " << row.effect.expected.value_or(u"something else"_s).toStdString()
                        << ", seen: " << trail.join(u" > "_s).toStdString();
}

/// The table, the widgets and the accessibility tree know of the same controls.
void Walk::checkContents(const WalkRows& rows, const QStringList& live) {
    QStringList told, mainParts;
    for (const WalkRow& row : rows) {
        const QStringList names = controlsOf(row, live);
        EXPECT_EQ(names.size(), row.count) << row.control.toStdString();
        if (!isBracketed(row.control) && partOf(row.control) != u"twice") told += names;
    }
    for (const QString& name : live)
        if (partOf(name).isEmpty()) mainParts << name;
    EXPECT_EQ(sorted(told), sorted(live)) << "the table, and what is there";
    EXPECT_EQ(sorted(accessibleControls(*window_)), sorted(mainParts))
        << "what assistive programs are told, and what is there";
}

QStringList Walk::tabStops() {
    QStringList stops;
    const QWidget* first = window_->focusWidget();
    if (!first) return stops;
    do {
        stops << nameOf(*window_->focusWidget());
        pressKey(*window_, Qt::Key_Tab);
    } while (window_->focusWidget() != first && stops.size() < 200);
    return stops;
}

/// Tab comes to each control that is alive, or to another option of its group, and to nothing else; nothing
/// covers one; and what is hidden gets no key, no click and no ear.
void Walk::checkReach(const QStringList& live) {
    const QStringList stops = tabStops();
    for (const QString& name : live) {
        if (!partOf(name).isEmpty()) continue;
        QWidget& control = find(name);
        const QWidget* hit = window_->childAt(control.mapTo(window_.data(), livePoint(control)));
        EXPECT_TRUE(hit == &control || control.isAncestorOf(hit))
            << name.toStdString() << " is covered by "
            << (hit ? (hit->metaObject()->className() + (" " + nameOf(*hit).toStdString())) : "nothing");
        const bool isOption = qobject_cast<QRadioButton*>(&control);
        EXPECT_TRUE(isOption || stops.contains(name)) << name.toStdString() << " is no stop of Tab";
    }
    for (const QString& stop : stops)
        EXPECT_TRUE(live.contains(stop)) << stop.toStdString() << " is a stop of Tab";
    for (QWidget* control : hiddenControls(*window_))
        EXPECT_TRUE(QAccessible::queryAccessibleInterface(control)->state().invisible)
            << control->objectName().toStdString();
    control_ = window_;
    checkBlocked();
}

/// A dialog is the only window that takes clicks, and a hidden key takes none.
void Walk::checkBlocked() {
    for (QWidget* other : QApplication::topLevelWidgets())
        for (SkinnedButton* key : other->findChildren<SkinnedButton*>()) {
            const bool isOnOther = other != window_ && QApplication::activeModalWidget() && isShown(other);
            const bool isHidden = other == window_ && !key->isVisible();
            if (!isOnOther && !isHidden) continue;
            int taken = 0;
            const auto counting = connect(key, &SkinnedButton::dispatched, this, [&taken] { ++taken; });
            QStringList trail;
            act([key] { click(*key, livePoint(*key)); }, nothing(""), trail);
            EXPECT_EQ(taken, 0) << key->objectName().toStdString();
            disconnect(counting);
        }
}

} // namespace morvane::test
