#ifndef _ORV_CTYPE_H
#define _ORV_CTYPE_H

#include "_orv_defs.h"

/* Class bits of _ctype[c + 1]; entry 0 stands for EOF. */
#define _IS_UPP 0x01
#define _IS_LOW 0x02
#define _IS_DIG 0x04
#define _IS_SP  0x08
#define _IS_PUN 0x10
#define _IS_CTL 0x20
#define _IS_BLK 0x40
#define _IS_HEX 0x80

_ORV_BEGIN

extern signed char _ctype[257];

int isalnum(int c);
int isalpha(int c);
int iscntrl(int c);
int isdigit(int c);
int isgraph(int c);
int islower(int c);
int isprint(int c);
int ispunct(int c);
int isspace(int c);
int isupper(int c);
int isxdigit(int c);
int isascii(int c);
int toascii(int c);
int tolower(int c);
int toupper(int c);

_ORV_END

/* The class tests read the table in line; the functions give the same
   bit patterns. tolower and toupper stay calls: they use c twice. */
#define isalnum(c)  (_ctype[(c) + 1] & (_IS_UPP | _IS_LOW | _IS_DIG))
#define isalpha(c)  (_ctype[(c) + 1] & (_IS_UPP | _IS_LOW))
#define iscntrl(c)  (_ctype[(c) + 1] & _IS_CTL)
#define isdigit(c)  (_ctype[(c) + 1] & _IS_DIG)
#define isgraph(c)  (_ctype[(c) + 1] & (_IS_UPP | _IS_LOW | _IS_DIG | _IS_PUN))
#define islower(c)  (_ctype[(c) + 1] & _IS_LOW)
#define isprint(c)  (_ctype[(c) + 1] & (_IS_UPP | _IS_LOW | _IS_DIG | _IS_PUN | _IS_BLK))
#define ispunct(c)  (_ctype[(c) + 1] & _IS_PUN)
#define isspace(c)  (_ctype[(c) + 1] & _IS_SP)
#define isupper(c)  (_ctype[(c) + 1] & _IS_UPP)
#define isxdigit(c) (_ctype[(c) + 1] & _IS_HEX)
#define isascii(c)  ((unsigned)(c) < 128)
#define toascii(c)  ((c) & 0x7F)

#endif
