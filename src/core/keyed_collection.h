#pragma once

#include "core/error.h"
#include "core/numbers.h"

#include <QHash>
#include <QString>
#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace morvane {

/// Records in memory, with access by position (from 1, in load order) and by key text (without regard to
/// case). Records are never changed once they are in; who holds one keeps it, also when the collection is
/// gone.
///
/// A record type brings `QString keyOf(const Record&)` and `QString nameOf(const Record&)`.
template <class Record>
class KeyedCollection {
public:
    using Pointer = std::shared_ptr<const Record>;

    std::int32_t Count() const { return static_cast<std::int32_t>(records_.size()); }

    /// A position outside 1 to Count and an unknown key raise "Subscript out of range".
    Pointer Item(std::int32_t position) const {
        if (position < 1 || position > Count()) throw Error(ErrorCode::subscript);
        return records_[static_cast<std::size_t>(position - 1)];
    }
    Pointer Item(const QString& key) const {
        const auto found = byKey_.constFind(key.toCaseFolded());
        if (found == byKey_.constEnd()) throw Error(ErrorCode::subscript);
        return *found;
    }
    Pointer GetItem(std::int32_t position) const { return Item(position); }
    Pointer GetKey(const QString& key) const { return Item(key); }

    auto begin() const { return records_.begin(); }
    auto end() const { return records_.end(); }

    /// Adds the record at the end; a key that is there already raises duplicateKey.
    Pointer AddItem(Record record) {
        const QString key = keyOf(record).toCaseFolded();
        if (byKey_.contains(key)) throw Error(ErrorCode::duplicateKey);
        auto added = std::make_shared<const Record>(std::move(record));
        records_.push_back(added);
        byKey_.insert(key, added);
        return added;
    }
    /// The name by which a load adds its records.
    Pointer popCollection(Record record) { return AddItem(std::move(record)); }

protected:
    void remove(const QString& key) {
        records_.erase(std::find(records_.begin(), records_.end(), Item(key)));
        byKey_.remove(key.toCaseFolded());
    }

    /// Position of the first record of exactly that name; 0 for none.
    std::int16_t findName(const QString& name) const {
        for (std::size_t i = 0; i < records_.size(); ++i)
            if (nameOf(*records_[i]) == name) return toInteger(static_cast<std::int64_t>(i) + 1);
        return 0;
    }

private:
    std::vector<Pointer> records_;
    QHash<QString, Pointer> byKey_;
};

} // namespace morvane
