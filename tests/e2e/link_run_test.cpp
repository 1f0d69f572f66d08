// The programs under tests/run/<name>/: their sources are assembled, linked
// with the C driver main.c by the ARM Linux cross compiler and run under
// qemu-arm; the driver compares every result with C and exits non-zero on a
// mismatch. One test per program and build (tests/run/README.md).
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <set>
#include <sstream>

#include "zq_dir_fixture.h"

namespace fs = std::filesystem;

namespace {

constexpr const char *CC = "arm-linux-gnueabihf-gcc";
constexpr const char *EMU = "qemu-arm";
// Always given: the objects then carry the library requests that
// tests/run/lib_request.c satisfies, as objects for the EABI do; messages
// stay on one line each.
constexpr const char *ZQ_FIXED = "--abi=eabi --diag_wrap=off";
constexpr const char *DEFAULT_BUILD = "-v7A8";
constexpr size_t SHOWN_MAX = 4000;  // characters of a tool's output shown in a failure
constexpr size_t XFAIL_LINES = 4;   // lines of an expected failure shown

fs::path run_root() { return fs::path(ZQ_SOURCE_DIR) / "tests" / "run"; }

std::string trim(std::string_view s) {
  const size_t b = s.find_first_not_of(" \t\r");
  if (b == std::string_view::npos) return {};
  return std::string(s.substr(b, s.find_last_not_of(" \t\r") - b + 1));
}

struct RunProgram {
  fs::path dir;
  std::vector<fs::path> sources;   // the .asm files, sorted
  std::vector<std::string> builds; // assembler options of each build, in order of first mention
  std::string xfail;               // why the program cannot pass yet; empty when it must
  std::vector<std::string> problems;
};

// Keys stand on comment lines of any .asm file of the program and hold for
// all of them: "; BUILD: options" (once per build) and "; XFAIL: reason".
RunProgram RUN_read(const fs::path &dir) {
  RunProgram p;
  p.dir = dir;
  for (const auto &e : fs::directory_iterator(dir))
    if (e.is_regular_file() && e.path().extension() == ".asm") p.sources.push_back(e.path());
  std::sort(p.sources.begin(), p.sources.end());
  if (p.sources.empty()) p.problems.push_back("no .asm file");
  if (!fs::exists(dir / "main.c")) p.problems.push_back("no main.c");
  for (const fs::path &src : p.sources) {
    std::istringstream in(slurp(src));
    for (std::string ln; std::getline(in, ln);) {
      const std::string t = trim(ln);
      if (t.empty() || t[0] != ';') continue;
      const std::string body = trim(std::string_view(t).substr(1));
      if (body.starts_with("BUILD:")) {
        const std::string opts = trim(std::string_view(body).substr(6));
        if (opts.empty()) p.problems.push_back(src.filename().string() + ": BUILD without options");
        else if (std::find(p.builds.begin(), p.builds.end(), opts) == p.builds.end()) p.builds.push_back(opts);
      } else if (body.starts_with("XFAIL:")) {
        p.xfail = trim(std::string_view(body).substr(6));
        if (p.xfail.empty()) p.xfail = "(no reason given)";
      }
    }
  }
  if (p.builds.empty()) p.builds.push_back(DEFAULT_BUILD);
  return p;
}

std::vector<fs::path> program_dirs() {
  std::vector<fs::path> out;
  if (!fs::exists(run_root())) return out;
  for (const auto &e : fs::directory_iterator(run_root()))
    if (e.is_directory()) out.push_back(e.path());
  std::sort(out.begin(), out.end());
  return out;
}

struct RunCase {
  fs::path dir;
  std::string build;
};

void PrintTo(const RunCase &c, std::ostream *os) { *os << c.dir.filename().string() << " " << c.build; }

std::vector<RunCase> run_cases() {
  std::vector<RunCase> out;
  for (const fs::path &d : program_dirs())
    for (const std::string &b : RUN_read(d).builds) out.push_back({d, b});
  return out;
}

std::string quoted(const fs::path &p) { return "'" + p.string() + "'"; }

std::string capped(std::string s) {
  if (s.size() > SHOWN_MAX) s = s.substr(0, SHOWN_MAX) + "\n... (cut)";
  return s;
}

std::string first_lines(const std::string &s, size_t n) {
  size_t end = std::string::npos;
  for (size_t k = 0, from = 0; k < n; ++k, from = end + 1)
    if ((end = s.find('\n', from)) == std::string::npos) return s;
  return s.substr(0, end) + "\n  ...";
}

// The tools are looked for once; an absent one fails every program unless
// the environment says to skip them.
const std::string &missing_tools() {
  static const std::string missing = [] {
    std::string m;
    for (const char *tool : {CC, EMU})
      if (std::system(("command -v " + std::string(tool) + " >/dev/null 2>&1").c_str()) != 0)
        m += std::string(m.empty() ? "" : ", ") + tool;
    return m;
  }();
  return missing;
}

bool skip_requested() {
  const char *v = std::getenv("ZQ_SKIP_LINK_RUN");
  return v && std::string_view(v) == "1";
}

class LinkRun : public ZqDirFixture, public ::testing::WithParamInterface<RunCase> {
 protected:
  // Parameterised names have slashes: the directory is made here.
  void SetUp() override {
    std::string tmpl = (fs::temp_directory_path() / "zq_linkrun_XXXXXX").string();
    ASSERT_NE(mkdtemp(tmpl.data()), nullptr);
    root_ = tmpl;
    dir_ = root_ / "w";
    fs::create_directory(dir_);
    fs::create_directory(root_ / "tmp");
  }

