#pragma once
// The rest of the driver's interface: start-up helpers, the run's date, the
// name arithmetic of get_files, fatal signals and the support notice.
#include <csignal>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

extern time_t sys_time;
extern char sys_date[64];                      // asctime text, ending in a line end
extern std::vector<std::string> run_search_paths;

void mygetdate();
// The directory the program was started from, for files that travel with it.
void add_run_search_path(const char *dir);
// The directory part of argv[0] without trailing separators; empty when it has none.
std::string run_directory(const char *argv0);
// Clears ophash, names and tagnames.
void hash_init();

// ---- File names of the run ---------------------------------------------------

// True when a dot follows the last slash of the name.
bool name_has_extension(const std::string &name);
// The name without the extension (from the last dot after the last slash).
std::string name_without_extension(const std::string &name);
// The directory part of a name, "" when it has none.
std::string name_directory(const std::string &name);

struct run_file_names {
  std::string src, obj, lst, prf;
};
// The names that get_files derives from the names of the command line (1 to 3).
run_file_names derive_file_names(const std::vector<std::string> &given, bool suppress_asm_extension,
                                 bool preprocess, bool profile);
// True when a line piece marks the source as another tool chain's output.
bool is_compiler_opts_line(const char *piece);

// ---- Fatal signals -------------------------------------------------------------

void signal_init();
void install_common_handlers(void (*handler)(int));
void signal_handler(int sig);
// What the program says it did on a signal: "experienced a segmentation fault", ...
const char *signal_text(int sig);
// "while processing ... file %s line %d" from what is valid now; at most 1024 bytes.
std::string signal_context();
// Prints the report of a fatal signal and leaves with status 2.
[[noreturn]] void common_signal_handler(int sig, const char *program, const char *fmt, ...)
    __attribute__((format(printf, 3, 4)));
// Writes the report of common_signal_handler to a stream (without leaving).
void report_signal(FILE *out, int sig, const char *program, const char *context);

// ---- Texts -------------------------------------------------------------------------

// Asks the user to report a defect, and says what to enclose.
const char *support_notice();
// The build numbers of the linked modules, each line behind `prefix`.
void buildid(FILE *stream, const char *prefix);

// ---- The object file -----------------------------------------------------------------

// 1 ZQ-COFF, 2 ELF while ofile exists (object_format reads it).
extern unsigned object_format_chosen;
// Makes ofile as --object_format asks, after refusing COFF-only options for ELF.
void make_ofile();
void destroy_ofile();
