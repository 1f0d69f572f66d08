#pragma once
// The option parser and the store of all option values.  Every part of the
// assembler reads options by id from the one instance `global_opts`.
#include <climits>
#include <cstdint>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "driver/option_ids.h"

class DIAGNOSTIC;

// Groups of options, for setting, clearing and testing several at once.
enum class_id : int {
  OC_FILES = 0,    // input, output and command files
  OC_LISTING,      // listing and cross-reference
  OC_DEBUG,        // debug information
  OC_TARGET,       // architecture, state, float, ABI
  OC_DIAG,         // messages
  OC_LANGUAGE,     // source language, symbols, macros
  OC_OBJECT,       // object file contents
  OC_MISC,
  OC_COUNT,
};

// Storage kind of an option's arguments (`parm_type`).
enum : uint32_t {
  PT_NONE = 0,
  PT_STRING = 1,
  PT_NUMBER = 2,
  PT_HEX = 3,
  PT_ONEOF = 4,
  PT_STRING_LIST = 5,
  PT_NUMBER_LIST = 6,
  PT_ITEM_LIST = 7,
};

// How the text of an argument is read (`parse_option_type`).
enum parse_option_type : int {
  POT_NUMBER = 0, POT_NUMBER1 = 1, POT_UNSIGNED = 2, POT_STRING = 3, POT_LIST_STRING = 4,
  POT_NUMBER5 = 5, POT_ONEOF = 6, POT_ONEOF7 = 7, POT_NUMBER8 = 8,
  POT_OPT_NUMBER = 9, POT_OPT_NUMBER10 = 10, POT_OPT_UNSIGNED = 11,
  POT_OPT_STRING = 12, POT_OPT_STRING13 = 13, POT_OPT_NUMBER14 = 14,
  POT_OPT_ONEOF = 15, POT_OPT_ONEOF16 = 16, POT_OPT_NUMBER17 = 17,
};

// One accepted value of a list option.  The first character of `text` is a
// marker: '*' for a deprecated value, a blank otherwise.
struct option_item {
  const char *text;
  long value;
};

struct option_range {
  long min = 0;
  long max = LONG_MAX;
  bool is_default() const { return min == 0 && max == LONG_MAX; }
};

// A row of `option_obj::option_definitions`.
struct option_definition {
  const char *name;                 // internal name
  const char *const *spellings;     // null-ended, canonical first, as typed
  const char *arg_name;             // for messages and help
  const char *help;
  uint32_t classes;                 // bit (1 << class_id) per class
  bool persistent;                  // clearopt leaves it alone
  const option_item *items;         // null-ended list, or null
};

// The argument record of one option: every entry holds a value word and,
// for strings and list items, the text.
struct option_arg {
  long value = 0;
  std::string text;
  bool has_text = false;
};

class option_obj {
 public:
  // Per-option tables, indexed by option_id.
  static const option_definition option_definitions[OPT_COUNT];
  static const uint32_t parm_type[OPT_COUNT];
  static const uint8_t (&conflicts)[OPT_COUNT][OPT_COUNT];  // [set][other]
  static const char *const class_descriptions[OC_COUNT];

  // Parser state that belongs to no instance.
  static const char *(*next_arg)();     // next command-line word, or null
  static const char *executable_name;   // for the usage text

  explicit option_obj(bool defaults = true);
  option_obj(const option_obj &) = default;
  option_obj &operator=(const option_obj &) = default;
  ~option_obj() = default;

  // `text` is the word without its first dash.  Returns 1 when all of it
  // was consumed; 0 on a mismatch, with the failing place in *bad_place.
  int process_option(const char *text, const char **bad_place);

  void setopt(option_id id);
  void setopt(option_id id, long value);
  void setopt(option_id id, const char *value);
  void setopt(class_id cls);
  void clearopt(option_id id);
  void clearopt(class_id cls);
  void setarg(option_id id, long value);
  void setarg(option_id id, const char *value);

  long getnumarg(option_id id, unsigned n) const;
  const char *getstrarg(option_id id, unsigned n) const;
  unsigned getargcount(option_id id) const;

  bool isclass(option_id id, class_id cls) const;
  bool testclass(class_id cls) const;   // some option of the class is on
  bool seenclass(class_id cls) const;   // some option of the class was changed

  const char *format_of_option(option_id id) const;  // spelling that was used

