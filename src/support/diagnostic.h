#pragma once
// Message machinery shared with other tools: a message is a DIAGNOSTIC
// object bound to a row of DIAG_INFO_ENTRY, and prints itself.
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

enum dc_SEVERITY : int {
  dc_suppressed = 0,
  dc_no_error = 1,
  dc_advice = 2,
  dc_debug = 3,
  dc_remark = 4,
  dc_warning = 5,
  dc_error = 6,
  dc_fatal = 7,
};

const char *sev_str(dc_SEVERITY sev);

struct DIAG_INFO {
  uint32_t id;
  const char *format;
  dc_SEVERITY severity;
  bool internal;
  bool never_discretionary;
};

// All rows, ending in a row with a null format.  Severities can be
// overridden, so the table is writable.
extern DIAG_INFO DIAG_INFO_ENTRY[];
const DIAG_INFO *DIAG_find_row(uint32_t id);
// printf-style text of any length; a failing vsnprintf is reported on stderr.
std::string DIAG_vformat(const char *fmt, va_list ap);

// Where in the user's input a message points.
struct DIAG_SRCINFO {
  const char *file = nullptr;
  uint32_t line = 0;
  uint32_t column = 0;
  bool approximate = false;
};

class DIAGNOSTIC {
 public:
  explicit DIAGNOSTIC(uint32_t id, const char *src_file = __builtin_FILE(),
                      unsigned src_line = __builtin_LINE());
  DIAGNOSTIC(const DIAGNOSTIC &other);
  DIAGNOSTIC &operator=(const DIAGNOSTIC &) = delete;
  virtual ~DIAGNOSTIC();

  virtual DIAGNOSTIC *alloc() const = 0;
  // Header, body from the row's format, flush.
  virtual void report(va_list ap);
  virtual const char *get_sp_buffer() const { return buffer_.c_str(); }
  virtual bool is_equal(const DIAGNOSTIC &other) const { return row_ == other.row_; }
  virtual void free_mem();
  virtual void dump(FILE *fp) const;

  // Header, the row's format with these arguments, flush.
  template <typename... A> void emit(A... args);
  void set_srcinfo(const DIAG_SRCINFO &pos) { pos_ = pos; has_pos_ = true; }
  const DIAG_INFO *row() const { return row_; }
  dc_SEVERITY severity() const { return row_->severity; }

  bool suppress() const;
  void print_header();
  void print(const char *fmt, ...) __attribute__((format(printf, 2, 3)));
  void vprint(const char *fmt, va_list ap);
  void print_formatted(const char *text);
  void show_annotated_source();
  void flush();

  static void override_severity(uint32_t id, dc_SEVERITY sev);
  static bool override_severity(const char *id_text, dc_SEVERITY sev);
  static void save_severities();
  static void restore_severities();
  static void push_indent(unsigned n);
  static void pop_indent();
  static void push_debug_mode(bool on);
  static void pop_debug_mode();

  // Class-wide settings.
  static bool wrap_enabled_m;
  static bool warnings_m;
  static unsigned max_errors_m;
  static unsigned wrap_indent_m;
  static unsigned diag_cols_m;
  static bool display_code_m;
  static bool display_ipos_m;
  static bool wrap_headers_m;
  static bool verbose_m;
  static bool advice_m;
  static bool debug_m;
  static bool remarks_m;
  static bool debug_mode_m;
  static unsigned indent_m;
  static std::vector<unsigned> indent_stack_m;
  static std::vector<bool> debug_mode_stack_m;
  static FILE *fp_m;               // null: stdout up to remarks, stderr above
  static unsigned error_count_m;
  static std::vector<dc_SEVERITY> saved_severities_m;

 private:
  FILE *stream() const;
  void put_text(const char *text, bool wrap);

  const DIAG_INFO *row_;
  unsigned column_ = 0;
  DIAG_SRCINFO pos_;
  bool has_pos_ = false;
  const char *ifile_;
  unsigned iline_;
  bool header_printed_ = false;
  bool line_has_text_ = false;
  std::string buffer_;
  static DIAGNOSTIC *open_m;   // message whose header was printed, not yet flushed
};

