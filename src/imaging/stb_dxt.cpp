// The library's own code, which is nothing but a header. Its tables are constants since its version 1.11, so
// that any number of threads may encode; Debian 12 has 1.12.

#include <string.h> // it calls memcpy without including this

#define STB_DXT_IMPLEMENTATION
#include <stb/stb_dxt.h>
