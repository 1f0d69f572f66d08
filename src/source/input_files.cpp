// Opening source text: regular files only, and pipes copied to a temporary file.
#include "source/input_files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "driver/diag.h"
#include "support/fhm.h"

namespace {

const char NOT_REGULAR[] = "Not a regular file";

// Whether what fd stands for can be read again from its start.
bool regular(int fd) {
  struct stat st {};
  return fstat(fd, &st) == 0 && S_ISREG(st.st_mode);
}

// The text of a pipe, copied once into a file that is unlinked as soon as it
// is made: it needs no removal on any way out of the run, a signal included.
FHM_FILE *spool(FHM_FILE *pipe, const char *name, const char **why) {
  const char *dir = std::getenv("TMPDIR");
  std::string path = dir && *dir ? dir : P_tmpdir;
  path += "/zqXXXXXX";
  const int fd = mkstemp(path.data());
  if (fd < 0) {
    *why = std::strerror(errno);
    return nullptr;
  }
  unlink(path.c_str());
  FILE *copy = fdopen(fd, "w+b");
  if (!copy) {
    *why = std::strerror(errno);
    close(fd);
    return nullptr;
  }
  FILE *in = pipe->fp();
  char buf[1 << 16];
  size_t n;
  int err = 0;
  while (in && (n = std::fread(buf, 1, sizeof buf, in)) > 0)
    if (std::fwrite(buf, 1, n, copy) != n) {
      err = errno ? errno : EIO;
      break;
    }
  if (!err && (!in || std::ferror(in))) err = errno ? errno : EIO;
  if (!err && (std::fflush(copy) != 0 || std::fseek(copy, 0, SEEK_SET) != 0)) err = errno;
  if (err) {
    *why = std::strerror(err);
    std::fclose(copy);
    return nullptr;
  }
  FHM_FILE *f = fhm_adopt(copy, name, "rb");
  if (!f) {
    *why = std::strerror(errno);
    std::fclose(copy);
  }
  return f;
}

}  // namespace

FHM_FILE *SRC_open_main(const char *name, const char **why) {
  static const char *ignored;
  if (!why) why = &ignored;
  struct stat st {};
  if (stat(name, &st) != 0) {
    *why = std::strerror(errno);
    return nullptr;
  }
  if (S_ISDIR(st.st_mode)) {
    *why = std::strerror(EISDIR);
    return nullptr;
  }
  // A device would be read for ever or differently in each pass.
  if (!S_ISREG(st.st_mode) && !S_ISFIFO(st.st_mode) && !S_ISSOCK(st.st_mode)) {
    *why = NOT_REGULAR;
    return nullptr;
  }
  FHM_FILE *f = fhm_open(name, "rb");
  if (!f) {
    *why = std::strerror(errno);
    return nullptr;
  }
  FILE *fp = f->fp();
  if (fp && regular(fileno(fp))) return f;
  // What stands behind the name can change between the look and the open.
  if (!fp || S_ISREG(st.st_mode)) {
    *why = NOT_REGULAR;
    fhm_close(f);
    return nullptr;
  }
  f->set_persistent(true);  // a pipe cannot be reopened while it is copied
  FHM_FILE *copy = spool(f, name, why);
  fhm_close(f);
  return copy;
}

FHM_FILE *SRC_open_copy(const char *path) {
  struct stat st {};
  if (stat(path, &st) != 0) return nullptr;
  if (!S_ISREG(st.st_mode)) {
    errno = S_ISDIR(st.st_mode) ? EISDIR : EINVAL;
    return nullptr;
  }
  FHM_FILE *f = fhm_open(path, "rb");
  if (!f) return nullptr;
  FILE *fp = f->fp();
  if (!fp || !regular(fileno(fp))) {
    fhm_close(f);
    errno = EINVAL;
    return nullptr;
  }
  return f;
}

bool SRC_rewind(FHM_FILE *f) {
  FILE *fp = f ? f->fp() : nullptr;
  if (!fp) return false;
  if (std::fseek(fp, 0, SEEK_SET) != 0) return false;
  std::clearerr(fp);
  return true;
}

void SRC_fail(const char *name, int err) {
  error_user(nullptr, "E1000", "cannot open source file %s: %s", name ? name : "", std::strerror(err));
  std::exit(1);
}
