#ifndef _ORV_LOCALE_H
#define _ORV_LOCALE_H

#include "_orv_defs.h"

/* One locale, "C": the category is not looked at. */
#define LC_ALL 0
#define LC_COLLATE 1
#define LC_CTYPE 2
#define LC_MONETARY 3
#define LC_NUMERIC 4
#define LC_TIME 5

_ORV_BEGIN

char *setlocale(int category, const char *locale);

_ORV_END

#endif
