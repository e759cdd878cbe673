#pragma once

#include "ground/ground_selection.h"
#include "sets/screens/set_list_form.h"
#include "sets/texture_sample.h"

#include <utility>

namespace morvane {

/// The window of the ground: its list page shows every ground set, and the selected one on a sample.
class frm_MVTextures : public SetListForm {
    Q_OBJECT
public:
    explicit frm_MVTextures(Shell& shell);

    void formatList() override;
    /// As formatSets and selectSetRow, under the names of the ground.
    void formatGroundSets(int& selectedRow) { formatSets(selectedRow); }
    void selectGroundRow(int row) { selectSetRow(row); }
    /// Takes the set behind the row's key in hand, and shows its description, its sample and its row.
    /// False when its colours are damaged, which was told.
    bool loadGroundSelection(const QString& listKey);

    /// Loads a picture, shows it and its colouring by the session's colours.
    void openTexImage(const FilePath& path);
    /// The same without showing it; false after a failure was told.
    bool openImageForTextureSet(const FilePath& path) { return sample_.openTexImage(path); }

private:
    std::vector<SetRow> setRows() override;
    bool clickSet(int row) override;
    bool takeSet(const QString& listKey) override { return loadGroundSelection(listKey); }
    void noteRows(int) override;
    QString takeMadeSet() override { return std::exchange(session().state<GroundSelection>().madeSet, {}); }
    void showNoSet() override { openDefaultSample(); }
    void openDefaultSample();

    TextureSample sample_;
};

} // namespace morvane
