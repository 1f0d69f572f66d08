// The encoding corpus under tests/golden reaches every mnemonic row that has
// a class in a state: each such row is named by some statement of the corpus
// in that state. ARM rows by the ARM files, rows with a Thumb class by the
// plain Thumb files (.thumb on v4, v5e, v6, v6m, and .state16 files), rows
// with a Thumb-2 class by the .thumb files of the Thumb-2 architectures. A
// statement's mnemonic is taken apart the way the opcode lookup does it with
// unified syntax: unified names of the state translated, a parallel
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

// VFP and NEON classes (ic_id 19 to 23, 49, 50, 201 to 222 but 217, the
// Thumb-2 CPS) are covered by the corpus of a later step, not by this one.
bool vfp_or_neon(uint16_t ic_id) {
  return (ic_id >= 19 && ic_id <= 23) || ic_id == 49 || ic_id == 50 || (ic_id >= 201 && ic_id <= 222 && ic_id != 217);
}

// The instruction sets of the corpus: an ARM row has a class in slot 0, a
// Thumb row in slot 1, a Thumb-2 row in slot 2 or 3.
enum class Set { arm, thumb, thumb2 };

// Translation state of the unified names: 0 ARM, 1 plain Thumb, 2 Thumb-2.
uint32_t ual_state(Set set) { return set == Set::arm ? 0 : set == Set::thumb ? 1 : 2; }

// The class of a row in the set, ignoring VFP and NEON ones; null if none.
const inst_class *set_class(const mnemonic_row *row, Set set) {
  const inst_class *c = nullptr;
  if (set == Set::arm) c = row->slot[0].cls;
  if (set == Set::thumb) c = row->slot[1].cls;
  if (set == Set::thumb2) c = row->slot[2].cls ? row->slot[2].cls : row->slot[3].cls;
  return c && !vfp_or_neon(c->ic_id) ? c : nullptr;
}

std::string upper(std::string_view s) {
  std::string out(s);
  for (char &c : out)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return out;
}

// The rows a statement can select in a state: the ARM rows, or in Thumb
// every row with a Thumb or Thumb-2 class (a Thumb-2 name may reach a row by
// its narrow class and the other way round).
class Rows {
 public:
  explicit Rows(Set set) : state_(ual_state(set)) {
    for (const mnemonic_row *row = trg_mnemonics; row->name; ++row)
      if (set == Set::arm ? row->slot[0].cls != nullptr : row->slot[1].cls || row->slot[2].cls || row->slot[3].cls)
        rows_[row->name] = row;
  }

