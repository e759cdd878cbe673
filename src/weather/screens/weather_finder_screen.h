#pragma once

#include "ui/dialog_form.h"

#include <QComboBox>
#include <array>

class QLineEdit;
class QRadioButton;

namespace morvane {

class CountEdit;
class ReportList;
struct WxFilter;

/// Finds where a weather is now. Every change of a control filters anew; the report that is chosen makes its
/// airport an end of the flight.
class frm_WxFinder : public DialogForm {
    Q_OBJECT
public:
    explicit frm_WxFinder(Shell& shell);

protected:
    void prepare() override;
    void confirm() override;

private:
    void addLists();
    void addBoxes();
    void addFlightEnds();
    QComboBox* addList(const QString& name, const QString& caption, int x, const QStringList& entries,
                       QString WxFilter::*entry);
    void addBox(const QString& name, const QString& caption, int x, bool WxFilter::*flag);
    /// An intensity can be asked for only beside a precipitation.
    void allowIntensity();
    void choose(const QString& icao);
    void filterMetars();

    std::array<QComboBox*, 4> lists_{};
    QComboBox *cboPrecipitation_, *cboIntensity_;
    QLineEdit* txtFilter_;
    CountEdit* txtWxMaxResults_;
    std::array<QRadioButton*, 2> optAirport_{};
    ReportList* lstMetar_;
};

} // namespace morvane
