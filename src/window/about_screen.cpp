#include "window/about_screen.h"

#include "app/delivered_texts.h"
#include "core/session.h"
#include "ui/controls/labels.h"
#include "ui/shell.h"
#include "window/report_saving.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace morvane {

namespace {

struct Section {
    const char16_t* heading;
    const char16_t* text;
    int top;
};

constexpr int aboutLeft = 14, aboutWidth = 568;

constexpr Section sections[] = {
    {u"WHAT IT DOES",
     u"Morvane recolours a stock of base images into ground, sky and night textures for "
     u"Flight Simulator 2004. "
     u"Before a flight it copies those into the simulator that fit the weather at hand, as "
     u"a METAR reports it. "
     u"Whatever it replaces for the first time is kept, and can be put back.",
     104},
    {u"WHAT IT IS MADE OF",
     u"Qt 6 (LGPL 3), SQLite (public domain), the font Roboto (Apache License 2.0). "
     u"Airports and stations come from public lists; their sources and licences stand in the folder of the "
     u"program's data.",
     176},
    {u"NOT FOR NAVIGATION", u"Weather shown here serves a simulator. Never plan a real flight with it.", 232},
};

/// A document's marks mean nothing to who reads plain words, and its lines are broken anew.
QString plainText(const QString& markdown) {
    QString text;
    for (const QString& line : markdown.split(u'\n')) {
        const bool goesOn = line.startsWith(u"  "_s);
        text += (goesOn ? u' ' : u'\n') + (line.startsWith(u"### "_s) ? line.mid(4) : line.trimmed());
    }
    return text.remove(u'`').replace(u"\n\n- "_s, u"\n- "_s).trimmed();
}

} // namespace

frm_About::frm_About(Shell& shell) : PageForm(shell, u"frm_About"_s, u"page_open.bmp"_s) {
    makeLabel(paper(), u"Morvane "_s + QCoreApplication::applicationVersion(), {aboutLeft, 56, 430, 20},
              TextRole::pageTitle);
    makeLabel(paper(), u"Ground, sky and night textures by the weather"_s, {aboutLeft, 78, 430, 18},
              TextRole::body);
    for (const Section& section : sections) {
        makeLabel(paper(), QString::fromUtf16(section.heading), {aboutLeft, section.top, aboutWidth, 14},
                  TextRole::sectionHeading);
        makeLabel(paper(), QString::fromUtf16(section.text), {aboutLeft, section.top + 18, aboutWidth, 50},
                  TextRole::body);
    }
    makeNews();
    makeReportKey();
    makeLabel(paper(), u"Install folder"_s, {14, 384, 100, 16}, TextRole::value);
    makeLabel(paper(), session().AppPath.text(), {114, 384, 468, 32}, TextRole::body);
    makeLabel(paper(), u"Simulator"_s, {14, 418, 100, 16}, TextRole::value);
    makeLabel(paper(), session().FSPath.text(), {114, 418, 468, 32}, TextRole::body);
}

void frm_About::makeNews() {
    makeLabel(paper(), u"WHAT IS NEW"_s, {aboutLeft, 272, aboutWidth, 14}, TextRole::sectionHeading);
    auto* news = new QPlainTextEdit(plainText(newestChanges()), paper());
    news->setObjectName(u"txtNews"_s);
    news->setAccessibleName(u"What is new"_s);
    news->setReadOnly(true);
    news->setTabChangesFocus(true);
    news->setFont(fontOf(TextRole::body));
    news->setGeometry(aboutLeft, 290, aboutWidth, 88);
}

void frm_About::makeReportKey() {
    auto* save = new QPushButton(u"Save a report"_s, paper());
    save->setObjectName(u"cmdSaveReport"_s);
    save->setToolTip(u"Click to save what helps to find out what went wrong, for you to pass on: the log, "
                     "versions, settings and rows, and nothing that you typed."_s);
    save->setGeometry(aboutLeft + aboutWidth - 120, 58, 120, 26);
    connect(save, &QPushButton::clicked, this, [this] { saveReportAs(session(), this); });
}

void frm_About::format() {
    markKey(u"about"_s);
    paper()->setTitle(u"icon_About.bmp"_s, u"About Morvane Page"_s);
}

} // namespace morvane
