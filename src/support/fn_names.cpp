// File name arithmetic; '/' is the only separator.
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "support/fhm.h"
#include "support/memory.h"

namespace {

// Copies at most FN_BUFSIZE - 1 characters of `text` into `buf`.
char *put(char *buf, std::string_view text)
{
    size_t n = std::min(text.size(), FN_BUFSIZE - 1);
    if (n) std::memcpy(buf, text.data(), n);
    buf[n] = '\0';
    return buf;
}

struct name_parts {
    std::string_view dir, base, ext;
    bool has_dot;
};

name_parts split(std::string_view path)
{
    name_parts r{};
    size_t slash = path.rfind('/');
    size_t start = slash == std::string_view::npos ? 0 : slash + 1;
    r.dir = path.substr(0, start);
    std::string_view name = path.substr(start);
    size_t dot = name.rfind('.');
    r.has_dot = dot != std::string_view::npos;
    r.base = r.has_dot ? name.substr(0, dot) : name;
    r.ext = r.has_dot ? name.substr(dot + 1) : std::string_view{};
    return r;
}

std::string_view sv(const char *s) { return s ? std::string_view(s) : std::string_view(); }

std::string joined(std::string_view dir, std::string_view base, std::string_view ext)
{
    std::string out(dir);
    if (!dir.empty() && dir.back() != '/') out += '/';
    out += base;
    if (!ext.empty() && ext.front() != '.') out += '.';
    out += ext;
    return out;
}

}  // namespace

void fn_split(const char *path, const char **dir, const char **base, const char **ext)
{
    static char dir_buf[FN_BUFSIZE], base_buf[FN_BUFSIZE], ext_buf[FN_BUFSIZE];
    name_parts p = split(sv(path));
    if (dir) *dir = put(dir_buf, p.dir);
    if (base) *base = put(base_buf, p.base);
    if (ext) *ext = put(ext_buf, p.ext);
}

char *fn_build(char *buffer, const char *dir, const char *base, const char *ext)
{
    std::string out = joined(sv(dir), sv(base), sv(ext));
    if (!buffer) buffer = static_cast<char *>(safemalloc(out.size() + 1));
    std::memcpy(buffer, out.c_str(), out.size() + 1);
    return buffer;
}

char *fn_addext(const char *name, const char *ext, int replace)
{
    static char buf[FN_BUFSIZE];
    std::string_view n = sv(name);
    name_parts p = split(n);
    if (p.has_dot && !replace) return put(buf, n);
    std::string_view stem = p.has_dot ? n.substr(0, n.size() - p.ext.size() - 1) : n;
    std::string out(stem);
    std::string_view e = sv(ext);
    if (!e.empty() && e.front() != '.') out += '.';
    out += e;
    return put(buf, out);
}

char *fn_delext(const char *name)
{
    static char buf[FN_BUFSIZE];
    std::string_view n = sv(name);
    name_parts p = split(n);
    return put(buf, p.has_dot ? n.substr(0, n.size() - p.ext.size() - 1) : n);
}

bool fn_hasdir(const char *path) { return path && std::strchr(path, '/'); }

const char *fn_basename(const char *path)
{
    if (!path || !*path) return nullptr;
    const char *slash = std::strrchr(path, '/');
    return slash ? slash + 1 : path;
}

int fn_strcmp(const char *a, const char *b)
{
    for (;; ++a, ++b) {
        if (*a != *b) return *a < *b ? -1 : 1;
        if (!*a) return 0;
    }
}

bool fn_samefile(const char *a, const char *b)
{
    struct stat sa, sb;
    if (!a || !b || stat(a, &sa) != 0 || stat(b, &sb) != 0) return false;
    return (sa.st_dev == sb.st_dev && sa.st_ino == sb.st_ino) || std::strcmp(a, b) == 0;
}

char *fn_realname(const char *path) { return safestrdup(path ? path : ""); }

char *fn_tmpnam(char *buffer, const char *dir, const char *prefix)
{
    static constexpr char digits[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    char pfx[6] = "ZQ";
    if (prefix && *prefix) {
        put(pfx, std::string_view(prefix).substr(0, 5));
    } else {
        unsigned long pid = static_cast<unsigned long>(getpid());
        for (int i = 4; i >= 2; --i) {   // lowest digit last
            pfx[i] = digits[pid % 62];
            pid /= 62;
        }
        pfx[5] = '\0';
    }
    char *name = tempnam(dir, pfx);
    if (!name) {
        fprintf(stderr, "ERROR: cannot create temporary file name; %s\n",
                errno == ENOMEM ? "out of memory" : "check directory permissions");
        exit(1);
    }
    if (!buffer) return name;
    std::strcpy(buffer, name);
    free(name);
    return buffer;
}

bool fn_exists(const char *path)
{
    struct stat st;
    return path && stat(path, &st) == 0;
}

int fn_delete(const char *path) { return path ? remove(path) : -1; }

char *fn_get_working_dir(char *buffer)
{
    bool owned = !buffer;
    if (owned) buffer = static_cast<char *>(safemalloc(FN_BUFSIZE + 1));
    if (!getcwd(buffer, FN_BUFSIZE)) {
        perror("getcwd in fn_get_working_dir");
        if (owned) free(buffer);
        return nullptr;
    }
    return buffer;
}

bool fn_has_full_path(const char *p) { return p && p[0] == '/'; }

bool fn_has_relative_path(const char *p) { return p && p[0] != '/'; }

bool fn_starts_with_dot_dot(const char *p)
{
    return p && (std::strncmp(p, "./", 2) == 0 || std::strncmp(p, "../", 3) == 0);
}

int fn_rename(const char *from, const char *to)
{
    if (!from || !to) return 0;
    if (rename(from, to) == 0) return 1;
    if (errno != EXDEV) return 0;
    // Across file systems: copy, and leave the source in place.
    FHM_FILE *in = fhm_open(from, "rb");
    if (!in) return 0;
    FHM_FILE *out = fhm_open(to, "wb");
    if (!out) {
        fhm_close(in);
        return 0;
    }
    char buf[8192];
    bool ok = true;
    for (;;) {
        size_t n = fread(buf, 1, sizeof buf, in->fp());
        if (n == 0) {
            ok = !ferror(in->fp());
            break;
        }
        if (fwrite(buf, 1, n, out->fp()) != n) {
            ok = false;
            break;
        }
    }
    fhm_close(in);
    if (fhm_close(out) != 0) ok = false;
    return ok ? 1 : 0;
}

int fn_change_dir(const char *dir)
{
    int r = dir ? chdir(dir) : -1;
    if (r != 0) perror("chdir in fn_change_dir");
    return r;
}

bool fn_matches_ext(const char *path, const char *ext)
{
    return split(sv(path)).ext.substr(0, FN_BUFSIZE - 1) == sv(ext);
}

int64_t file_size(const char *path)
{
    struct stat st;
    if (!path || stat(path, &st) != 0) return -1;
    return static_cast<int64_t>(st.st_size);
}
