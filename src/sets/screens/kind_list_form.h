#pragma once

#include "sets/screens/set_list_form.h"
#include "sets/set_kind.h"

#include <utility>

namespace morvane {

/// The list page of one kind, over the rows and the selection of that kind.
template <class Kind>
class KindListForm : public SetListForm {
protected:
    using SetListForm::SetListForm;

    virtual SetRow rowOf(const typename Kind::Record& set) const = 0;

    auto& selection() { return session().template state<typename Kind::Selection>(); }
    const typename Kind::Rows& refreshedSets() {
        bool& isStale = selection().*Kind::refreshList;
        if (isStale && refreshSets<Kind>(session())) isStale = false;
        return loadedSets<Kind>(session());
    }

    void noteRows() override {
        selection().selectedRows = Kind::hasTicks ? list().checkedNames() : list().selectedNames();
    }

private:
    const SetKind& kind() const override { return setKind<Kind>(); }
    std::vector<SetRow> setRows() override {
        std::vector<SetRow> rows;
        for (const auto& set : refreshedSets())
            rows.push_back(rowOf(*set));
        return rows;
    }
    bool clickSet(int row) override { return clickSetNamed<Kind>(session(), list().textOf(row, 0)); }
    QString takeMadeSet() override { return std::exchange(selection().madeSet, {}); }
};

} // namespace morvane
