/* A library put before the C library's own: counts the calls that change the file tree below one folder and
 * kills the process at the n-th of them, before it takes effect (a write is half done first). The place of the
 * death is thus chosen, not raced for.
 *
 *   QUILLMERE_DIE_FOLDER  absolute folder whose changes count
 *   QUILLMERE_DIE_AT      number of the call, from 1; 0 or nothing: never
 *   QUILLMERE_DIE_LOG     a file that gets one line a call
 *   QUILLMERE_DIE_FULL    number of the call from which on the disk is full
 */
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#define REAL(name) ((__typeof__(&name))dlsym(RTLD_NEXT, #name))

static char counted[1024]; /* descriptors of files below the folder */
static int calls;

static int below(const char* path) {
    const char* folder = getenv("QUILLMERE_DIE_FOLDER");
    return folder && path && strncmp(path, folder, strlen(folder)) == 0;
}

static int number(const char* name) {
    const char* text = getenv(name);
    return text ? atoi(text) : 0;
}

static void note(const char* what, const char* path) {
    const char* log = getenv("QUILLMERE_DIE_LOG");
    char line[4200];
    int file, length;
    if (!log) return;
    length = snprintf(line, sizeof line, "%d %s %s\n", calls, what, path ? path : "");
    file = REAL(open)(log, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    if (file < 0) return;
    if (REAL(write)(file, line, (size_t)length) < 0) abort();
    close(file);
}

/* Returns 1 when this call is the one to die at. */
static int step(const char* what, const char* path) {
    ++calls;
    note(what, path);
    return calls == number("QUILLMERE_DIE_AT");
}

static int full(void) {
    const int from = number("QUILLMERE_DIE_FULL");
    return from > 0 && calls >= from;
}

static void die(void) { kill(getpid(), SIGKILL); }

static int opened(const char* path, int flags, int file) {
    if (file >= 0 && file < (int)sizeof counted) counted[file] = (flags & O_ACCMODE) != O_RDONLY && below(path);
    return file;
}

static int before_open(const char* path, int flags) {
    if (!(flags & (O_CREAT | O_TRUNC)) || !below(path)) return 0;
    if (step("open", path)) die();
    if (full()) return errno = ENOSPC, -1;
    return 0;
}

#define OPEN(name)                                                        \
    int name(const char* path, int flags, ...) {                          \
        va_list list;                                                     \
        mode_t mode;                                                      \
        va_start(list, flags);                                            \
        mode = (mode_t)va_arg(list, int);                                 \
        va_end(list);                                                     \
        if (before_open(path, flags) < 0) return -1;                      \
        return opened(path, flags, REAL(name)(path, flags, mode));        \
    }
#define OPENAT(name)                                                      \
    int name(int at, const char* path, int flags, ...) {                  \
        va_list list;                                                     \
        mode_t mode;                                                      \
        va_start(list, flags);                                            \
        mode = (mode_t)va_arg(list, int);                                 \
        va_end(list);                                                     \
        if (before_open(path, flags) < 0) return -1;                      \
        return opened(path, flags, REAL(name)(at, path, flags, mode));    \
    }
OPEN(open)
OPEN(open64)
OPENAT(openat)
OPENAT(openat64)

int close(int file) {
    if (file >= 0 && file < (int)sizeof counted) counted[file] = 0;
    return REAL(close)(file);
}

static int counts(int file) { return file >= 0 && file < (int)sizeof counted && counted[file]; }

ssize_t write(int file, const void* bytes, size_t size) {
    if (!counts(file)) return REAL(write)(file, bytes, size);
    if (step("write", NULL)) {
        if (REAL(write)(file, bytes, size / 2) < 0) abort();
        die();
    }
    if (full()) return errno = ENOSPC, -1;
    return REAL(write)(file, bytes, size);
}

#define FILE_CALL(name)                                                   \
    int name(int file) {                                                  \
        if (counts(file) && step(#name, NULL)) die();                     \
        return REAL(name)(file);                                          \
    }
FILE_CALL(fsync)
FILE_CALL(fdatasync)

#define PATH_CALL(name, parameters, arguments)                            \
    int name parameters {                                                 \
        if (below(path) && step(#name, path)) die();                      \
        return REAL(name) arguments;                                      \
    }
PATH_CALL(unlink, (const char* path), (path))
PATH_CALL(rmdir, (const char* path), (path))
PATH_CALL(rename, (const char* path, const char* to), (path, to))
PATH_CALL(unlinkat, (int at, const char* path, int flags), (at, path, flags))
PATH_CALL(renameat, (int at, const char* path, int at2, const char* to), (at, path, at2, to))

int mkdir(const char* path, mode_t mode) {
    if (below(path) && step("mkdir", path)) die();
    if (below(path) && full()) return errno = ENOSPC, -1;
    return REAL(mkdir)(path, mode);
}
