#include "simulator/screens/options_screen.h"

#include "core/failure_report.h"
#include "core/flights_folder.h"
#include "core/session.h"
#include "sets/options_in_force.h"
#include "simulator/option_table.h"
#include "ui/controls/labels.h"
#include "ui/controls/palette.h"
#include "ui/controls/paper_style.h"

#include <QCheckBox>
#include <QPushButton>
#include <algorithm>

namespace morvane {

namespace {

constexpr int columns[] = {14, 306}, firstRow = 44, rowPitch = 115, deckTop = 388, pathWidth = 500;

/// Row by row, from the left.
std::vector<const SimulatorOption*> optionsOfPage() {
    std::vector<const SimulatorOption*> options;
    for (const SimulatorOption& option : simulatorOptions())
        options.push_back(&option);
    std::ranges::sort(options, {}, &SimulatorOption::place);
    return options;
}

QString text(const char16_t* characters) {
    return QString::fromUtf16(characters);
}

} // namespace

frm_Switcher::frm_Switcher(Shell& shellOfPages)
    : PageForm(shellOfPages, u"frm_Switcher"_s, u"page_colour.bmp"_s, Paper::Title::compact) {
    for (const SimulatorOption* option : optionsOfPage())
        addOption(*option);
    addFlightsFolder();
    addMoreSettings();
}

void frm_Switcher::addOption(const SimulatorOption& option) {
    const int left = columns[option.place % 2], top = firstRow + option.place / 2 * rowPitch;
    auto* box = new QCheckBox(text(option.caption), paper());
    box->setObjectName(text(option.box));
    box->setAccessibleName(text(option.caption));
    box->setAccessibleDescription(text(option.text));
    box->setFont(fontOf(TextRole::optionCaption));
    setCaptionOffset(*box, 23);
    box->setGeometry(left, top, 276, 18);
    makeLabel(paper(), text(option.text), {left, top + 18, 276, 92}, TextRole::longHelp)
        ->setObjectName(text(option.label));
    if (top + rowPitch < deckTop) makeHair(paper(), {left, top + 110, 276, 1});
    connect(box, &QCheckBox::toggled, this, [this, &option](bool isTicked) { takeOption(option, isTicked); });
    boxes_.emplace_back(&option, box);
}

void frm_Switcher::addFlightsFolder() {
    lblFSFilesPath_ =
        makeLabel(paper(), u"Saved flights/flight plans folder:  Click the checkmark to enter new path"_s,
                  {16, 396, pathWidth, 16}, TextRole::darkBody);
    lblFSFilesPath_->setObjectName(u"lblFSFilesPath"_s);
    lblFSFilesPathVal_ = makeLabel(paper(), {}, {16, 416, pathWidth, 18}, TextRole::darkTitle);
    lblFSFilesPathVal_->setObjectName(u"lblFSFilesPathVal"_s);
    addButton({ButtonFamily::StandardButton,
               u"btn_RegOK"_s,
               u"RegUpdate"_s,
               u"btn_CheckAll"_s,
               u"Click to enter new Flight Simulator Files directory path."_s,
               {534, 397}},
              paper());
}

void frm_Switcher::addMoreSettings() {
    auto* more = new QPushButton(u"More settings"_s, paper());
    more->setObjectName(u"cmdMoreSettings"_s);
    more->setToolTip(u"Click for the simulator's folder and the room on the disk."_s);
    more->setGeometry(482, 8, 100, 22);
    connect(more, &QPushButton::clicked, this,
            [this] { session().user.showModal(Screen::frm_MoreSettings); });
}

void frm_Switcher::formatSwitcherScreen() {
    markKey(u"switcher info"_s);
    paper()->setTitle(u"icon_Randomizer.bmp"_s, u"Morvane Configuration Page"_s);
    loadSwitcherValues();
}

void frm_Switcher::loadSwitcherValues() {
    SwitcherPopulating = true;
    for (const auto& [option, box] : boxes_)
        box->setChecked(session().state<OptionsInForce>().*option->flag);
    SwitcherPopulating = false;
    const bool isWideClient = session().state<OptionsInForce>().IsWideClient;
    lblFSFilesPath_->setVisible(!isWideClient);
    lblFSFilesPathVal_->setVisible(!isWideClient);
    button(u"btn_RegOK"_s)->setState(isWideClient ? ButtonState::disabled : ButtonState::enabled);
    const QString path = isWideClient ? QString() : usersFlightsFolder(session());
    lblFSFilesPathVal_->setAccessibleName(path);
    lblFSFilesPathVal_->setText(
        lblFSFilesPathVal_->fontMetrics().elidedText(path, Qt::ElideMiddle, pathWidth));
}

/// After a failure, and when another program writes, the boxes say what is in force.
void frm_Switcher::takeOption(const SimulatorOption& option, bool isTicked) {
    if (SwitcherPopulating) return;
    bool isTaken = false;
    const bool isDone =
        reportFailures(session().user, morvaneError, [&] { isTaken = option.set(session(), isTicked); });
    if (isDone && !isTaken)
        clearBox(option);
    else if (session().state<OptionsInForce>().*option.flag != isTicked)
        loadSwitcherValues();
}

/// Clearing a box is a click like any other to its handler, so that its refusal is told twice: wanted.
void frm_Switcher::clearBox(const SimulatorOption& option) {
    session().StartingUp = true;
    findChild<QCheckBox*>(text(option.box))->setChecked(false);
    session().StartingUp = false;
}

} // namespace morvane
