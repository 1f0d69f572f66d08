#pragma once
// Copied and included files: the file position, the copy stack and the search path.
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

class FHM_FILE;
struct instruct;

extern char *f_name;         // file being read, as written; copies of copied names are malloc'd
extern int32_t f_lnum;       // last line read from it
extern char f_lchar;         // its letter in the listing, blank for the main source
extern uint16_t f_temp_del;  // delete the file after reading it in pass 2
extern char copych;          // next letter to hand out
extern int16_t copytop;      // top of copystk, -1 when empty
extern int16_t include_point;
extern const char *env_ptr;  // directory where the last search_dirs found its file

constexpr int COPY_MAX = 32;

struct copy_entry {
  FHM_FILE *source;
  char *f_name;
  std::string path0;         // slot 0 of paths
  int32_t f_lnum;
  bool list_on;
  char f_lchar;
  uint16_t f_temp_del;
};
extern copy_entry copystk[COPY_MAX];

// Saves the state of the file being read on copystk (LOCLBL_flush first).
void push_copy();
// Closes the file being read and restores its parent; 0 at an empty stack.
unsigned short pop_copy();
// Opens name as given (when it has a directory) or in each directory of paths.
FHM_FILE *search_dirs(const char *name, const char *mode);

// Looks up ZQ_ARM_<name>, KRV616_<name>, <name> and hands each entry of the
// first one found (a ';' list, trimmed, empty entries skipped) to cb.
void extract_paths(const char *name, const std::function<void(const char *)> &cb);

// Start of a pass: restart the --copy_file/--include_file list.
void cmdline_include_init();
// A made ".copy"/".include" line for the next command-line file (malloc'd),
// or null when none is left.
char *include_file_get_line();
bool cmdline_includes_pending();
// The line being read was made for a file of the command line.
bool cmdline_include_current();

// Both passes of .copy and .include (the parse handler is DP_filename).
void GD_copy(instruct *ir);
