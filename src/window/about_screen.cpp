#include "window/about_screen.h"

#include "ui/controls/labels.h"
#include "ui/shell.h"

#include "core/session.h"

#include <QCoreApplication>
#include <QLabel>

namespace morvane {

namespace {

struct Section {
    const char16_t* heading;
    const char16_t* text;
};

constexpr Section sections[] = {
    {u"WHAT IT DOES", u"Morvane recolours a stock of base images into ground, sky and night textures for "
                      u"Flight Simulator 2004. "
                      u"Before a flight it copies those into the simulator that fit the weather at hand, as "
                      u"a METAR reports it. "
                      u"Whatever it replaces for the first time is kept, and can be put back."},
    {u"WHAT IT IS MADE OF",
     u"Qt 6 (LGPL 3), SQLite (public domain), the font Roboto (Apache License 2.0). "
     u"Airports and stations come from public lists; their sources and licences stand in the folder of the "
     u"program's data."},
    {u"NOT FOR NAVIGATION", u"Weather shown here serves a simulator. Never plan a real flight with it."},
};

} // namespace

frm_About::frm_About(Shell& shell) : PageForm(shell, u"frm_About"_s, u"page_open.bmp"_s) {
    makeLabel(paper(), u"Morvane "_s + QCoreApplication::applicationVersion(), {14, 56, 568, 20},
              TextRole::pageTitle);
    makeLabel(paper(), u"Ground, sky and night textures by the weather"_s, {14, 78, 568, 18}, TextRole::body);
    int top = 116;
    for (const Section& section : sections) {
        makeLabel(paper(), QString::fromUtf16(section.heading), {14, top, 568, 14}, TextRole::sectionHeading);
        makeLabel(paper(), QString::fromUtf16(section.text), {14, top + 20, 568, 50}, TextRole::body);
        top += 88;
    }
    makeLabel(paper(), u"Install folder"_s, {14, 384, 100, 16}, TextRole::value);
    makeLabel(paper(), session().AppPath.text(), {114, 384, 468, 32}, TextRole::body);
    makeLabel(paper(), u"Simulator"_s, {14, 418, 100, 16}, TextRole::value);
    makeLabel(paper(), session().FSPath.text(), {114, 418, 468, 32}, TextRole::body);
}

void frm_About::format() {
    markKey(u"about"_s);
    paper()->setTitle(u"icon_About.bmp"_s, u"About Morvane Page"_s);
}

} // namespace morvane
