#pragma once

#include "ui/page_form.h"
#include "weather/airport_search.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace morvane {

class AirportList;
class FilterChoice;
class LinkLabel;
class MetarBox;

/// The weather page: finds the airports of a flight, reads their reports and starts the flight.
class frm_WxControl : public PageForm {
    Q_OBJECT
public:
    explicit frm_WxControl(Shell& shell);

    void format() override;
    void refresh() override;

    /// The airports and the filter lists of the search alone.
    void ClearFilter();

private:
    enum class FilterList { country, state, city };

    void addSearchBoxes();
    void addFilterLists();
    void addAirports();
    void addOptions();
    void addReports();
    void addActiveSky();
    void addKeys();

    void search(SearchBox box, const QLineEdit& edit);
    void applyFilter(FilterList list);
    void fill(FilterChoice& list, const FilterValues& found);
    void fillLists(const QString& where);
    void fillAirports(const AirportFilter& filter);
    void showActiveSky();
    void showAge();
    void openActiveSkyPage();

    bool isLoaded_ = false;
    QList<QLineEdit*> searchBoxes_;
    FilterChoice *cboCountry_, *cboState_, *cboCity_;
    AirportList* lvwAirports_;
    QLabel *lblAirportCount_, *lblASv6FileTime_, *picASv6_, *lblDepAge_, *lblDestAge_;
    QRadioButton *optDepAirport_, *optDestAirport_;
    QCheckBox* chkNoWeatherReports_;
    MetarBox *departure_, *destination_;
    LinkLabel* lblASv6Support_;
};

} // namespace morvane
