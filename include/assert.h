/* No include guard: the meaning of assert follows NDEBUG at each inclusion. */
#include "_orv_defs.h"

_ORV_BEGIN
void _gripe_(const char *file, int line, const char *text);
_ORV_END

#undef assert
#ifdef NDEBUG
#define assert(e) ((void)0)
#else
#define assert(e) ((e) ? (void)0 : _gripe_(__FILE__, __LINE__, #e))
#endif
