#pragma once

#include "night/night_selection.h"
#include "sets/screens/set_list_form.h"
#include "sets/texture_sample.h"

#include <utility>

namespace morvane {

/// The window of the night: its list page shows every night set, and the selected one on a sample. Sets are
/// born on its colour page, so there is no key that makes some.
class frm_NightTextures : public SetListForm {
    Q_OBJECT
public:
    explicit frm_NightTextures(Shell& shell);

    void formatList() override;
    /// As formatSets, under the name of the night.
    void formatNightSets(int& selectedRow) { formatSets(selectedRow); }

    /// Recolours the sample by the session's colours and shows it.
    void NightTsProcess();
    /// Loads a picture, shows it and its colouring.
    void openNightTexImage(const FilePath& path);
    /// The same without showing it; false after a failure was told.
    bool openImageForNightTextureSet(const FilePath& path) { return sample_.openTexImage(path); }

private:
    std::vector<SetRow> setRows() override;
    bool clickSet(int row) override;
    bool takeSet(const QString& listKey) override;
    void noteRows(int row) override;
    QString takeMadeSet() override { return std::exchange(session().state<NightSelection>().madeSet, {}); }
    void showNoSet() override { openFirstSample(); }
    void openFirstSample();

    TextureSample sample_;
};

} // namespace morvane
