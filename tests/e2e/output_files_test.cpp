// Outputs never replace inputs or each other, are put in place only by a good
// run, and every failure to write one is one message and status 1.
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <set>
#include <string>

#include "zq_dir_fixture.h"

namespace fs = std::filesystem;

namespace {

constexpr const char *GOOD = " .text\n .word 1\n";
constexpr const char *BAD = " .text\n .word 1\n .word 1,,2\n";

class OutputFiles : public ZqDirFixture {
protected:
  int status = -1;
  std::string err;   // wrapped messages joined

  void SetUp() override {
    ZqDirFixture::SetUp();
    if (HasFatalFailure()) return;
    put("g.asm", GOOD);
  }
  void run(const std::string &args) {
    const ZqRun r = zq(args);
    status = r.status;
    err = joined(r.err);
  }
  size_t count(const std::string &text) const { return occurrences(err, text); }
};

TEST_F(OutputFiles, CollisionsAreRefusedBeforeAnythingIsWritten) {
  put("opts.cmd", "--define=X=1\n");
  put("g.prf", GOOD);
  fs::create_symlink("g.asm", path("link.asm"));
  fs::create_hard_link(path("g.asm"), path("hard.asm"));
  const std::set<std::string> before = files();
  const struct {
    const char *args;
    const char *message;
  } cases[] = {
      {"g.asm g.asm", "Output file g.asm is the same file as g.asm"},
      {"g.asm ./g.asm", "Output file ./g.asm is the same file as g.asm"},
      {"g.asm link.asm", "Output file link.asm is the same file as g.asm"},
      {"g.asm hard.asm", "Output file hard.asm is the same file as g.asm"},
      {"g.asm o.obj g.asm", "Output file g.asm is the same file as g.asm"},
      {"g.asm --asm_dependency=g.asm", "Output file g.asm is the same file as g.asm"},
      {"g.asm --pbc_output=./g.asm", "Output file ./g.asm is the same file as g.asm"},
      {"g.prf --profile", "Output file g.prf is the same file as g.prf"},
      {"-@opts.cmd g.asm opts.cmd", "Output file opts.cmd is the same file as opts.cmd"},
      {"g.asm x.o x.o", "Output file x.o is the same file as x.o"},
      {"g.asm new.o --asm_dependency=./new.o --pbc_output=new.o", "Output file new.o is the same file as ./new.o"},
  };
  for (const auto &c : cases) {
    run(c.args);
    EXPECT_EQ(status, 1) << c.args;
    EXPECT_EQ(count("[E1000]"), 1u) << c.args << "\n" << err;
    EXPECT_EQ(count(c.message), 1u) << c.args << "\n" << err;
    EXPECT_EQ(get("g.asm"), GOOD) << c.args;
    EXPECT_EQ(get("g.prf"), GOOD) << c.args;
    EXPECT_EQ(get("opts.cmd"), "--define=X=1\n") << c.args;
    EXPECT_EQ(files(), before) << c.args;
  }
  // Devices may be named twice: writing them harms nothing.
  run("-f g.asm /dev/null --pbc_output=/dev/null");
  EXPECT_EQ(status, 0) << err;
}

TEST_F(OutputFiles, ACopiedFileThatIsAnOutputIsRefusedWhenOpened) {
  put("old.obj", "OLD");
  put("c.asm", " .copy \"old.obj\"\n");
  run("c.asm old.obj");
  EXPECT_EQ(status, 1);
  EXPECT_EQ(count("at line 1: [E1000] Output file old.obj is the same file as"), 1u) << err;
  EXPECT_EQ(get("old.obj"), "OLD");
  EXPECT_EQ(files(), (std::set<std::string>{"c.asm", "g.asm", "old.obj"}));
}

TEST_F(OutputFiles, FailedWritesAreOneMessageAndStatusOne) {
  run("-f g.asm /dev/full");
  EXPECT_EQ(status, 1);
  EXPECT_EQ(count("[E1000] Failed to write object file : /dev/full: No space left on device"), 1u) << err;
  EXPECT_EQ(count("ERROR"), 1u) << err;

  run("g.asm --asm_dependency=/dev/full");
  EXPECT_EQ(status, 1);
  EXPECT_EQ(count("[E1000] Failed to write dependency file : /dev/full: No space left on device"), 1u) << err;

  run("g.asm nodir/g.obj");
  EXPECT_EQ(status, 1);
  EXPECT_EQ(count("[E1000] Failed to write object file : nodir/g.obj: No such file or directory"), 1u) << err;

  run("g.asm g.asm/g.obj");
  EXPECT_EQ(status, 1);
  EXPECT_EQ(count("[E1000] Failed to write object file : g.asm/g.obj: Not a directory"), 1u) << err;

  run("-f g.asm /dev/null");
  EXPECT_EQ(status, 0) << err;
  EXPECT_EQ(get("g.asm"), GOOD);
  EXPECT_EQ(files(), std::set<std::string>{"g.asm"});

  if (geteuid() != 0) {  // root writes anywhere
    fs::create_directory(path("ro"));
    fs::permissions(path("ro"), fs::perms::owner_read | fs::perms::owner_exec);
    run("g.asm ro/g.obj");
    EXPECT_EQ(status, 1);
    EXPECT_EQ(count("[E1000] Failed to write object file : ro/g.obj: Permission denied"), 1u) << err;
    fs::permissions(path("ro"), fs::perms::owner_all);
  }
}

TEST_F(OutputFiles, AnOlderObjectStaysUntilARunSucceeds) {
  put("bad.asm", BAD);
  put("bad.obj", "OLD");
  chmod(path("bad.obj").c_str(), 0640);
  run("bad.asm");
  EXPECT_EQ(status, 1);
  EXPECT_EQ(get("bad.obj"), "OLD");

  // A good run replaces it, through a link too, and keeps its mode.
  put("bad.asm", GOOD);
  fs::create_symlink("bad.obj", path("via.obj"));
  run("bad.asm via.obj");
  EXPECT_EQ(status, 0) << err;
  EXPECT_TRUE(fs::is_symlink(path("via.obj")));
  EXPECT_EQ(get("bad.obj").substr(0, 4), "\x7f" "ELF");
  struct stat st;
  ASSERT_EQ(stat(path("bad.obj").c_str(), &st), 0);
  EXPECT_EQ(st.st_mode & 0777, 0640u);
  EXPECT_EQ(files(), (std::set<std::string>{"bad.asm", "bad.obj", "g.asm", "via.obj"}));
}

TEST_F(OutputFiles, SideFilesOnlyAfterAGoodRun) {
  put("bad.asm", BAD);
  put("bad.ppa", "OLD");
  run("bad.asm --profile --pbc_output=bad.pbc");
  EXPECT_EQ(status, 1);
  run("bad.asm --asm_dependency");
  EXPECT_EQ(status, 1);
  // A failed run leaves no dependency file at all.
  EXPECT_EQ(files(), (std::set<std::string>{"bad.asm", "g.asm"}));

  run("g.asm --profile --pbc_output=g.pbc");
  EXPECT_EQ(status, 0) << err;
  run("g.asm --asm_dependency");
  EXPECT_EQ(status, 0) << err;
  EXPECT_EQ(files(), (std::set<std::string>{"bad.asm", "g.asm", "g.pbc", "g.ppa", "g.prf"}));
  EXPECT_EQ(get("g.ppa"), "g.obj: g.asm\n");
}

TEST_F(OutputFiles, CommandFiles) {
  put("self.cmd", "-@self.cmd\n");
  run("-@self.cmd g.asm");
  EXPECT_EQ(status, 1);
  EXPECT_EQ(count("[E1000] Command file 'self.cmd' includes itself"), 1u) << err;

  put("a.cmd", "-@b.cmd\n");
  put("b.cmd", "--define=Y -@a.cmd\n");
  run("g.asm -@a.cmd");
  EXPECT_EQ(status, 1);
  EXPECT_EQ(count("[E1000] Command file 'a.cmd' includes itself"), 1u) << err;
  EXPECT_FALSE(has("g.obj"));

  // The same file twice from the command line is no cycle.
  put("d.cmd", "--define=X=1\n");
  run("-@d.cmd -@d.cmd g.asm");
  EXPECT_EQ(status, 0) << err;
  EXPECT_TRUE(has("g.obj"));

  // A missing command file is told once; errors before pass 1 don't last.
  fs::remove(path("g.obj"));
  run("-@missing.cmd g.asm");
  EXPECT_EQ(status, 0);
  EXPECT_EQ(count("[E1000] Cannot open command file 'missing.cmd': No such file or directory"), 1u) << err;
  EXPECT_EQ(count("ERROR"), 1u) << err;
  EXPECT_TRUE(has("g.obj"));

  put("q.cmd", "g.asm \"abc\tdef");
  run("-@q.cmd");
  EXPECT_EQ(status, 255);
  EXPECT_EQ(err, ">> Unterminated quote in command file; aborting\n   Quote starts at abc\\tdef\n");
}

TEST_F(OutputFiles, AListingIsRefusedUntilItIsWritten) {
  for (const char *args : {"g.asm -l", "g.asm --asm_listing", "g.asm g.obj g.lst", "g.asm --cross_reference"}) {
    run(args);
    EXPECT_EQ(status, 1) << args;
    EXPECT_EQ(count("[E9999] Listing files are not supported yet"), 1u) << args << "\n" << err;
    EXPECT_EQ(count("[E"), 1u) << args << "\n" << err;
    EXPECT_EQ(count("INTERNAL"), 0u) << args << "\n" << err;
    EXPECT_EQ(files(), std::set<std::string>{"g.asm"}) << args;
  }
  // A listing that can't be opened is told and dropped; the run goes on.
  run("g.asm g.obj nodir/g.lst");
  EXPECT_EQ(status, 0) << err;
  EXPECT_EQ(count("[E1000] cannot open listing file nodir/g.lst: No such file or directory"), 1u) << err;
  EXPECT_EQ(files(), (std::set<std::string>{"g.asm", "g.obj"}));
}

}  // namespace
