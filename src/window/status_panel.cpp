#include "window/status_panel.h"

#include "core/failure_report.h"
#include "core/flag_text.h"
#include "core/session.h"
#include "core/store_records.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "night/night_texture_sets.h"
#include "sets/cloud_cover.h"
#include "sets/options_in_force.h"
#include "simulator/backups.h"
#include "simulator/base_install_rows.h"
#include "sky/sky_texture_sets.h"
#include "ui/controls/labels.h"
#include "ui/skin.h"

#include <QLabel>

namespace morvane {

namespace {

constexpr int left = 14, rightColumn = 326, nameColumn = 382, rightEdge = 582;
constexpr int firstRow = 87, rowPitch = 22, totalRow = 197, rowHeight = 20;
constexpr int firstBaseRow = 212, baseRowPitch = 23;

/// Sky and ground sets alike: what counts is the exact word "True".
template <class Sets, class Name, class Activated>
SetSummary summaryOf(const Sets& sets, Name name, Activated activation) {
    SetSummary summary;
    for (const auto& set : sets) {
        if (set->Installed) {
            summary.installedName = (*set).*name;
            summary.installedCover = set->CloudCover;
        }
        const CloudCover* cover = cloudCover(set->CloudCover);
        if (!cover) continue;
        SetCount& count = summary.covers[static_cast<std::size_t>(cover->number - 1)];
        const int activated = (*set).*activation == flagText(true);
        ++count.total;
        ++summary.all.total;
        count.activated += activated;
        summary.all.activated += activated;
    }
    return summary;
}

} // namespace

StatusPanel::StatusPanel(Form& form) : Paper(form, u"page_status.bmp"_s), form_(form) {
    addHeadings();
    ground_ = addSetLabels(u"Ground"_s, u"lblCurrentTSName"_s, 180, 220, 75, 228);
    sky_ = addSetLabels(u"Sky"_s, u"lblCurrentSTSName"_s, 264, 304, 115, 282);
    lblCurrentNightTSName_ =
        addLabel(u"lblCurrentNightTSName"_s, {nameColumn, 155, 200, 16}, TextRole::value);
    lblWideFS_ = addLabel(u"lblWideFS"_s, {left, 336, 290, 32}, TextRole::body);
    lblWideFS_->setText(
        u"This PC is set as a WideClient. This status can be changed in the configuration screen."_s);
    addBaseRows();
}

QLabel* StatusPanel::addLabel(const QString& name, const QRect& place, TextRole role, bool toTheRight) {
    QLabel* label = makeLabel(this, {}, place, role);
    label->setObjectName(name);
    if (toTheRight) label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

void StatusPanel::addHeadings() {
    makeLabel(this, u"TEXTURE SETS"_s, {left, 53, 110, 14}, TextRole::sectionHeading);
    makeLabel(this, u"Cloud cover"_s, {left, 70, 100, 14}, TextRole::fieldCaption);
    makeLabel(this, u"IN THE SIMULATOR NOW"_s, {rightColumn, 53, 256, 14}, TextRole::sectionHeading);
    makeLabel(this, u"BASE TEXTURES"_s, {rightColumn, 190, 256, 14}, TextRole::sectionHeading);
    const std::pair<const char16_t*, int> kinds[] = {{u"Ground", 75}, {u"Sky", 115}, {u"Night", 155}};
    for (const auto& [kind, top] : kinds)
        makeLabel(this, QString::fromUtf16(kind), {rightColumn, top, 54, 16}, TextRole::body);
    for (int i = 0; i < cloudCoverCount; ++i) {
        const CloudCover& cover = cloudCovers()[i];
        auto* disc = new SkinSign(form_.skin(), this);
        disc->showSign(u"cover_"_s + cover.tag.mid(2, 3).toLower() + u".bmp"_s);
        disc->setGeometry(left + 2, firstRow + i * rowPitch + 5, 12, 12);
        makeLabel(this, cover.word + cover.tag, {left + 20, firstRow + i * rowPitch + 1, 136, rowHeight},
                  TextRole::body)
            ->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    }
    makeLabel(this, u"Total"_s, {left + 20, totalRow + 1, 120, rowHeight}, TextRole::total)
        ->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

StatusPanel::SetLabels StatusPanel::addSetLabels(const QString& word, const QString& installedName,
                                                 int totalsAt, int activeAt, int installedTop,
                                                 int summaryTop) {
    const auto number = [&](const QString& name, int right, int top, TextRole role) {
        return addLabel(u"lbl"_s + word + name, {right - 34, top, 34, rowHeight}, role, true);
    };
    makeLabel(this, word, {totalsAt - 24, 53, 64, 14}, TextRole::fieldCaption)->setAlignment(Qt::AlignCenter);
    makeLabel(this, u"Sets"_s, {totalsAt - 34, 70, 34, 14}, TextRole::fieldCaption)
        ->setAlignment(Qt::AlignRight);
    makeLabel(this, u"Active"_s, {activeAt - 36, 70, 36, 14}, TextRole::fieldCaption)
        ->setAlignment(Qt::AlignRight);
    SetLabels labels{};
    const QString codes[] = {u"Skc"_s, u"Few"_s, u"Sct"_s, u"Bkn"_s, u"Ovc"_s};
    for (int i = 0; i < cloudCoverCount; ++i) {
        const int top = firstRow + i * rowPitch + 1;
        const auto at = static_cast<std::size_t>(i);
        labels.totals[at] = number(codes[i] + u"Value"_s, totalsAt, top, TextRole::body);
        labels.activated[at] = number(codes[i] + u"ActivatedValue"_s, activeAt, top, TextRole::total);
    }
    labels.total = number(u"TotalValue"_s, totalsAt, totalRow + 1, TextRole::total);
    labels.activatedTotal = number(u"ActivatedValue"_s, activeAt, totalRow + 1, TextRole::total);
    labels.installed = addLabel(installedName, {nameColumn, installedTop, 200, 16}, TextRole::value);
    labels.cover =
        addLabel(u"lbl"_s + word + u"CloudValue"_s, {nameColumn, installedTop + 16, 200, 16}, TextRole::body);
    labels.summary =
        addLabel(u"lbl"_s + word + u"TextureSets"_s, {left, summaryTop, 290, 48}, TextRole::body);
    return labels;
}

void StatusPanel::addBaseRows() {
    const std::pair<const char16_t*, const char16_t*> rows[] = {
        {u"Global Coverage - Day", u"lblGlobalDayInstalled"},
        {u"Global Coverage - Night", u"lblGlobalNightInstalled"},
        {u"UT Golf Courses and Parks Europe", u"lblUTGolfInstalled"},
        {u"UT Industrial Areas", u"lblUTIndInstalled"},
    };
    int top = firstBaseRow;
    for (std::size_t i = 0; i < installed_.size(); ++i, top += baseRowPitch) {
        makeLabel(this, QString::fromUtf16(rows[i].first), {rightColumn, top, 190, 16}, TextRole::body);
        installed_[i] =
            addLabel(QString::fromUtf16(rows[i].second), {rightEdge - 76, top, 76, 16}, TextRole::body, true);
    }
    makeLabel(this, u"Last backup"_s, {rightColumn, 308, 78, 16}, TextRole::body);
    lblBackupValue_ = addLabel(u"lblBackupValue"_s, {406, 308, 176, 16}, TextRole::value, true);
}

void StatusPanel::refreshMainStatus() {
    const FailureReport report{};
    Session& session = form_.session();
    lblWideFS_->setVisible(session.state<OptionsInForce>().IsWideClient);
    if (!hasStore(session)) return;
    UserInterface& user = session.user;
    reportFailures(user, report, [this] { refreshInstalledItems(); });
    reportFailures(user, report, [this] { refreshGround(); });
    reportFailures(user, report, [this] { refreshSky(); });
}

void StatusPanel::refreshInstalledItems() {
    Session& session = form_.session();
    if (!session.rows<clsConfigs>() && !clsConfigs::reload(session)) return;
    for (const auto& config : *session.rows<clsConfigs>()) {
        if (config->ConfigID < 1 || config->ConfigID > 4) continue;
        QLabel* label = installed_[static_cast<std::size_t>(config->ConfigID - 1)];
        label->setText(config->ConfigInstalled ? u"Installed"_s : u"Not Installed"_s);
        label->setFont(fontOf(config->ConfigInstalled ? TextRole::value : TextRole::body));
    }
    if (!clsBackups::reload(session)) return;
    const clsBackups& backups = *session.rows<clsBackups>();
    lblBackupValue_->setText(backups.Count() == 0 ? u"No backups created yet"_s
                                                  : dayText(backups.Item(backups.Count())->BackupDateTime,
                                                            u"yyyy/MM/dd hh:mm:ss"_s));
}

void StatusPanel::fill(const SetLabels& labels, const SetSummary& summary) {
    for (std::size_t i = 0; i < labels.totals.size(); ++i) {
        labels.totals[i]->setNum(summary.covers[i].total);
        labels.activated[i]->setNum(summary.covers[i].activated);
    }
    labels.total->setNum(summary.all.total);
    labels.activatedTotal->setNum(summary.all.activated);
    labels.installed->setText(summary.installedName);
    labels.cover->setText(summary.installedCover);
    labels.summary->setText(u"Currently you have "_s + QString::number(summary.all.activated) +
                            u" sets active and the more sets you create for each cloud type (weather "
                            "condition) the more variety you will enjoy in game"_s);
}

void StatusPanel::refreshGround() {
    Session& session = form_.session();
    if (!refreshGroundSets(session)) return;
    fill(ground_,
         summaryOf(*session.rows<clsTextureSets>(), &clsTextureSet::TextureSet, &clsTextureSet::Actvated));
    if (!clsNightTextureSets::reload(session)) return;
    QString night;
    for (const auto& set : *session.rows<clsNightTextureSets>())
        if (set->Installed) night = set->TextureSet;
    lblCurrentNightTSName_->setText(night);
}

void StatusPanel::refreshSky() {
    Session& session = form_.session();
    if (!clsSkyTextureSets::reload(session)) return;
    fill(sky_, summaryOf(*session.rows<clsSkyTextureSets>(), &clsSkyTextureSet::SkyTextureSet,
                         &clsSkyTextureSet::Activated));
}

} // namespace morvane
