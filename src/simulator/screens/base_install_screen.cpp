#include "simulator/screens/base_install_screen.h"

#include "core/failure_report.h"
#include "core/session.h"
#include "sets/simulator_copy.h"
#include "simulator/base_install.h"
#include "simulator/base_install_rows.h"
#include "simulator/simulator_restore.h"
#include "simulator/stock_requests.h"
#include "ui/controls/labels.h"
#include "ui/controls/picture_frame.h"
#include "ui/controls/set_table.h"
#include "ui/skin.h"

#include <QPushButton>

namespace morvane {

namespace {

constexpr int keyRow = 397;

/// Nothing for a title that no row has.
std::shared_ptr<const clsConfig> configOf(const Session& session, const QString& title) {
    const auto& configs = session.state<std::unique_ptr<clsConfigs>>();
    if (!configs) return nullptr;
    for (const auto& config : *configs)
        if (config->ConfigName == title) return config;
    return nullptr;
}

} // namespace

frm_Config::frm_Config(Shell& shellOfPages)
    : PageForm(shellOfPages, u"frm_Config"_s, u"page_plain.bmp"_s), lstMVMain_(new SetTable(paper())),
      picPreview_(new PictureFrame(paper())) {
    lstMVMain_->setObjectName(u"lstMVMain"_s);
    lstMVMain_->setAccessibleName(u"Textures to install"_s);
    lstMVMain_->setGeometry(14, 130, 330, 192);
    lstMVMain_->setColumns({{u"Texture Name"_s, 312}}, true);
    connect(lstMVMain_, &SetTable::rowClicked, this, &frm_Config::showRow);
    picPreview_->setObjectName(u"picPreview"_s);
    picPreview_->setAccessibleName(u"Preview"_s);
    picPreview_->placePicture({353, 131, 228, 138});
    addTexts();
    addStockButtons();
    addKeys();
}

void frm_Config::addTexts() {
    makeLabel(
        paper(),
        u"This screen is to enable you to install Morvane default textures into Flight Simulator. Click the "
        "check boxes of the texture types you would like to install and then click the 'Save and Install' "
        "button.  To create another backup click on the 'Backup' button and the texture files from Flight "
        "Simulator will be copied to a backup folder in Morvane.  You can reinstall any of the backups at "
        "any time by clicking the 'Restore Backup' button. This will give you a list of backups on your "
        "system and show the date that that backup occurred so you can revert to a date of your choice.  "_s,
        {14, 46, 568, 78}, TextRole::longHelp)
        ->setObjectName(u"lbl_ConfigDesc"_s);
    lblMVDescription_ = makeLabel(paper(), {}, {352, 284, 230, 38}, TextRole::body);
    lblMVDescription_->setObjectName(u"lblMVDescription"_s);
}

void frm_Config::addStockButtons() {
    makeHair(paper(), {14, 330, 568, 1});
    lblStock_ = makeLabel(paper(), {}, {14, 335, 380, 15}, TextRole::fieldCaption);
    lblStock_->setObjectName(u"lblStock"_s);
    const auto add = [&](const QString& name, const QString& text, const QString& tip, const QRect& place) {
        auto* button = new QPushButton(text, paper());
        button->setObjectName(name);
        button->setAccessibleName(text);
        button->setToolTip(tip);
        button->setGeometry(place);
        return button;
    };
    auto* useSimulator =
        add(u"cmdUseSimulator"_s, u"Use my simulator's textures"_s,
            u"Click to make your new texture sets from the textures of your own simulator."_s,
            {14, 352, 166, 26});
    cmdUseDelivered_ = add(u"cmdUseDelivered"_s, u"Use the delivered base images again"_s,
                           u"Click to make your new texture sets from the textures that came with Morvane."_s,
                           {186, 352, 212, 26});
    makeHair(paper(), {404, 335, 1, 43});
    makeLabel(paper(), u"In the simulator"_s, {414, 335, 168, 15}, TextRole::fieldCaption);
    cmdPutOwnBack_ = add(u"cmdPutOwnBack"_s, u"Put my own textures back"_s,
                         u"Click to give the simulator back as it was before Morvane's first copy."_s,
                         {414, 352, 168, 26});
    connect(cmdPutOwnBack_, &QPushButton::clicked, this, [this] {
        askRestoreOriginals(session());
        showStock();
    });
    connect(useSimulator, &QPushButton::clicked, this, [this] {
        importSimulatorStock(session());
        showStock();
    });
    connect(cmdUseDelivered_, &QPushButton::clicked, this, [this] {
        restoreStock(session());
        showStock();
    });
}

void frm_Config::addKeys() {
    const auto add = [this](const QString& name, const QString& key, const QString& picture,
                            const QString& tip, const QString& caption, int left) {
        addButton({ButtonFamily::LargeButton, name, key, picture, tip, {left, keyRow}, caption}, paper());
    };
    add(u"btn_MVInstall"_s, u"mvinstall"_s, u"btn_Save"_s, u"Click to process your Morvane settings."_s,
        u"Save and\nInstall"_s, 27);
    add(u"btn_backup"_s, u"backup"_s, u"btn_Backup"_s, u"Click to backup your base Flight Simulator Flies."_s,
        u"Backup"_s, 165);
    add(u"btn_Restore_Backup"_s, u"restore"_s, u"btn_Restore_Backup"_s,
        u"Click to restore your base Flight Simulator Flies."_s, u"Restore\nBackup"_s, 303);
    add(u"btn_Update"_s, u"update"_s, u"btn_Update"_s, u"Click to check for updates to Morvane."_s,
        u"Update"_s, 441);
}

void frm_Config::format() {
    markKey(u"mv config"_s);
    paper()->setTitle(u"icon_Config.bmp"_s, u"Main Morvane Base Install Page"_s);
    picPreview_->setPicture(skin().picture(u"MV_Day.bmp"_s).toImage());
    fillRows();
    showStock();
}

void frm_Config::showStock() {
    bool isImported = false;
    reportFailures(session().user, morvaneError, [&] { isImported = hasKeptStock(session()); });
    lblStock_->setText(isImported ? u"New sets are made from my simulator's textures"_s
                                  : u"New sets are made from the delivered textures"_s);
    cmdUseDelivered_->setEnabled(isImported);
    bool isAnythingKept = false;
    reportFailures(session().user, morvaneError,
                   [&] { isAnythingKept = !originalsOf(session()).records().all().isEmpty(); });
    cmdPutOwnBack_->setEnabled(isAnythingKept);
}

void frm_Config::fillRows() {
    lstMVMain_->clearRows();
    if (!clsConfigs::reload(session())) {
        session().user.showMessage(
            {MessageKind::error, u"Morvane Error"_s,
             u"Morvane configuration cannot be loaded. Please restart Morvane.  If this "
             "problem pesists please contact MV support"_s});
        return;
    }
    for (const auto& config : *session().rows<clsConfigs>())
        lstMVMain_->addRow({config->ConfigName, {config->ConfigName}, {}});
    lstMVMain_->selectRow(1);
    showDescription(lstMVMain_->keyOf(1));
}

void frm_Config::showDescription(const QString& title) {
    const auto config = configOf(session(), title);
    lblMVDescription_->setText(config ? config->ConfigDescription : QString());
}

void frm_Config::showRow(const QString& title) {
    showDescription(title);
    if (const auto config = configOf(session(), title))
        picPreview_->setPicture(skin().picture(config->ConfigImageName).toImage());
}

void frm_Config::install() {
    copyBaseResources(session(), lstMVMain_->checkedNames());
}

} // namespace morvane
