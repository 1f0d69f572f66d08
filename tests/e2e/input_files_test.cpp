// Source input that the assembler must read exactly as a plain file, or refuse
// with a message: line ends, zero bytes, pipes, directories and devices, long names.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "zq_dir_fixture.h"

namespace fs = std::filesystem;

namespace {

// Every run must leave TMPDIR empty.
class InputFiles : public ZqDirFixture {
 protected:
  ZqRun sh(const std::string &cmd) {
    ZqRun r = ZqDirFixture::sh(cmd);
    EXPECT_TRUE(fs::is_empty(tmp_dir())) << cmd;
    return r;
  }
  ZqRun zq(const std::string &args) { return sh("\"$ZQ\" " + args); }
};

// The text of a literal, zero bytes included.
template <size_t N>
std::string bytes(const char (&text)[N]) {
  return std::string(text, N - 1);
}

std::string words(int n, const char *end) {
  std::string s;
  for (int i = 0; i < n; ++i) s += " .word " + std::to_string(i) + end;
  return s;
}

TEST_F(InputFiles, LineEndsOfEveryKindReadAsLineFeeds) {
  // 100000 lone carriage returns: each line costs the same as with line feeds.
  const std::string lf = words(100000, "\n");
  const std::string cr = words(100000, "\r");
  put("lf.asm", lf);
  put("cr.asm", cr);
  // A copied file in CR form, read in both passes.
  put("sub.inc", words(3000, "\r"));
  put("main_lf.asm", words(10, "\n") + " .copy \"sub_lf.inc\"\n" + words(10, "\n"));
  put("sub_lf.inc", words(3000, "\n"));
  put("main_cr.asm", words(10, "\r") + " .copy \"sub.inc\"\r" + words(10, "\r"));

  // Line ends and Ctrl-Z on both sides of the reader's 64 KiB buffer edges.
  std::string mixed, plain;
  int i = 0;
  while (mixed.size() < 300000) {
    const std::string body = " .byte " + std::to_string(i % 200);
    const char *ends[] = {"\r\n", "\r", "\n", "\r\x1a\n", "\x1a\r"};
    const char *plain_ends[] = {"\n", "\n", "\n", "\n\n", "\n"};
    // Pad so that the line end falls just before, on and after 65536 * k.
    const size_t edge = (mixed.size() / 65536 + 1) * 65536;
    const size_t room = edge - mixed.size();
    std::string pad;
    if (room >= body.size() + 3 && room < body.size() + 40) pad.assign(room - body.size() - (i % 3), ' ');
    mixed += body + pad + ends[i % 5];
    plain += body + pad + plain_ends[i % 5];
    ++i;
  }
  put("mixed.asm", mixed);
  put("plain.asm", plain);

  for (const char *name : {"lf", "cr", "main_lf", "main_cr", "mixed", "plain"}) {
    const ZqRun r = zq(std::string(name) + ".asm " + name + ".obj");
    EXPECT_EQ(r.status, 0) << name << r.err;
    EXPECT_EQ(r.err, "") << name;
  }
  EXPECT_EQ(text_of("cr.obj"), text_of("lf.obj"));
  EXPECT_EQ(text_of("main_cr.obj"), text_of("main_lf.obj"));
  EXPECT_EQ(text_of("mixed.obj"), text_of("plain.obj"));
  EXPECT_EQ(get("cr.asm"), cr);  // inputs untouched
  EXPECT_EQ(get("mixed.asm"), mixed);

  // A message in a CR file names the right line, and the line holds no CR.
  put("bad.asm", words(70000, "\r") + " .word 1,,2\r .word 3\r");
  const ZqRun r = zq("bad.asm bad.obj");
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("\"bad.asm\", ERROR!   at line 70001: [E0005] Operand missing"), std::string::npos) << r.err;
  EXPECT_EQ(r.err.find('\r'), std::string::npos);
}

TEST_F(InputFiles, ZeroByteIsReportedAndNeverJoinsLines) {
  put("nul.asm", bytes(" .word 1\0 .word 2\n .word 3\n"));
  ZqRun r = zq("nul.asm nul.obj");
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("at line 1: [E0000] Unrecognized special character"), std::string::npos) << r.err;
  EXPECT_EQ(r.err.find("line 2"), std::string::npos) << r.err;
  EXPECT_FALSE(fs::exists(path("nul.obj")));

  // Strings and file names cannot hold one either.
  put("a.inc", " .word 5\n");
  put("str.asm", bytes(" .string \"a\0b\0\"\n .copy a.inc\0x\n"));
  r = zq("str.asm str.obj");
  EXPECT_EQ(r.status, 1);
  for (const char *line : {"line 1", "line 2"})
    EXPECT_NE(r.err.find(std::string(line) + ": [E0000] Unrecognized special character"), std::string::npos) << r.err;

  // In a comment a zero byte is only a byte; a line that begins with one is skipped.
  put("ok.asm", bytes(" .word 1 ; a\0b\n\0 .word 9\n .byte 7\n"));
  r = zq("ok.asm ok.obj");
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(text_of("ok.obj"), "01 00 00 00 07 ");
}

