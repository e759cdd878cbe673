#pragma once

#include "ui/host_form.h"

namespace morvane {

/// A page that has its place in the program and nothing on it yet.
class UnbuiltPage : public PageForm {
    Q_OBJECT
public:
    struct Setup {
        QString name, key, icon, title;
    };
    UnbuiltPage(Shell& shell, const Setup& setup);
    void format() override;

private:
    Setup setup_;
};

/// The same for a list window.
class UnbuiltHost : public HostForm {
    Q_OBJECT
public:
    UnbuiltHost(Shell& shell, const QString& name, const WindowLook& look, const HostKeys& keys,
                const QString& colourPage);
    void formatList() override;
};

} // namespace morvane
