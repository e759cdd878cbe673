#pragma once

#include "core/clock.h"
#include "core/exit_progress.h"
#include "core/file_path.h"
#include "core/file_system.h"
#include "core/user_interface.h"
#include "imaging/colour_values.h"
#include "imaging/sky_group.h"

#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace morvane {

class Registry;
class Store;
class clsBackups;
class clsConfigs;
class clsNightTextureSets;
class clsResourceFolders;
class clsSkyTextureSets;
class clsSkyTextureSubSets;
class clsTextureSets;
class clsWxFinders;
struct WritingLock;

/// Whose favourite frm_AddFav names.
enum class FavouriteKind { ground, sky, night };

/// What modal screens are given and what was chosen on them (UserInterface::showModal).
struct ModalState {
    /// frm_TsRequired: sets wanted for the cloud covers 1 to 5, and whether OK was pressed.
    std::array<std::int16_t, 5> setCounts{};
    bool setCountsConfirmed = false;
    /// frm_MultiDelete: the names offered and those that were confirmed.
    QStringList multiNames;
    QStringList multiConfirmed;
    /// frm_AddFav: what was typed, trimmed, and whether OK was pressed.
    FavouriteKind favKind = FavouriteKind::ground;
    QString favName, favDescription;
    bool favConfirmed = false;
    /// frm_SelectTexture: the keys of the choice (see ground/sample_textures.h), and whether OK was pressed.
    QString selectedTextureType, selectedSeason;
    bool sampleConfirmed = false; ///< of frm_SelectNightTexture, too
    /// frm_SelectNightTexture: the key of the choice (see night/night_samples.h).
    QString selectedNightTexture;
    /// frm_SelectSkyTexture: the base sets ticked, by name (see sky/sky_base_sets.h), sets wanted for the
    /// cloud covers 1 to 5, and whether OK was pressed.
    QStringList skyBaseSets;
    std::array<std::int16_t, 5> skySetCounts{};
    bool skySetsConfirmed = false;
    /// frm_SelectBaseSky: whether OK was pressed. The choice itself is in force at its click
    /// (SkyTuningState).
    bool baseSkyConfirmed = false;
    /// frm_flight: the name of the flight clicked last, and whether OK was pressed.
    QString SelectedFlightName;
    bool FlightSelected = false;
    /// frm_metar: the lines of the decoded report, in order.
    QStringList decodedMetarLines;
    /// frm_metar_request: the question, and whether it was answered with Yes.
    QString metarRequestText;
    bool metarRequested = false;
    /// frm_Select_CC_Method: the option in force (see weather/cover_choice.h), 4 after Cancel.
    std::int16_t coverMethod = 0;
    /// frm_FlightPlan, frm_FromDepDestVal, frm_CC_From_Option, frm_CC_From_Metar_String: whether OK was
    /// pressed. The cover itself stands in the session's lists.
    bool coverConfirmed = false;
    /// frm_BackupList: the backups offered, the name of the row clicked last, and whether OK was pressed.
    struct Backup {
        QString name;
        QDateTime takenAt;
        bool isComplete;
    };
    std::vector<Backup> backups;
    QString chosenBackup;
    bool backupConfirmed = false;
};

/// The ground set in hand: written by a selection in the list, read by the actions.
struct GroundSelection {
    QString SelectedGroundKey; ///< "Key:" and the TsID
    QString SelectedGroundSet;
    bool SelectedGroundActivated = false;
    QString SelectedGroundCover;
    QString SelectedGroundDescription; ///< at most 255 characters
    ColourValues colours;
    /// Names of all rows that are selected in the list; the row in hand alone when it was clicked alone.
    QStringList selectedRows;
    QString madeSet; ///< made just now: the list selects it, as if it had been clicked, and forgets it
};

/// The sky set in hand, in the same way.
struct SkySelection {
    QString SelectedSkyKey; ///< "Key:" and the StsID
    QString SelectedSkySet;
    bool SelectedSkyActivated = false;
    QString SelectedSkyCover;
    QString SelectedSkyDescription;
    QString SelectedSkyGroup; ///< the base set that it was made from
    /// Names of all rows that are ticked in the list.
    QStringList selectedRows;
};

/// The night set in hand, in the same way.
struct NightSelection {
    QString SelectedNightSet;
    QString SelectedNightDescription;
    ColourValues colours;
    /// As of the ground.
    QStringList selectedRows;
    QString madeSet;
};

/// What the colour page of the sky is set to, beside its table of numbers (`skyPaletteGroups`).
struct SkyTuningState {
    bool isLoaded = false;          ///< once in a run, from the settings file or as for a first run
    std::int16_t selectedGroup = 1; ///< 1 to 10
    QString cloudCover;             ///< at most 15 characters, as the base set
    std::int16_t cloudIndex = 1;    ///< 1 to 5
    QString baseSet;
};

