#include "weather/screens/weather_finder_screen.h"

#include "core/numbers.h"
#include "core/session.h"
#include "ui/controls/labels.h"
#include "ui/count_edit.h"
#include "weather/report_filter.h"
#include "weather/screens/report_list.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>

namespace morvane {

namespace {

constexpr int left = 26, pitch = 164, boxRow = 134, lastRow = 162;

} // namespace

frm_WxFinder::frm_WxFinder(Shell& shell)
    : DialogForm(shell, u"frm_WxFinder"_s, wideDialogLook, u"Select weather phenomena you require"_s) {
    addLists();
    addBoxes();
    addFlightEnds();
    makeLabel(this, u"Filter by ICAO"_s, {354, lastRow, 84, 22}, TextRole::fieldCaption);
    txtFilter_ = new QLineEdit(this);
    txtFilter_->setObjectName(u"txtFilter"_s);
    txtFilter_->setAccessibleName(u"Filter by ICAO"_s);
    txtFilter_->setFont(fontOf(TextRole::body));
    txtFilter_->setGeometry(440, lastRow, 70, 22);
    connect(txtFilter_, &QLineEdit::textChanged, this, [this](const QString& text) {
        session().state<WxFilter>().WxFilterText = trimmedBlanks(text);
        filterMetars();
    });
    makeLabel(this, u"Max results"_s, {526, lastRow, 74, 22}, TextRole::fieldCaption);
    txtWxMaxResults_ = new CountEdit(*this, session().state<WxFilter>().WxMaxResults, usualMaxResults);
    txtWxMaxResults_->setObjectName(u"txtWxMaxResults"_s);
    txtWxMaxResults_->setAccessibleName(u"Max results"_s);
    txtWxMaxResults_->setGeometry(604, lastRow, 70, 22);
    connect(txtWxMaxResults_, &QLineEdit::textChanged, this, &frm_WxFinder::filterMetars);
    lstMetar_ = new ReportList(this);
    lstMetar_->setObjectName(u"lstMetar"_s);
    lstMetar_->setGeometry(left, 194, 648, 226);
    connect(lstMetar_, &ReportList::stationChosen, this, &frm_WxFinder::choose);
    connect(lstMetar_, &ReportList::doubleClicked, this, &frm_WxFinder::ok);
    addAnswerKeys(u"Click to select current weather type"_s,
                  u"Click to cancel and return to the Weather Control Screen."_s);
}

void frm_WxFinder::addLists() {
    cboPrecipitation_ = addList(u"cboPrecipitation"_s, u"Precipitation"_s, left, precipitationEntries(),
                                &WxFilter::precipitation);
    cboIntensity_ =
        addList(u"cboIntensity"_s, u"Intensity"_s, left + pitch, intensityEntries(), &WxFilter::intensity);
    auto* obscuration = addList(u"cboObscuration"_s, u"Obscuration"_s, left + 2 * pitch, obscurationEntries(),
                                &WxFilter::obscuration);
    auto* cover = addList(u"cboCloudCover"_s, u"Cloud cover"_s, left + 3 * pitch, cloudCoverEntries(),
                          &WxFilter::cloudCover);
    lists_ = {cboPrecipitation_, cboIntensity_, obscuration, cover};
    connect(cboPrecipitation_, &QComboBox::currentTextChanged, this, &frm_WxFinder::allowIntensity);
}

QComboBox* frm_WxFinder::addList(const QString& name, const QString& caption, int x,
                                 const QStringList& entries, QString WxFilter::*entry) {
    makeLabel(this, caption, {x, 86, pitch - 10, 14}, TextRole::fieldCaption);
    auto* list = new QComboBox(this);
    list->setObjectName(name);
    list->setAccessibleName(caption);
    list->view()->setAccessibleName(caption);
    list->setFont(fontOf(TextRole::body));
    list->setGeometry(x, 102, pitch - 10, 22);
    list->addItems(entries);
    connect(list, &QComboBox::currentTextChanged, this, [this, entry](const QString& text) {
        session().state<WxFilter>().*entry = text;
        filterMetars();
    });
    return list;
}

void frm_WxFinder::addBoxes() {
    addBox(u"chkTCumulonimbus"_s, u"Towering Cumulonimbus"_s, left, &WxFilter::towering);
    addBox(u"chkCumulonimbus"_s, u"Cumulonimbus"_s, left + pitch + 20, &WxFilter::cumulonimbus);
    addBox(u"chkCumulus"_s, u"Cumulus"_s, left + 2 * pitch, &WxFilter::cumulus);
}

void frm_WxFinder::addBox(const QString& name, const QString& caption, int x, bool WxFilter::*flag) {
    auto* box = new QCheckBox(caption, this);
    box->setObjectName(name);
    box->setFont(fontOf(TextRole::body));
    box->setGeometry(x, boxRow, pitch + 10, 22);
    connect(box, &QCheckBox::toggled, this, [this, flag](bool isTicked) {
        session().state<WxFilter>().*flag = isTicked;
        filterMetars();
    });
}

void frm_WxFinder::addFlightEnds() {
    for (std::size_t index = 0; index < optAirport_.size(); ++index) {
        const bool isDeparture = index == 0;
        const QString caption = isDeparture ? u"Departure Airport"_s : u"Destination Airport"_s;
        auto* option = new QRadioButton(caption, this);
        option->setObjectName(u"optAirport%1"_s.arg(index));
        option->setFont(fontOf(TextRole::body));
        option->setGeometry(left + pitch * static_cast<int>(index), lastRow, pitch - 10, 22);
        connect(option, &QRadioButton::clicked, this,
                [this, isDeparture] { session().state<WxFilter>().WxFinderIsDeparture = isDeparture; });
        optAirport_[index] = option;
    }
}

/// Each opening begins with any weather and the end of the flight that the weather page shows.
void frm_WxFinder::prepare() {
    openWxFilter(session());
    session().state<WxFilter>().WxFinderLoading = true;
    for (QComboBox* list : lists_)
        list->setCurrentIndex(0);
    for (QCheckBox* box : findChildren<QCheckBox*>())
        box->setChecked(false);
    txtFilter_->clear();
    txtWxMaxResults_->showCount();
    optAirport_[session().state<WxFilter>().WxFinderIsDeparture ? 0 : 1]->setChecked(true);
    allowIntensity();
    session().state<WxFilter>().WxFinderLoading = false;
    filterMetars();
    setFirstFocus(lstMetar_);
}

void frm_WxFinder::allowIntensity() {
    const bool isAllowed = hasIntensity(session().state<WxFilter>());
    if (!isAllowed) cboIntensity_->setCurrentIndex(0);
    cboIntensity_->setEnabled(isAllowed);
}

void frm_WxFinder::choose(const QString& icao) {
    session().state<WxFilter>().WxSelectedIcao = icao;
    allowOk(true);
}

/// The first of what is found is chosen at once.
void frm_WxFinder::filterMetars() {
    if (session().state<WxFilter>().WxFinderLoading) return;
    session().state<WxFilter>().WxSelectedIcao.clear();
    allowOk(false);
    lstMetar_->setReports(morvane::filterMetars(session()));
}

void frm_WxFinder::confirm() {
    selectWxAirport(session());
}

} // namespace morvane
