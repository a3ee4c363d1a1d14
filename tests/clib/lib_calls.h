/* The compiler knows these functions and would answer many calls at
   compile time with its own idea of the result. The tests must reach the
   library, so each name is redirected to an alias the compiler does not
   know, bound to the same symbol. Include after the library's headers. */
#ifndef LIB_CALLS_H
#define LIB_CALLS_H

#define LIB_ALIAS(ret, name, params) \
    ret lib_##name params __asm__(#name);

LIB_ALIAS(void *, memcpy, (void *, const void *, size_t))
LIB_ALIAS(void *, memmove, (void *, const void *, size_t))
LIB_ALIAS(void *, memset, (void *, int, size_t))
LIB_ALIAS(void *, memchr, (const void *, int, size_t))
LIB_ALIAS(int, memcmp, (const void *, const void *, size_t))
LIB_ALIAS(size_t, strlen, (const char *))
LIB_ALIAS(char *, strcpy, (char *, const char *))
LIB_ALIAS(char *, strcat, (char *, const char *))
LIB_ALIAS(char *, strncpy, (char *, const char *, size_t))
LIB_ALIAS(char *, strncat, (char *, const char *, size_t))
LIB_ALIAS(int, strcmp, (const char *, const char *))
LIB_ALIAS(int, strncmp, (const char *, const char *, size_t))
LIB_ALIAS(int, strcasecmp, (const char *, const char *))
LIB_ALIAS(int, strncasecmp, (const char *, const char *, size_t))
LIB_ALIAS(int, strcoll, (const char *, const char *))
LIB_ALIAS(size_t, strxfrm, (char *, const char *, size_t))
LIB_ALIAS(char *, strchr, (const char *, int))
LIB_ALIAS(char *, strrchr, (const char *, int))
LIB_ALIAS(size_t, strspn, (const char *, const char *))
LIB_ALIAS(size_t, strcspn, (const char *, const char *))
LIB_ALIAS(char *, strpbrk, (const char *, const char *))
LIB_ALIAS(char *, strstr, (const char *, const char *))
LIB_ALIAS(char *, strdup, (const char *))
LIB_ALIAS(int, isupper, (int))
LIB_ALIAS(int, islower, (int))
LIB_ALIAS(int, isalpha, (int))
LIB_ALIAS(int, isdigit, (int))
LIB_ALIAS(int, isalnum, (int))
LIB_ALIAS(int, isspace, (int))
LIB_ALIAS(int, ispunct, (int))
LIB_ALIAS(int, isgraph, (int))
LIB_ALIAS(int, iscntrl, (int))
LIB_ALIAS(int, isprint, (int))
LIB_ALIAS(int, isxdigit, (int))
LIB_ALIAS(int, isascii, (int))
LIB_ALIAS(int, toascii, (int))
LIB_ALIAS(int, tolower, (int))
LIB_ALIAS(int, toupper, (int))
LIB_ALIAS(int, abs, (int))
LIB_ALIAS(long, labs, (long))
LIB_ALIAS(long, strtol, (const char *, char **, int))
LIB_ALIAS(unsigned long, strtoul, (const char *, char **, int))
LIB_ALIAS(int, atoi, (const char *))
LIB_ALIAS(long, atol, (const char *))

#undef LIB_ALIAS

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
#define strcoll lib_strcoll
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
#define strtol lib_strtol
#define strtoul lib_strtoul
#define atoi lib_atoi
#define atol lib_atol

/* The class functions, as opposed to the header's macros. */
#define fn_isupper lib_isupper
#define fn_islower lib_islower
#define fn_isalpha lib_isalpha
#define fn_isdigit lib_isdigit
#define fn_isalnum lib_isalnum
#define fn_isspace lib_isspace
#define fn_ispunct lib_ispunct
#define fn_isgraph lib_isgraph
#define fn_iscntrl lib_iscntrl
#define fn_isprint lib_isprint
#define fn_isxdigit lib_isxdigit
#define fn_isascii lib_isascii
#define fn_toascii lib_toascii
#define fn_tolower lib_tolower
#define fn_toupper lib_toupper

#endif