/// The weather cycle in use, the directory of airports and the two ends of the flight.
struct WeatherState {
    /// Date and hour of the cycle; a day of 0 means that none is known.
    std::int16_t MetarCycleDay = 0, MetarCycleMonth = 0, MetarCycleYear = 0, MetarCycleHour = 0;
    bool MetarDataLoaded = false; ///< the table of decoded reports holds rows
    bool FlyNowDisabled = false;  ///< a refresh left not one report

    FilePath ASv6Path;
    bool ASv6Present = false, ASv6VersionOK = false;
    bool ASv6Local = false; ///< runs on this computer
    bool ASv6Busy = false;  ///< being waited for: keeps the progress message up
    QDateTime ASv6ExportDate;
    bool ASv6Imported = false; ///< ASv6ExportDate is that of reports taken in this run
    /// What keeps the Active Sky that is set from being used; told only to those who use it.
    std::optional<Message> ASv6Problem;

    QString AirportQueryWhere, AirportQueryOrder; ///< behind Session::AirportQuery
    bool InhibitWeatherReports = true;
    bool optDepAirport = true, optDestAirport = false; ///< which end a choice of an airport sets
    QString DepAirportName, DepIcao, DepCity, DepMetar;
    QString DestAirportName, DestIcao, DestCity, DestMetar;
    QString MetarStringInput; ///< a report typed in, trimmed
};

/// What the weather finder asks for.
struct WxFilter {
    QString precipitation, intensity, obscuration, cloudCover; ///< entries of the lists
    bool towering = false, cumulonimbus = false, cumulus = false;
    QString WxFilterText; ///< beginning of a station code
    std::int16_t WxMaxResults = 25;
    bool WxFinderIsDeparture = true;
    QString WxSelectedIcao;
    bool WxFinderLoading = false; ///< the screen opens: nothing is filtered yet
};

/// Everything that lives from start-up to exit. The entry point owns the one session and hands it on.
class Session {
public:
    struct Services {
        UserInterface& user;
        FileSystem& files;
        Clock& clock;
        RandomSource& random;
        Registry& registry;
    };

    Session(const Services& services, const FilePath& appPath);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    UserInterface& user;
    FileSystem& files;
    Clock& clock;
    RandomSource& random;
    Registry& registry;

    /// Folder of the executable, or MORVANE_HOME.
    const FilePath AppPath;
    FilePath FSPath;     ///< the simulator's folder, the one with fs9.exe
    FilePath BackupPath; ///< "\Backup" below AppPath
    QString MyDocumentsPath;
    QString DecimalSep = u"."_s; ///< monetary decimal separator of the locale
    QString AirportQuery;

    bool IsWideClient = false;
    bool InhibitCustomSplash = false;
    bool IsDutch = false, IsTropical = false, IsHalo = false, IsFastExit = false;
    bool CommandLineRun = false;
    bool StartingUp = false;
    ExitProgress ExitInProgress;
    bool MinimiseForLaunch = false;
    bool RefreshGroundList = false, RefreshSkyList = false, RefreshNightList = false;

    double groundSetSeconds = 0; ///< that the ground set made last took; 0 before the first

    /// A long job is running; another one is not started from inside it.
    bool jobRunning = false;
    std::unique_ptr<WritingLock> writing; ///< always there; jobs and commands take it (see writing.h)

    QStringList WxCloudList, WxStrengthList; ///< the weather of a flight, one element a point
    bool CoverCancelled = false;

    ModalState modal;
    GroundSelection ground;
    SkySelection sky;
    NightSelection night;
    SkyTuningState skyTuning;
    WeatherState weather;
    WxFilter wxFilter;

    // Two tables, so that looking at stored sets does not disturb what is being tuned.
    SkyGroups skyTextureGroups; ///< of the set that is shown or written
    SkyGroups skyPaletteGroups; ///< of the colour page

    std::unique_ptr<Store> adoConn; ///< the one connection; open from start-up to exit

    std::unique_ptr<clsConfigs> gConfigs;
    std::unique_ptr<clsResourceFolders> gResources;
    std::unique_ptr<clsBackups> gBackups;
    std::unique_ptr<clsTextureSets> gTextureSets;
    std::unique_ptr<clsNightTextureSets> gNightTextureSets;
    std::unique_ptr<clsSkyTextureSets> gSkyTextureSets;
    std::unique_ptr<clsSkyTextureSubSets> gSkyTextureSubSets;
    std::unique_ptr<clsWxFinders> gWxFinders;
};

/// By the user, or because the program ends.
inline bool isWorkCancelled(const Session& session) {
    return session.user.answers().cancelRequested || session.ExitInProgress.endsWork();
}

} // namespace morvane
