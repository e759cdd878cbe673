#include "simulator/screens/simulator_check_screen.h"

#include "core/failure_report.h"
#include "core/numbers.h"
#include "core/session.h"
#include "sets/sheet_request.h"
#include "ui/controls/count_row.h"
#include "ui/controls/labels.h"
#include "ui/controls/set_table.h"
#include "ui/skin.h"

#include <QCheckBox>
#include <QDateTime>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>

namespace morvane {

namespace {

constexpr int leftEdge = 26, right = 356, rightEdge = 674, firstLine = 105, pitch = 22, keyRow = 443;

/// The rows at the left, in their order.
enum CountedFiles : std::size_t { oursRow, ownRow, changedRow, missingRow, keptRow };

QString dayText(std::int64_t nanoseconds) {
    const auto time = QDateTime::fromMSecsSinceEpoch(nanoseconds / 1'000'000);
    return QLocale::c().toString(time, u"d MMM yyyy, hh:mm"_s);
}

QString happenedText(const CheckedPlace& place) {
    switch (place.state) {
    case PlaceState::ours:
        return u"Whole"_s;
    case PlaceState::earlier:
        return u"Left from an earlier install"_s;
    case PlaceState::pilots:
        return u"Your own"_s;
    case PlaceState::changed:
        return u"Changed "_s + dayText(place.time);
    case PlaceState::missing:
        return u"Missing"_s;
    case PlaceState::empty:
        return u"Not copied"_s;
    }
    return {};
}

QString keptText(const CheckedPlace& place) {
    if (!place.isKept) return u"none"_s;
    return place.isKeptSound ? u"whole"_s : u"damaged"_s;
}

} // namespace

frm_InSimulator::frm_InSimulator(Shell& shell)
    : DialogForm(shell, u"frm_InSimulator"_s, wideDialogLook, u"In the simulator now"_s),
      lblLooked_(makeLabel(this, {}, {200, 58, 354, 18}, TextRole::longHelp)) {
    lblLooked_->setObjectName(u"lblLooked"_s);
    lblLooked_->setWordWrap(false);
    lblLooked_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* readAll = new QPushButton(u"Read every file"_s, this);
    readAll->setObjectName(u"cmdReadAll"_s);
    readAll->setAccessibleName(readAll->text());
    readAll->setToolTip(u"Click to read every file, also those that look untouched."_s);
    readAll->setGeometry(566, 57, 108, 20);
    connect(readAll, &QPushButton::clicked, this, [this] { look(CheckDepth::everyFile); });
    auto* seeAll = new QPushButton(u"See all"_s, this);
    seeAll->setObjectName(u"cmdSeeAll"_s);
    seeAll->setAccessibleName(seeAll->text());
    seeAll->setToolTip(u"Click to see the textures that lie there, over your own."_s);
    seeAll->setGeometry(586, 81, 88, 20);
    connect(seeAll, &QPushButton::clicked, this, [this] {
        session().state<SheetRequest>() = {};
        session().user.showModal(Screen::frm_SetSheet);
    });
    addCounts();
    addParts();
    addList();
    addKeys();
}

void frm_InSimulator::addCounts() {
    makeLabel(this, u"The files"_s, {leftEdge, 86, 200, 14}, TextRole::sectionHeading);
    makeHair(this, {leftEdge, 104, 306, 1});
    constexpr const char16_t* signs[countRows] = {u"mark_whole.bmp", u"mark_own.bmp", u"mark_changed.bmp",
                                                  u"mark_missing.bmp", u"mark_kept.bmp"};
    for (std::size_t row = 0; row < countRows; ++row) {
        counts_[row] = new CountRow(skin(), QString::fromUtf16(signs[row]), this);
        counts_[row]->setObjectName(u"rowCount%1"_s.arg(row));
        counts_[row]->setToolTip(u"Click to see only these files, and again to see what differs."_s);
        counts_[row]->setGeometry(leftEdge, firstLine + static_cast<int>(row) * pitch, 306, pitch);
        connect(counts_[row], &CountRow::clicked, this, [this, row] { pick(row); });
    }
}

void frm_InSimulator::addParts() {
    makeLabel(this, u"Installed"_s, {right, 86, 200, 14}, TextRole::sectionHeading);
    makeHair(this, {right, 104, rightEdge - right, 1});
    int top = firstLine;
    for (PartLabels& part : parts_) {
        part.kind = makeLabel(this, {}, {right, top, 50, pitch}, TextRole::sliderName);
        part.name = makeLabel(this, {}, {right + 52, top, 140, pitch}, TextRole::value);
        part.state =
            makeLabel(this, {}, {right + 194, top, rightEdge - right - 194, pitch}, TextRole::number);
        part.hair = makeHair(this, {right, top + pitch - 1, rightEdge - right, 1});
        top += pitch;
    }
}

void frm_InSimulator::addList() {
    lblFiles_ = makeLabel(this, {}, {leftEdge, 225, 400, 14}, TextRole::sectionHeading);
    lblFiles_->setObjectName(u"lblFiles"_s);
    lblTicked_ = makeLabel(this, {}, {426, 223, rightEdge - 426, 18}, TextRole::number);
    lblTicked_->setObjectName(u"lblTicked"_s);
    lstFiles_ = new SetTable(this);
    lstFiles_->setObjectName(u"lstFiles"_s);
    lstFiles_->setAccessibleName(u"Files"_s);
    lstFiles_->setGeometry(leftEdge, 244, 648, 144);
    lstFiles_->setColumns({{{}, 26},
                           {u"File"_s, 112},
                           {u"Folder"_s, 162},
                           {u"What happened"_s, 196},
                           {u"Kept original"_s, 150}},
                          true);
    connect(lstFiles_, &SetTable::checksChanged, this, &frm_InSimulator::showTicks);
    chkAll_ = new QCheckBox(this);
    chkAll_->setObjectName(u"chkAll"_s);
    chkAll_->setAccessibleName(u"All files of the list"_s);
    chkAll_->setTristate(true);
    chkAll_->setGeometry(leftEdge + 6, 248, 18, 16);
    connect(chkAll_, &QCheckBox::clicked, this,
            [this] { lstFiles_->checkAll(lstFiles_->checkedKeys().size() < lstFiles_->rowCount()); });
    lblNothing_ =
        makeLabel(this, u"Everything is as Morvane left it."_s, {leftEdge, 244, 648, 22}, TextRole::value);
    lblNothing_->setObjectName(u"lblNothing"_s);
    makeLabel(
        this,
        u"Take as mine: the file stays and counts as your own from now on. Put ours back: it is copied from "
        u"its set again.\nPut my own back: the kept original returns, and the file is no longer ours."_s,
        {leftEdge, 393, 648, 32}, TextRole::longHelp);
}

void frm_InSimulator::addKeys() {
    const auto add = [this](const QString& name, const QString& key, const QString& picture,
                            const QString& tip, const QString& caption, int x) {
        addButton({ButtonFamily::LargeButton, name, key, picture, tip, {x, keyRow}, caption});
    };
    add(u"btn_Take"_s, u"take as mine"_s, u"btn_Take"_s, u"Click to take the ticked files as your own."_s,
        u"Take as\nMine"_s, 26);
    add(u"btn_PutOurs"_s, u"put ours back"_s, u"btn_Install"_s,
        u"Click to copy the ticked files from their sets again."_s, u"Put Ours\nBack"_s, 164);
    add(u"btn_PutOwn"_s, u"put own back"_s, u"btn_Restore_Backup"_s,
        u"Click to put your own files in the place of the ticked ones."_s, u"Put My Own\nBack"_s, 302);
    addCancelKey(u"Click to close."_s);
}

void frm_InSimulator::prepare() {
    picked_.reset();
    look(CheckDepth::changedFiles);
    setFirstFocus(lstFiles_->isHidden() ? button(u"btn_Cancel"_s) : static_cast<QWidget*>(lstFiles_));
}

/// Only the thorough look takes its time.
void frm_InSimulator::look(CheckDepth depth) {
    const bool isLong = depth == CheckDepth::everyFile;
    SimulatorCheck check;
    reportFailures(session().user, morvaneError, [&] {
        if (isLong)
            session().user.showMessage(
                {MessageKind::progress, u"In the Simulator Now"_s,
                 u"Morvane is reading every file that it put or kept.  Please wait......."_s, false, false,
                 true});
        check = checkSimulator(session(), depth, isLong);
        if (isLong) session().user.hideMessage();
    });
    const QString looked = isLong ? u", all read at "_s : u", looked at "_s;
    lblLooked_->setText(session().FSPath.native() + looked +
                        session().clock.localTime().toString(u"hh:mm"_s));
    lblLooked_->setToolTip(lblLooked_->text());
    show(check);
}

void frm_InSimulator::show(const SimulatorCheck& check) {
    check_ = check;
    counts_[oursRow]->setCount(u"Ours and whole"_s, check.ours);
    counts_[ownRow]->setCount(u"Your own"_s, check.pilots);
    counts_[changedRow]->setCount(u"Changed by another program"_s, check.changed, check.changed > 0);
    counts_[missingRow]->setCount(u"Missing"_s, check.missing, check.missing > 0);
    const auto damaged = check.damagedKept.size();
    counts_[keptRow]->setCount(damaged ? u"Kept originals, %1 damaged"_s.arg(countText(damaged))
                                       : u"Kept originals, all whole"_s,
                               check.kept, damaged > 0);
    showParts();
    fillList();
}

void frm_InSimulator::showParts() {
    for (std::size_t row = 0; row < partRows; ++row) {
        const bool isThere = row < check_.installed.size();
        const InstalledPart part = isThere ? check_.installed[row] : InstalledPart();
        const auto& [kind, name, state, hair] = parts_[row];
        hair->setVisible(isThere);
        kind->setText(part.kind);
        name->setText(name->fontMetrics().elidedText(part.name, Qt::ElideRight, name->width()));
        name->setToolTip(part.name);
        state->setText(isThere ? part.stateText() : QString());
        state->setFont(fontOf(part.isWhole() || !isThere ? TextRole::sliderName : TextRole::total));
    }
}

/// A second click goes back to what differs.
void frm_InSimulator::pick(std::size_t row) {
    picked_ = picked_ == row ? std::nullopt : std::optional(row);
    fillList();
}

bool frm_InSimulator::isListed(const CheckedPlace& place) const {
    if (!picked_) return place.differs();
    switch (*picked_) {
    case oursRow:
        return place.state == PlaceState::ours || place.state == PlaceState::earlier;
    case ownRow:
        return place.state == PlaceState::pilots;
    case changedRow:
        return place.state == PlaceState::changed;
    case missingRow:
        return place.state == PlaceState::missing;
    default:
        return place.isKept;
    }
}

void frm_InSimulator::fillList() {
    for (std::size_t row = 0; row < countRows; ++row)
        counts_[row]->setChecked(picked_ == row);
    {
        const QSignalBlocker quiet(lstFiles_);
        lstFiles_->clearRows();
        for (const CheckedPlace& place : check_.places) {
            if (!isListed(place)) continue;
            const qsizetype end = place.path.lastIndexOf(u'\\');
            const QStringList texts{{},
                                    place.path.mid(end + 1),
                                    place.path.left(std::max<qsizetype>(end, 0)),
                                    happenedText(place),
                                    keptText(place)};
            lstFiles_->addRow({place.path, texts, texts});
        }
    }
    const bool hasRows = lstFiles_->rowCount() > 0;
    lstFiles_->setVisible(hasRows || picked_);
    chkAll_->setVisible(hasRows);
    lblNothing_->setVisible(!hasRows && !picked_);
    lblFiles_->setText(picked_ ? counts_[*picked_]->text() : hasRows ? u"Differences"_s : QString());
    showTicks();
}

void frm_InSimulator::showTicks() {
    const qsizetype ticked = lstFiles_->checkedKeys().size();
    const int rows = lstFiles_->rowCount();
    lblTicked_->setText(rows > 0 ? u"%1 of %2 ticked"_s.arg(countText(ticked), countText(rows)) : QString());
    chkAll_->setCheckState(ticked == 0 ? Qt::Unchecked : ticked == rows ? Qt::Checked : Qt::PartiallyChecked);
    for (const QString& key : {u"btn_Take"_s, u"btn_PutOurs"_s, u"btn_PutOwn"_s})
        button(key)->setState(ticked > 0 ? ButtonState::enabled : ButtonState::disabled);
}

void frm_InSimulator::settle(DifferenceChoice choice) {
    const auto report = settleDifferences(session(), choice, lstFiles_->checkedKeys());
    if (!report) return;
    look(CheckDepth::changedFiles);
    lblTicked_->setText(report->text);
    focusFirst();
}

} // namespace morvane
