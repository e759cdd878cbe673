#pragma once

#include "weather/source_notes.h"
#include "weather/weather_sources.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace morvane {

class Session;
class SetTable;

/// The weather's sources in the order in which they are asked, each with its state. The pilot's own server
/// stands first and stays there.
class WeatherSourcesPanel : public QWidget {
    Q_OBJECT
public:
    WeatherSourcesPanel(Session& session, const QRect& place, QWidget* parent);

    /// Shows what is stored.
    void refresh();

private:
    QPushButton* addButton(const QString& name, const QString& caption, const QString& tip,
                           const QRect& place);
    void addNewSource();
    void fillList();
    void fillChoice();
    void pick(int row);
    void showChosen();
    void showChoice();
    void move(int steps);
    void remove();
    void add();
    const WeatherSource* chosen() const;

    Session& session_;
    std::vector<WeatherSource> sources_;
    SetTable* lstSources_;
    QPushButton *cmdUp_, *cmdDown_, *cmdRemove_, *cmdAdd_;
    QLabel* lblSourceState_;
    QComboBox* cboNewSource_;
    QLineEdit* txtOwnServer_;
};

} // namespace morvane
