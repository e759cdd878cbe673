#pragma once

#include "core/clock.h"
#include "core/exit_progress.h"
#include "core/file_path.h"
#include "core/file_system.h"
#include "core/user_interface.h"

#include <QString>
#include <memory>
#include <typeindex>
#include <unordered_map>

namespace morvane {

class Registry;
class Store;
struct WritingLock;

/// Everything that lives from start-up to exit. The entry point owns the one session and hands it on. What a
/// room keeps it declares in a header of its own; the session carries it without knowing it.
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

    bool CommandLineRun = false;
    bool StartingUp = false;
    ExitProgress ExitInProgress;
    bool MinimiseForLaunch = false;

    /// A long job is running; another one is not started from inside it.
    bool jobRunning = false;
    /// Reads anew what another program may have changed in the store; every start sets it (see joinRooms).
    void (*reloadRows)(Session&) = nullptr;
    std::unique_ptr<WritingLock> writing; ///< always there; jobs and commands take it (see writing.h)

    std::unique_ptr<Store> adoConn; ///< the one connection; open from start-up to exit

    /// What a room keeps, by the type that it declares for it: made as that type begins, at its first use.
    template <class State>
    State& state() {
        return stateOf<State>();
    }
    template <class State>
    const State& state() const {
        return stateOf<State>();
    }
    /// The rows of a table in memory, by the type of their collection; null until they are loaded.
    template <class Collection>
    std::unique_ptr<Collection>& rows() {
        return state<std::unique_ptr<Collection>>();
    }

private:
    template <class State>
    State& stateOf() const {
        std::shared_ptr<void>& kept = states_[typeid(State)];
        if (!kept) kept = std::make_shared<State>();
        return *static_cast<State*>(kept.get());
    }

    mutable std::unordered_map<std::type_index, std::shared_ptr<void>>
        states_; ///< made also where they are only read
};

/// By the user, or because the program ends.
inline bool isWorkCancelled(const Session& session) {
    return session.user.answers().cancelRequested || session.ExitInProgress.endsWork();
}

} // namespace morvane
