// The files a run writes: claimed before anything is written, written beside
// their targets, and put in place only at a successful end.
#include "driver/output_files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

#include "driver/diag.h"
#include "source/lexer.h"
#include "support/fhm.h"

namespace {

struct out_row {
  out_kind kind;
  const char *failed_text;
};
constexpr out_row out_rows[] = {
    {out_kind::object, "Failed to write object file : %s"},
    {out_kind::listing, "Failed to write listing file : %s"},
    {out_kind::dependency, "Failed to write dependency file : %s"},
    {out_kind::pbc, "Failed to write pbc output file : %s"},
    {out_kind::profile, "Failed to write profile file : %s"},
};
constexpr size_t OUT_KINDS = std::size(out_rows);

struct out_file {
  std::string target;    // the name as the run has it
  std::string dest;      // what the rename replaces: the target through its links
  std::string path;      // what is written: a temporary beside dest, or the target
  FILE *fp = nullptr;    // for outputs written through stdio
  bool claimed = false;
  bool created = false;  // path exists and belongs to this run
  bool in_place = false; // the target is a device or a pipe, written directly
};

std::array<out_file, OUT_KINDS> outputs;
std::vector<std::pair<out_identity, std::string>> inputs;
// The temporaries as plain pointers, for a signal handler.
const char *volatile live_temps[OUT_KINDS];
bool exit_hook_set = false;

out_file &slot(out_kind k) { return outputs[static_cast<size_t>(k)]; }

const out_row &row(out_kind k) { return out_rows[static_cast<size_t>(k)]; }

[[noreturn]] void refuse(linebuf *line, const char *output, const char *other) {
  error_user(line, "E1000", "Output file %s is the same file as %s", output, other);
  exit(1);
}

std::string directory_of(const std::string &name) {
  const size_t slash = name.find_last_of('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : name.substr(0, slash);
}

std::string base_of(const std::string &name) {
  const size_t slash = name.find_last_of('/');
  return slash == std::string::npos ? name : name.substr(slash + 1);
}

// A target that is a link is replaced through it: the linked file gets the
// new contents, as an open for writing would have done.
std::string resolved(const std::string &name) {
  struct stat st;
  if (lstat(name.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return name;
  char *real = realpath(name.c_str(), nullptr);
  if (!real) return name;
  std::string r = real;
  free(real);
  return r;
}

// The mode a newly made file would get, or that of the file it replaces.
mode_t target_mode(const std::string &dest) {
  struct stat st;
  if (stat(dest.c_str(), &st) == 0) return st.st_mode & 07777;
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

void forget_temp(out_kind k) { live_temps[static_cast<size_t>(k)] = nullptr; }

bool remove_temp(out_file &o, out_kind k) {
  forget_temp(k);
  const bool had = o.created && !o.in_place;
  o.created = false;
  if (!had || unlink(o.path.c_str()) == 0 || errno == ENOENT) return true;
  const int err = errno;
  error_user(nullptr, "E1000", "Cannot remove temporary file %s: %s", o.path.c_str(), strerror(err));
  return false;
}

}  // namespace

bool OUT_identify(const char *name, out_identity &id) {
  if (!name || !*name) return false;
  struct stat st;
  if (stat(name, &st) == 0) {
    id = out_identity{st.st_dev, st.st_ino, std::string(), S_ISCHR(st.st_mode)};
    return true;
  }
  const std::string base = base_of(name);
  if (base.empty() || stat(directory_of(name).c_str(), &st) != 0) return false;
  id = out_identity{st.st_dev, st.st_ino, base, false};
  return true;
}

bool OUT_same(const out_identity &a, const out_identity &b) {
  return a.dev == b.dev && a.ino == b.ino && a.base == b.base;
}

void OUT_note_input(const char *name) {
  out_identity id;
  if (OUT_identify(name, id) && id.base.empty() && !id.device) inputs.emplace_back(id, name);
}

void OUT_check_input(const char *name) {
  out_identity in;
  if (!OUT_identify(name, in) || in.device) return;
  for (size_t k = 0; k < OUT_KINDS; ++k) {
    const out_file &o = outputs[k];
    if (!o.claimed) continue;
    out_identity id;
    if (OUT_identify(o.target.c_str(), id) && OUT_same(id, in)) refuse(curline, o.target.c_str(), name);
    if (o.created && !o.in_place && OUT_identify(o.path.c_str(), id) && OUT_same(id, in))
      refuse(curline, o.target.c_str(), name);
  }
}

void OUT_claim(out_kind kind, const char *name) {
  out_file &o = slot(kind);
  o.target = name ? name : "";
  o.claimed = true;
  out_identity id;
  if (!OUT_identify(o.target.c_str(), id) || id.device) return;
  for (const auto &[in, in_name] : inputs)
    if (OUT_same(in, id)) refuse(nullptr, o.target.c_str(), in_name.c_str());
  for (const out_file &other : outputs) {
    if (&other == &o || !other.claimed) continue;
    out_identity oid;
    if (OUT_identify(other.target.c_str(), oid) && OUT_same(oid, id))
      refuse(nullptr, o.target.c_str(), other.target.c_str());
  }
}

bool OUT_claimed(out_kind kind) { return slot(kind).claimed; }

bool OUT_create(out_kind kind) {
  out_file &o = slot(kind);
  if (!o.claimed) {
    errno = EINVAL;
    return false;
  }
  if (!exit_hook_set) {
    exit_hook_set = true;
    atexit(OUT_discard_all);
  }
  OUT_discard(kind);
  o.dest = resolved(o.target);
  struct stat st;
  if (stat(o.dest.c_str(), &st) == 0) {
    o.in_place = !S_ISREG(st.st_mode);
    // The rename would replace a file that may not be written to.
    if (!o.in_place && access(o.dest.c_str(), W_OK) != 0) return false;
  } else {
    o.in_place = false;
  }
  if (o.in_place) {
    o.path = o.dest;
    o.created = true;
    return true;
  }
  const std::string base = base_of(o.dest);
  std::string temp = directory_of(o.dest) + "/" + (base.size() < NAME_MAX - 16 ? base : "zq") + ".XXXXXX";
  const int fd = mkstemp(temp.data());
  if (fd < 0) return false;
  if (close(fd) != 0) {
    const int err = errno;
    unlink(temp.c_str());
    errno = err;
    return false;
  }
  o.path = std::move(temp);
  o.created = true;
  live_temps[static_cast<size_t>(kind)] = o.path.c_str();
  return true;
}

const char *OUT_path(out_kind kind) { return slot(kind).path.c_str(); }

FILE *OUT_stream(out_kind kind) {
  out_file &o = slot(kind);
  if (!o.created) return nullptr;
  if (!o.fp) o.fp = fopen(o.path.c_str(), "w");
  return o.fp;
}

bool OUT_finish(out_kind kind, FHM_FILE *fh) {
  out_file &o = slot(kind);
  int err = 0;
  errno = 0;
  if (fh) {
    FILE *fp = fh->fp();
    if (!fp || ferror(fp) || fflush(fp) != 0) err = errno ? errno : EIO;
    if (fhm_close(fh) != 0 && !err) err = errno ? errno : EIO;
  }
  if (o.fp) {
    if (ferror(o.fp) || fflush(o.fp) != 0) err = errno ? errno : EIO;
    if (fclose(o.fp) != 0 && !err) err = errno ? errno : EIO;
    o.fp = nullptr;
  }
  if (err && o.created) {
    OUT_failed(kind, err);
    return false;
  }
  return o.created;
}

void OUT_failed(out_kind kind, int err) {
  out_file &o = slot(kind);
  const std::string detail = o.target + ": " + strerror(err);
  error_user(nullptr, "E1000", row(kind).failed_text, detail.c_str());
  OUT_discard(kind);
}

void OUT_discard(out_kind kind) {
  out_file &o = slot(kind);
  if (o.fp) {
    fclose(o.fp);  // what it held is dropped
    o.fp = nullptr;
  }
  remove_temp(o, kind);
}

void OUT_remove_target(out_kind kind) {
  const out_file &o = slot(kind);
  const std::string dest = resolved(o.target);
  struct stat st;
  if (stat(dest.c_str(), &st) != 0 || !S_ISREG(st.st_mode)) return;
  if (unlink(dest.c_str()) == 0 || errno == ENOENT) return;
  const int err = errno;
  error_user(nullptr, "E1000", "Cannot remove %s: %s", dest.c_str(), strerror(err));
}

bool OUT_commit(out_kind kind) {
  out_file &o = slot(kind);
  if (!o.created) return true;
  if (o.fp && !OUT_finish(kind)) return false;
  if (!o.in_place && (chmod(o.path.c_str(), target_mode(o.dest)) != 0 ||
                      rename(o.path.c_str(), o.dest.c_str()) != 0)) {
    OUT_failed(kind, errno);
    return false;
  }
  forget_temp(kind);
  o.created = false;
  return true;
}

bool OUT_commit_all() {
  bool ok = true;
  for (const out_row &r : out_rows) ok = OUT_commit(r.kind) && ok;
  return ok;
}

void OUT_discard_all() {
  for (const out_row &r : out_rows) OUT_discard(r.kind);
}

void OUT_remove_temporaries_now() {
  for (const char *volatile &p : live_temps) {
    const char *path = p;
    p = nullptr;
    if (path) unlink(path);
  }
}
