/* The compiler would answer many of these calls itself, with its own idea
   of the result; each name is bound to an alias it does not know, so the
   tests reach the library. Include after the library's headers. */
#include <stdlib.h>
#include <string.h>

#define LIB(n) extern __typeof__(n) lib_##n __asm__(#n);
LIB(memcpy) LIB(memmove) LIB(memset) LIB(memchr) LIB(memcmp) LIB(strlen) LIB(strcpy)
LIB(strcat) LIB(strncpy) LIB(strncat) LIB(strcmp) LIB(strncmp) LIB(strcasecmp)
LIB(strncasecmp) LIB(strxfrm) LIB(strchr) LIB(strrchr) LIB(strspn) LIB(strcspn)
LIB(strpbrk) LIB(strstr) LIB(strdup) LIB(abs) LIB(labs)
#undef LIB
#define memcpy lib_memcpy
#define memmove lib_memmove
#define memset lib_memset
#define memchr lib_memchr
#define memcmp lib_memcmp
#define strlen lib_strlen
#define strcpy lib_strcpy
#define strcat lib_strcat
#define strncpy lib_strncpy
#define strncat lib_strncat
#define strcmp lib_strcmp
#define strncmp lib_strncmp
#define strcasecmp lib_strcasecmp
#define strncasecmp lib_strncasecmp
#define strxfrm lib_strxfrm
#define strchr lib_strchr
#define strrchr lib_strrchr
#define strspn lib_strspn
#define strcspn lib_strcspn
#define strpbrk lib_strpbrk
#define strstr lib_strstr
#define strdup lib_strdup
#define abs lib_abs
#define labs lib_labs
