#include "weather/screens/decoded_report_screen.h"

#include "core/session.h"
#include "ui/controls/labels.h"
#include <QVBoxLayout>

namespace morvane {

namespace {

constexpr QRect notePlace{26, 80, 648, 16}, linesPlace{26, 104, 648, 320};

} // namespace

frm_metar::frm_metar(Shell& shell)
    : DialogForm(shell, u"frm_metar"_s, wideDialogLook, u"Fully Decoded METAR"_s) {
    makeLabel(this, u"Be aware some of the METARs may be old if the airport/airfield is small."_s, notePlace,
              TextRole::longHelp)
        ->setObjectName(u"lblMETARDesc"_s);
    auto* lines = new QWidget(this);
    lines->setGeometry(linesPlace);
    auto* column = new QVBoxLayout(lines); // a long line pushes those under it down
    column->setContentsMargins({});
    column->setSpacing(8);
    for (int index = 0; QLabel * &label : lblDecodedMetar_) {
        const bool isHeading = index == 0;
        label = makeLabel(lines, {}, {}, isHeading ? TextRole::optionCaption : TextRole::body);
        label->setObjectName(u"lblDecodedMetar_%1"_s.arg(index++));
        label->setWordWrap(true);
        column->addWidget(label);
    }
    column->addStretch();
    addButton({ButtonFamily::StandardButton,
               u"btn_Ok"_s,
               u"ok"_s,
               u"btn_CheckAll"_s,
               u"Click to continue."_s,
               {width() - 65, height() - 58}});
}

void frm_metar::prepare() {
    const ReportLines& lines = session().state<DecodedReportLines>().decodedMetarLines;
    for (std::size_t index = 0; index < lines.size(); ++index)
        lblDecodedMetar_[index]->setText(lines[index]);
}

} // namespace morvane
