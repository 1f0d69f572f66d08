// What a fatal signal makes the program say.
#include <gtest/gtest.h>

#include <csignal>
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
