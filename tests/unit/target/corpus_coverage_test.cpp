// The encoding corpus under tests/golden reaches every mnemonic row that has
// an ARM-state class: each such row is named by some statement of the corpus.
// A statement's mnemonic is taken apart the way the opcode lookup does it in
// ARM state with unified syntax: unified names translated, a parallel
// arithmetic prefix set aside, then the longest leading row name.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include "target/arm/classes.h"
#include "target/arm/tables.h"

namespace fs = std::filesystem;

namespace {

// VFP and NEON classes (ic_id 19 to 23, 49, 50, and 201 and above) are
// covered by the corpus of a later step, not by this one.
bool vfp_or_neon(uint16_t ic_id) { return (ic_id >= 19 && ic_id <= 23) || ic_id == 49 || ic_id == 50 || ic_id >= 201; }

std::string upper(std::string_view s) {
  std::string out(s);
  for (char &c : out)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return out;
}

class ArmRows {
 public:
  ArmRows() {
    for (const mnemonic_row *row = trg_mnemonics; row->name; ++row)
      if (row->slot[0].cls) rows_[row->name] = row;
  }

  // The row a statement's mnemonic selects in ARM state, or null.
  const mnemonic_row *lookup(const std::string &mnemonic) const {
    std::string name = translate(upper(mnemonic));
    if (const mnemonic_row *row = find(name)) return row;
    // The rest of a parallel name is looked up like a name of its own.
    if (const size_t skip = parallel_prefix(name)) name = translate(name.substr(skip));
    if (const mnemonic_row *row = find(name)) return row;
    for (size_t n = name.size() - 1; n > 0; --n)
      if (const mnemonic_row *row = find(name.substr(0, n))) return row;
    return nullptr;
  }

  const std::map<std::string, const mnemonic_row *> &rows() const { return rows_; }

 private:
  const mnemonic_row *find(const std::string &name) const {
    const auto it = rows_.find(name);
    return it == rows_.end() ? nullptr : it->second;
  }

  // The longest unified name the name begins with, replaced by its older form.
  static std::string translate(const std::string &name) {
    const ual_name_translation *best = nullptr;
    for (const ual_name_translation *t = ual_to_old_mnemonics; t->ual_name; ++t) {
      const std::string_view u(t->ual_name);
      if (t->state != 0 || !t->old_name || !name.starts_with(u)) continue;
      if (!best || u.size() > std::string_view(best->ual_name).size()) best = t;
    }
    return best ? best->old_name + name.substr(std::string_view(best->ual_name).size()) : name;
  }

  // Length of an S, Q, SH, U, UQ or UH prefix in front of a parallel
  // add/subtract name, 0 if there is none.
  static size_t parallel_prefix(const std::string &name) {
    for (const char *no : {"ADD16TO32", "ADD8TO16", "ADD8TO32"})
      if (name.find(no) != std::string::npos) return 0;
    size_t at = std::string::npos;
    for (const char *word : {"ADD16", "ADDSUBX", "SUBADDX", "SUB16", "ADD8", "SUB8", "ASX", "SAX"})
      at = std::min(at, name.find(word));
    if (at == 1 && (name[0] == 'S' || name[0] == 'Q' || name[0] == 'U')) return 1;
    if (at == 2 && (name.starts_with("SH") || name.starts_with("UQ") || name.starts_with("UH"))) return 2;
    return 0;
  }

