/* FILE streams: the 350 records, their inline character step, and the
   family of stream operations. */
#ifndef _ORV_STDIO_H
#define _ORV_STDIO_H
#include "_orv_defs.h"
#include "stdarg.h"

typedef struct _iobuf {
    int _cnt;             /* characters left for the inline step */
    unsigned char *_ptr;  /* next byte to take or store */
    unsigned char *_base; /* start of the buffer */
    int _bufsiz;
    int _file;            /* descriptor number */
    unsigned short _flag; /* 0: the record is free */
    unsigned short _pad;
} FILE;
#define _ORV_FILE_DEFINED 1

typedef long fpos_t;

#define _IOREAD 0x0001
#define _IOWRT 0x0002
#define _IONBF 0x0004
#define _IOUSERBUF 0x0008
#define _IOEOF 0x0010
#define _IOERR 0x0020
#define _IOLBF 0x0080
#define _IORW 0x0100
#define _IOOPENED 0x0400
#define _IOTMP 0x1000
#define _IOFBF 0

#define BUFSIZ 1024
#define FOPEN_MAX 350
#define EOF (-1)
#define SEEK_SET 0
#define SEEK_CUR 1
#define SEEK_END 2
#define L_tmpnam 13
#define TMP_MAX 32767

_ORV_BEGIN
extern FILE _orviob[];

FILE *fopen(const char *path, const char *mode);
FILE *freopen(const char *path, const char *mode, FILE *stream);
FILE *fdopen(int fd, const char *mode);
int fclose(FILE *stream);
int fflush(FILE *stream);
int setvbuf(FILE *stream, char *buffer, int mode, size_t size);
void setbuf(FILE *stream, char *buffer);
int fgetc(FILE *stream);
int getc(FILE *stream);
int getchar(void);
int fputc(int c, FILE *stream);
int putc(int c, FILE *stream);
int putchar(int c);
int _filbuf(FILE *stream);
int _flsbuf(int c, FILE *stream);
int ungetc(int c, FILE *stream);
char *fgets(char *buffer, int n, FILE *stream);
char *gets(char *buffer);
int fputs(const char *string, FILE *stream);
int puts(const char *string);
size_t fread(void *buffer, size_t size, size_t count, FILE *stream);
size_t fwrite(const void *buffer, size_t size, size_t count, FILE *stream);
int _getw(FILE *stream);
int _putw(int word, FILE *stream);
long ftell(FILE *stream);
int fgetpos(FILE *stream, fpos_t *position);
int fseek(FILE *stream, long offset, int whence);
int fsetpos(FILE *stream, const fpos_t *position);
int rewind(FILE *stream);
void clearerr(FILE *stream);
int feof(FILE *stream);
int ferror(FILE *stream);
int _fileno(FILE *stream);
int remove(const char *path);
int rename(const char *old_name, const char *new_name);
void perror(const char *prefix);
FILE *tmpfile(void);
char *tmpnam(char *buffer);
char *tempnam(const char *dir, const char *prefix);
_ORV_END

#define stdin (&_orviob[0])
#define stdout (&_orviob[1])
#define stderr (&_orviob[2])

/* The inline step compiled code takes: a decrement, a test, a pointer step. */
#define getc(s) (--(s)->_cnt >= 0 ? (int)*(s)->_ptr++ : _filbuf(s))
#define putc(c, s) (--(s)->_cnt >= 0 ? (int)(*(s)->_ptr++ = (unsigned char)(c)) : _flsbuf((unsigned char)(c), (s)))
#define getchar() getc(stdin)
#define putchar(c) putc((c), stdout)
#define feof(s) ((s)->_flag & _IOEOF)
#define ferror(s) ((s)->_flag & _IOERR)
#define _fileno(s) ((s)->_file)
#define fileno(s) _fileno(s)

#include "_orv_printf.h"

/* What the input engine reads from: get(context) answers the next byte as
   an unsigned value, or -1 at the end. */
struct _orv_source {
    void *context;
    int (*get)(void *context);
};

_ORV_BEGIN
int _scanf_(struct _orv_source *source, int (*unget)(int character, struct _orv_source *source),
            const char *format, const void *arguments);
int scanf(const char *format, ...);
int fscanf(FILE *stream, const char *format, ...);
int sscanf(const char *string, const char *format, ...);
_ORV_END


#endif
