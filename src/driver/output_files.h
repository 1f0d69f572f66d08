#pragma once
// The files a run writes. Each is claimed by name before anything is written,
// refused when it is the same file as an input or as another output, written
// to a temporary beside its target, and renamed into place only when the run
// succeeds. A target that exists and is not a regular file is written directly.
#include <cstdint>
#include <cstdio>
#include <string>
#include <sys/types.h>

class FHM_FILE;

enum class out_kind : uint8_t { object, listing, dependency, pbc, profile };

// What makes two names one file: device and inode of an existing file, or of
// the directory of one that does not exist yet together with its base name.
struct out_identity {
  dev_t dev = 0;
  ino_t ino = 0;
  std::string base;  // empty for an existing file
  bool device = false;  // a character device: writing it twice harms nothing
};
bool OUT_identify(const char *name, out_identity &id);
bool OUT_same(const out_identity &a, const out_identity &b);

// Inputs that outputs must not overwrite: the source and the command files.
void OUT_note_input(const char *name);
// A file opened for reading while assembling (copied, included, a library):
// one that is the same file as an output ends the run with E1000.
void OUT_check_input(const char *name);

// Registers an output; a collision ends the run with E1000.
void OUT_claim(out_kind kind, const char *name);
bool OUT_claimed(out_kind kind);
// Makes the file to write (the temporary, or the target itself). False with
// errno when it cannot be made.
bool OUT_create(out_kind kind);
// The path to write: valid after OUT_create.
const char *OUT_path(out_kind kind);
// A stdio stream on the file, for outputs that are written that way.
FILE *OUT_stream(out_kind kind);
// Ends the writing of an output: flushes and closes its stream, or the given
// managed handle. A failed write is reported with E1000 and the output is
// dropped. False on failure.
bool OUT_finish(out_kind kind, FHM_FILE *fh = nullptr);
// Reports a failed write of an output ("Failed to write ... : name: error") and
// drops it.
void OUT_failed(out_kind kind, int err);
// Drops one output: its temporary goes, an older target stays.
void OUT_discard(out_kind kind);

// Removes the target itself when it is a regular file; a failure is reported.
void OUT_remove_target(out_kind kind);

// Puts one output in place now: for one that is kept after a failed run too,
// as a listing that shows the errors. A failed rename is reported with E1000.
bool OUT_commit(out_kind kind);
// At a successful end: every output still held replaces its target. A failed
// rename is reported with E1000. False when any failed.
bool OUT_commit_all();
// At a failed end (and at exit): every temporary is removed.
void OUT_discard_all();
// From a signal handler: unlinks the temporaries, nothing more.
void OUT_remove_temporaries_now();