TEST_F(InputFiles, DirectoriesDevicesAndFifosAreNotCopied) {
  fs::create_directory(path("sub"));
  ASSERT_EQ(mkfifo(path("fifo.inc").c_str(), 0600), 0);
  const std::string src =
      " .word 1\n"
      " .copy \"sub\"\n"
      " .include \"/dev/zero\"\n"
      " .copy \"fifo.inc\"\n"
      " .copy sub/\n"
      " .word 2\n";
  put("a.asm", src);
  const ZqRun r = zq("a.asm a.obj");
  EXPECT_EQ(r.status, 1);
  for (int line : {2, 3, 4, 5})
    EXPECT_NE(r.err.find("\"a.asm\", ERROR!   at line " + std::to_string(line) +
                         ": [E1000] Include/Copy file not found or opened"),
              std::string::npos)
        << line << r.err;
  EXPECT_EQ(get("a.asm"), src);

  // The same as the main source: refused at once, without a line.
  ZqRun d = zq("sub d.obj");
  EXPECT_EQ(d.status, 1);
  EXPECT_NE(d.err.find("ERROR!  : [E1000] Cannot open source file sub.asm: No such file"), std::string::npos) << d.err;
  d = zq("--suppress_asm_extension sub d.obj");
  EXPECT_EQ(d.status, 1);
  EXPECT_NE(d.err.find("[E1000] Cannot open source file sub: Is a directory"), std::string::npos) << d.err;
  d = zq("--suppress_asm_extension /dev/zero d.obj");
  EXPECT_EQ(d.status, 1);
  EXPECT_NE(d.err.find("[E1000] Cannot open source file /dev/zero: Not a regular"), std::string::npos) << d.err;
  EXPECT_EQ(d.err.find("at line"), std::string::npos) << d.err;
}

TEST_F(InputFiles, PipedSourceAssemblesLikeTheFile) {
  std::string src = words(20000, "\n") + "here: .word here-here+1\n";
  put("p.asm", src);
  ASSERT_EQ(zq("p.asm file.obj").status, 0);

  ZqRun r = sh("cat p.asm | \"$ZQ\" --suppress_asm_extension /dev/stdin pipe.obj");
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(text_of("pipe.obj"), text_of("file.obj"));

  ASSERT_EQ(mkfifo(path("named.asm").c_str(), 0600), 0);
  r = sh("(cat p.asm > named.asm &) && \"$ZQ\" named.asm fifo.obj");
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(text_of("fifo.obj"), text_of("file.obj"));

  // Errors name the name given, with the line of the text.
  put("bad.asm", " .word 1\n .word 1,,2\n");
  r = sh("cat bad.asm | \"$ZQ\" --suppress_asm_extension /dev/stdin bad.obj");
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("\"/dev/stdin\", ERROR!   at line 2: [E0005] Operand missing"), std::string::npos) << r.err;
  // A foreign source from a pipe is refused like the file.
  r = sh("printf ' .compiler_opts\\n' | \"$ZQ\" --suppress_asm_extension /dev/stdin bad.obj");
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find(">> ERROR: .compiler_opts"), std::string::npos) << r.err;
}

TEST_F(InputFiles, CommandLineFileNamesHaveNoLineNumber) {
  put("q\"x.inc", " .word 7\n");
  put("m.asm", " .word 1\n");
  ZqRun r = zq("'--copy_file=q\"x.inc' m.asm m.obj");
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(text_of("m.obj"), "07 00 00 00 01 00 00 00 ");

  r = zq("--include_file=gone.inc --copy_file=sub m.asm m.obj");
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err.find("line"), std::string::npos) << r.err;
  EXPECT_EQ(occurrences(r.err, "\"m.asm\", ERROR!  : [E1000] Include/Copy file not found or opened"), 2u) << r.err;

  put("q\"y.asm", " .word 1\n");
  r = zq("'q\"y.asm'");
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.err, "");
}

TEST_F(InputFiles, LongNamesAreOrdinarySymbols) {
  for (size_t n : {32768u, 65536u, 100000u}) {
    const std::string name(n, 'L');
    put("l.asm", " .word 0\n" + name + ": .word 1\n .word " + name + "-" + name + "+2\n .global " + name +
                     "\nB" + name + " .equ 5\n .word B" + name + "\n");
    const ZqRun r = zq("l.asm l.obj");
    EXPECT_EQ(r.status, 0) << n << r.err.substr(0, 200);
    EXPECT_EQ(text_of("l.obj"), "00 00 00 00 01 00 00 00 02 00 00 00 05 00 00 00 ") << n;
    ElfFile elf;
    std::string why;
    ASSERT_TRUE(elf.load(get("l.obj"), why)) << why;
    std::vector<std::string> fields;
    ASSERT_TRUE(elf.symbol_fields(name, fields)) << n;
    EXPECT_EQ(fields[0], "00000004");
    EXPECT_EQ(fields[3], "GLOBAL");
  }
  // A message far out in a line of megabytes points at its own line.
  std::string wide = " .word ";
  for (int i = 0; i < 500000; ++i) wide += "1,";
  put("w.asm", wide + "1\n .byte 1,,2\n");
  const ZqRun r = zq("w.asm w.obj");
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("at line 2: [E0005] Operand missing"), std::string::npos) << r.err.substr(0, 300);
}

}  // namespace
