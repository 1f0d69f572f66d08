// The command line: its words, the file names of the run, and the files opened
// before pass 1.
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/driver_run.h"
#include "driver/options.h"
#include "driver/output_files.h"
#include "source/copy.h"
#include "source/input_files.h"
#include "support/fhm.h"
#include "target/arm/trg.h"

namespace {

FILE *cmd_file = nullptr;
int next_argv_index = 1;
// The command files opened since the last word of argv: one of them opened
// again would be read for ever.
std::vector<out_identity> cmd_chain;
// The last two command-file words stay alive: an option handler may still be
// reading the option's own word while it fetches its detached argument.
char *cmd_words[2] = {nullptr, nullptr};

void keep_cmd_word(char *word) {
  free(cmd_words[0]);
  cmd_words[0] = cmd_words[1];
  cmd_words[1] = word;
}

void store_name(char (&dst)[4096], const std::string &src) {
  const size_t n = src.size() < sizeof dst - 1 ? src.size() : sizeof dst - 1;
  memcpy(dst, src.data(), n);
  dst[n] = '\0';
}

std::string with_extension(const std::string &name, const char *ext) {
  return name_without_extension(name) + ext;
}

void trim(std::string &s) {
  const char *ws = " \t\r\n\f\v";
  const size_t first = s.find_first_not_of(ws);
  if (first == std::string::npos) {
    s.clear();
    return;
  }
  s.erase(s.find_last_not_of(ws) + 1);
  s.erase(0, first);
}

// Whether the raw bytes hold the word, or a Ctrl-Z that the reader would
// drop from inside it: only then is the piece-by-piece scan worth its time.
bool may_hold(FILE *fp, std::string_view word) {
  std::vector<char> buf(size_t{1} << 16);
  size_t kept = 0;
  for (size_t n; (n = fread(buf.data() + kept, 1, buf.size() - kept, fp)) > 0;) {
    const std::string_view block(buf.data(), kept + n);
    if (block.find(word) != std::string_view::npos || block.find('\x1a') != std::string_view::npos) return true;
    kept = std::min(block.size(), word.size() - 1);
    std::memmove(buf.data(), buf.data() + block.size() - kept, kept);
  }
  return false;
}

// A source that another tool chain produced is refused before anything else.
// The file stays open, at its start, to be the source of the passes: a pipe
// is copied once here and cannot be opened a second time.
FHM_FILE *scan_for_foreign_source(const char *src) {
  const char *why = "";
  FHM_FILE *f = SRC_open_main(src, &why);
  if (!f) {
    error_user(nullptr, "E1000", "Cannot open source file %s: %s", src, why);
    exit(1);
  }
  FILE *fp = f->fp();
  const bool scan = !fp || may_hold(fp, ".compiler_opts");
  if (!SRC_rewind(f)) SRC_fail(src, errno);
  if (!scan) return f;
  char piece[401];
  while (myfgets(piece, sizeof piece, f)) {
    if (is_compiler_opts_line(piece)) {
      fhm_close(f);
      fprintf(stderr,
              ">> ERROR: .compiler_opts indicates that this file might be a product of the ZQ "
              "proprietary toolchain. Assembly generated from the proprietary toolchain is not "
              "valid input to the LLVM toolchain.\n");
      exit(1);
    }
  }
  if (!SRC_rewind(f)) SRC_fail(src, errno);
  return f;
}

void open_dependency_file() {
  if (!opt_on(OPT_ASM_DEPENDENCY)) return;
  if (!OUT_create(out_kind::dependency) || !(dependency_file = OUT_stream(out_kind::dependency))) {
    const int err = errno;
    error_user(nullptr, "E1000", "failed to open %s: %s\n", dependency_filename, strerror(err));
    exit(1);
  }
  if (!opt_on(OPT_ASM_INCLUDES)) fprintf(dependency_file, "%s: %s\n", assy_obj_name, assy_src_name);
}

// Under --pbc_output nothing else is made; a file that can't be made ends
// the option, and the listing may then stand.
void open_pbc_output() {
  if (!opt_on(OPT_PBC_OUTPUT)) return;
  if (OUT_create(out_kind::pbc) && (pbc_output_file = OUT_stream(out_kind::pbc))) return;
  OUT_discard(out_kind::pbc);
  fputs("Aborting OPBC!!!\n", stderr);
  global_opts->clearopt(OPT_PBC_OUTPUT);
}

// The names of every file the run will write are known: none may be an
// input or another of them.
void claim_outputs() {
  if (opt_on(OPT_ASM_INCLUDES) && !opt_on(OPT_ASM_DEPENDENCY)) global_opts->setopt(OPT_ASM_DEPENDENCY);
  if (opt_on(OPT_ASM_DEPENDENCY)) {
    global_opts->clearopt(OPT_ASM_LISTING);
    dependency_filename = static_cast<char *>(calloc(4096, 1));
    const char *given =
        global_opts->getargcount(OPT_ASM_DEPENDENCY) ? global_opts->getstrarg(OPT_ASM_DEPENDENCY, 0) : nullptr;
    const std::string name = given && *given ? std::string(given) : with_extension(assy_obj_name, ".ppa");
    strncpy(dependency_filename, name.c_str(), 4095);
    OUT_claim(out_kind::dependency, dependency_filename);
  }
  if (opt_on(OPT_PBC_OUTPUT)) {
    OUT_claim(out_kind::pbc, pbc_output_name.c_str());
    open_pbc_output();
  }
  if (opt_on(OPT_PBC_OUTPUT)) global_opts->clearopt(OPT_ASM_LISTING);
  if (opt_on(OPT_ASM_LISTING)) OUT_claim(out_kind::listing, assy_lst_name);
  if (opt_on(OPT_PROFILE)) OUT_claim(out_kind::profile, assy_prf_name);
  if (!opt_on(OPT_ASM_DEPENDENCY) && !opt_on(OPT_PBC_OUTPUT) && !opt_on(OPT_ABSOLUTE_LISTING) &&
      !opt_on(OPT_PREPROCESS))
    OUT_claim(out_kind::object, assy_obj_name);
}

// Opens a side output through the file manager; null with errno.
FHM_FILE *open_side_output(out_kind kind) {
  if (!OUT_create(kind)) return nullptr;
  FHM_FILE *f = fhm_open(OUT_path(kind), "w");
  if (!f) {
    const int err = errno;
    OUT_discard(kind);
    errno = err;
    return nullptr;
  }
  // A write error must stay on the handle until it is closed and checked.
  f->set_persistent(true);
  return f;
}

}  // namespace

