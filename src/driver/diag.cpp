// Forming, printing and counting of the assembler's own messages.
#include "driver/diag.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "driver/diag_format.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/records.h"
#include "listing/listing.h"
#include "support/diagnostic.h"
#include "source/copy.h"
#include "source/lexer.h"
#include "target/arm/trg.h"

uint32_t num_errors = 0;
uint32_t num_warnings = 0;
int32_t output_error = 1;
uint32_t errors_or_warn = 0;

namespace {

enum Severity : int { SEV_ERROR = 0, SEV_WARNING = 1, SEV_REMARK = 2, SEV_INTERNAL = 3, SEV_USER = 4 };

constexpr const char *support_notice =
    "This may be a serious problem.  Please contact customer support with a\n"
    "description of the problem and a sample of the sourcefile that caused this\n"
    "message to appear.\n";

std::string vformat(const char *fmt, va_list ap) { return fmt ? DIAG_vformat(fmt, ap) : std::string(); }

const char *current_file_name() {
  if (f_name && *f_name) return f_name;
  return assy_src_name;
}

void print_source_line(const linebuf *line, bool caret) {
  const char *text = line->text ? line->text : "";
  size_t len = std::strlen(text);
  std::fputc('\t', stderr);
  std::fputs(text, stderr);
  if (len == 0 || text[len - 1] != '\n') std::fputc('\n', stderr);
  if (caret && !line->expanded_text && curtk && curtk->line == line && curtk->column >= 0) {
    std::fputc('\t', stderr);
    std::fputs(DIAG_caret_line(text, curtk->column).c_str(), stderr);
  } else {
    std::fputc('\n', stderr);
  }
}

struct Message {
  int severity;
  linebuf *line;
  const char *id;
  std::string body;
  bool caret = false;
};

// Builds, prints and lists one message; counting is the caller's.
void emit(const Message &m, bool on_screen) {
  std::string header = DIAG_header(current_file_name(), m.severity, m.line ? m.line->line_number : 0,
                                    m.line != nullptr, m.id, screen_line_width);
  if (on_screen) {
    std::fflush(stdout);
    std::fflush(stderr);
    std::fputs(DIAG_screen_text(header, m.body, screen_line_width).c_str(), stderr);
    if (m.line) print_source_line(m.line, m.caret);
    if (m.line && m.line->expanded_text) {
      std::string note = DIAG_header(current_file_name(), SEV_REMARK, m.line->line_number, true, "R0001",
                                     screen_line_width);
      std::fputs(DIAG_screen_text(note, "After symbol substitution the line became:", screen_line_width).c_str(),
                 stderr);
      std::fputc('\t', stderr);
      std::fputs(m.line->expanded_text, stderr);
      size_t n = std::strlen(m.line->expanded_text);
      if (n == 0 || m.line->expanded_text[n - 1] != '\n') std::fputc('\n', stderr);
    }
    std::fflush(stderr);
    std::fflush(stdout);
  }
  std::string listed = header + " " + m.body;
  if (m.line) {
    LST_add_emsg(m.line, listed.c_str());
  } else if (ASSY_LST && !pass1) {
    myfputs(listed.c_str(), ASSY_LST);
    myfputs("\n", ASSY_LST);
  }
}

bool preprocessing() { return global_opts && opt_on(OPT_PREPROCESS); }

void emit_checked(int severity, linebuf *line, const char *id, const char *fmt, va_list ap, bool caret = false) {
  // Pass-1 lines are dropped unlisted and the message is not shown, so the
  // text would go nowhere: it is not built.
  if (preprocessing() || pass1) return;
  Message m{severity, line, id, vformat(fmt, ap), caret};
  emit(m, true);
}

bool warnings_are_errors() { return global_opts && opt_on(OPT_EMIT_WARNINGS_AS_ERRORS); }
bool warnings_off() { return global_opts && opt_on(OPT_NO_WARNINGS); }

}  // namespace

// The target decides whether a message may show: a trial encoding only
// counts it (TRG_warn, TRG_error).
void error(linebuf *line, const char *id, const char *fmt, ...) {
  if (!TRG_error()) return;
  ++num_errors;
  va_list ap;
  va_start(ap, fmt);
  emit_checked(SEV_ERROR, line, id, fmt, ap);
  va_end(ap);
}

void warn(linebuf *line, const char *id, const char *fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  if (warnings_are_errors()) {
    if (TRG_warn()) {
      ++num_errors;
      emit_checked(SEV_ERROR, line, id, fmt, ap);
    }
  } else if (!warnings_off() || !output_error) {
    // A trial encoding counts its warnings also under --no_warnings.
    if (TRG_warn()) {
      ++num_warnings;
      emit_checked(SEV_WARNING, line, id, fmt, ap);
    }
  }
  va_end(ap);
}

