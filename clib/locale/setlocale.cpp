#include "include/locale.h"
#include "runtime/export.h"

namespace {
constinit char locale_name[2] = {};
} // namespace

// Only "C" exists; a null or empty name asks for it too.
extern "C" ORV_EXPORT char *setlocale(int, const char *locale) {
    if (locale && locale[0] && !(locale[0] == 'C' && locale[1] == 0)) return nullptr;
    locale_name[0] = 'C';
    locale_name[1] = 0;
    return locale_name;
}
