#pragma once

#include "sheets/screens/sheet_loading.h"
#include "ui/dialog_form.h"

class QLabel;

namespace morvane {

class SheetPanel;
class SheetView;
class SingleTexture;
class SkinSign;
class ucSlider;

/// "See all": a whole set as pictures, or what lies in the simulator (sets/sheet_request.h).
class frm_SetSheet : public DialogForm {
    Q_OBJECT
public:
    explicit frm_SetSheet(Shell& shell);

    /// The base beside the set in all places, and back.
    void turnBeside();
    /// Asks for a file and writes the whole sheet into it, as it is seen.
    void savePicture();
    /// From one texture alone back to all, else out.
    void cancel() override;
    /// What is shown; null behind a failure that was told.
    const SheetLoading* loading() const { return loading_.get(); }

protected:
    void prepare() override;
    void confirm() override {}
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void addHead();
    void addZoom();
    void addSheet();
    void addKeys();
    void showHead(const Sheet& sheet);
    void showZoom();
    void showPicked();
    void showAlone(bool isAlone);
    void showBase(bool isWanted);
    bool moveAlone(int key);

    QLabel *lblTitle_, *lblCover_, *lblState_, *lblZoom_;
    SkinSign* picCover_;
    ucSlider* vcZoom_;
    SheetView* view_;
    SingleTexture* alone_;
    SheetPanel* panel_;
    std::unique_ptr<SheetLoading> loading_;
};

} // namespace morvane