bool name_has_extension(const std::string &name) {
  const size_t slash = name.find_last_of('/');
  const size_t dot = name.find_last_of('.');
  return dot != std::string::npos && (slash == std::string::npos || dot > slash);
}

std::string name_without_extension(const std::string &name) {
  if (!name_has_extension(name)) return name;
  return name.substr(0, name.find_last_of('.'));
}

std::string name_directory(const std::string &name) {
  const size_t slash = name.find_last_of('/');
  if (slash == std::string::npos) return "";
  return slash == 0 ? "/" : name.substr(0, slash);
}

run_file_names derive_file_names(const std::vector<std::string> &given, bool suppress_asm_extension,
                                 bool preprocess, bool profile) {
  run_file_names n;
  if (given.empty()) return n;
  n.src = given[0];
  n.obj = given.size() >= 2 ? given[1] : with_extension(n.src, ".obj");
  n.lst = given.size() >= 3 ? given[2] : name_without_extension(n.obj);
  if (!suppress_asm_extension) {
    if (!name_has_extension(n.obj)) n.obj += ".obj";
    if (!name_has_extension(n.src)) n.src += ".asm";
  }
  if (!name_has_extension(n.lst)) n.lst += preprocess ? ".exp" : ".lst";
  if (profile) n.prf = with_extension(n.obj, ".prf");
  return n;
}

