#include "window/links_screen.h"

#include "core/registry.h"
#include "core/session.h"
#include "ui/controls/labels.h"
#include "ui/shell.h"
#include "window/window_shell.h"

#include <QLabel>
#include <QPushButton>

namespace morvane {

/// A link leads to a fixed address, or to the one that a registry value holds.
struct frm_Links::Link {
    const char16_t* title;
    const char16_t* text;
    const char16_t* address;
    const char16_t* registryValue;
};

constexpr frm_Links::Link frm_Links::links[] = {
    {u"Morvane", u"News and questions about this program.", nullptr, u"HomePage"},
    {u"Morvane updates", u"Is there a newer version?", nullptr, u"UpdateServer"},
    {u"Active Sky", u"The weather program that Morvane can read from.", nullptr, u"ActiveSkyPage"},
    {u"Aviation Weather Center", u"METARs and forecasts of the whole world.", u"https://aviationweather.gov/",
     nullptr},
    {u"OurAirports", u"The public list of airports.", u"https://ourairports.com/", nullptr},
    {u"FlightSim.Com", u"Files and news for Flight Simulator.", u"https://www.flightsim.com/", nullptr},
    {u"FSDeveloper", u"How the simulator's files are made.", u"https://www.fsdeveloper.com/", nullptr},
};

frm_Links::frm_Links(Shell& shellOfPages) : PageForm(shellOfPages, u"frm_Links"_s, u"page_open.bmp"_s) {
    int top = 58;
    for (const Link& link : links) {
        const QString title = QString::fromUtf16(link.title);
        makeLabel(paper(), title, {14, top, 440, 17}, TextRole::optionCaption);
        makeLabel(paper(), QString::fromUtf16(link.text), {14, top + 19, 440, 18}, TextRole::body);
        auto* open = new QPushButton(paper());
        open->setObjectName(u"cmdOpen%1"_s.arg(buttons_.size()));
        open->setAccessibleName(u"Open "_s + title);
        open->setGeometry(492, top + 4, 90, 26);
        connect(open, &QPushButton::clicked, this, [this, &link] {
            shell().openWebPage(addressOf(link), QString::fromUtf16(link.registryValue));
        });
        buttons_ << open;
        top += 54;
    }
}

void frm_Links::format() {
    markKey(u"links"_s);
    paper()->setTitle(u"icon_MainLinks.bmp"_s, u"Recommended Flight Simulator Related Links Page"_s);
    for (qsizetype i = 0; i < buttons_.size(); ++i) {
        const Link& link = links[i];
        const bool hasAddress = isWebAddress(addressOf(link));
        buttons_[i]->setEnabled(hasAddress);
        buttons_[i]->setText(hasAddress ? u"Open"_s : u"No address"_s);
        buttons_[i]->setToolTip(hasAddress
                                    ? addressOf(link)
                                    : u"The address would stand in the registry value \""_s +
                                          QString::fromUtf16(link.registryValue) + u"\" of Morvane."_s);
    }
}

QString frm_Links::addressOf(const Link& link) const {
    return link.address ? QString::fromUtf16(link.address)
                        : session().registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey,
                                                          QString::fromUtf16(link.registryValue));
}

} // namespace morvane
