#pragma once

#include "support/temporary_folder.h"

#include <map>

namespace morvane::test {

/// A home of its own for as long as it lives: what is looked for in the user's is looked for here, by the
/// programs that are started as well.
class HomeFolder {
public:
    HomeFolder();
    ~HomeFolder();
    HomeFolder(const HomeFolder&) = delete;
    HomeFolder& operator=(const HomeFolder&) = delete;

    QString path() const { return folder_.path().native(); }
    FilePath operator/(QStringView relative) const { return folder_ / relative; }

private:
    TemporaryFolder folder_;
    std::map<QByteArray, QByteArray> before_; ///< by the variable; a null one was not set
};

} // namespace morvane::test
