#include "weather/screens/weather_screen.h"

#include "core/failure_report.h"
#include "core/registry.h"
#include "core/session.h"
#include "ui/controls/labels.h"
#include "ui/shell.h"
#include "ui/skin.h"
#include "weather/airport_report.h"
#include "weather/report_age.h"
#include "weather/screens/airport_list.h"
#include "weather/screens/filter_choice.h"
#include "weather/screens/link_label.h"
#include "weather/screens/report_box.h"
#include "weather/weather_state.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTimer>
#include <QUrl>

namespace morvane {

namespace {

/// The age counts in minutes.
constexpr std::chrono::seconds showAgeEvery{20};
constexpr int fieldHeight = 22, captionRise = 15, keyRow = 397, optionRow = 262;

/// A field's caption stands over it and is its name.
template <class Field>
Field* addField(QWidget* paper, const QString& name, const QString& caption, QPoint place, int width) {
    makeLabel(paper, caption, {place.x(), place.y() - captionRise, width, 14}, TextRole::fieldCaption);
    auto* field = new Field(paper);
    field->setObjectName(name);
    field->setAccessibleName(caption);
    field->setGeometry(QRect(place, QSize(width, fieldHeight)));
    return field;
}

template <class Box>
Box* addBox(QWidget* paper, const QString& name, const QString& caption, const QRect& place) {
    auto* box = new Box(caption, paper);
    box->setObjectName(name);
    box->setAccessibleName(caption);
    box->setGeometry(place);
    return box;
}

} // namespace

frm_WxControl::frm_WxControl(Shell& shellOfPages)
    : PageForm(shellOfPages, u"frm_WxControl"_s, u"page_plain.bmp"_s) {
    addActiveSky();
    addSearchBoxes();
    addFilterLists();
    addAirports();
    addOptions();
    addReports();
    addKeys();
    setAcceptDrops(true);
    for (QLineEdit* box : std::as_const(searchBoxes_))
        box->setAcceptDrops(false); // it would take a file's name for what is typed
    auto* age = new QTimer(this);
    connect(age, &QTimer::timeout, this, &frm_WxControl::showAge);
    age->start(showAgeEvery);
}

void frm_WxControl::addActiveSky() {
    lblASv6Support_ = new LinkLabel(paper());
    lblASv6Support_->setObjectName(u"lblASv6Support"_s);
    lblASv6Support_->setGeometry(283, 5, 264, 15);
    lblASv6Support_->setCursor(skin().cursor(u"Hand.cur"_s, Qt::PointingHandCursor));
    connect(lblASv6Support_, &LinkLabel::clicked, this, &frm_WxControl::openActiveSkyPage);
    lblASv6FileTime_ = makeLabel(paper(), {}, {283, 20, 264, 15}, TextRole::longHelp);
    lblASv6FileTime_->setObjectName(u"lblASv6FileTime"_s);
    lblASv6FileTime_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    picASv6_ = new QLabel(paper());
    picASv6_->setObjectName(u"picASv6"_s);
    picASv6_->setAccessibleName(u"Active Sky"_s);
    picASv6_->setGeometry(555, 6, 27, 27);
    picASv6_->setScaledContents(true);
}

void frm_WxControl::addSearchBoxes() {
    const auto add = [this](const QString& name, const QString& caption, SearchBox box, int left, int width) {
        auto* edit = addField<QLineEdit>(paper(), name, caption, {left, 62}, width);
        connect(edit, &QLineEdit::textChanged, this, [this, box, edit] { search(box, *edit); });
        searchBoxes_ << edit;
        return edit;
    };
    setFirstFocus(add(u"txtICAO"_s, u"ICAO"_s, SearchBox::icao, 14, 92));
    add(u"txtAirportName"_s, u"Airport name"_s, SearchBox::airportName, 116, 190);
    add(u"txtCity"_s, u"City"_s, SearchBox::city, 316, 206);
}

void frm_WxControl::addFilterLists() {
    const auto add = [this](const QString& name, const QString& caption, FilterList kind, int left,
                            int width) {
        auto* list = addField<FilterChoice>(paper(), name, caption, {left, 104}, width);
        list->view()->setAccessibleName(caption);
        connect(list, &FilterChoice::activated, this, [this, kind] { applyFilter(kind); });
        return list;
    };
    cboCountry_ = add(u"cboCountry"_s, u"Country"_s, FilterList::country, 14, 160);
    cboState_ = add(u"cboState"_s, u"State"_s, FilterList::state, 184, 160);
    cboCity_ = add(u"cboCity"_s, u"City"_s, FilterList::city, 354, 168);
    addButton({ButtonFamily::StandardButton,
               u"btn_ClearFilter"_s,
               u"clearfilter"_s,
               u"btn_Clockwise"_s,
               u"Click to clear the search filter"_s,
               {534, 76},
               {},
               ButtonState::disabled},
              paper());
}

void frm_WxControl::addAirports() {
    lvwAirports_ = new AirportList(paper());
    lvwAirports_->setObjectName(u"lvwAirports"_s);
    lvwAirports_->setGeometry(14, 134, 568, 126);
    connect(lvwAirports_, &AirportList::airportChosen, this,
            [this](const Airport& airport) { chooseAirport(session(), airport); });
    lblAirportCount_ =
        makeLabel(paper(), u"Search Not Initiated Yet"_s, {14, 265, 136, 16}, TextRole::fieldCaption);
    lblAirportCount_->setObjectName(u"lblAirportCount"_s);
}

void frm_WxControl::addOptions() {
    optDepAirport_ =
        addBox<QRadioButton>(paper(), u"optDepAirport"_s, u"Departure Airport"_s, {150, optionRow, 132, 22});
    optDestAirport_ = addBox<QRadioButton>(paper(), u"optDestAirport"_s, u"Destination Airport"_s,
                                           {286, optionRow, 142, 22});
    connect(optDepAirport_, &QRadioButton::toggled, this, [this](bool isDeparture) {
        session().state<WeatherState>().optDepAirport = isDeparture;
        session().state<WeatherState>().optDestAirport = !isDeparture;
    });
    chkNoWeatherReports_ = addBox<QCheckBox>(paper(), u"chkNoWeatherReports"_s, u"Inhibit Weather Reports"_s,
                                             {432, optionRow, 152, 22});
    connect(chkNoWeatherReports_, &QCheckBox::toggled, this,
            [this](bool isTicked) { session().state<WeatherState>().InhibitWeatherReports = isTicked; });
}

void frm_WxControl::addReports() {
    const auto add = [this](const QString& name, const QString& caption, int left) {
        makeLabel(paper(), caption, {left, 288, 122, 14}, TextRole::sectionHeading);
        return new MetarBox(name, caption, {left, 306, 278, 72}, paper());
    };
    departure_ = add(u"lblDepMetar"_s, u"Departure METAR"_s, 14);
    destination_ = add(u"lblDestMetar"_s, u"Destination METAR"_s, 304);
    lblDepAge_ = makeLabel(paper(), {}, {132, 289, 160, 14}, TextRole::remark);
    lblDepAge_->setObjectName(u"lblDepAge"_s);
    lblDestAge_ = makeLabel(paper(), {}, {422, 289, 160, 14}, TextRole::remark);
    lblDestAge_->setObjectName(u"lblDestAge"_s);
}

void frm_WxControl::addKeys() {
    const auto add = [this](const QString& name, const QString& key, const QString& picture,
                            const QString& tip, const QString& caption, int left) {
        addButton({ButtonFamily::LargeButton, name, key, picture, tip, {left, keyRow}, caption}, paper());
    };
    add(u"btn_FlyNow"_s, u"flynow"_s, u"btn_Install"_s,
        u"Click to minimise Morvane and launch Flight Simulator."_s, u"Fly Now"_s, 27);
    add(u"btn_SelectFlight"_s, u"selectflight"_s, u"btn_SelectFlight"_s,
        u"Click to start Flight Simulator with a saved flight."_s, u"Saved Flight"_s, 165);
    add(u"btn_WxFinder"_s, u"wxfinder"_s, u"btn_WxFinder"_s, u"Click to find a weather type."_s,
        u"Weather\nFinder"_s, 303);
    add(u"btn_WxRefresh"_s, u"wxrefresh"_s, u"btn_WxRefresh"_s, u"Click to refresh METAR data."_s,
        u"Refresh\nMETAR"_s, 441);
}

void frm_WxControl::format() {
    markKey(u"flight config"_s);
    paper()->setTitle(u"icon_WxFinder.bmp"_s, u"Weather Control Settings Page"_s);
    if (!isLoaded_) {
        isLoaded_ = true;
        reportFailures(session().user, morvaneError, [this] { fillLists({}); });
        lblAirportCount_->setText(u"Search Not Initiated Yet"_s); // no airport is listed before a search
    }
    refresh();
}

void frm_WxControl::refresh() {
    const WeatherState& weather = session().state<WeatherState>();
    (weather.optDepAirport ? optDepAirport_ : optDestAirport_)->setChecked(true);
    chkNoWeatherReports_->setChecked(weather.InhibitWeatherReports);
    departure_->setReport(weather.DepMetar);
    destination_->setReport(weather.DestMetar);
    button(u"btn_FlyNow"_s)->setState(weather.FlyNowDisabled ? ButtonState::disabled : ButtonState::enabled);
    showActiveSky();
    showAge();
}

void frm_WxControl::showAge() {
    const WeatherState& weather = session().state<WeatherState>();
    setFootText({reportAgeText(session()), reportSourceText(session()),
                 weather.NoSourceAnswered ? FootSign::warning : FootSign::cloud});
    lblDepAge_->setText(reportAgeText(session(), weather.DepMetar));
    lblDestAge_->setText(reportAgeText(session(), weather.DestMetar));
}

// Searching ----------------------------------------------------------------------------------------------

/// A box that was emptied leaves the list as it is. The others lose their texts: nothing is found by them any
/// more.
void frm_WxControl::search(SearchBox box, const QLineEdit& edit) {
    if (!searchAirports(session().state<WeatherState>(), box, edit.text())) return;
    for (QLineEdit* other : searchBoxes_)
        if (const QSignalBlocker quiet(other); other != &edit) other->clear();
    ClearFilter();
}

void frm_WxControl::ClearFilter() {
    reportFailures(session().user, morvaneError, [this] {
        fillLists(session().state<WeatherState>().AirportQueryWhere);
        fillAirports({});
        button(u"btn_ClearFilter"_s)->setState(ButtonState::disabled);
    });
}

/// The lists behind the one that was clicked show what is left for them, or everything again when nothing
/// narrows them.
void frm_WxControl::applyFilter(FilterList list) {
    reportFailures(session().user, morvaneError, [this, list] {
        button(u"btn_ClearFilter"_s)->setState(ButtonState::enabled);
        AirportFilter filter{cboCountry_->value(), {}, {}};
        const auto where = [&] {
            return filter.isEmpty() ? QString() : narrowedWhere(session().state<WeatherState>(), filter);
        };
        if (list == FilterList::country) fill(*cboState_, popStates(session(), where()));
        filter.state = cboState_->value();
        if (list != FilterList::city) fill(*cboCity_, popCities(session(), where()));
        filter.city = cboCity_->value();
        fillAirports(filter);
    });
}

void frm_WxControl::fill(FilterChoice& list, const FilterValues& found) {
    list.setValues(found.values);
    lblAirportCount_->setText(found.countLine);
}

void frm_WxControl::fillLists(const QString& where) {
    fill(*cboCountry_, popCountries(session(), where));
    fill(*cboState_, popStates(session(), where));
    fill(*cboCity_, popCities(session(), where));
}

/// Comes last of all fills, so that the count that stays is the airports'.
void frm_WxControl::fillAirports(const AirportFilter& filter) {
    FoundAirports found = popAirports(session(), filter);
    lvwAirports_->setAirports(std::move(found.airports));
    lblAirportCount_->setText(found.countLine);
}

// Active Sky ---------------------------------------------------------------------------------------------

void frm_WxControl::showActiveSky() {
    const WeatherState& weather = session().state<WeatherState>();
    QString text = u"Click here for ASv6 Information"_s;
    if (weather.ASv6Present)
        text = u"ASv6 Detected"_s + (weather.ASv6VersionOK ? u" and version supported"_s
                                                           : u", update required, click to update ASv6"_s);
    lblASv6Support_->setText(text);
    lblASv6Support_->setEnabled(!weather.ASv6Present || !weather.ASv6VersionOK);
    picASv6_->setPixmap(weather.ASv6Present ? skin().picture(u"ASv6.jpg"_s) : QPixmap());
    lblASv6FileTime_->setText(weather.ASv6Imported && weather.ASv6ExportDate.isValid()
                                  ? u"ASv6 File Updated "_s +
                                        weather.ASv6ExportDate.toString(u"yyyy/MM/dd HH:mm:ss"_s)
                                  : QString());
}

/// The vendor's host is a registry value.
void frm_WxControl::openActiveSkyPage() {
    const QUrl vendor(
        session().registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"ActiveSkyPage"_s));
    const QUrl page(session().state<WeatherState>().ASv6Present ? u"/ASV6/downloads.htm"_s : u"/ASv6/"_s);
    shell().openWebPage(vendor.resolved(page).toString(), u"ActiveSkyPage"_s);
}

} // namespace morvane
