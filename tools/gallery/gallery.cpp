#include "gallery.h"

#include "app/exit_flow.h"
#include "core/session.h"
#include "ground/ground_selection.h"
#include "night/night_selection.h"
#include "sets/set_removal.h"
#include "sets/sheet_request.h"
#include "sheets/screens/set_sheet_screen.h"
#include "simulator/backup_restore.h"
#include "sky/screens/palette_picture.h"
#include "sky/sky_selection.h"
#include "ui/controls/set_table.h"
#include "ui/controls/slider.h"
#include "weather/cover_choice.h"
#include "weather/screens/airport_list.h"
#include "weather/screens/cover_report_screen.h"
#include "weather/screens/report_list.h"
#include "weather/weather_refresh.h"
#include "weather/weather_state.h"
#include "window/splash_screen.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTimer>

namespace morvane {

Gallery::Gallery(WindowShell& shell, const QString& folder) : shell_(shell), folder_(folder) {
    folder_.mkpath(u"."_s);
}

void Gallery::save(const QString& name, QWidget& window) {
    QCoreApplication::processEvents();
    const qreal scale = window.devicePixelRatioF();
    QImage picture((QSizeF(window.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    const QRegion outline = window.mask().isEmpty() ? QRegion(window.rect()) : window.mask();
    QPainter painter(&picture);
    painter.setClipRegion(outline);
    window.render(&painter, QPoint(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
    painter.end();
    if (picture.save(folder_.filePath(name + u".png"_s))) ++count_;
}

void Gallery::saveModal(const QString& name, const QString& form, const std::function<void()>& call,
                        const std::function<void(QWidget& dialog)>& act) {
    QTimer timer; // asks again until the screen is there: some let events flow while they are filled
    timer.callOnTimeout([&] {
        Form* dialog = shell_.loadedForm(form);
        if (!dialog || !dialog->isVisible()) return;
        timer.stop();
        act(*dialog);
        save(name, *dialog);
        while (dialog->isVisible()) // a part of it may go first
            dialog->cancel();
    });
    timer.start(0);
    call();
}

void Gallery::saveMessage(const QString& name, const Message& message) {
    saveModal(name, u"frm_Msg"_s, [&] { shell_.session().user.showMessage(message); });
}

void Gallery::saveSplash() {
    auto& splash = shell_.screen<frm_Splash>(u"frm_Splash"_s);
    splash.showStep(u"Loading Metars from Database. Please Wait............."_s, 64);
    splash.show();
    save(u"splash"_s, splash);
    splash.hide();
}

void Gallery::saveMainWindow() {
    Form& window = *shell_.form(u"frm_Main"_s);
    shell_.formatMainScreen();
    window.show();
    save(u"main"_s, window);
    window.button(u"btn_SkyInstall"_s)->setState(ButtonState::highlight);
    window.button(u"btn_GroundInstall"_s)->setState(ButtonState::down);
    window.button(u"btn_MVConfig"_s)->setState(ButtonState::disabled);
    window.button(u"btn_MVTextures"_s)->setState(ButtonState::highlight);
    window.button(u"btn_Exit"_s)->setState(ButtonState::highlight);
    window.button(u"btn_Minimize"_s)->setState(ButtonState::down);
    save(u"main-key-states"_s, window);
    shell_.formatMainScreen();
    for (const char16_t* key : {u"btn_Exit", u"btn_Minimize"})
        window.button(QString::fromUtf16(key))->setState(ButtonState::enabled);
}

void Gallery::savePages() {
    Form& window = *shell_.form(u"frm_Main"_s);
    const std::pair<const char16_t*, const char16_t*> pages[] = {
        {u"frm_WxControl", u"weather-control"},
        {u"frm_Switcher", u"options"},
        {u"frm_Config", u"base-install"},
        {u"frm_Links", u"links"},
        {u"frm_About", u"about"},
    };
    for (const auto& [form, picture] : pages) {
        shell_.goToPage(QString::fromUtf16(form));
        save(QString::fromUtf16(picture), window);
    }
    shell_.hideChildScreen(shell_.CurrentChildScreen);
    shell_.formatMainScreen();
}

/// An airport found and chosen for each end of a flight, its report in plain words, and the page afterwards.
void Gallery::saveWeather() {
    Form& window = *shell_.form(u"frm_Main"_s);
    shell_.goToPage(u"frm_WxControl"_s);
    WeatherState& weather = shell_.session().state<WeatherState>();
    auto* airports = window.findChild<AirportList*>();
    weather.InhibitWeatherReports = false;
    for (const QString& icao : {u"KSEA"_s, u"EHAM"_s}) {
        weather.optDestAirport = !(weather.optDepAirport = icao == u"KSEA");
        window.findChild<QLineEdit*>(u"txtICAO"_s)->setText(icao);
        saveModal(u"decoded-report-"_s + icao, u"frm_metar"_s,
                  [&] { Q_EMIT airports->airportChosen(airports->airports().shownAirport(0)); });
    }
    weather.InhibitWeatherReports = true;
    shell_.session().user.refreshScreen(Screen::frm_WxControl);
    window.findChild<QLineEdit*>(u"txtCity"_s)->setText(u"Se"_s);
    airports->setCurrentIndex(airports->airports().index(2, 0));
    save(u"weather-control-flight"_s, window);
    shell_.hideChildScreen(shell_.CurrentChildScreen);
    shell_.formatMainScreen();
}

void Gallery::saveFinder() {
    saveModal(
        u"weather-finder"_s, u"frm_WxFinder"_s,
        [&] { shell_.session().user.showModal(Screen::frm_WxFinder); },
        [](QWidget& dialog) {
            dialog.findChild<QComboBox*>(u"cboPrecipitation"_s)->setCurrentText(u"Rain"_s);
            auto* reports = dialog.findChild<ReportList*>();
            reports->setCurrentIndex(reports->model()->index(3, 0));
        });
}

/// A plan of the sample data stands in the user's folder meanwhile.
void Gallery::saveCovers() {
    UserInterface& user = shell_.session().user;
    const QTemporaryDir documents;
    const QDir plans(documents.filePath(u"Flight Simulator Files"_s));
    plans.mkpath(u"."_s);
    for (const QString& plan : {u"TBPBEGCC06R.PLN"_s, u"c02_own_form_regions_airways.pln"_s})
        QFile::copy(QStringLiteral(MORVANE_DATA_DIR "/plans/") + plan, plans.filePath(plan));
    QString& path = shell_.session().MyDocumentsPath;
    const QString usualPath = std::exchange(path, documents.path());
    saveModal(u"cover-method"_s, u"frm_Select_CC_Method"_s,
              [&] { user.showModal(Screen::frm_Select_CC_Method); });
    saveModal(
        u"cover-flight-plan"_s, u"frm_FlightPlan"_s, [&] { user.showModal(Screen::frm_FlightPlan); },
        [](QWidget& dialog) {
            auto* list = dialog.findChild<SetTable*>(u"lvwFPList"_s);
            Q_EMIT list->itemDoubleClicked(list->topLevelItem(1), 0);
        });
    path = usualPath;
    saveModal(u"cover-airports"_s, u"frm_FromDepDestVal"_s,
              [&] { user.showModal(Screen::frm_FromDepDestVal); });
    saveModal(u"cover-option"_s, u"frm_CC_From_Option"_s,
              [&] { user.showModal(Screen::frm_CC_From_Option); });
    saveModal(
        u"cover-report"_s, u"frm_CC_From_Metar_String"_s,
        [&] { user.showModal(Screen::frm_CC_From_Metar_String); },
        [](QWidget& dialog) {
            dialog.findChild<QPlainTextEdit*>()->setPlainText(
                u"EGLL 241220Z 24015G28KT 200V260 9999 -RA SCT012 BKN030 18/09 Q1012"_s);
            static_cast<frm_CC_From_Metar_String&>(dialog).processMetarString();
        });
}

void Gallery::saveGround() {
    shell_.showHost(u"frm_MVTextures"_s);
    Form& window = *shell_.form(u"frm_MVTextures"_s);
    save(u"ground-sets"_s, window);
    shell_.goToPage(u"frm_GroundColorize"_s);
    save(u"ground-colour-untouched"_s, window);
    const std::pair<const char16_t*, int> tuned[] = {
        {u"vcRed", -20}, {u"vcGreen", 5}, {u"vcBlue", 35}, {u"vcBright", -10}, {u"vcContrast", 15}};
    for (const auto& [slider, value] : tuned)
        window.findChild<ucSlider*>(QString::fromUtf16(slider))->setValue(value);
    save(u"ground-colour"_s, window);
    shell_.leaveHost(u"frm_MVTextures"_s);
}

void Gallery::saveSky() {
    shell_.showHost(u"frm_KMTextures"_s);
    Form& window = *shell_.form(u"frm_KMTextures"_s);
    save(u"sky-sets"_s, window);
    shell_.goToPage(u"frm_SkyColorize"_s);
    save(u"sky-colour-untouched"_s, window);
    auto* palette = window.findChild<PalettePicture*>();
    Q_EMIT palette->clicked(120, 120);
    const std::pair<const char16_t*, int> tuned[] = {
        {u"vcSkySat", -10}, {u"vcSkyRed", 15}, {u"vcSkyBlue", -20}, {u"vcSkyBright", -25}};
    for (const auto& [slider, value] : tuned)
        window.findChild<ucSlider*>(QString::fromUtf16(slider))->setValue(value);
    save(u"sky-colour"_s, window);
    shell_.leaveHost(u"frm_KMTextures"_s);
}

void Gallery::saveDialogs() {
    const std::pair<Screen, const char16_t*> dialogs[] = {
        {Screen::frm_TsRequired, u"set-counts"},
        {Screen::frm_SelectTexture, u"select-texture"},
        {Screen::frm_SelectNightTexture, u"select-night-texture"},
        {Screen::frm_SelectSkyTexture, u"sky-set-counts"},
        {Screen::frm_SelectBaseSky, u"select-base-sky"},
        {Screen::frm_flight, u"select-flight"},
        {Screen::frm_metar_request, u"metar-request"},
        {Screen::frm_AddFav, u"add-favourite"},
        {Screen::frm_BackupList, u"backup-list"},
        {Screen::frm_InSimulator, u"in-the-simulator"},
        {Screen::frm_MoreSettings, u"more-settings"},
        {Screen::frm_Ready, u"ready"},
        {Screen::frm_WhatIsKept, u"what-is-kept"},
        {Screen::frm_MultiDelete, u"name-choice"}};
    shell_.session().state<MetarRequest>().metarRequestText =
        u"Do you wish Morvane to download and decode the latest METAR cycle from Orrinsoft?"_s;
    const QDateTime firstFlight(QDate(2026, 7, 14), QTime(14, 7));
    shell_.session().state<BackupChoice>().backups = {{u"1-Backup"_s, firstFlight, true},
                                                      {u"2-Backup"_s, firstFlight.addDays(9), false}};
    shell_.session().state<MultiChoice>().multiNames = QStringList{u"12-Desert Haze"_s, u"21-Late Autumn"_s};
    for (const auto& [screen, picture] : dialogs)
        saveModal(QString::fromUtf16(picture), screenName(screen),
                  [&, which = screen] { shell_.session().user.showModal(which); });
}

/// Each kind as the list page opens it, one texture alone, the base beside the set, and the simulator.
void Gallery::saveSheets() {
    Session& session = shell_.session();
    const auto showSheet = [&](const QString& picture, const SheetRequest& request,
                               const std::function<void(frm_SetSheet&)>& act) {
        session.state<SheetRequest>() = request;
        saveModal(
            picture, u"frm_SetSheet"_s, [&] { session.user.showModal(Screen::frm_SetSheet); },
            [&](QWidget& dialog) {
                auto& sheet = static_cast<frm_SetSheet&>(dialog);
                while (sheet.loading() && !sheet.loading()->isWhole())
                    QCoreApplication::processEvents();
                act(sheet);
            });
    };
    const auto pressKey = [](frm_SetSheet& sheet, Qt::Key key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(sheet.findChild<QWidget*>(u"lstSheet"_s), &press);
    };
    const SheetRequest ground{u"Ground"_s, session.state<GroundSelection>().SelectedGroundSet};
    showSheet(u"see-all"_s, ground, [](frm_SetSheet&) {});
    showSheet(u"see-all-beside"_s, ground, [&](frm_SetSheet& sheet) {
        sheet.findChild<ucSlider*>()->setValue(100);
        pressKey(sheet, Qt::Key_Down);
        sheet.turnBeside();
    });
    showSheet(u"see-all-alone"_s, ground, [&](frm_SetSheet& sheet) {
        pressKey(sheet, Qt::Key_Right);
        pressKey(sheet, Qt::Key_Return);
    });
    showSheet(u"see-all-sky"_s, {u"Sky"_s, session.state<SkySelection>().SelectedSkySet},
              [&](frm_SetSheet& sheet) { pressKey(sheet, Qt::Key_A); });
    showSheet(u"see-all-night"_s, {u"Night"_s, session.state<NightSelection>().SelectedNightSet},
              [](frm_SetSheet&) {});
    showSheet(u"see-all-simulator"_s, {}, [](frm_SetSheet&) {});
}

void Gallery::saveNight() {
    shell_.showHost(u"frm_NightTextures"_s);
    Form& window = *shell_.form(u"frm_NightTextures"_s);
    save(u"night-sets"_s, window);
    shell_.goToPage(u"frm_NightColorize"_s);
    save(u"night-colour-untouched"_s, window);
    window.findChild<QAbstractButton*>(u"opt_LightsBias1"_s)->click();
    save(u"night-colour"_s, window);
    shell_.leaveHost(u"frm_NightTextures"_s);
}

void Gallery::saveMessages() {
    saveMessage(u"message-exit-question"_s, resetQuestion(u"Mostly Cloudy"_s, u"Overcast"_s));
    const std::pair<MessageKind, const char16_t*> kinds[] = {
        {MessageKind::information, u"message-information"},
        {MessageKind::exclamation, u"message-exclamation"},
        {MessageKind::error, u"message-error"}};
    for (const auto& [kind, picture] : kinds)
        saveMessage(QString::fromUtf16(picture),
                    {kind, u"Morvane Information"_s, u"The texture set was installed successfully."_s});
}

void Gallery::saveProgress() {
    UserInterface& user = shell_.session().user;
    user.showMessage(
        {MessageKind::progress, u"Creating Ground Texture Sets"_s,
         u"Colorizing texture set 1 of 3 texture sets.  Process 1 of 2 Be aware that this may take 20 - "
         "30 minutes per set dependant on your system specification. \nPlease wait............"_s,
         false, true, true});
    user.setProgressFile(u"Processing file 579 of 1157 files"_s);
    user.updateProgress({}, {}, 50);
    save(u"message-progress"_s, *shell_.form(u"frm_Msg"_s));
    user.hideMessage();
    Message waiting{MessageKind::progress,
                    u"ASv6 Processing Wx Data"_s,
                    u"Active Sky is processing your weather data. Please wait..........."_s,
                    false,
                    false,
                    true};
    waiting.picture = u"ASv6Process.gif"_s;
    shell_.session().state<WeatherState>().ASv6Busy = true;
    user.showMessage(waiting);
    save(u"message-weather-program"_s, *shell_.form(u"frm_Msg"_s));
    shell_.session().state<WeatherState>().ASv6Busy = false;
    user.hideMessage();
}

/// The last of all, as nobody clicks the line away.
void Gallery::saveFootLine() {
    Form& window = *shell_.form(u"frm_Main"_s);
    window.show();
    shell_.goToPage(u"frm_Config"_s);
    UserInterface& user = shell_.session().user;
    user.tellDone({u"1,183 textures backed up"_s, u"Backup 2, 21 Nov 2026, 23:47"_s});
    save(u"job-done"_s, window);
    user.tellDone({u"1,183 put back, 4 read-only left"_s, {}, true});
    save(u"job-done-left-out"_s, window);
}

void Gallery::saveAll() {
    saveSplash();
    saveMainWindow();
    savePages();
    saveWeather();
    saveFinder();
    saveCovers();
    saveGround();
    saveSky();
    saveNight();
    saveSheets();
    saveDialogs();
    saveMessages();
    saveProgress();
    saveFootLine();
}

} // namespace morvane
