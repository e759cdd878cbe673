#pragma once

#include "ground/ground_sample.h"
#include "ui/host_form.h"

class QLabel;

namespace morvane {

class PictureFrame;
class SetTable;
struct clsTextureSet;

/// The window of the ground: its list page shows every ground set, and the selected one on a sample.
class frm_MVTextures : public HostForm {
    Q_OBJECT
public:
    explicit frm_MVTextures(Shell& shell);

    void formatList() override;
    /// Fills the page from the collection, which is read anew when the session's refresh flag is set, and
    /// selects that row (from 1; 0 means the first), which becomes 0.
    void formatGroundSets(int& selectedRow);
    /// Selects a row from code; nothing for a number below 1.
    void selectGroundRow(int row);
    /// Takes the set behind the row's key in hand, and shows its description, its sample and its row.
    void loadGroundSelection(const QString& listKey);

    /// Loads a picture, shows it and its colouring by the session's colours.
    void openTexImage(const FilePath& path);
    /// The same without showing it; false after a failure was told.
    bool openImageForTextureSet(const FilePath& path) { return sample_.openTexImage(path); }

private:
    void makeControls();
    void addKeys();
    void formatKeys();
    void fillRows();
    void clickRow(const QString& listKey);
    void clearSelection();
    /// Remembers the row and sets the keys for it; `ofActivated` is how "activate" stands for an activated
    /// set.
    void takeInHand(const QString& listKey, ButtonState ofActivated);
    void setActivateState(ButtonState state);
    void openDefaultSample();

    GroundSample sample_;
    QStringList filledKeys_; ///< of the rows as they were filled in, before a click on a head sorted them
    int rowInHand_ = 0;      ///< in that order
    SetTable* lstTextureSets_;
    PictureFrame *picTextureSetSource_, *picTextureSetResult_;
    QLabel *lblTsInstructions_, *lblFavDescription_;
    SkinnedButton *btn_TextureDelete_, *btn_textureCreate_, *btn_TextureActivate_, *btn_TextureInstall_;
};

} // namespace morvane
