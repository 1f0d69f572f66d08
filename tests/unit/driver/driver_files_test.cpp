// File names of a run and the foreign-source scan.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "driver/driver_run.h"

TEST(DriverFiles, DerivedNames) {
  struct Case {
    std::vector<std::string> given;
    bool suppress, preprocess, profile;
    const char *src, *obj, *lst, *prf;
  } cases[] = {
      {{"a.s"}, false, false, false, "a.s", "a.obj", "a.lst", ""},
      {{"a"}, false, false, false, "a.asm", "a.obj", "a.lst", ""},
      {{"a"}, true, false, false, "a", "a.obj", "a.lst", ""},
      {{"a.s", "out/b.o"}, false, false, false, "a.s", "out/b.o", "out/b.lst", ""},
      {{"a.s", "b"}, false, false, false, "a.s", "b.obj", "b.lst", ""},
      {{"a.s", "b"}, true, false, false, "a.s", "b", "b.lst", ""},
      {{"a.s", "b.o", "c"}, false, false, false, "a.s", "b.o", "c.lst", ""},
      {{"a.s", "b.o", "c.txt"}, false, false, false, "a.s", "b.o", "c.txt", ""},
      {{"a.s"}, false, true, false, "a.s", "a.obj", "a.exp", ""},
      {{"a.s", "b.o"}, false, false, true, "a.s", "b.o", "b.lst", "b.prf"},
      {{"dir.v2/a"}, false, false, false, "dir.v2/a.asm", "dir.v2/a.obj", "dir.v2/a.lst", ""},
      {{"dir.v2/a.x.s"}, false, false, false, "dir.v2/a.x.s", "dir.v2/a.x.obj", "dir.v2/a.x", ""},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.given[0] + (c.given.size() > 1 ? " " + c.given[1] : std::string()));
    const run_file_names n = derive_file_names(c.given, c.suppress, c.preprocess, c.profile);
    EXPECT_EQ(n.src, c.src);
    EXPECT_EQ(n.obj, c.obj);
    EXPECT_EQ(n.lst, c.lst);
    EXPECT_EQ(n.prf, c.prf);
  }
}

TEST(DriverFiles, NameParts) {
  struct Case {
    const char *name;
    bool has_ext;
    const char *stem, *dir;
  } cases[] = {
      {"a.asm", true, "a", ""},      {"a", false, "a", ""},
      {"d.x/a", false, "d.x/a", "d.x"}, {"/a.s", true, "/a", "/"},
      {"x/y/z.s", true, "x/y/z", "x/y"}, {"a.b.c", true, "a.b", ""},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(name_has_extension(c.name), c.has_ext);
    EXPECT_EQ(name_without_extension(c.name), c.stem);
    EXPECT_EQ(name_directory(c.name), c.dir);
  }
}

TEST(DriverFiles, CompilerOptsScan) {  // comments and case: tests/asm/driver
  struct Case {
    const char *piece;
    bool foreign;
  } cases[] = {
      {".compiler_opts --abi=eabi\n", true},
      {".compiler_opts_source x\n", true},   // the first 14 characters decide
      {"label .compiler_opts\n", false},
      {".compiler_opt\n", false},
      {"   \n", false},
      {"", false},
  };
  for (const Case &c : cases) EXPECT_EQ(is_compiler_opts_line(c.piece), c.foreign) << c.piece;
}

TEST(DriverFiles, RunDirectory) {
  struct Case {
    const char *argv0, *dir;
  } cases[] = {
      {"zqasm", ""},
      {"/usr/bin/zqasm", "/usr/bin"},
      {"./zqasm", "."},
      {"/zqasm", "/"},
      {"tools//zqasm", "tools"},
      {"C:\\zqasm", "C:\\"},
      {"C:\\tools\\\\zqasm", "C:\\tools"},
  };
  for (const Case &c : cases) EXPECT_EQ(run_directory(c.argv0), c.dir) << c.argv0;
}
