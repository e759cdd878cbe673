#include "simulator/texture_switches.h"

#include "core/failure_report.h"
#include "core/job.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "ground/tropical_files.h"
#include "night/night_sets.h"
#include "night/night_texture_sets.h"
#include "sets/options_in_force.h"
#include "sets/set_names.h"
#include "sets/simulator_copy.h"
#include "sets/simulator_note.h"
#include "sets/undo_step.h"
#include "simulator/installed_rows.h"
#include "simulator/option_table.h"
#include "simulator/options.h"

namespace morvane {

namespace {

FilePath worldTarget(const Session& session) {
    return session.FSPath / u"Scenery\\WORLD\\Texture";
}

/// The base folder for "Default", else the set's. Without an installed set this is a folder that no set has.
FilePath sourceFolder(const Session& session, const char16_t* baseFolder, const char16_t* sets,
                      const QString& name, const char16_t* subfolder) {
    if (name == defaultSetName) return session.AppPath / baseFolder;
    const FilePath folder = session.AppPath / sets;
    return (name.isEmpty() ? folder : folder.child(name)) / subfolder;
}

/// Reads them anew on the way: what is installed may have changed since they were loaded.
bool hasGroundSets(Session& session) {
    if (!refreshGroundSets(session)) return false;
    if (session.rows<clsTextureSets>()->Count() > 0) return true;
    session.user.showMessage({MessageKind::exclamation, u"No Texture Sets Installed"_s,
                              u"There are no texture sets installed.  You must have at least one texture set "
                              "installed to use this function."_s});
    return false;
}

std::vector<FileCopy> dutchOnCopies(Session& session, const FilePath& ground, const FilePath& night) {
    std::vector<FileCopy> copies;
    const auto add = [&](const FilePath& folder, const QString& mask) {
        addFolderFiles(session, folder, mask, worldTarget(session), copies);
    };
    add(ground, u"*.bmp"_s);
    add(session.AppPath / u"DUTCH", u"*an*.agn"_s);
    add(night, u"*.bmp"_s);
    add(session.AppPath / u"DUTCH NIGHT", u"*an*.agn"_s);
    return copies;
}

/// Appends the two variants that have a Dutch form, each with its annotation files.
void addGenericVariants(Session& session, const FilePath& source, const FilePath& annotations,
                        std::vector<FileCopy>& copies) {
    for (const QString& variant : {u"005a2"_s, u"008a2"_s}) {
        addFolderFiles(session, source, variant + u"*.bmp"_s, worldTarget(session), copies);
        addFolderFiles(session, annotations, variant + u"an*.agn"_s, worldTarget(session), copies);
    }
}

void copyOverExisting(Session& session, const std::vector<FileCopy>& copies) {
    SimulatorCopier copier(session);
    copier.prepare(copies);
    const double step = 100.0 / static_cast<double>(copies.size() + 2);
    double position = 0;
    for (const FileCopy& copy : copies) {
        // The look at its attributes has always failed for a missing file: what a simulator has not, the
        // switches do not bring. Wanted.
        if (!copier.isThere(copy)) throw Error(ErrorCode::fileNotFound, copy.target.text());
        copier.copyOverReadOnly(copy);
        session.user.updateProgress({}, {}, position += step);
    }
    copier.finish();
}

} // namespace

std::vector<FileCopy> dutchCopies(Session& session, bool isOn, const QString& groundName,
                                  const QString& nightName) {
    const char16_t *grounds = u"Texture Sets", *nights = u"Night Texture Sets";
    if (isOn)
        return dutchOnCopies(session, sourceFolder(session, u"DUTCH", grounds, groundName, u"Dutch"),
                             sourceFolder(session, u"DUTCH NIGHT", nights, nightName, u"Dutch"));
    std::vector<FileCopy> copies;
    addGenericVariants(session, sourceFolder(session, u"GENERIC WORLD", grounds, groundName, u"Texture"),
                       session.AppPath / u"GENERIC WORLD", copies);
    // The night's "generic" files are the Dutch ones for "Default", and the annotations always: wanted, the
    // option has always done so.
    addGenericVariants(session, sourceFolder(session, u"DUTCH NIGHT", nights, nightName, u"Texture"),
                       session.AppPath / u"DUTCH NIGHT", copies);
    return copies;
}

std::vector<FileCopy> tropicalCopies(Session& session, bool isOn, const QString& groundName) {
    std::vector<FileCopy> copies;
    if (groundName.isEmpty()) return copies;
    for (const FilePath& file :
         tropicalFiles(session, isOn ? TropicalForm::b : TropicalForm::h, groundName)) {
        // Lower case on this way only: wanted, an install keeps the letters as they are.
        const QString name = isOn ? tropicalName(file.fileName().toLower()) : file.fileName();
        copies.push_back({file, worldTarget(session).child(name)});
    }
    return copies;
}

void copyWithProgress(Session& session, const std::vector<FileCopy>& copies) {
    if (!copies.empty()) {
        session.user.showMessage(
            {MessageKind::progress, u"File Copy"_s,
             u"Copying the textures into Flight Simulator.  This may take a few moments. "
             "Please wait......."_s,
             false, false, true});
        copyOverExisting(session, copies);
    }
    session.user.updateProgress({}, {}, 100);
    session.user.hideMessage();
}

void dutchTexturesOn(Session& session, const QString& groundName, const QString& nightName) {
    reportFailures(session.user, morvaneError,
                   [&] { copyWithProgress(session, dutchCopies(session, true, groundName, nightName)); });
}

void dutchTexturesOff(Session& session, const QString& groundName, const QString& nightName) {
    reportFailures(session.user, morvaneError,
                   [&] { copyWithProgress(session, dutchCopies(session, false, groundName, nightName)); });
}

void tropicalTextures(Session& session, bool isOn, const QString& groundName) {
    copyWithProgress(session, tropicalCopies(session, isOn, groundName));
}

bool switchDutch(Session& session, bool isOn) {
    Job job(session, u"option for the Netherlands"_s);
    if (!job || !claimSimulator(session)) throw Error(ErrorCode::interrupted);
    if (!hasGroundSets(session)) return session.state<OptionsInForce>().IsDutch = false;
    UndoStep step(session);
    step.add(optionPart(&OptionsInForce::IsDutch, isOn));
    session.state<OptionsInForce>().IsDutch = isOn;
    const auto copyTextures = isOn ? dutchTexturesOn : dutchTexturesOff;
    copyTextures(session, installedGround(session), installedNight(session));
    storeSwitch(session, &OptionsInForce::IsDutch, isOn);
    return true;
}

bool switchTropical(Session& session, bool isOn) {
    Job job(session, u"option for the tropics"_s);
    if (!job || !claimSimulator(session)) throw Error(ErrorCode::interrupted);
    if (!hasGroundSets(session)) return session.state<OptionsInForce>().IsTropical = false;
    UndoStep step(session);
    step.add(optionPart(&OptionsInForce::IsTropical, isOn));
    tropicalTextures(session, isOn, installedGround(session));
    session.state<OptionsInForce>().IsTropical = isOn;
    storeSwitch(session, &OptionsInForce::IsTropical, isOn);
    return true;
}

void switchHalo(Session& session, bool isOn) {
    Job job(session, u"option for the halo"_s);
    if (!job || !claimSimulator(session)) throw Error(ErrorCode::interrupted);
    UndoStep step(session);
    step.add(optionPart(&OptionsInForce::IsHalo, isOn));
    session.state<OptionsInForce>().IsHalo = isOn;
    storeSwitch(session, &OptionsInForce::IsHalo, isOn);
    copyIntoSimulator(session, session.AppPath / (isOn ? u"Media\\halo.bmp" : u"Media\\halodefault.bmp"),
                      session.FSPath / u"Texture\\halo.bmp");
    job.end();
    session.user.showMessage({MessageKind::information, u"File Copied"_s,
                              isOn ? u"The custom halo file has been copied to flight simulator"_s
                                   : u"The default halo file has been copied to flight simulator"_s});
}

void switchFastExit(Session& session, bool isOn) {
    session.state<OptionsInForce>().IsFastExit = isOn;
    storeSwitch(session, &OptionsInForce::IsFastExit, isOn);
    session.user.showMessage(
        {MessageKind::information, u"Morvane FastExit Status"_s,
         isOn ? u"Fast Exit enabled therefore the screen to request default texture installation on exit "
                "will not be shown"_s
              : u"Fast Exit not enabled therefore the screen to request default texture installation on "
                "exit will be shown"_s});
}

} // namespace morvane
