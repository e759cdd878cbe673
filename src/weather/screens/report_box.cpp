#include "weather/screens/report_box.h"

#include "core/literals.h"
#include "ui/controls/labels.h"

#include <QLabel>

namespace morvane {

MetarBox::MetarBox(const QString& labelName, const QString& caption, const QRect& place, QWidget* parent)
    : QFrame(parent), caption_(caption) {
    setFrameShape(StyledPanel);
    setGeometry(place);
    label_ = makeLabel(this, {}, QRect({9, 5}, place.size() - QSize(18, 8)), TextRole::value);
    label_->setObjectName(labelName);
    label_->setWordWrap(true);
    label_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void MetarBox::setReport(const QString& report) {
    label_->setText(report);
    label_->setAccessibleName(caption_ + u": "_s + report);
    setToolTip(report);
}

} // namespace morvane
