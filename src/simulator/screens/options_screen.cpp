#include "simulator/screens/options_screen.h"

#include "core/failure_report.h"
#include "core/flights_folder.h"
#include "core/session.h"
#include "sets/options_in_force.h"
#include "simulator/options.h"
#include "simulator/texture_switches.h"
#include "ui/controls/labels.h"
#include "ui/controls/palette.h"
#include "ui/controls/paper_style.h"

#include <QCheckBox>

namespace morvane {

namespace {

constexpr int columns[] = {14, 306}, firstRow = 44, rowPitch = 115, deckTop = 388, pathWidth = 500;

/// An option that cannot be refused.
template <void (*set)(Session&, bool)>
bool always(Session& session, bool isTicked) {
    set(session, isTicked);
    return true;
}

} // namespace

struct frm_Switcher::Option {
    QString box, caption, label, text;
    bool OptionsInForce::*flag;
    bool (*take)(Session&, bool); ///< false: the box may not be ticked
};

/// Row by row, from the left.
const std::vector<frm_Switcher::Option>& frm_Switcher::options() {
    static const std::vector<Option> table{
        {u"chkWideFS"_s, u"This PC is a WideClient"_s, u"lblWideClient"_s,
         u"If you are a WideFS user and Morvane is installed on the WideClient PC then ensure the above "
         "checkbox is selected to prevent Morvane from attempting to start FS9.  If this is a "
         "WideServer/Stand Alone installation please remove the checkmark to allow Morvane to start FS9 when "
         "required."_s,
         &OptionsInForce::IsWideClient, always<setSideFSVal>},
        {u"chkDutch"_s, u"Use Dutch rural textures"_s, u"lblDutch"_s,
         u"Morvane now includes specially designed Dutch rural textures. These texures depict Dutch style "
         "crops and rural areas over Europe.  Select the above checkbox to specify these Dutch textures as "
         "your prefered rural textures for Europe.  This functionality can be reversed by removing the "
         "checkmark from the checkbox."_s,
         &OptionsInForce::IsDutch, switchDutch},
        {u"chkNonTropical"_s, u"Use tropical dawn/dusk blending"_s, u"lblTropical"_s,
         u"This controls whether custom tropical textures are installed.  If you wish to fly at night and "
         "wish to have correctly aligned autogen over tropical regions you should select this option.  To "
         "view custom tropical textures during the day you should uncheck this option."_s,
         &OptionsInForce::IsTropical, switchTropical},
        {u"chkHalo"_s, u"Use customized halo"_s, u"lblHalo"_s,
         u"Select this option if you wish Morvane to install a custom halo.bmp.  This file will customize "
         "the look of aircraft and airport lighting.  You can revert to the default halo.bmp at any time by "
         "removing the checkmark from the above checkbox."_s,
         &OptionsInForce::IsHalo, always<switchHalo>},
        {u"chkFastExit"_s, u"FastExit Enabled"_s, u"lblFastExit"_s,
         u"This controls whether the dialog screen asking whether you wish to install default texture sets "
         u"on "
         "exiting Morvane is shown.  Place a check in the above checkbox if you do not wish to see this "
         "screen in the future.  This functionality can be reversed by removing the checkmark from the "
         "checkbox."_s,
         &OptionsInForce::IsFastExit, always<switchFastExit>},
        {u"chkCustomSplash"_s, u"Inhibit FS splash"_s, u"lblInhibitFSSplash"_s,
         u"This controls whether or not Morvane installs custom splash screens which indicate the cloud "
         "cover of the currently installed texture set.  To inhibit this functionality place a check in the "
         "above checkbox."_s,
         &OptionsInForce::InhibitCustomSplash, always<setCustomSplashVal>},
    };
    return table;
}

frm_Switcher::frm_Switcher(Shell& shellOfPages)
    : PageForm(shellOfPages, u"frm_Switcher"_s, u"page_colour.bmp"_s, Paper::Title::compact) {
    for (const Option& option : options())
        addOption(option);
    addFlightsFolder();
}

void frm_Switcher::addOption(const Option& option) {
    const int place = static_cast<int>(boxes_.size());
    const int left = columns[place % 2], top = firstRow + place / 2 * rowPitch;
    auto* box = new QCheckBox(option.caption, paper());
    box->setObjectName(option.box);
    box->setAccessibleName(option.caption);
    box->setAccessibleDescription(option.text);
    box->setFont(fontOf(TextRole::optionCaption));
    setCaptionOffset(*box, 23);
    box->setGeometry(left, top, 276, 18);
    makeLabel(paper(), option.text, {left, top + 18, 276, 92}, TextRole::longHelp)
        ->setObjectName(option.label);
    if (top + rowPitch < deckTop) makeHair(paper(), {left, top + 110, 276, 1});
    connect(box, &QCheckBox::toggled, this, [this, &option](bool isTicked) { takeOption(option, isTicked); });
    boxes_.push_back(box);
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

void frm_Switcher::formatSwitcherScreen() {
    markKey(u"switcher info"_s);
    paper()->setTitle(u"icon_Randomizer.bmp"_s, u"Morvane Configuration Page"_s);
    loadSwitcherValues();
}

void frm_Switcher::loadSwitcherValues() {
    SwitcherPopulating = true;
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        boxes_[i]->setChecked(session().state<OptionsInForce>().*options()[i].flag);
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
void frm_Switcher::takeOption(const Option& option, bool isTicked) {
    if (SwitcherPopulating) return;
    bool isTaken = false;
    const bool isDone =
        reportFailures(session().user, {}, [&] { isTaken = option.take(session(), isTicked); });
    if (isDone && !isTaken)
        clearBox(option);
    else if (session().state<OptionsInForce>().*option.flag != isTicked)
        loadSwitcherValues();
}

/// Clearing a box is a click like any other to its handler, so that its refusal is told twice: wanted.
void frm_Switcher::clearBox(const Option& option) {
    session().StartingUp = true;
    findChild<QCheckBox*>(option.box)->setChecked(false);
    session().StartingUp = false;
}

} // namespace morvane
