// Fatal signals: say what happened, where, and leave with status 2.
#include <algorithm>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string>
#include <unistd.h>
#include <vector>

#include "directives/sections.h"
#include "driver/driver.h"
#include "driver/driver_run.h"
#include "driver/output_files.h"
#include "source/copy.h"
#include "source/lexer.h"

namespace {

// The address sanitizer reports memory faults with their history; its
// report is worth more than ours.
#ifdef __SANITIZE_ADDRESS__
constexpr bool sanitizer_reports_faults = true;
#else
constexpr bool sanitizer_reports_faults = false;
#endif

constexpr int fatal_signals[] = {SIGILL, SIGABRT, SIGFPE, SIGSEGV, SIGTERM, SIGINT,
                                 SIGHUP, SIGTRAP, SIGBUS, SIGSYS, SIGXCPU, SIGXFSZ};

struct signal_row {
  int sig;
  const char *text;
};
constexpr signal_row signal_texts[] = {
    {SIGILL, "executed an illegal instruction"},
    {SIGTRAP, "received a TRAP signal"},
    {SIGABRT, "had an internal inconsistency and aborted"},
    {SIGBUS, "experienced a bus alignment fault"},
    {SIGFPE, "received a floating point exception"},
    {SIGSEGV, "experienced a segmentation fault"},
    {SIGXCPU, "exceeded the CPU time limit"},
    {SIGXFSZ, "exceeded the file size limit"},
    {SIGSYS, "experienced a bad system call"},
};

}  // namespace

const char *signal_text(int sig) {
  for (const signal_row &r : signal_texts)
    if (r.sig == sig) return r.text;
  return "experienced a fatal internal fault";
}

std::string signal_context() {
  std::string text = "while processing";
  if (curseg && curseg->name() && *curseg->name()) {
    text += " section ";
    text += curseg->name();
  }
  const char *file = f_name && *f_name ? f_name : assy_src_name;
  if (file && *file) {
    text += " file ";
    text += file;
  }
  if (curline) {
    char num[32];
    snprintf(num, sizeof num, " line %u", curline->line_number);
    text += num;
  }
  if (text.size() > 1023) text.resize(1023);
  return text;
}

void report_signal(FILE *out, int sig, const char *program, const char *context) {
  const char *name = program ? program : "<toolname>";
  if (sig == SIGTERM) {
    fprintf(out, "[%s received a terminate signal]\n", name);
  } else if (sig == SIGINT || sig == SIGHUP) {
    fprintf(out, "[%s forced exit]\n", name);
  } else {
    fprintf(out, "\nINTERNAL ERROR: %s %s\n", name, signal_text(sig));
    if (context && *context) fprintf(out, "                  %s\n", context);
    fputc('\n', out);
    fputs(support_notice(), out);
  }
  fflush(out);
}

void common_signal_handler(int sig, const char *program, const char *fmt, ...) {
  char context[1024];
  va_list ap;
  va_start(ap, fmt);
  vsnprintf(context, sizeof context, fmt, ap);
  va_end(ap);
  report_signal(stderr, sig, program, context);
  _exit(2);
}

void signal_handler(int sig) {
  OUT_remove_temporaries_now();
  const std::string context = signal_context();
  common_signal_handler(sig, sys_argv ? sys_argv[0] : execname, "%s", context.c_str());
}

void install_common_handlers(void (*handler)(int)) {
  // The handler must run when the stack itself is what overflowed: it gets
  // a stack of its own, made once.
  static std::vector<char> alternate(std::max<size_t>(SIGSTKSZ, 64 * 1024));
  stack_t ss{};
  ss.ss_sp = alternate.data();
  ss.ss_size = alternate.size();
  const bool own_stack = !sanitizer_reports_faults && sigaltstack(&ss, nullptr) == 0;

  struct sigaction sa {};
  sa.sa_handler = handler;
  sigemptyset(&sa.sa_mask);
  sa.sa_flags = own_stack ? SA_ONSTACK : 0;
  for (int sig : fatal_signals) {
    if (sanitizer_reports_faults && (sig == SIGSEGV || sig == SIGBUS)) continue;
    sigaction(sig, &sa, nullptr);
  }
}

void signal_init() { install_common_handlers(signal_handler); }