bool is_compiler_opts_line(const char *piece) {
  std::string s = piece ? piece : "";
  trim(s);
  if (s.empty() || s[0] == ';' || s[0] == '*') return false;
  return s.compare(0, 14, ".compiler_opts") == 0;
}

const char *next_argument() {
  while (cmd_file) {
    char *word = fnextopt(cmd_file);
    if (word) {
      keep_cmd_word(word);
      return word;
    }
    fclose(cmd_file);  // read only: nothing to lose
    cmd_file = nullptr;
  }
  cmd_chain.clear();
  if (sys_argv && next_argv_index < sys_argc) return sys_argv[next_argv_index++];
  return nullptr;
}

void open_cmd_file(const char *name) {
  FILE *f = fopen(name, "r");
  if (!f) {
    const int err = errno;
    error_user(nullptr, "E1000", "Cannot open command file '%s': %s", name, strerror(err));
    return;
  }
  out_identity id;
  if (OUT_identify(name, id)) {
    for (const out_identity &seen : cmd_chain)
      if (OUT_same(seen, id)) {
        fclose(f);
        error_user(nullptr, "E1000", "Command file '%s' includes itself", name);
        exit(1);
      }
    cmd_chain.push_back(id);
  }
  OUT_note_input(name);
  // Only the file opened last is read on.
  if (cmd_file) fclose(cmd_file);
  cmd_file = f;
}

void add_incl_path(const char *dir) { paths.emplace_back(dir ? dir : ""); }

void get_files() {
  paths.assign(1, std::string());

  std::vector<std::string> names;
  int count = 0;
  for (const char *word = next_argument(); word; word = next_argument()) {
    if (word[0] == '-') {
      global_opts->process_option(word + 1, nullptr);  // an unknown option is dropped quietly
      continue;
    }
    ++count;
    if (count <= 3) names.emplace_back(word);
    // Messages of the command line already name the source as it was typed.
    if (count == 1) store_name(assy_src_name, word);
    if (count == 3) global_opts->setopt(OPT_ASM_LISTING);
  }
  if (count > 3) {
    error_user(nullptr, "E0000", "Too many files on command line");
    exit(1);
  }
  if (count == 0) {
    global_opts->display_option_help(nullptr, 0);
    exit(0);
  }

  const run_file_names n = derive_file_names(names, opt_on(OPT_SUPPRESS_ASM_EXTENSION),
                                             opt_on(OPT_PREPROCESS), opt_on(OPT_PROFILE));
  store_name(assy_src_name, n.src);
  store_name(assy_obj_name, n.obj);
  store_name(assy_lst_name, n.lst);
  store_name(assy_prf_name, n.prf);

  OUT_note_input(assy_src_name);
  claim_outputs();

  FHM_FILE *source = scan_for_foreign_source(assy_src_name);
  TRG_verify_options();
  open_dependency_file();

  paths[0] = name_directory(assy_src_name);

  ASSY_SRC = source;
  if (opt_on(OPT_ASM_LISTING)) {
    ASSY_LST = open_side_output(out_kind::listing);
    if (!ASSY_LST) {
      const int err = errno;
      error_user(nullptr, "E1000", "cannot open listing file %s: %s", assy_lst_name, strerror(err));
      global_opts->clearopt(OPT_ASM_LISTING);
    }
  }
  if (opt_on(OPT_PROFILE)) {
    ASSY_PRF = open_side_output(out_kind::profile);
    if (!ASSY_PRF) {
      const int err = errno;
      error_user(nullptr, "E1000", "cannot open profile file %s: %s", assy_prf_name, strerror(err));
      global_opts->clearopt(OPT_PROFILE);
    }
  }

  extract_paths("A_DIR", [](const char *dir) { add_incl_path(dir); });
  extract_paths("C_DIR", [](const char *dir) { add_incl_path(dir); });
}
