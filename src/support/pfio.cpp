// Checked stdio for the byte container and the engines.
#include <sys/types.h>

#include <cerrno>
#include <cstring>

#include "support/data_map.h"
#include "support/support_msg.h"

// ---- checked stdio ---------------------------------------------------------------------

size_t pfread(void *buf, size_t size, size_t count, FILE *f)
{
    if (!f) {
        support_apperror("pfread called with a NULL FILE pointer");
        return 0;
    }
    size_t got = fread(buf, size, count, f);
    if (got != count)
        support_apperror("call to pfread failed:  %s",
                         ferror(f) ? strerror(errno) : "unexpected end of file");
    return got;
}

size_t pfwrite(const void *buf, size_t size, size_t count, FILE *f)
{
    if (!f) {
        support_apperror("pfwrite called with a NULL FILE pointer");
        return 0;
    }
    size_t put = fwrite(buf, size, count, f);
    if (put != count) support_apperror("call to pfwrite failed:  %s", strerror(errno));
    return put;
}

int pfseek(FILE *f, int64_t offset, int whence)
{
    if (!f) {
        support_apperror("pfseeko called with a NULL FILE pointer");
        return -1;
    }
    if (whence == SEEK_SET && offset < 0) {
        support_apperror("pfseeko called with SEEK_SET, but offset is negative");
        return -1;
    }
    if (fseeko(f, static_cast<off_t>(offset), whence) != 0) {
        support_apperror("call to pfseeko failed:  %s", strerror(errno));
        return -1;
    }
    return 0;
}

int64_t pftello(FILE *f)
{
    if (!f) {
        support_apperror("pftello called with a NULL FILE pointer");
        return -1;
    }
    off_t pos = ftello(f);
    if (pos < 0) support_apperror("call to pftello failed:  %s", strerror(errno));
    return pos;
}

long pftell(FILE *f) { return static_cast<long>(pftello(f)); }
