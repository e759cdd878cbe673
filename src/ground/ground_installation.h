#pragma once

#include "core/session.h"
#include "simulator/simulator_copy.h"

namespace morvane {

struct CloudCover;

/// Puts the files of the ground set in hand (session.ground.SelectedGroundSet) into the simulator and records
/// in the store that it is the installed one, before the first file is copied. Nothing is rolled back: a
/// failure leaves old and new files side by side, each of them whole.
class GroundInstallation {
public:
    explicit GroundInstallation(Session& session) : session_(session) {}

    /// `automatic`: no questions, as on the road from the weather. Otherwise several selected rows are
    /// refused and a matching sky set is offered.
    void installTextureSet(bool automatic);

    /// Files copied by the last install, the splash left out.
    int filesCopied() const { return filesCopied_; }

private:
    std::vector<FileCopy> copyListOfSet();
    std::vector<FileCopy> copyListOfDefault();
    void addTropicalFiles(std::vector<FileCopy>& copies);
    /// Clears strays and notes everything that will be put into the simulator, splash included.
    void prepare(SimulatorCopier& copier, std::vector<FileCopy> copies, const CloudCover* splash);
    void showProgress(const QString& tagged);
    void installGeneratedSet();
    void installDefaultSet();
    void copyAll(SimulatorCopier& copier, const std::vector<FileCopy>& copies);
    FileCopy splashCopy(const CloudCover& cover) const;
    bool mayInstall();

    FilePath worldTexture() const { return session_.FSPath / u"Scenery\\WORLD\\Texture"; }
    FilePath utEurLcTexture() const { return session_.FSPath / u"Scenery\\UTEurLC\\Texture"; }

    Session& session_;
    int filesCopied_ = 0;
};

/// The name under which a "b" texture stands in for its "h" twin: the first "b" of either case becomes "h".
QString tropicalName(const QString& name);

} // namespace morvane
