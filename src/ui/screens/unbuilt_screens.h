#pragma once

#include "ui/page_form.h"

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

} // namespace morvane