  // The row a statement's mnemonic selects, or null.
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
  std::string translate(const std::string &name) const {
    const ual_name_translation *best = nullptr;
    for (const ual_name_translation *t = ual_to_old_mnemonics; t->ual_name; ++t) {
      const std::string_view u(t->ual_name);
      if (t->state != state_ || !t->old_name || !name.starts_with(u)) continue;
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

  uint32_t state_;
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

// The state directive a corpus file switches to (".thumb" or ".state16"), or
// empty for an ARM file.
std::string state_directive(const fs::path &file) {
  std::ifstream in(file);
  std::string line;
  while (std::getline(in, line)) {
    const size_t p = line.find_first_not_of(" \t");
    if (p == std::string::npos || p == 0) continue;  // a label or a comment in column 1
    const std::string word = line.substr(p, line.find_first_of(" \t;", p) - p);
    if (word == ".thumb" || word == ".state16") return word;
  }
  return {};
}

// The set a corpus file of the architecture folder `arch` is written in:
// .thumb is plain Thumb below v7 and on v6-M, whose names are those of plain
// Thumb; .state16 is plain Thumb everywhere.
Set set_of(std::string_view arch, std::string_view directive) {
  if (directive.empty()) return Set::arm;
  if (directive == ".state16" || arch == "v4" || arch == "v5e" || arch == "v6" || arch == "v6m") return Set::thumb;
  return Set::thumb2;
}

// Rows without a line of their own, by set, and why.
bool left_out(const std::string &row, Set set) {
  // Pseudo-branches that jump expansion makes; the references know none.
  if (set != Set::arm && (row == "BQ" || row == "BR" || row == "BT")) return true;
  // Thumb-2 has no increment-before or decrement-after transfers: their rows
  // only refuse the statement. SEL8 is no instruction of any reference.
  // In Thumb-2 the shift names are MOV with a shifted register: no name
  // selects their rows.
  static const std::set<std::string> no_thumb2 = {"LDMIB", "LDMED", "STMIB", "STMFA", "LDMDA", "LDMFA", "STMDA",
                                                  "STMED", "SEL8",  "LSL",   "LSR",   "ASR",   "ROR"};
  return set == Set::thumb2 && no_thumb2.count(row);
}

TEST(CorpusCoverage, NamesWorkLikeTheLookup) {
  const Rows arm(Set::arm), thumb(Set::thumb), thumb2(Set::thumb2);
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
  // Thumb names: translated by the state's own table.
  const struct { const Rows *rows; const char *mnemonic, *row; } thumb_cases[] = {
      {&thumb2, "CBZ", "CZB"}, {&thumb2, "CBNZ", "CZB"}, {&thumb2, "LSLS.W", "MOV"}, {&thumb, "LSLS", "LSL"},
      {&thumb, "SVC", "SWI"}, {&thumb2, "ITTE", "IT"}, {&thumb2, "LDREXB", "LDREXB"}, {&thumb2, "TTAT", "TT"},
      {&thumb, "NEGS", "NEG"}, {&thumb2, "ADDW", "ADDW"}, {&thumb2, "UQSAX", "SUBADDX"}, {&thumb2, "SRSDB", "SRS"}};
  for (const auto &c : thumb_cases) {
    const mnemonic_row *row = c.rows->lookup(c.mnemonic);
    ASSERT_NE(row, nullptr) << c.mnemonic;
    EXPECT_STREQ(row->name, c.row) << c.mnemonic;
  }
  EXPECT_EQ(thumb.lookup("RSC"), nullptr);
  EXPECT_EQ(set_of("v6m", ".thumb"), Set::thumb);
  EXPECT_EQ(set_of("v7a", ".state16"), Set::thumb);
  EXPECT_EQ(set_of("v7a", ".thumb"), Set::thumb2);
  EXPECT_EQ(set_of("v7a", ""), Set::arm);
  const fs::path golden = fs::path(ZQ_SOURCE_DIR) / "tests" / "golden";
  EXPECT_EQ(state_directive(golden / "v4" / "dp.asm"), "");
  EXPECT_EQ(state_directive(golden / "v4" / "thumb_state16.asm"), ".state16");
  EXPECT_EQ(state_directive(golden / "v7m" / "thumb_alu.asm"), ".thumb");
  EXPECT_EQ(mnemonic_of("lab     ADD R0, R1 ;= 1"), "ADD");
  EXPECT_EQ(mnemonic_of("        .word 1 ;= 00000001"), "");
  EXPECT_EQ(mnemonic_of("label"), "");
  EXPECT_EQ(mnemonic_of("; RUN: %s %o"), "");
}

TEST(CorpusCoverage, EveryRowAppearsInItsSet) {
  const Rows rows[] = {Rows(Set::arm), Rows(Set::thumb), Rows(Set::thumb2)};
  const char *set_names[] = {"ARM", "Thumb", "Thumb-2"};
  const fs::path root = fs::path(ZQ_SOURCE_DIR) / "tests" / "golden";
  ASSERT_TRUE(fs::exists(root)) << root;
  std::set<std::string> seen[3];
  std::set<std::string> unknown;  // mnemonics that select no row of their set
  size_t files = 0;
  for (const auto &e : fs::recursive_directory_iterator(root)) {
    if (!e.is_regular_file() || e.path().extension() != ".asm") continue;
    ++files;
    const Set set = set_of(e.path().parent_path().filename().string(), state_directive(e.path()));
    const size_t s = static_cast<size_t>(set);
    std::ifstream in(e.path());
    std::string line;
    while (std::getline(in, line)) {
      const std::string m = mnemonic_of(line);
      if (m.empty()) continue;
      if (const mnemonic_row *row = rows[s].lookup(m)) seen[s].insert(row->name);
      else unknown.insert(m + " in " + e.path().parent_path().filename().string() + "/" + e.path().filename().string());
    }
  }
  EXPECT_GT(files, 0u);
  for (const Set set : {Set::arm, Set::thumb, Set::thumb2}) {
    const size_t s = static_cast<size_t>(set);
    std::string missing;
    for (const mnemonic_row *row = trg_mnemonics; row->name; ++row)
      if (set_class(row, set) && !seen[s].count(row->name) && !left_out(row->name, set))
        missing += std::string(" ") + row->name;
    EXPECT_TRUE(missing.empty()) << "rows with a class of " << set_names[s] << " that no corpus line names:" << missing;
  }
  std::string names;
  for (const std::string &u : unknown) names += "\n  " + u;
  EXPECT_TRUE(unknown.empty()) << "mnemonics of the corpus that select no row:" << names;
}

}  // namespace
