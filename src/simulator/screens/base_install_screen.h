#pragma once

#include "ui/page_form.h"

class QPushButton;

namespace morvane {

class PictureFrame;
class SetTable;

/// The base install: which bodies of files go into the simulator, and the keys of backup and restore.
class frm_Config : public PageForm {
    Q_OBJECT
public:
    explicit frm_Config(Shell& shell);

    void format() override;

    /// The key "mvinstall": what is ticked is copied.
    void install();

private:
    void addTexts();
    void addStockButtons();
    void addKeys();
    void fillRows();
    /// What new sets are made of, and whether there is a way back from it.
    void showStock();
    void showDescription(const QString& title);
    void showRow(const QString& title);

    SetTable* lstMVMain_;
    PictureFrame* picPreview_;
    QLabel *lblMVDescription_, *lblStock_;
    QPushButton *cmdUseDelivered_, *cmdPutOwnBack_;
};

} // namespace morvane
