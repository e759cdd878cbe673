#pragma once

#include "core/flag_text.h"
#include "core/reported.h"
#include "sets/set_choice.h"
#include "sets/set_selection.h"
#include "sets/shared_set.h"
#include "sets/stored_rows.h"

#include <optional>

namespace morvane {

class Job;

/// What an install of a set came to.
struct InstalledFiles {
    int copied = 0;       ///< the splash left out
    bool isWhole = false; ///< it went through its list; else the user knows why, or wanted it so
};

/// What tells one kind of set from another wherever sets are made, installed and removed.
struct SetKindFacts {
    QString word;           ///< "Ground", "Sky" or "Night"
    QString folder;         ///< below the install folder; holds one for each set
    QStringList subfolders; ///< of a set's folder; none where its files lie in it
    Screen listScreen;
    QString refusalBreak;   ///< between the two sentences that refuse a removal
    bool protectsInstalled; ///< the installed set alone is not removed; several pass it over in any case
};

/// A set's row as those see it that work on every kind.
struct StoredSet {
    QString name;
    QString colourSettings; ///< empty for a kind that keeps its colours elsewhere
    bool isInstalled;
};

/// The kind's part of the session: what its list has in hand.
struct SetInHand {
    QString& name;
    QString cover; ///< empty for a kind that has nothing to do with the weather
    SetSelection& selection;
    bool& refreshList; ///< the list is to be filled anew when it is shown
};

/// One kind of set for the routines that are the same for all.
class SetKind {
public:
    explicit SetKind(const SetKindFacts& kindFacts) : facts(kindFacts) {}
    virtual ~SetKind() = default;

    const SetKindFacts& facts;
    virtual SetInHand inHand(Session& session) const = 0;
    /// Reads the store anew.
    virtual Reported refresh(Session& session) const = 0;
    /// Sets there are, activated or not.
    virtual std::int32_t count(Session& session) const = 0;
    virtual std::vector<ActivatedSet> activated(Session& session) const = 0;
    virtual std::optional<StoredSet> find(Session& session, const QString& name) const = 0;
    // Both are of a set that is there.
    virtual Reported storeActivation(Session& session, const QString& name, bool activated) const = 0;
    virtual Reported removeRecord(Session& session, const QString& name) const = 0;
    /// As pilots pass it on. Raises for damaged colours.
    virtual SharedSet share(Session& session, const QString& name) const = 0;

    /// Stores it as a favourite, which the list then shows in hand: a row and empty folders, not activated.
    /// Raises what is wrong with it before anything is made, as half a sentence.
    virtual Reported receive(Session& session, const SharedSet& shared) const = 0;

    // Both take the named set in hand.
    /// Without a question.
    virtual InstalledFiles install(Session& session, const QString& name) const = 0;
    /// As a part of the job.
    virtual Reported installInside(Session& session, Job& job, const QString& name) const = 0;

