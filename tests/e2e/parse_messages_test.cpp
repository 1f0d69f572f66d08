// The parser's messages end to end: each expected message (`;! ID text`) of
// the sources tests/asm/parse/_*.asm appears at its line. Other messages at
// a line are the encoder's (which may repeat a warning about letters it
// drops) and are not judged here.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <regex>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "zq_dir_fixture.h"

namespace fs = std::filesystem;

namespace {

using Message = std::tuple<long, std::string, std::string>;  // line, id, text

std::string trim(const std::string &s) {
  const size_t b = s.find_first_not_of(" \t\r");
  if (b == std::string::npos) return {};
  return s.substr(b, s.find_last_not_of(" \t\r") - b + 1);
}

std::vector<Message> expected_messages(const std::string &source, std::string *args) {
  std::vector<Message> out;
  std::istringstream in(source);
  std::string ln;
  for (long n = 1; std::getline(in, ln); ++n) {
    if (ln.rfind("; RUN:", 0) == 0) *args = trim(ln.substr(6));
    for (size_t at = ln.find(";!"); at != std::string::npos;) {
      const size_t next = ln.find(";!", at + 2);
      const std::string item = trim(ln.substr(at + 2, next == std::string::npos ? next : next - at - 2));
      const size_t blank = item.find(' ');
      out.emplace_back(n, item.substr(0, blank), blank == std::string::npos ? "" : trim(item.substr(blank)));
      at = next;
    }
  }
  return out;
}

std::set<Message> printed_messages(const std::string &err) {
  std::set<Message> out;
  static const std::regex header(R"(at line (\d+): \[([A-Z][0-9]{4})\] (.*))");
  std::istringstream in(joined(err));
  std::string ln;
  std::smatch m;
  while (std::getline(in, ln))
    if (std::regex_search(ln, m, header)) out.emplace(std::stol(m[1]), m[2], trim(m[3]));
  return out;
}

class ParseMessages : public ZqDirFixture {};

TEST_F(ParseMessages, AtTheirLines) {
  const fs::path dir = fs::path(ZQ_SOURCE_DIR) / "tests" / "asm" / "parse";
  int files = 0;
  for (const auto &entry : fs::directory_iterator(dir)) {
    const std::string name = entry.path().filename().string();
    if (name.rfind('_', 0) != 0 || entry.path().extension() != ".asm") continue;
    ++files;
    const std::string source = slurp(entry.path());
    std::string args = "%s %o";
    const std::vector<Message> expected = expected_messages(source, &args);
    put("t.asm", source);
    args = std::regex_replace(std::regex_replace(args, std::regex("%s"), "t.asm"), std::regex("%o"), "t.o");
    const ZqRun run = zq(args);
    const std::set<Message> printed = printed_messages(run.err);
    for (const Message &e : expected)
      EXPECT_TRUE(printed.count(e)) << name << ":" << std::get<0>(e) << ": missing [" << std::get<1>(e) << "] "
                                    << std::get<2>(e) << "\n"
                                    << run.err;
  }
  EXPECT_GE(files, 2);
}

}  // namespace