  std::map<std::string, const mnemonic_row *> rows_;
};

// The mnemonic of a source line, or empty for labels, directives and comments.
std::string mnemonic_of(std::string_view line) {
  line = line.substr(0, line.find(';'));
  size_t p = 0;
  if (!line.empty() && line[0] != ' ' && line[0] != '\t') p = line.find_first_of(" \t");  // a label first
  if (p == std::string_view::npos) return {};
  p = line.find_first_not_of(" \t", p);
  if (p == std::string_view::npos || line[p] == '.') return {};
  return std::string(line.substr(p, line.find_first_of(" \t", p) - p));
}

// A file that switches to Thumb names Thumb rows, which this check doesn't cover.
bool switches_to_thumb(const fs::path &file) {
  std::ifstream in(file);
  std::string line;
  while (std::getline(in, line)) {
    const size_t p = line.find_first_not_of(" \t");
    if (p != std::string::npos && p > 0 && (line.compare(p, 6, ".thumb") == 0 || line.compare(p, 8, ".state16") == 0))
      return true;
  }
  return false;
}

TEST(CorpusCoverage, NamesWorkLikeTheLookup) {
  const ArmRows arm;
  const struct { const char *mnemonic, *row; } cases[] = {
      {"ADDSEQ", "ADD"}, {"ldreqb", "LDR"}, {"LDRSHHS", "LDR"}, {"LSLS", "MOV"}, {"PUSHEQ", "STM"},
      {"SVC", "SWI"}, {"UQASX", "ADDSUBX"}, {"SHSAX", "SUBADDX"}, {"SADD16", "ADD16"}, {"SADD8TO16", "SADD8TO16"},
      {"LDMIAEQ", "LDM"}, {"SWPBEQ", "SWPB"}, {"SMLALTBNE", "SMLALTB"}, {"LDC2L", "LDC2L"}, {"STCEQL", "STC"},
      {"BLXEQ", "B"}, {"QADD8", "ADD8"}, {"QADD", "QADD"}, {"UXTAB16MI", "UXTAB16"}, {"UQSAXLO", "SUBADDX"}, {"SHADD8EQ", "ADD8"}};
  for (const auto &c : cases) {
    const mnemonic_row *row = arm.lookup(c.mnemonic);
    ASSERT_NE(row, nullptr) << c.mnemonic;
    EXPECT_STREQ(row->name, c.row) << c.mnemonic;
  }
  EXPECT_EQ(arm.lookup("ZZZ"), nullptr);
  EXPECT_EQ(mnemonic_of("lab     ADD R0, R1 ;= 1"), "ADD");
  EXPECT_EQ(mnemonic_of("        .word 1 ;= 00000001"), "");
  EXPECT_EQ(mnemonic_of("label"), "");
  EXPECT_EQ(mnemonic_of("; RUN: %s %o"), "");
}

TEST(CorpusCoverage, EveryArmRowAppears) {
  const ArmRows arm;
  const fs::path root = fs::path(ZQ_SOURCE_DIR) / "tests" / "golden";
  ASSERT_TRUE(fs::exists(root)) << root;
  std::set<std::string> seen;
  std::set<std::string> unknown;  // mnemonics that select no ARM-state row
  size_t files = 0;
  for (const auto &e : fs::recursive_directory_iterator(root)) {
    if (!e.is_regular_file() || e.path().extension() != ".asm" || switches_to_thumb(e.path())) continue;
    ++files;
    std::ifstream in(e.path());
    std::string line;
    bool thumb = false;  // Thumb-only mnemonics are not the ARM lookup's to judge
    while (std::getline(in, line)) {
      if (line.find(".thumb") != std::string::npos || line.find(".state16") != std::string::npos) thumb = true;
      const std::string m = mnemonic_of(line);
      if (m.empty()) continue;
      if (thumb) continue;
      if (const mnemonic_row *row = arm.lookup(m)) seen.insert(row->name);
      else unknown.insert(m + " in " + e.path().filename().string());
    }
  }
  EXPECT_GT(files, 0u);
  std::string missing;
  for (const auto &[name, row] : arm.rows())
    if (!vfp_or_neon(row->slot[0].cls->ic_id) && !seen.count(name)) missing += " " + name;
  EXPECT_TRUE(missing.empty()) << "rows with an ARM-state class that no corpus line names:" << missing;
  std::string names;
  for (const std::string &u : unknown) names += "\n  " + u;
  EXPECT_TRUE(unknown.empty()) << "mnemonics of the corpus that select no ARM-state row:" << names;
}

}  // namespace
