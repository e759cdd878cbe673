#include "simulator/simulator_check.h"

#include "core/numbers.h"
#include "sets/options_in_force.h"
#include "sets/set_names.h"
#include "sets/simulator_copy.h"
#include "sets/stored_rows.h"
#include "simulator/base_install_rows.h"
#include "simulator/installed_rows.h"

#include <algorithm>

namespace morvane {

namespace {

/// A part of what is installed and the folders below the install that its files come from.
struct PartSource {
    InstalledPart part;
    QStringList folders;
};

QString setFolderOf(const char16_t* sets, const QString& name) {
    return QString::fromUtf16(sets) + u'\\' + name;
}

PartSource groundPart(const QString& name) {
    if (name == defaultSetName)
        return {{u"Ground"_s, name}, {u"GENERIC WORLD"_s, u"UT EUROPE"_s, u"UTIND"_s, u"DUTCH"_s}};
    return {{u"Ground"_s, name}, {setFolderOf(u"Texture Sets", name)}};
}

PartSource nightPart(const QString& name) {
    if (name == defaultSetName) return {{u"Night"_s, name}, {u"GENERIC WORLD NIGHT"_s, u"DUTCH NIGHT"_s}};
    return {{u"Night"_s, name}, {setFolderOf(u"Night Texture Sets", name)}};
}

PartSource basePart(Session& session) {
    PartSource base{{.kind = u"Base"_s, .name = installedBodies(session).join(u", "_s), .mayBeCovered = true},
                    {}};
    for (const auto& body : loadedCollection(session, session.rows<clsConfigs>()))
        if (body->ConfigInstalled) base.folders << body->ConfigMVFolder;
    return base;
}

PartSource optionsPart(const Session& session) {
    const auto& options = session.state<OptionsInForce>();
    PartSource part{{.kind = u"Options"_s, .name = {}, .mayBeCovered = true}, {}};
    QStringList names;
    if (options.IsHalo) names << u"Customized halo"_s;
    if (options.IsDutch) names << u"Dutch rural textures"_s;
    if (options.IsTropical) names << u"Tropical blending"_s;
    part.part.name = names.join(u", "_s);
    part.folders << u"Media"_s;
    return part;
}

std::vector<PartSource> installedParts(Session& session) {
    std::vector<PartSource> parts;
    if (const QString name = installedGround(session); !name.isEmpty()) parts.push_back(groundPart(name));
    if (const QString name = installedSky(session); !name.isEmpty())
        parts.push_back({{u"Sky"_s, name}, {setFolderOf(u"Sky Texture Sets", name)}});
    if (const QString name = installedNight(session); !name.isEmpty()) parts.push_back(nightPart(name));
    parts.push_back(basePart(session));
    parts.push_back(optionsPart(session));
    std::erase_if(parts, [](const PartSource& source) { return source.part.name.isEmpty(); });
    return parts;
}

bool isBelow(const QString& path, const QStringList& folders) {
    return std::ranges::any_of(
        folders, [&](const QString& folder) { return path.startsWith(folder + u'\\', Qt::CaseInsensitive); });
}

void countIn(InstalledPart& part, PlaceState state) {
    part.whole += state == PlaceState::ours;
    part.notThere +=
        state == PlaceState::earlier || state == PlaceState::pilots || state == PlaceState::empty;
    part.changed += state == PlaceState::changed;
    part.missing += state == PlaceState::missing;
}

void countIn(SimulatorCheck& check, const CheckedPlace& place) {
    check.ours += place.state == PlaceState::ours || place.state == PlaceState::earlier;
    check.pilots += place.state == PlaceState::pilots;
    check.changed += place.state == PlaceState::changed;
    check.missing += place.state == PlaceState::missing;
    check.kept += place.isKept;
    if (place.isKept && !place.isKeptSound) check.damagedKept << place.path;
}

} // namespace

QString InstalledPart::stateText() const {
    QStringList texts;
    for (const auto& [count, word] : {std::pair(changed, u" changed"), std::pair(missing, u" missing"),
                                      std::pair(notThere, u" not there")})
        if (count > 0) texts << countText(count) + QString::fromUtf16(word);
    if (!texts.isEmpty()) return texts.join(u", "_s);
    if (whole > 0) return u"whole"_s;
    return mayBeCovered ? u"under the sets"_s : u"not there"_s;
}

std::vector<CheckedPlace> SimulatorCheck::differences() const {
    std::vector<CheckedPlace> found;
    std::ranges::copy_if(places, std::back_inserter(found), &CheckedPlace::differs);
    return found;
}

bool SimulatorCheck::isAsLeft() const {
    return changed + missing == 0 && damagedKept.isEmpty() &&
           std::ranges::all_of(installed, &InstalledPart::isWhole);
}

QString SimulatorCheck::text() const {
    const auto line = [](const QString& what, const QString& state) {
        return what.leftJustified(32) + state + u'\n';
    };
    QString lines = line(u"Ours and whole"_s, countText(ours)) + line(u"Your own"_s, countText(pilots)) +
                    line(u"Changed by another program"_s, countText(changed)) +
                    line(u"Missing"_s, countText(missing)) + line(u"Kept originals"_s, countText(kept)) +
                    line(u"Damaged of these"_s, countText(damagedKept.size()));
    for (const InstalledPart& part : installed)
        lines += line(part.kind + u' ' + part.name, part.stateText());
    for (const CheckedPlace& place : differences())
        lines += (place.state == PlaceState::missing ? u"missing  "_s : u"changed  "_s) + place.path + u'\n';
    for (const QString& path : damagedKept)
        lines += u"damaged  kept original of "_s + path + u'\n';
    return lines;
}

SimulatorCheck checkSimulator(Session& session, CheckDepth depth, bool tellsProgress) {
    SimulatorCheck check;
    check.places = originalsOf(session).check(depth, [&](double part) {
        if (tellsProgress) session.user.updateProgress({}, {}, 100 * part);
        if (isWorkCancelled(session)) throw Error(ErrorCode::interrupted);
    });
    for (const CheckedPlace& place : check.places)
        countIn(check, place);
    for (PartSource& source : installedParts(session)) {
        for (const CheckedPlace& place : check.places)
            if (isBelow(place.where, source.folders)) countIn(source.part, place.state);
        check.installed.push_back(source.part);
    }
    return check;
}

} // namespace morvane
