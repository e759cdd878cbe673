#pragma once

#include <QStringList>
#include <vector>

namespace morvane {

class Form;
class Shell;

/// A page and the window that it stands in.
struct ChildPage {
    QString form, host;
};

/// All pages, in the order in which they are taken out of their windows.
const std::vector<ChildPage>& childPages();
/// By name in any case of letters; null for an unknown one.
const ChildPage* childPage(const QString& name);

/// The names of all screens.
QStringList formNames();

/// A new screen of that name, in any case of letters; null for a name that no screen has.
Form* makeForm(Shell& shell, const QString& name);

} // namespace morvane