// Reports `d` with printf arguments for its row's format.
void DIAG_report(DIAGNOSTIC *d, ...);

template <typename... A> void DIAGNOSTIC::emit(A... args) { DIAG_report(this, args...); }

namespace DIAG {
// One class per row; the id binds it.
template <uint32_t Id>
class diag_row : public DIAGNOSTIC {
 public:
  explicit diag_row(const char *f = __builtin_FILE(), unsigned l = __builtin_LINE())
      : DIAGNOSTIC(Id, f, l) {}
  DIAGNOSTIC *alloc() const override { return new diag_row(*this); }
};

// Generic rows with the format "%s".
enum : uint32_t {
  ID_GDEBUG = 1, ID_GREMARK, ID_GADVICE, ID_GWARNING, ID_GERROR, ID_GAPPERROR,
  ID_GFATAL, ID_GDIE, ID_MAX_ERRORS,
};
using gdebug = diag_row<ID_GDEBUG>;
using gremark = diag_row<ID_GREMARK>;
using gadvice = diag_row<ID_GADVICE>;
using gwarning = diag_row<ID_GWARNING>;
using gerror = diag_row<ID_GERROR>;
using gapperror = diag_row<ID_GAPPERROR>;
using gfatal = diag_row<ID_GFATAL>;
using gdie = diag_row<ID_GDIE>;
using max_errors = diag_row<ID_MAX_ERRORS>;

// The option parser's rows.
using optgen_invalid_option = diag_row<24000>;
using optgen_out_of_memory = diag_row<24001>;
using optgen_conflict_option = diag_row<24002>;
using optgen_conflict_override_option = diag_row<24003>;
using optgen_conflict_quiet_option = diag_row<24004>;
using optgen_bad_parm_type = diag_row<24005>;
using optgen_clear_persistent = diag_row<24006>;
using optgen_unhandled_clause_in_setarg = diag_row<24007>;
using optgen_unhandled_option_handler = diag_row<24008>;
using optgen_invalid_list_handler = diag_row<24009>;
using optgen_missing_parameter = diag_row<24010>;
using optgen_arg_out_of_range = diag_row<24011>;
using optgen_arg_out_of_range_non_neg = diag_row<24012>;
using optgen_arg_out_of_range2 = diag_row<24013>;
using optgen_option_handler_corruption = diag_row<24014>;
using optgen_bad_argument = diag_row<24015>;
using optgen_case_insensitivity_deprecated = diag_row<24016>;
using optgen_unhandled_clause_in_add_hist = diag_row<24031>;
}  // namespace DIAG

// Reporting for shared code.  One instance, from get_umsg_obj.
class USER_MSG {
 public:
  void debug(const char *fmt, ...) __attribute__((format(printf, 2, 3)));
  void remark(const char *fmt, ...) __attribute__((format(printf, 2, 3)));
  void advice(const char *fmt, ...) __attribute__((format(printf, 2, 3)));
  void warning(const char *fmt, ...) __attribute__((format(printf, 2, 3)));
  // A promotable warning: an error under emit_warnings_as_errors when n != 0.
  void warning(int n, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
  void error(const char *fmt, ...) __attribute__((format(printf, 2, 3)));
  void apperror(const char *fmt, ...) __attribute__((format(printf, 2, 3)));
  void fatal(const char *fmt, ...) __attribute__((format(printf, 2, 3)));
  void die(const char *fmt, ...) __attribute__((format(printf, 2, 3)));

  void debug(const DIAG_SRCINFO &pos, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
  void remark(const DIAG_SRCINFO &pos, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
  void advice(const DIAG_SRCINFO &pos, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
  void warning(const DIAG_SRCINFO &pos, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
  void error(const DIAG_SRCINFO &pos, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
  void apperror(const DIAG_SRCINFO &pos, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
  void fatal(const DIAG_SRCINFO &pos, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
  void die(const DIAG_SRCINFO &pos, const char *fmt, ...) __attribute__((format(printf, 3, 4)));

  unsigned get_error_count() const;
  bool emit_warnings_as_errors = false;

 private:
  friend USER_MSG *get_umsg_obj();
  USER_MSG() = default;
};

USER_MSG *get_umsg_obj();
