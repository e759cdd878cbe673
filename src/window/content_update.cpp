#include "window/content_update.h"

#include "core/attempts.h"
#include "core/delivered_list.h"
#include "core/install_folder.h"
#include "window/content_tool.h"

#include <QMessageBox>
#include <QProgressDialog>

namespace morvane {

bool awaitsContentUpdate(const FilePath& home) {
    NativeFileSystem files;
    bool awaitsUpdate = false; // a list that cannot be read is no reason not to start
    attempt([&] { awaitsUpdate = DeliveredList(files, home).awaitsUpdate(); });
    return awaitsUpdate && files.exists(home / u"Morvane.mdb") && installFolderProblem(files, home).isEmpty();
}

void updateDeliveredContent(const FilePath& home) {
    QProgressDialog progress(
        u"This version of Morvane brings its pictures and base images up to date in\n"_s + home.text() +
            u"\nYour sets, your own textures and your backups stay as they are."_s,
        u"Later"_s, 0, 100);
    const ContentToolRun run = runContentTool({u"--home"_s, home.native(), u"--update"_s}, progress);
    if (run.end != ContentToolRun::End::failed || progress.wasCanceled()) return;
    progress.hide();
    NativeFileSystem files;
    DeliveredList list(files, home);
    attempt([&] { list.noteFailure(); });
    QMessageBox::warning(
        nullptr, u"Morvane"_s,
        u"Not all pictures and base images could be brought up to date.  Each is the old or the new "
        u"one as a whole, and "_s +
            (list.awaitsUpdate() ? u"the next start tries the others again."_s
                                 : u"the others stay as they are until the next version.  To try them again "
                                   u"before, call morvane-content with --update."_s) +
            u'\n' + run.cause);
}

} // namespace morvane