  // State, read directly by the rest of the program through opt_on.
  int32_t state(option_id id) const { return opts_[id].state; }
  uint32_t change_count(option_id id) const { return opts_[id].changes; }
  uint32_t parsed_count(option_id id) const { return opts_[id].parsed; }

  // Argument parsing; the reporting forms exit with status 1 on bad input.
  const char *parse_arg(option_id id, const char *rest, const char *arg_name,
                        parse_option_type type, option_range range = {});
  int parse_oneof(option_id id, const char *text, const option_item *list,
                  parse_option_type type, long *value, const char **item_text = nullptr);
  long check_numerical_arg(parse_option_type type, option_id id, const char *name,
                           const char *text, option_range range);
  static int get_radix(std::string &text);  // cuts a radix suffix
  static long strtol_by_radix(const char *text, bool *failed);
  static unsigned long strtoul_by_radix(const char *text, bool *failed);
  void deprecated_case(const char *typed, const char *canonical);
  static const char *rot13(const char *text);

  void do_conflicts(option_id id);
  void set_conflicts_enabled(bool on) { conflicts_off_ = !on; }

  void display_option_help(const char *text = nullptr, int flag = 0) const;

  // History of what was set, in order.
  const std::vector<std::pair<option_id, std::string>> &history() const { return history_; }
  void dump_history(FILE *fp) const;
  const std::string &command_line() const { return cmdline_; }
  unsigned error_count() const { return errors_; }
  uint8_t debug = 0;

  // Reports through the message machinery, counting errors.
  void report_diagnostic(DIAGNOSTIC *d, ...);

 private:
  struct opt_state {
    int32_t state = 0;
    uint32_t changes = 0;
    uint32_t parsed = 0;
    uint8_t spelling = 0;
    std::vector<option_arg> args;
  };

  int match_word(const char *word, const char **bad_place);
  void apply_option(option_id id, unsigned spelling, const char *rest);
  bool parse_argument(option_id id, const char *rest, option_arg *out);
  void run_action(option_id id, const option_arg *arg);
  option_arg make_arg(option_id id, long value) const;
  option_arg make_arg(option_id id, const char *text) const;
  void store_arg(option_id id, option_arg arg);
  void add_to_history(option_id id, const char *arg);
  void set_state(option_id id);
  [[noreturn]] void missing_parameter(option_id id, const char *arg_name);
  [[noreturn]] void fail_exit();

  opt_state opts_[OPT_COUNT];
  std::vector<std::pair<option_id, std::string>> history_;
  std::string cmdline_;
  std::string parsing_;       // text of the option being parsed
  std::string argbuf_;        // argument text handed out by parse_arg
  bool conflicts_off_ = false;
  unsigned errors_ = 0;
};

// The one instance, made by initialize (also declared in driver.h).
extern option_obj *global_opts;

// True when the option's state counter is not 0 (false before there are options).
bool opt_on(option_id id);

// `register_option`: a named integer that --debug: and --disable: set.
class register_option {
 public:
  register_option(const char *name, int initial = 0);
  ~register_option();
  register_option(const register_option &) = delete;
  register_option &operator=(const register_option &) = delete;
  operator int() const { return value_; }
  void set(int v) { value_ = v; }
  const char *name() const { return name_; }
  static register_option *find(const char *name);
 private:
  const char *name_;
  int value_;
};

// `prefix` is "debug" or "disable"; `list` is "a,b=2,...".
void process_debug_option(const char *prefix, const char *list);

extern register_option disable_build_attributes;    // "disable:build_attributes"
extern register_option disable_dwarf_extensions;    // "disable:dwarf_extensions"
extern register_option disable_dwarf_anon_ssnames;  // "disable:dwarf_anon_ssnames"
extern register_option disable_dwarf_comdat;        // "disable:dwarf_comdat"
extern register_option debug_obj_info;              // "debug:obj_info"
extern register_option debug_dwarf_info;            // "debug:dwarf_info"
extern register_option debug_progress;              // "debug:progress"
extern register_option debug_mot;                   // "debug:mot"

// Command files: the next word of an open command file, a fresh string
// from malloc, or null at its end.  Exits with 255 on an unterminated
// comment or quote.
char *fnextopt(FILE *fp);

// Values that options set for other parts.
extern uint8_t big_endian_data;
extern uint8_t big_endian_code;
extern char **parser_options;     // null-ended words of --parser_opts
extern FILE *pbc_output_file;     // --pbc_output, once get_files has made it
extern std::string pbc_output_name;
