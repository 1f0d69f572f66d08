// Runs zqasm on every test source under tests/asm and tests/fuzz and checks messages,
// exit status, golden outputs and object contents. The format is described in
// tests/asm/README.md. The sources under tests/fuzz came from fuzzing; a run of one
// that does not end within fuzz_time_limit is killed and fails, so a hang cannot
// block the suite.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "zq_dir_fixture.h"

namespace fs = std::filesystem;

namespace {

std::string trim(std::string s) {
  size_t b = s.find_first_not_of(" \t\r\n");
  if (b == std::string::npos) return {};
  size_t e = s.find_last_not_of(" \t\r\n");
  return s.substr(b, e - b + 1);
}

std::string squeeze(const std::string &s) {
  std::string out;
  bool blank = false;
  for (char c : s) {
    if (c == ' ' || c == '\t' || c == '\n') {
      blank = true;
      continue;
    }
    if (blank && !out.empty()) out += ' ';
    blank = false;
    out += c;
  }
  return out;
}

struct Expectation {
  std::string file;  // empty: the test source
  long line;         // 0: a message without a line (" at EOF:" or plain)
  std::string id;
  std::string text;  // empty: any text
  int src_line;      // where the expectation is written
};

struct SectionCheck {
  std::string name;
  std::string hex;
  int src_line;
};

struct SymbolCheck {
  std::string name;
  std::vector<std::string> fields;  // value size type bind vis section
  int src_line;
};

struct TestSpec {
  fs::path source;
  std::string args = "%s %o";
  int exit_status = -1;
  std::vector<Expectation> messages;
  std::vector<SectionCheck> sections;
  std::vector<SymbolCheck> symbols;
  std::vector<std::string> absent_files;
  std::vector<std::string> relocs;  // "section offset type symbol [addend]"
  bool expect_object = false;
};

// "file", LABEL at line N: [ID] text  |  LABEL at line N: ...  |  ... at EOF: / label ':' forms
struct Message {
  std::string file;
  long line;
  std::string id;
  std::string text;
};

struct Header {
  std::string file;
  long line = 0;
  std::string rest;
};

// A message's first line: ["file", ]KIND( at line N:| at EOF:|:)rest
bool parse_header(std::string_view ln, Header &h) {
  if (ln.starts_with('"')) {
    size_t close = ln.find("\", ", 1);
    if (close == std::string_view::npos) return false;
    h.file = std::string(ln.substr(1, close - 1));
    ln.remove_prefix(close + 3);
  }
  static constexpr std::string_view kinds[] = {"ERROR!  ", "WARNING!", "REMARK  ", "INTERNAL ERROR!", "FATAL ERROR"};
  bool kind = false;
  for (std::string_view k : kinds) {
    if (ln.starts_with(k)) {
      ln.remove_prefix(k.size());
      kind = true;
      break;
    }
  }
  if (!kind) return false;
  if (ln.starts_with(" at line ")) {
    ln.remove_prefix(9);
    size_t colon = ln.find(':');
    if (colon == std::string_view::npos || colon == 0) return false;
    std::string num(ln.substr(0, colon));
    h.line = num[0] == '>' ? 65535 : std::stol(num);
    ln.remove_prefix(colon + 1);
  } else if (ln.starts_with(" at EOF:")) {
    ln.remove_prefix(8);
  } else if (ln.starts_with(':')) {
    ln.remove_prefix(1);
  } else {
    return false;
  }
  h.rest = std::string(ln);
  return true;
}

// A directive comment of the test: "; KEY: value" (the colon is optional before "!").
bool parse_key(const std::string &ln, std::string &key, std::string &value) {
  static constexpr std::string_view keys[] = {"RUN", "EXIT", "EOF!", "SECTION", "SYMBOL", "NOFILE", "OBJECT", "RELOC"};
  for (size_t semi = ln.find(';'); semi != std::string::npos; semi = ln.find(';', semi + 1)) {
    size_t p = semi + 1;
    while (p < ln.size() && std::isspace(static_cast<unsigned char>(ln[p]))) ++p;
    std::string_view at = std::string_view(ln).substr(p);
    for (std::string_view k : keys) {
      if (!at.starts_with(k)) continue;
      std::string_view after = at.substr(k.size());
      if (after.starts_with(':')) after.remove_prefix(1);
      else if (!k.ends_with('!') && !after.empty() && !std::isspace(static_cast<unsigned char>(after[0]))) continue;
      key = std::string(k);
      value = trim(std::string(after));
      return true;
    }
  }
  return false;
}

std::vector<Message> parse_messages(const std::string &err) {
  std::vector<Message> out;
  std::istringstream in(err);
  std::string ln;
  std::vector<std::string> lines;
  while (std::getline(in, ln)) lines.push_back(ln);
  for (size_t i = 0; i < lines.size(); ++i) {
    Header h;
    if (!parse_header(lines[i], h)) continue;
    Message msg;
    msg.file = h.file;
    msg.line = h.line;
    std::string rest = h.rest;
    // Continuation lines are indented with blanks; the source line starts with a tab.
    size_t j = i + 1;
    while (j < lines.size() && !lines[j].empty() && lines[j][0] == ' ') rest += "\n" + lines[j++];
    rest = trim(rest);
    if (rest.size() > 2 && rest[0] == '[') {
      size_t close = rest.find(']');
      msg.id = rest.substr(1, close - 1);
      rest = rest.substr(close + 1);
    }
    msg.text = squeeze(rest);
    out.push_back(msg);
    i = j - 1;
  }
  return out;
}

TestSpec parse_spec(const fs::path &src) {
  TestSpec t;
  t.source = src;
  std::istringstream in(slurp(src));
  std::string ln;
  int n = 0;
  while (std::getline(in, ln)) {
    ++n;
    std::string k, v;
    if (parse_key(ln, k, v)) {
      if (k == "RUN") t.args = v;
      else if (k == "EXIT") t.exit_status = std::stoi(v);
      else if (k == "EOF!") {
        std::istringstream vs(v);
        Expectation e{"", 0, "", "", n};
        vs >> e.id;
        std::getline(vs, e.text);
        e.text = squeeze(e.text);
        t.messages.push_back(e);
      } else if (k == "SECTION") {
        size_t colon = v.find(':');
        t.sections.push_back({trim(v.substr(0, colon)), squeeze(v.substr(colon + 1)), n});
      } else if (k == "SYMBOL") {
        std::istringstream vs(v);
        SymbolCheck s{"", {}, n};
        vs >> s.name;
        std::string f;
        while (vs >> f) s.fields.push_back(f);
        t.symbols.push_back(s);
      } else if (k == "RELOC") {
        t.relocs.push_back(squeeze(v));
      } else if (k == "NOFILE") {
        t.absent_files.push_back(v);
      } else if (k == "OBJECT") {
        t.expect_object = (v == "yes");
      }
      continue;
    }
    // Inline expectations: ";! ID text" after the statement, several per line allowed;
    // ";! @file:line ID text" for a message raised in another file.
    size_t pos = 0;
    while ((pos = ln.find(";!", pos)) != std::string::npos) {
      size_t next = ln.find(";!", pos + 2);
      std::string body = trim(ln.substr(pos + 2, next == std::string::npos ? std::string::npos : next - pos - 2));
      Expectation e{"", n, "", "", n};
      if (!body.empty() && body[0] == '@') {
        size_t sp = body.find(' ');
        std::string where = body.substr(1, sp - 1);
        size_t c = where.rfind(':');
        e.file = where.substr(0, c);
        e.line = std::stol(where.substr(c + 1));
        body = sp == std::string::npos ? "" : trim(body.substr(sp));
      }
      std::istringstream vs(body);
      vs >> e.id;
      std::getline(vs, e.text);
      e.text = squeeze(e.text);
      t.messages.push_back(e);
      pos = next;
    }
  }
  if (t.exit_status < 0) {
    bool errors = std::any_of(t.messages.begin(), t.messages.end(),
                              [](const Expectation &e) { return !e.id.empty() && e.id[0] == 'E'; });
    t.exit_status = errors ? 1 : 0;
  }
  return t;
}

std::string replace_all(std::string s, const std::string &from, const std::string &to) {
  for (size_t p = 0; (p = s.find(from, p)) != std::string::npos; p += to.size()) s.replace(p, from.size(), to);
  return s;
}

struct RunResult {
  int status;
  bool killed = false;  // ran past the time limit
  std::string out, err;
};

constexpr int fuzz_time_limit = 20;  // seconds

fs::path asm_root() { return fs::path(ZQ_SOURCE_DIR) / "tests" / "asm"; }
fs::path fuzz_root() { return fs::path(ZQ_SOURCE_DIR) / "tests" / "fuzz"; }

bool is_fuzz_case(const fs::path &p) {
  auto rel = fs::relative(p, fuzz_root());
  return !rel.empty() && *rel.begin() != "..";
}

// Runs a shell command in a process group of its own; with a limit, kills the group
// when it has not ended within `limit` seconds. Returns the wait status, or -1.
int run_shell(const std::string &cmd, int limit, bool &killed) {
  killed = false;
  pid_t pid = fork();
  if (pid < 0) return -1;
  if (pid == 0) {
    setpgid(0, 0);
    execl("/bin/sh", "sh", "-c", cmd.c_str(), static_cast<char *>(nullptr));
    _exit(127);
  }
  setpgid(pid, pid);
  int status = 0;
  const timespec tick{0, 20'000'000};
  for (long waited_ms = 0;; waited_ms += 20) {
    pid_t done = waitpid(pid, &status, limit > 0 ? WNOHANG : 0);
    if (done == pid) break;
    if (done < 0 && errno != EINTR) return -1;
    if (limit > 0 && waited_ms >= limit * 1000L) {
      killed = true;
      kill(-pid, SIGKILL);
      waitpid(pid, &status, 0);
      break;
    }
    if (limit > 0) nanosleep(&tick, nullptr);
  }
  return status;
}

RunResult run(const TestSpec &t, const fs::path &tmp) {
  fs::path obj = tmp / (t.source.stem().string() + ".obj");
  std::string args = replace_all(t.args, "%s", t.source.filename().string());
  args = replace_all(args, "%o", obj.string());
  args = replace_all(args, "%t", tmp.string());
  std::string cmd = "cd '" + t.source.parent_path().string() + "' && '" + ZQ_ZQASM + "' " + args + " >'" +
                    (tmp / "stdout").string() + "' 2>'" + (tmp / "stderr").string() + "'";
  RunResult r;
  int rc = run_shell(cmd, is_fuzz_case(t.source) ? fuzz_time_limit : 0, r.killed);
  r.status = WIFEXITED(rc) ? WEXITSTATUS(rc) : 128 + WTERMSIG(rc);
  r.out = slurp(tmp / "stdout");
  r.err = slurp(tmp / "stderr");
  return r;
}

std::vector<fs::path> all_tests() {
  std::vector<fs::path> out;
  for (const fs::path &root : {asm_root(), fuzz_root()}) {
    if (!fs::exists(root)) continue;
    for (auto &e : fs::recursive_directory_iterator(root)) {
      if (!e.is_regular_file() || e.path().extension() != ".asm") continue;
      if (e.path().filename().string()[0] == '_') continue;  // pieces copied by other tests
      out.push_back(e.path());
    }
  }
  std::sort(out.begin(), out.end());
  return out;
}

std::string test_name(const fs::path &p) {
  bool fuzz = is_fuzz_case(p);
  std::string rel = (fuzz ? "fuzz/" : "") + fs::relative(p, fuzz ? fuzz_root() : asm_root()).replace_extension("").string();
  for (char &c : rel)
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  return rel;
}

class AsmTest : public ::testing::TestWithParam<fs::path> {};

TEST_P(AsmTest, Run) {
  const fs::path src = GetParam();
  TestSpec t = parse_spec(src);
  fs::path tmp = fs::temp_directory_path() / ("zqasm_e2e_" + std::to_string(getpid()) + "_" + test_name(src));
  fs::remove_all(tmp);
  fs::create_directories(tmp);
  RunResult r = run(t, tmp);
  std::string where = src.string();
  std::string context = "\n--- stderr ---\n" + r.err + "--- stdout ---\n" + r.out;

  ASSERT_FALSE(r.killed) << where << ": killed, still running after " << fuzz_time_limit << " s" << context;
  EXPECT_EQ(r.status, t.exit_status) << where << ": exit status" << context;

  fs::path golden_err = fs::path(src).replace_extension(".stderr");
  fs::path golden_out = fs::path(src).replace_extension(".stdout");
  if (fs::exists(golden_err)) {
    EXPECT_EQ(r.err, slurp(golden_err)) << where << ": stderr differs";
  }
  if (fs::exists(golden_out)) {
    EXPECT_EQ(r.out, slurp(golden_out)) << where << ": stdout differs";
  }

  std::vector<Message> got = parse_messages(r.err);
  std::vector<bool> used(got.size(), false);
  std::string src_name = src.filename().string();
  for (const Expectation &e : t.messages) {
    bool found = false;
    for (size_t i = 0; i < got.size() && !found; ++i) {
      if (used[i]) continue;
      const Message &m = got[i];
      std::string want_file = e.file.empty() ? src_name : e.file;
      if (e.line != 0 && fs::path(m.file).filename() != fs::path(want_file).filename()) continue;
      if (m.line != e.line || m.id != e.id) continue;
      if (!e.text.empty() && m.text != e.text) continue;
      used[i] = found = true;
    }
    if (!found)
      ADD_FAILURE_AT(where.c_str(), e.src_line)
          << "missing message [" << e.id << "] at line " << e.line << " \"" << e.text << "\"" << context;
  }
  for (size_t i = 0; i < got.size(); ++i)
    if (!used[i] && got[i].id != "R0001")
      ADD_FAILURE_AT(where.c_str(), static_cast<int>(got[i].line))
          << "unexpected message [" << got[i].id << "] \"" << got[i].text << "\"" << context;

  for (const std::string &f : t.absent_files)
    EXPECT_FALSE(fs::exists(tmp / f)) << where << ": file " << f << " should not exist";

  fs::path obj = tmp / (src.stem().string() + ".obj");
  bool need_object = t.expect_object || !t.sections.empty() || !t.symbols.empty() || !t.relocs.empty();
  if (need_object) {
    ASSERT_TRUE(fs::exists(obj)) << where << ": no object written" << context;
    ElfFile elf;
    std::string why;
    ASSERT_TRUE(elf.load(slurp(obj), why)) << where << ": " << why;
    for (const SectionCheck &c : t.sections) {
      const ElfSection *s = elf.section(c.name);
      if (!s) {
        ADD_FAILURE_AT(where.c_str(), c.src_line) << "no section " << c.name;
        continue;
      }
      std::string hex = squeeze(elf.hex_bytes(*s));
      if (hex != c.hex)
        ADD_FAILURE_AT(where.c_str(), c.src_line) << "section " << c.name << "\n  want: " << c.hex
                                                  << "\n  got:  " << hex;
    }
    for (const SymbolCheck &c : t.symbols) {
      std::vector<std::string> got_fields;
      if (!elf.symbol_fields(c.name, got_fields)) {
        ADD_FAILURE_AT(where.c_str(), c.src_line) << "no symbol " << c.name;
        continue;
      }
      got_fields.resize(std::min(got_fields.size(), c.fields.size()));
      std::string want, have;
      for (auto &f : c.fields) want += f + " ";
      for (auto &f : got_fields) have += f + " ";
      if (want != have)
        ADD_FAILURE_AT(where.c_str(), c.src_line) << "symbol " << c.name << "\n  want: " << want
                                                  << "\n  got:  " << have;
    }
    // Listed relocations are the object's, all of them, in order.
    if (!t.relocs.empty()) {
      std::vector<std::string> have = elf.relocations();
      std::string want_text, have_text;
      for (auto &r : t.relocs) want_text += "\n    " + r;
      for (auto &r : have) have_text += "\n    " + r;
      if (want_text != have_text) ADD_FAILURE() << where << ": relocations\n  want:" << want_text << "\n  got:" << have_text;
    }
    // Every object must read cleanly in both independent readers.
    for (std::string reader : {"arm-none-eabi-readelf -a -W", "llvm-readelf --all"}) {
      std::string cmd = reader + " '" + obj.string() + "' >/dev/null 2>'" + (tmp / "reader.err").string() + "'";
      int rc = std::system(cmd.c_str());
      std::string rerr = slurp(tmp / "reader.err");
      EXPECT_TRUE(rc == 0 && rerr.empty()) << where << ": " << reader << " complains:\n" << rerr;
    }
  }
  if (!::testing::Test::HasFailure()) fs::remove_all(tmp);
}

INSTANTIATE_TEST_SUITE_P(Sources, AsmTest, ::testing::ValuesIn(all_tests()),
                         [](const ::testing::TestParamInfo<fs::path> &i) { return test_name(i.param); });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(AsmTest);

}  // namespace
