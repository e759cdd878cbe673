#pragma once

#include <QHash>
#include <QString>
#include <cstdint>
#include <vector>

namespace morvane {

/// The names of a folder, found without regard to case. They stand in one text and no memory is asked for
/// name by name: a simulator's folder has tens of thousands.
class FolderNames {
public:
    void add(QStringView name);
    /// What is added from now on comes behind what was listed, whatever its letters.
    void endListing() { listed_ = names_.size(); }

    /// The name itself where the folder has it, else one that differs in case alone: of several listed ones
    /// the first by its capitals. Nothing when none does.
    QString spellingOf(const QString& name) const;
    std::vector<QString> endingWith(QStringView ending) const;

private:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);
    struct Name {
        qsizetype begin, size;
        std::size_t before; ///< the last one ahead of it with the same hash
    };
    QStringView text(std::size_t index) const;
    bool comesFirst(std::size_t index, std::size_t later) const;

    QString letters_; ///< of all, one name behind the other
    std::vector<Name> names_;
    std::size_t listed_ = 0;
    QHash<std::uint32_t, std::size_t> last_; ///< by the hash of the name without regard to case
};

} // namespace morvane