    /// Raises "Path not found" for a name that is no single folder name.
    FilePath setFolder(const Session& session, const QString& name) const {
        return (session.AppPath / facts.folder).child(name);
    }
};

/// The kinds that the weather chooses, as each of them sees the other; the start of the program brings them
/// together.
struct WeatherKinds {
    const SetKind* ground = nullptr;
    const SetKind* sky = nullptr;
};

/// All of them; the start of the program brings them together.
struct KnownKinds {
    std::vector<const SetKind*> kinds;
};

/// What the user starts with a key or a command, on the sets of a kind in hand. What it does is in
/// sets/set_actions.h.
template <class Kind>
struct SetActions {
    /// Makes the files of the set in hand, or of several after frm_MultiDelete.
    static void activate(Session& session);
    /// Removes it or them; with `deactivateMode` only the files go and the colours stay.
    static void remove(Session& session, bool deactivateMode);
    /// As SetInstallation has them.
    static bool install(Session& session);
    static InstalledFiles install(Session& session, const QString& name);
    static Reported installInside(Session& session, Job& job, const QString& name);
    /// As SetKind has them.
    static SharedSet share(Session& session, const QString& name);
    static Reported receive(Session& session, const SharedSet& shared);
};

/// What GroundKind, NightKind and SkyKind have; each adds its `facts()`, pointers to members of its
/// selection, and the types `Activation`, `Installation` and `Sharing`.
template <class Kind, class SetRecord, class KindSelection>
struct KindOfSet : SetActions<Kind> {
    using Record = SetRecord;
    using Rows = StoredRows<SetRecord>;
    using Selection = KindSelection;
};

/// The session's sets of that kind, loaded when they are not there yet.
template <class Kind>
typename Kind::Rows& loadedSets(Session& session) {
    return loadedCollection(session, session.rows<typename Kind::Rows>());
}

/// The same, read anew: records in memory stay as they were loaded, so whoever decides by a flag or writes
/// rows back asks for fresh ones.
template <class Kind>
Reported refreshSets(Session& session) {
    return Kind::Rows::reload(session);
}

/// The record of the set of that name, both trimmed; nothing when there is none.
template <class Kind>
std::shared_ptr<const typename Kind::Record> findSet(Session& session, const QString& name) {
    return findTrimmedName(loadedSets<Kind>(session), name);
}

/// Takes the set of that name in hand, and where rows are not ticked its row as the only selected one; what
/// hangs on its colours is left neutral. False when there is no set of that name.
template <class Kind>
bool clickSetNamed(Session& session, const QString& name) {
    const auto set = findSet<Kind>(session, name);
    if (!set) return false;
    auto& selection = session.state<typename Kind::Selection>();
    Kind::takeInHand(selection, *set);
    if constexpr (!Kind::hasTicks) selection.selectedRows = QStringList{nameOf(*set)};
    return true;
}

template <class Kind>
class SetKindOf : public SetKind {
public:
    SetKindOf() : SetKind(Kind::facts()) {}

    SetInHand inHand(Session& session) const override {
        auto& selection = session.state<typename Kind::Selection>();
        return {selection.*Kind::nameInHand, Kind::coverInHand(selection), selection,
                selection.*Kind::refreshList};
    }
    Reported refresh(Session& session) const override { return refreshSets<Kind>(session); }
    std::int32_t count(Session& session) const override { return loadedSets<Kind>(session).Count(); }
    std::vector<ActivatedSet> activated(Session& session) const override {
        return activatedSets(loadedSets<Kind>(session));
    }
    std::optional<StoredSet> find(Session& session, const QString& name) const override {
        const auto set = findSet<Kind>(session, name);
        if (!set) return std::nullopt;
        StoredSet stored{nameOf(*set), {}, set->Installed};
        if constexpr (requires { set->ColorSettings; }) stored.colourSettings = set->ColorSettings;
        return stored;
    }
    Reported storeActivation(Session& session, const QString& name, bool activated) const override {
        auto changed = *findSet<Kind>(session, name);
        changed.*changed.table().activated = flagText(activated);
        changed.IsNew = false;
        return loadedSets<Kind>(session).Save(changed);
    }
    Reported removeRecord(Session& session, const QString& name) const override {
        return loadedSets<Kind>(session).RemoveItem(keyOf(*findSet<Kind>(session, name)));
    }
    InstalledFiles install(Session& session, const QString& name) const override {
        return Kind::install(session, name);
    }
    Reported installInside(Session& session, Job& job, const QString& name) const override {
        return Kind::installInside(session, job, name);
    }
    SharedSet share(Session& session, const QString& name) const override {
        return Kind::share(session, name);
    }
    Reported receive(Session& session, const SharedSet& shared) const override {
        return Kind::receive(session, shared);
    }
};

template <class Kind>
const SetKind& setKind() {
    static const SetKindOf<Kind> kind;
    return kind;
}

/// As SetKind::setFolder.
template <class Kind>
FilePath setFolder(const Session& session, const QString& name) {
    return setKind<Kind>().setFolder(session, name);
}

} // namespace morvane
