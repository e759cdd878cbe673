#include "support/home_folder.h"

/// Nothing of who runs the tests is read or written.
static const morvane::test::HomeFolder ownHome;