void remark(linebuf *line, unsigned id, const char *fmt, ...) {
  if (remark_is_supressed(id) || !fmt || !*fmt) return;
  char ident[16];
  std::snprintf(ident, sizeof ident, "R%04u", id % 10000);
  va_list ap;
  va_start(ap, fmt);
  emit_checked(SEV_REMARK, line, ident, fmt, ap);
  va_end(ap);
}

void error_user(linebuf *line, const char *id, const char *fmt, ...) {
  ++num_errors;
  va_list ap;
  va_start(ap, fmt);
  Message m{SEV_USER, line, id, vformat(fmt, ap)};
  va_end(ap);
  emit(m, true);
}

void syntax_error(linebuf *line, const char *id) {
  ++num_errors;
  if (preprocessing()) return;
  char c = ' ';
  if (line && line->text && curtk && curtk->column >= 0 &&
      static_cast<size_t>(curtk->column) < std::strlen(line->text))
    c = line->text[curtk->column];
  char text[64];
  std::snprintf(text, sizeof text, "Syntax Error; unexpected text beginning with '%c'", c);
  Message m{SEV_ERROR, line, id, text, true};
  emit(m, !pass1);
}

void error_internal(int fatal, linebuf *line, const char *fmt, ...) {
  if (pass2 && num_errors != 0) return;
  va_list ap;
  va_start(ap, fmt);
  std::string body = vformat(fmt, ap);
  va_end(ap);
  std::string header =
      DIAG_header(current_file_name(), SEV_INTERNAL, line ? line->line_number : 0, line != nullptr, nullptr,
                  screen_line_width);
  std::fflush(stdout);
  std::fflush(stderr);
  std::fputs(DIAG_screen_text(header, body, screen_line_width).c_str(), stderr);
  if (line) print_source_line(line, false);
  std::fputc('\n', stderr);
  std::fputs(support_notice, stderr);
  std::fflush(stderr);
  if (fatal) std::exit(1);
}

void internal_warning(const char *text) {
  if (pass2 && num_errors != 0) return;
  std::fflush(stdout);
  std::fprintf(stderr, "*** Internal Error - %s\n", text);
  std::fflush(stderr);
}

namespace {
linebuf *packet_line(instruct *ir) { return ir ? ir->line : nullptr; }
}  // namespace

void remark_packet(instruct *ir, unsigned id, const char *fmt, ...) {
  if (remark_is_supressed(id) || !fmt || !*fmt) return;
  char ident[16];
  std::snprintf(ident, sizeof ident, "R%04u", id % 10000);
  va_list ap;
  va_start(ap, fmt);
  emit_checked(SEV_REMARK, packet_line(ir), ident, fmt, ap);
  va_end(ap);
}

void error_packet(instruct *ir, const char *id, const char *fmt, ...) {
  ++num_errors;
  va_list ap;
  va_start(ap, fmt);
  emit_checked(SEV_ERROR, packet_line(ir), id, fmt, ap);
  va_end(ap);
}

void warn_packet(instruct *ir, const char *id, const char *fmt, ...) {
  va_list ap;
  va_start(ap, fmt);
  if (warnings_are_errors()) {
    ++num_errors;
    emit_checked(SEV_ERROR, packet_line(ir), id, fmt, ap);
  } else {
    ++num_warnings;
    emit_checked(SEV_WARNING, packet_line(ir), id, fmt, ap);
  }
  va_end(ap);
}

void ew_summary() {
  if (preprocessing()) return;
  if (num_errors || num_warnings) global_opts->setopt(OPT_ERROR_SUMMARY);
  std::string errs = num_errors ? std::to_string(num_errors) + " Assembly " + (num_errors == 1 ? "Error" : "Errors")
                                : std::string("No Assembly Errors");
  std::string warns = num_warnings
                          ? std::to_string(num_warnings) + " Assembly " + (num_warnings == 1 ? "Warning" : "Warnings")
                          : std::string("No Assembly Warnings");
  std::string line = errs + ", " + warns + "\n";
  if (opt_on(OPT_ERROR_SUMMARY)) {
    std::fflush(stderr);
    std::fputs(line.c_str(), stdout);
    std::fflush(stdout);
  }
  if (ASSY_LST) {
    myfputs("\n", ASSY_LST);
    myfputs(line.c_str(), ASSY_LST);
  }
}
