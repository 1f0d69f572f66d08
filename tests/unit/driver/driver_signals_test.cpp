// What a fatal signal makes the program say.
#include <gtest/gtest.h>

#include <climits>
#include <csignal>
#include <sys/wait.h>
#include <cstdio>
#include <cstring>
#include <string>
#include <utility>

#include "driver/driver.h"
#include "driver/driver_run.h"

namespace {

std::string report(int sig, const char *context) {
  FILE *f = tmpfile();
  report_signal(f, sig, "zqasm", context);
  std::string text;
  rewind(f);
  for (int c; (c = fgetc(f)) != EOF;) text += static_cast<char>(c);
  fclose(f);
  return text;
}

// Runs out of any stack: each frame is kept by its volatile array.
int overflow(int depth) {
  volatile char frame[1024];
  frame[0] = static_cast<char>(depth);
  return depth < INT_MAX ? overflow(depth + 1) + frame[0] : 0;
}

}  // namespace

TEST(DriverSignals, Texts) {
  struct Case {
    int sig;
    const char *text;
  } cases[] = {
      {SIGILL, "executed an illegal instruction"},
      {SIGTRAP, "received a TRAP signal"},
      {SIGABRT, "had an internal inconsistency and aborted"},
      {SIGBUS, "experienced a bus alignment fault"},
      {SIGFPE, "received a floating point exception"},
      {SIGSEGV, "experienced a segmentation fault"},
      {SIGXCPU, "exceeded the CPU time limit"},
      {SIGXFSZ, "exceeded the file size limit"},
      {SIGSYS, "experienced a bad system call"},
      {SIGUSR1, "experienced a fatal internal fault"},
  };
  for (const Case &c : cases) EXPECT_STREQ(signal_text(c.sig), c.text) << c.sig;
}

TEST(DriverSignals, Reports) {
  EXPECT_EQ(report(SIGTERM, "while processing"), "[zqasm received a terminate signal]\n");
  EXPECT_EQ(report(SIGINT, "while processing"), "[zqasm forced exit]\n");
  EXPECT_EQ(report(SIGHUP, ""), "[zqasm forced exit]\n");
  EXPECT_EQ(report(SIGSEGV, "while processing file a.asm line 3"),
            std::string("\nINTERNAL ERROR: zqasm experienced a segmentation fault\n"
                        "                  while processing file a.asm line 3\n\n") +
                support_notice());
  EXPECT_EQ(report(SIGILL, ""),
            std::string("\nINTERNAL ERROR: zqasm executed an illegal instruction\n\n") + support_notice());
}

TEST(DriverSignals, HandlerLeavesWithStatusTwo) {
  const std::pair<int, const char *> cases[] = {{SIGTERM, "received a terminate signal"},
                                                {SIGFPE, "INTERNAL ERROR: .* received a floating point exception"}};
  for (const auto &[sig, text] : cases)
    EXPECT_EXIT((signal_init(), raise(sig)), ::testing::ExitedWithCode(2), text);
}

TEST(DriverSignals, ContextNamesTheSourceFile) {
  strcpy(assy_src_name, "ctx.asm");
  const std::string ctx = signal_context();
  EXPECT_EQ(ctx.rfind("while processing", 0), 0u);
  EXPECT_LE(ctx.size(), 1023u);
}

// A stack overflow is reported like any other fault; the handler has a stack
// of its own to run on. Under the address sanitizer its report comes instead.
TEST(DriverSignals, StackOverflowIsReported) {
#ifdef __SANITIZE_ADDRESS__
  const auto failed = [](int status) { return WIFEXITED(status) && WEXITSTATUS(status) != 0; };
  EXPECT_EXIT((signal_init(), overflow(0)), failed, "AddressSanitizer: stack-overflow");
#else
  EXPECT_EXIT((signal_init(), overflow(0)), ::testing::ExitedWithCode(2),
              "INTERNAL ERROR: .* experienced a segmentation fault");
#endif
}
