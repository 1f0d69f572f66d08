#pragma once
// The encoding corpus under tests/golden: sources whose lines carry the bytes
// they must assemble to (";= e2411001", ";= 1840", ";= f8d1 0004"). This reads
// such a file, assembles it, and turns every difference into one finding that
// names the line. The format is described in tests/golden/README.md.
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "zq_dir_fixture.h"

// One unit of expected code: a 32-bit ARM word or a 16-bit Thumb halfword,
// as the instruction's value, whatever the byte order of the object.
struct GoldenUnit {
  uint32_t value;
  unsigned bytes;  // 4 or 2
};

struct GoldenLine {
  int line;                        // 1-based, in the corpus file
  std::string statement;           // the source text before the ";="
  std::vector<GoldenUnit> units;
};

struct GoldenFile {
  std::filesystem::path path;
  std::string args = "%s %o";      // from "; RUN:"
  std::string xfail;               // from "; XFAIL:", empty when the file must pass
  std::vector<std::string> text;   // the source lines
  std::vector<GoldenLine> lines;   // the lines with expected bytes, in order
  std::vector<std::string> format_errors;  // ";=" fields that could not be read
};

struct GoldenOutcome {
  std::vector<std::string> findings;  // "file:line: ..." one per difference
  size_t compared = 0;                // lines whose bytes were compared
};

// Runs the assembler with the given argument text in the working directory.
using GoldenAssemble = std::function<ZqRun(const std::string &args)>;

GoldenFile GOLD_read(const std::filesystem::path &path);

// Assembles `file` in `workdir` (which must be empty of other corpus files)
// and compares. `shown` is the name the findings use for the file.
GoldenOutcome GOLD_check(const GoldenFile &file, const std::filesystem::path &workdir,
                         const GoldenAssemble &assemble, const std::string &shown);

// "e2411001" or "f8d1 0004": how a line's units are written.
std::string GOLD_spell(const std::vector<GoldenUnit> &units);
