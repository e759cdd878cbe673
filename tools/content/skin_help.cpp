#include "skin_help.h"

namespace morvane::skin {

QByteArray helpPage() { // NOLINT(readability-function-size): a page of text
    return R"html(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Morvane Help</title>
<style>
body { margin: 0; background: #f1f3f0; color: #14303f; font: 16px/1.55 Roboto, "Segoe UI", sans-serif; }
header { background: linear-gradient(#435a69, #1e2b36); color: #f2f7fa; padding: 26px 20px 18px;
         border-bottom: 1px solid #4cc4f2; text-align: center; }
header h1 { margin: 0; font-size: 26px; letter-spacing: 10px; text-indent: 10px; }
header p { margin: 6px 0 0; color: #afc2ce; }
main { max-width: 46rem; margin: 0 auto; padding: 12px 20px 60px; }
h2 { color: #0065a1; font-size: 20px; border-bottom: 1px solid #b9c9d2; padding-bottom: 4px; margin-top: 34px; }
h3 { color: #0065a1; font-size: 16px; margin-bottom: 2px; }
h3 + p, h3 + ol { margin-top: 2px; }
a { color: #0065a1; }
nav ul { columns: 2; padding-left: 20px; }
code { background: #fff; border: 1px solid #dce4e6; border-radius: 3px; padding: 1px 5px; }
kbd { background: #1e2b36; color: #e6eff4; border-radius: 4px; padding: 1px 6px; font: inherit; font-size: 14px; }
</style>
</head>
<body>
<header>
<h1>MORVANE</h1>
<p>Ground, sky and night textures by the weather</p>
</header>
<main>
<p>Morvane changes what the world of Microsoft Flight Simulator 2004 looks like, so that it suits the weather of
your flight. It keeps <em>texture sets</em>: copies of the ground, sky and night pictures in other colours, each
meant for one kind of cloud cover. Before a flight you install the set that fits, or you let Morvane choose it
by the airport's weather report.</p>

<nav>
<ul>
<li><a href="#first">First steps</a></li>
<li><a href="#create">Creating sets</a></li>
<li><a href="#activate">Activating and installing</a></li>
<li><a href="#sheet">Looking at a whole set</a></li>
<li><a href="#colours">Colours of your own</a></li>
<li><a href="#share">Looks to share</a></li>
<li><a href="#pages">What each page does</a></li>
<li><a href="#originals">Getting your own textures back</a></li>
<li><a href="#room">Room on the disk</a></li>
<li><a href="#keyboard">Keyboard</a></li>
</ul>
</nav>

<h2 id="first">First steps</h2>
<ol>
<li><b>Get ready to fly</b> comes up behind the first start: it looks for the backup and the base textures, makes three
sets of ground and sky for each cloud cover and fetches the weather. What is done stays when you cancel; <b>More
settings</b> on the configuration page opens it again.</li>
<li>Open <b>Ground Color</b>, select a set, and let <b>See all</b> show it to you.</li>
<li>Open <b>Wx Control</b>, choose your airports, then <b>Fly Now</b>: the sets that fit the weather go into the simulator,
which starts. Or install any set from its list; the simulator shows it from its next start on.</li>
</ol>

<h2 id="create">Creating sets</h2>
<p>A click on <b>Create</b> asks how many sets you want for each of the five covers: Sky Clear (SKC), Mostly
Clear (FEW), Partly Cloudy (SCT), Mostly Cloudy (BKN) and Overcast (OVC). The colours are drawn at random within
limits that suit the cover: clear skies warm and lighten the ground, an overcast makes it cooler and darker. The
more sets a cover has, the more variety you will see. When you cancel, the set that was being made is taken away
again; those that are finished stay.</p>

<h2 id="activate">Activating and installing</h2>
<p>An <b>active</b> set has its files on the disk and takes part when Morvane chooses a set by the weather.
<b>Deactivate</b> removes the files to save room but keeps the colours, so that <b>Activate</b> can make the same
set again later. <b>Install</b> copies a set into the simulator; the list shows the installed set in red.
<b>Delete</b> removes a set for good. The set named Default holds the pictures without any change of colour.</p>

<h2 id="sheet">Looking at a whole set</h2>
<p><b>See all</b> on a list page, or a double click on the sample, shows every texture of the selected set, whether it has
files yet or not. <b>All</b> below a name opens the rest of that row. Hold <kbd>Space</kbd> to see the base in all places,
or choose <b>Base Beside</b> to see both halves. The arrows move the frame, <kbd>Enter</kbd> or a double click shows one
texture alone, <kbd>Esc</kbd> goes back, <kbd>A</kbd> opens a row. <b>Save Picture</b> writes the whole set as one
picture. The same for what lies in the simulator: <b>Check files</b>, <b>See all</b>.</p>

<h2 id="colours">Colours of your own</h2>
<p><b>Colorize</b> shows a sample picture beside the same picture in new colours. Move the sliders for saturation,
red, green, blue, brightness and contrast, or let <b>Random</b> draw values for the cover that is chosen at the
right. <b>Open Texture</b> shows another kind of land or another season. <b>Add Favorite</b> saves the values as
a set under a name of your choice; the new set is in the list of sets.</p>

<h2 id="share">Looks to share</h2>
<p><b>Export</b> on a list page saves the colours of the selected set in a small file, which you can give to other pilots.
<b>Import</b>, a drop on the page or a double click takes theirs into the list; <b>Activate</b> then makes its files.</p>

<h2 id="pages">What each page does</h2>
<h3>System Status</h3>
<p>How many sets you have for each cover and how many of them are active, what is in the simulator now, which base
textures are installed and when you made the last backup. <b>Check files</b> tells whether the simulator's files are as
Morvane and you left them; <b>Undo Last Install</b> takes the last install back.</p>
<h3>Ground Color, Sky Color, Night Color</h3>
<p>The sets of ground, sky and night pictures. <b>Manage Sets</b> lists them, <b>Colorize</b> makes new colours,
<b>Back</b> leads to the main window.</p>
<h3>Wx Control</h3>
<p>Choose the airport you leave from and the one you fly to, read their weather reports, and start the simulator
with the sets that suit them. A flight plan of the simulator, of its successors or of Little Navmap can be dropped on
the page, or opened with Morvane by a double click. <b>Weather Finder</b> looks for airports with a certain kind of weather,
<b>Saved Flight</b> takes the airports from a flight you have saved, <b>Refresh METAR</b> fetches new reports
from the first weather source that answers. The line below the page says which one that was and how old the youngest
report is; where no source answers, the stored reports go on serving.</p>
<h3>Configuration</h3>
<p>Options of the program and the simulator: whether this PC is a WideClient, the Dutch and tropical textures, the
halo, the start pictures, whether Morvane asks before it closes, and the folder of your saved flights. <b>More
settings</b> has the weather's sources in their order and the palette of the pages, day, night or by the clock, and
leads to what Morvane keeps on the disk.</p>
<h3>Base Install</h3>
<p>Puts Morvane's base textures into the simulator and makes or restores backups. Do this once before you install
sets.</p>
<h3>Links</h3>
<p>Pages on the web that may help you.</p>
<h3>About</h3>
<p>The version of the program and what is new in it. <b>Save a report</b> writes what helps to find out what went wrong
into one file: what the program told and did, versions, settings. Nothing that you typed is in it, and nothing is
sent; pass it on to whom you ask.</p>

<h2 id="originals">Getting your own textures back</h2>
<p>Morvane keeps a copy of every file of the simulator before it replaces that file.</p>
<ul>
<li>The last install alone: <b>Undo Last Install</b> on the first page.</li>
<li>All of them, as before Morvane's first copy: <b>Base Install</b>, <b>Put my own textures back</b>.</li>
<li>One by one, where another program changed something: <b>Check files</b> on the first page.</li>
</ul>
<p>At the console: <code>morvane-cli undo</code>, <code>morvane-cli originals restore</code> and <code>morvane-cli
verify</code>. The kept files lie in the folder <code>Backup/Originals</code> of the install folder; leave them there.</p>
<p>A <b>backup</b> is something else: a copy of the simulator's base files, made when you ask for it on the page
<b>Base Install</b>. You may keep several, each with its date, and restore any of them on the same page.</p>

<h2 id="room">Room on the disk</h2>
<p>A ground set takes about 50 MB, a backup as much as the simulator's textures. <b>Configuration</b>, <b>More
settings</b>, <b>What Morvane keeps</b> shows how much room each of them takes. Select a row and choose <b>Remove</b>:
sets keep their colours and can be activated again, intermediate images are made again by the next run, and a backup
goes unless it holds the last copy of a texture of your own.</p>

<h2 id="keyboard">Keyboard</h2>
<p><kbd>Tab</kbd> moves from key to key, <kbd>Space</kbd> or <kbd>Enter</kbd> presses the one with the frame,
<kbd>Esc</kbd> answers Cancel, <kbd>F1</kbd> opens this page.</p>
</main>
</body>
</html>
)html";
}

} // namespace morvane::skin