  // Runs one step with its output kept in `log`; the first failing step is
  // the finding, with what the tool said.
  bool step(const std::string &what, const std::string &cmd, std::string &finding) {
    const ZqRun r = sh(cmd + " >log 2>&1");
    if (r.status == 0) return true;
    finding = what + " failed (status " + std::to_string(r.status) + "):\n  " + cmd + "\n" + capped(get("log"));
    return false;
  }

  // Assembles, links and runs; empty when the program passed.
  std::string build_and_run(const RunProgram &prog, const std::string &build) {
    std::string finding, objects;
    for (const fs::path &src : prog.sources) {
      const std::string obj = src.stem().string() + ".o";
      if (!step("assembling " + src.filename().string(),
                "\"$ZQ\" " + quoted(src) + " " + obj + " " + build + " " + ZQ_FIXED, finding))
        return finding;
      objects += " " + obj;
    }
    // -marm: the C side stays in ARM state as well, so a wrong return
    // sequence in the assembly cannot hide behind interworking.
    const std::string link = std::string(CC) + " -static -marm -O2 -Wall -Wextra -Werror -Wl,-z,noexecstack -I" +
                             quoted(run_root()) + " " + quoted(prog.dir / "main.c") + " " +
                             quoted(run_root() / "lib_request.c") + objects + " -o prog";
    if (!step("linking", link, finding)) return finding;
    if (!step("running", std::string("timeout 120 ") + EMU + " ./prog", finding)) return finding;
    return {};
  }
};

TEST_P(LinkRun, Runs) {
  if (skip_requested()) GTEST_SKIP() << "ZQ_SKIP_LINK_RUN=1";
  ASSERT_TRUE(missing_tools().empty())
      << missing_tools() << " not found: scripts/setup.sh installs gcc-arm-linux-gnueabihf and qemu-user"
      << " (set ZQ_SKIP_LINK_RUN=1 to skip the link-and-run tests)";
  const RunProgram prog = RUN_read(GetParam().dir);
  const std::string shown = fs::relative(prog.dir, ZQ_SOURCE_DIR).string() + " " + GetParam().build;
  ASSERT_TRUE(prog.problems.empty()) << shown << ": " << prog.problems.front();
  const std::string finding = build_and_run(prog, GetParam().build);
  if (!prog.xfail.empty()) {
    if (finding.empty()) {
      std::cout << shown << ": XFAIL program passes now; its mark can go\n";
      return;
    }
    std::cout << shown << ": expected failure: " << first_lines(finding, XFAIL_LINES) << "\n";
    GTEST_SKIP() << shown << ": XFAIL: " << prog.xfail;
  }
  EXPECT_TRUE(finding.empty()) << shown << ": " << finding;
}

INSTANTIATE_TEST_SUITE_P(Programs, LinkRun, ::testing::ValuesIn(run_cases()),
                         [](const ::testing::TestParamInfo<RunCase> &i) {
                           std::string name = i.param.dir.filename().string() + "_" + i.param.build;
                           std::string out;
                           for (char c : name)
                             if (std::isalnum(static_cast<unsigned char>(c))) out += c;
                             else if (out.empty() || out.back() != '_') out += '_';
                           return out;
                         });

// The programs are found by walking the folder: a folder that is not a
// program, or a program that is never built, would otherwise go unnoticed.
TEST(LinkRunPrograms, EveryFolderIsAProgram) {
  const std::vector<fs::path> dirs = program_dirs();
  EXPECT_FALSE(dirs.empty()) << run_root() << " holds no program";
  std::set<std::string> names;
  size_t xfails = 0;
  for (const fs::path &d : dirs) {
    const RunProgram p = RUN_read(d);
    for (const std::string &why : p.problems) ADD_FAILURE() << d << ": " << why;
    if (!p.xfail.empty()) ++xfails;
  }
  // Some programs must pass: marks on all of them would test nothing.
  EXPECT_LT(xfails, dirs.size());
}

// The keys are read the way the README says, from every source of a program.
TEST(LinkRunPrograms, KeysAreReadFromEverySource) {
  std::string tmpl = (fs::temp_directory_path() / "zq_linkrun_keys_XXXXXX").string();
  ASSERT_NE(mkdtemp(tmpl.data()), nullptr);
  const fs::path d = tmpl;
  spit(d / "main.c", "int main(void) { return 0; }\n");
  spit(d / "a.asm", "; BUILD: -v4\n        .text ; BUILD: -v6 is not a key here\n  ;BUILD: -v7A8 \n");
  spit(d / "b.asm", "; BUILD: -v4\n; XFAIL:\n; BUILD:\n");
  RunProgram p = RUN_read(d);
  EXPECT_EQ(p.builds, (std::vector<std::string>{"-v4", "-v7A8"}));
  EXPECT_EQ(p.xfail, "(no reason given)");
  EXPECT_EQ(p.problems, (std::vector<std::string>{"b.asm: BUILD without options"}));
  ASSERT_EQ(p.sources.size(), 2u);
  EXPECT_EQ(p.sources[0].filename(), "a.asm");

  fs::remove(d / "a.asm");
  fs::remove(d / "b.asm");
  fs::remove(d / "main.c");
  p = RUN_read(d);
  EXPECT_EQ(p.builds, (std::vector<std::string>{DEFAULT_BUILD}));
  EXPECT_EQ(p.problems, (std::vector<std::string>{"no .asm file", "no main.c"}));
  fs::remove_all(d);
}

}  // namespace
