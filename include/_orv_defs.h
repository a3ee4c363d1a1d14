/* Basic types shared by the public headers, from the compiler's own
   definitions so that the library and its programs agree on them. */
#ifndef _ORV_DEFS_H
#define _ORV_DEFS_H

#ifndef _ORV_SIZE_T
#define _ORV_SIZE_T
typedef __SIZE_TYPE__ size_t;
#endif

#ifndef NULL
#ifdef __cplusplus
#define NULL 0
#else
#define NULL ((void *)0)
#endif
#endif

#ifdef __cplusplus
#define _ORV_BEGIN extern "C" {
#define _ORV_END }
#else
#define _ORV_BEGIN
#define _ORV_END
#endif

#endif
