#pragma once

#include "ui/controls/palette.h"

#include <QTreeWidget>
#include <vector>

namespace morvane {

/// One column of the list: its head and its width in logical pixels. The last one takes what is left over.
struct SetColumn {
    QString title;
    int width;
};

/// One row of the list: a text and a tip for each column. The text of the first column is the row's name.
struct SetRow {
    QString key;
    QStringList texts, tips;
    QRgb colour = paper::text.day; ///< as it is stored; see `paintedColour`
    bool isChecked = false;        ///< where the list has check boxes

    bool operator==(const SetRow&) const = default;
};

/// The colour in which a stored one is painted. The pure red of an installed set and the pure blue of the sky
/// list have too little contrast on a field; they stay as stored and are shown as signal red and as text,
/// which is what the usual colour of a row is shown as, too.
QRgb paintedColour(QRgb stored);

/// The list of texture sets: several rows can be selected, a click on a head sorts by that column.
/// Rows are numbered from 1, in the order shown.
class SetTable : public QTreeWidget {
    Q_OBJECT
public:
    explicit SetTable(QWidget* parent = nullptr);

    /// With check boxes each row has one in the first 22 pixels of the first column, which has them in its
    /// width.
    void setColumns(const std::vector<SetColumn>& columns, bool hasCheckBoxes = false);
    void clearRows() { clear(); }
    void addRow(const SetRow& row);

    int rowCount() const { return topLevelItemCount(); }
    /// Empty for a row that is not there, as is the text.
    QString keyOf(int row) const;
    QString textOf(int row, int column) const;
    /// The first row of that name; 0 without one.
    int rowOf(const QString& name) const;
    /// The colour as it was given.
    QRgb storedColour(int row) const;

    /// Selects that row alone and brings it into view, without `rowClicked`. A number that is none does
    /// nothing.
    void selectRow(int row);
    /// Adds the first row of that name to the selection, without `rowClicked`.
    void selectName(const QString& name);
    QStringList selectedNames() const;
    QStringList checkedNames() const;
    QStringList checkedKeys() const;
    /// Ticks every row, or none.
    void checkAll(bool isChecked);

Q_SIGNALS:
    /// The user clicked this row, dragged the selection to it, or went to it or stayed on it by a key of the
    /// list; never told for a selection from code.
    void rowClicked(const QString& key);
    /// A box was ticked or unticked, by the user or from code.
    void checksChanged();
    /// The second click of two on a row was let go, and neither was on its check box.
    void rowDoubleClicked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void sortBy(int column);
    void tellOfCurrent();
    bool isOnCheckBox(const QPoint& place) const;

    bool hasCheckBoxes_ = false;
    bool isDoubleClick_ = false;
    const QTreeWidgetItem* pressed_ = nullptr;  ///< the row on which the mouse went down
    Qt::SortOrder order_ = Qt::DescendingOrder; ///< of the last sort; the first one is ascending
};

} // namespace morvane
