#pragma once

#include "ui/controls/labels.h"
#include "ui/controls/set_table.h"
#include "ui/host_form.h"

#include <array>

class QLabel;
class QPushButton;

namespace morvane {

class PictureFrame;
class SetKind;
class cDIBSection;

/// What tells the list page of one kind of sets from that of another.
struct SetListSetup {
    struct Key {
        QString name; ///< of the control
        QString key;
    };
    QString instructionsName, instructions;
    QString listName;
    int listWidth; ///< logical pixels
    std::vector<SetColumn> columns;
    bool hasCheckBoxes;
    QString sourceName, resultName; ///< of the pictures
    int pictureSide;
    std::array<int, 2> pictureLefts;
    bool isSmooth; ///< how the pictures are enlarged
    QString descriptionName;
    TextRole descriptionRole;
    Key create; ///< empty for a page without it
    Key activate, install, remove;
    /// How "activate" stands for an activated set that was selected by the page and not by a click.
    ButtonState ofActivatedByPage;
};

inline constexpr QRgb installedSetColour = qRgb(255, 0, 0); ///< of the installed set's row

/// A window whose own page lists all sets of one kind, shows the one in hand on a sample, and has the keys
/// that act on it. Column 1 of its list tells which sets are activated.
class SetListForm : public HostForm {
    Q_OBJECT
public:
    /// Fills the page and selects that row (from 1; 0 means the first), which becomes 0.
    void formatSets(int& selectedRow);
    /// Selects a row from code; nothing for a number below 1.
    void selectSetRow(int row);
    bool showForeignChanges() override;

protected:
    SetListForm(Shell& shell, const QString& name, const WindowLook& look, const HostKeys& keys,
                const QString& colourPage, const SetListSetup& setup);

    virtual const SetKind& kind() const = 0;
    /// The rows of all sets, from a collection that is read anew when the session's refresh flag is set.
    virtual std::vector<SetRow> setRows() = 0;
    /// Before a clicked row is taken in hand; false when its set is not there any more.
    virtual bool clickSet(int row) = 0;
    /// Takes the set behind the key into the session's selection, and shows its description and its sample.
    /// False when its colours are damaged, which was told.
    virtual bool takeSet(const QString& listKey) = 0;
    /// Notes in the session which rows actions take, once a row is in hand.
    virtual void noteRows() = 0;
    /// The pictures of an empty list.
    virtual void showNoSet() = 0;
    /// Gives the name of a set that was made just now, once; empty for none, and where the page finds its row
    /// by itself.
    virtual QString takeMadeSet() = 0;

    SetTable& list() const { return *list_; }
    /// In the order in which the rows were filled in, before a click on a head sorted them; 0 for none.
    int rowInHand() const { return rowInHand_; }
    void showDescription(const QString& text);
    void showPictures(const cDIBSection& source, const cDIBSection& result);

private:
    void addInstructionsAndList();
    void addPictures();
    void addDescription();
    void addKeys();
    void addLookButtons();
    void seeAll();
    void exportLook();
    void importLook();
    void formatKeys();
    void fillRows();
    void selectFilledRow(int row);
    void clickRow(const QString& listKey);
    void useSet();
    /// Remembers the row and sets the keys for it; `ofActivated` is how "activate" stands for an activated
    /// set.
    void takeInHand(int row, bool hasColours, ButtonState ofActivated);
    void disableSetKeys();
    void setActivateState(ButtonState state);

    const SetListSetup setup_;
    std::vector<SetRow> filledRows_;
    int rowInHand_ = 0;
    SetTable* list_;
    PictureFrame *source_, *result_;
    QLabel* description_;
    SkinnedButton *activate_, *install_, *remove_;
    SkinnedButton* create_ = nullptr; ///< null for a page without it
    QPushButton *seeAll_, *export_;
};

} // namespace morvane
