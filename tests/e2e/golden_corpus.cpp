// Reading and checking the encoding corpus. The file is assembled with a label
// of our own before each line that has expected bytes, so the object itself
// says where every line starts: a line of the wrong size is then pointed at
// directly, and the lines after it are still compared. Lines that draw an
// error are replaced by data of their expected bytes in a second run, so that
// one unknown instruction does not hide the rest of the file.
#include "golden_corpus.h"

#include <cctype>
#include <cstdio>
#include <map>
#include <set>
#include <sstream>

namespace fs = std::filesystem;

namespace {

constexpr const char *label_prefix = "zqg__L";
constexpr const char *end_label = "zqg__END";

std::string trim(std::string_view s) {
  const size_t b = s.find_first_not_of(" \t\r\n");
  if (b == std::string_view::npos) return {};
  const size_t e = s.find_last_not_of(" \t\r\n");
  return std::string(s.substr(b, e - b + 1));
}

std::string replace_all(std::string s, const std::string &from, const std::string &to) {
  for (size_t p = 0; (p = s.find(from, p)) != std::string::npos; p += to.size()) s.replace(p, from.size(), to);
  return s;
}

// "; KEY: value" anywhere in the line, before any ";=".
bool key_of(const std::string &ln, std::string_view key, std::string &value) {
  for (size_t semi = ln.find(';'); semi != std::string::npos; semi = ln.find(';', semi + 1)) {
    if (semi + 1 < ln.size() && ln[semi + 1] == '=') return false;
    const size_t p = ln.find_first_not_of(" \t", semi + 1);
    if (p == std::string::npos || ln.compare(p, key.size(), key) != 0) continue;
    value = trim(std::string_view(ln).substr(p + key.size()));
    return true;
  }
  return false;
}

bool hex_unit(const std::string &tok, GoldenUnit &u) {
  if (tok.size() != 8 && tok.size() != 4) return false;
  for (char c : tok)
    if (!std::isxdigit(static_cast<unsigned char>(c))) return false;
  u = {static_cast<uint32_t>(std::stoul(tok, nullptr, 16)), static_cast<unsigned>(tok.size() / 2)};
  return true;
}

std::string hex(uint32_t v, unsigned bytes) {
  char buf[12];
  std::snprintf(buf, sizeof buf, bytes == 4 ? "%08x" : bytes == 2 ? "%04x" : "%02x", v);
  return buf;
}

// A message of the assembler, its line in the assembled text (0: none).
struct Said {
  int line;
  std::string id, text;
};

// First line of a message: ["file", ]KIND[ at line N:| at EOF:|:] [ID] text
bool said_header(std::string_view ln, Said &s) {
  if (ln.starts_with('"')) {
    const size_t close = ln.find("\", ", 1);
    if (close == std::string_view::npos) return false;
    ln.remove_prefix(close + 3);
  }
  static constexpr std::string_view kinds[] = {"ERROR!", "WARNING!", "REMARK", "INTERNAL ERROR!", "FATAL ERROR"};
  bool known = false;
  for (std::string_view k : kinds) {
    if (ln.starts_with(k)) {
      ln.remove_prefix(k.size());
      known = true;
      break;
    }
  }
  if (!known) return false;
  const std::string rest = trim(ln);
  s.line = 0;
  std::string body;
  if (rest.starts_with("at line ")) {
    const size_t colon = rest.find(':');
    if (colon == std::string::npos) return false;
    s.line = std::atoi(rest.c_str() + 8);
    body = rest.substr(colon + 1);
  } else if (rest.starts_with("at EOF:")) {
    body = rest.substr(7);
  } else if (rest.starts_with(':')) {
    body = rest.substr(1);
  } else {
    return false;
  }
  body = trim(body);
  if (body.starts_with('[')) {
    const size_t close = body.find(']');
    s.id = body.substr(1, close - 1);
    body = trim(body.substr(close + 1));
  }
  s.text = body;
  return true;
}

std::vector<Said> said_all(const std::string &err) {
  std::vector<Said> out;
  std::istringstream in(err);
  std::string ln;
  while (std::getline(in, ln)) {
    Said s;
    if (said_header(ln, s)) {
      out.push_back(s);
    } else if (!out.empty() && ln.starts_with(' ')) {  // a wrapped message body
      out.back().text += " " + trim(ln);
    }
  }
  return out;
}

// The object as far as the comparison needs it.
struct Code {
  bool ok = false;
  std::string why;
  bool big = false;
  std::string text;                     // .text bytes in file order
  std::map<std::string, uint32_t> at;   // our labels' values
};

uint32_t read_le_be(const std::string &b, size_t off, unsigned n, bool big) {
  uint32_t v = 0;
  for (unsigned i = 0; i < n; ++i) {
    const uint32_t byte = static_cast<uint8_t>(off + i < b.size() ? b[off + i] : 0);
    v |= big ? byte << (8 * (n - 1 - i)) : byte << (8 * i);
  }
  return v;
}

Code read_code(const fs::path &obj) {
  Code c;
  const std::string raw = slurp(obj);
  ElfFile elf;
  if (!elf.load(raw, c.why)) return c;
  c.big = raw[5] == 2;
  const ElfSection *text = elf.section(".text");
  if (!text) {
    c.why = "no .text section";
    return c;
  }
  if (text->type != 8 && uint64_t(text->offset) + text->size <= raw.size()) c.text = raw.substr(text->offset, text->size);
  for (const ElfSection &st : elf.sections()) {
    if (st.type != 2 || st.link >= elf.sections().size()) continue;
    const ElfSection &names = elf.sections()[st.link];
    for (uint64_t off = st.offset; off + 16 <= uint64_t(st.offset) + st.size && off + 16 <= raw.size(); off += 16) {
      const uint64_t name_at = uint64_t(names.offset) + read_le_be(raw, off, 4, c.big);
      if (name_at >= raw.size()) continue;
      const std::string name(raw.c_str() + name_at);
      if (name.starts_with("zqg__")) c.at[name] = read_le_be(raw, off + 4, 4, c.big) & ~1u;  // Thumb labels are odd
    }
  }
  c.ok = true;
  return c;
}

size_t size_of(const std::vector<GoldenUnit> &units) {
  size_t n = 0;
  for (const GoldenUnit &u : units) n += u.bytes;
  return n;
}

// Actual bytes spelled in the unit size the line expects, or as single
// bytes where they do not divide into it.
std::string spell_actual(const Code &c, size_t off, size_t n, const std::vector<GoldenUnit> &want) {
  if (n == 0) return "nothing";
  const unsigned unit = n % want.front().bytes == 0 ? want.front().bytes : 1;
  std::vector<GoldenUnit> got;
  for (size_t i = 0; i < n; i += unit) got.push_back({read_le_be(c.text, off + i, unit, c.big), unit});
  return GOLD_spell(got);
}

// The source as assembled: labels before the expected lines, and the lines
// in `replaced` turned into data of their expected bytes. `origin` maps each
// assembled line (1-based) to the corpus line.
std::string assembled_text(const GoldenFile &f, const std::set<int> &replaced, std::vector<int> &origin) {
  std::map<int, const GoldenLine *> expected;
  for (const GoldenLine &g : f.lines) expected[g.line] = &g;
  std::string out;
  origin.assign(1, 0);
  auto emit = [&](const std::string &ln, int from) {
    out += ln;
    out += '\n';
    origin.push_back(from);
  };
  for (size_t i = 0; i < f.text.size(); ++i) {
    const int n = static_cast<int>(i + 1);
    const auto g = expected.find(n);
    if (g == expected.end()) {
      emit(f.text[i], n);
      continue;
    }
    emit(label_prefix + std::to_string(n), n);
    if (!replaced.count(n)) {
      emit(f.text[i], n);
      continue;
    }
    // Keep a label of the line's own: it may be used elsewhere.
    const std::string &src = f.text[i];
    std::string label;
    if (!src.empty() && !std::isspace(static_cast<unsigned char>(src[0])) && src[0] != ';')
      label = src.substr(0, src.find_first_of(" \t"));
    for (const GoldenUnit &u : g->second->units) {
      emit(label + (u.bytes == 4 ? "\t.word 0x" : "\t.short 0x") + hex(u.value, u.bytes), n);
      label.clear();
    }
  }
  emit(end_label, static_cast<int>(f.text.size()));
  return out;
}

struct Run {
  ZqRun zq;
  std::vector<Said> said;  // lines already mapped to the corpus file
  Code code;
};

Run run_once(const GoldenFile &f, const fs::path &dir, const GoldenAssemble &assemble, const std::set<int> &replaced) {
  std::vector<int> origin;
  const std::string name = f.path.filename().string();
  spit(dir / name, assembled_text(f, replaced, origin));
  const fs::path obj = dir / "zqg_out.obj";
  std::error_code ec;
  fs::remove(obj, ec);
  std::string args = replace_all(f.args, "%s", "'" + name + "'");
  args = replace_all(args, "%o", "'" + obj.string() + "'");
  args = replace_all(args, "%t", "'" + dir.string() + "'");
  Run r{assemble("--diag_wrap=off " + args), {}, {}};
  for (Said s : said_all(r.zq.err)) {
    if (s.id == "R0001") continue;  // the companion note of a substituted line
    s.line = s.line > 0 && size_t(s.line) < origin.size() ? origin[s.line] : 0;
    r.said.push_back(s);
  }
  if (fs::exists(obj)) r.code = read_code(obj);
  else r.code.why = "no object written";
  return r;
}

}  // namespace

std::string GOLD_spell(const std::vector<GoldenUnit> &units) {
  std::string s;
  for (const GoldenUnit &u : units) s += (s.empty() ? "" : " ") + hex(u.value, u.bytes);
  return s;
}

GoldenFile GOLD_read(const fs::path &path) {
  GoldenFile f;
  f.path = path;
  std::istringstream in(slurp(path));
  std::string ln;
  while (std::getline(in, ln)) {
    if (!ln.empty() && ln.back() == '\r') ln.pop_back();
    f.text.push_back(ln);
    const int n = static_cast<int>(f.text.size());
    std::string value;
    if (key_of(ln, "RUN:", value)) f.args = value;
    if (key_of(ln, "XFAIL:", value)) f.xfail = value.empty() ? "(no reason given)" : value;
    const size_t at = ln.find(";=");
    if (at == std::string::npos) continue;
    GoldenLine g{n, trim(std::string_view(ln).substr(0, at)), {}};
    std::istringstream fields(ln.substr(at + 2));
    std::string tok;
    bool bad = false;
    while (fields >> tok && tok[0] != ';') {
      GoldenUnit u{};
      if (!hex_unit(tok, u)) bad = true;
      else g.units.push_back(u);
    }
    if (bad || g.units.empty()) f.format_errors.push_back(std::to_string(n) + ": unreadable expected bytes");
    else f.lines.push_back(g);
  }
  return f;
}

GoldenOutcome GOLD_check(const GoldenFile &f, const fs::path &dir, const GoldenAssemble &assemble,
                         const std::string &shown) {
  GoldenOutcome out;
  std::map<int, const GoldenLine *> expected;
  for (const GoldenLine &g : f.lines) expected[g.line] = &g;
  auto where = [&](int line) { return shown + (line > 0 ? ":" + std::to_string(line) : std::string()) + ": "; };
  auto source = [&](int line) {  // the statement, without its expectation
    if (line <= 0 || size_t(line) > f.text.size()) return std::string();
    const std::string &text = f.text[line - 1];
    return " (" + trim(std::string_view(text).substr(0, text.find(";="))) + ")";
  };
  for (const std::string &e : f.format_errors) out.findings.push_back(shown + ":" + e);

  Run first = run_once(f, dir, assemble, {});
  std::set<int> failed;  // expected lines that drew an error
  bool error_said = false;
  for (const Said &s : first.said) {
    out.findings.push_back(where(s.line) + "[" + s.id + "] " + s.text + source(s.line));
    if (!s.id.empty() && s.id[0] != 'W' && s.id[0] != 'R') {
      error_said = true;
      if (expected.count(s.line)) failed.insert(s.line);
    }
  }
  if (first.zq.status != 0 && !error_said)
    out.findings.push_back(where(0) + "assembler exit status " + std::to_string(first.zq.status));

  const Run second = failed.empty() ? Run{} : run_once(f, dir, assemble, failed);
  const Code &code = failed.empty() ? first.code : second.code;
  if (!code.ok) {
    out.findings.push_back(where(0) + "bytes not compared: " + code.why +
                           (failed.empty() ? "" : " (even with the lines in error replaced by their bytes)"));
    return out;
  }

  // Where each expected line starts; the next one's start (or the end) closes it.
  size_t total_want = 0;
  bool located = true;
  std::vector<size_t> start;
  for (const GoldenLine &g : f.lines) {
    total_want += size_of(g.units);
    const auto at = code.at.find(label_prefix + std::to_string(g.line));
    located = located && at != code.at.end();
    start.push_back(located ? at->second : 0);
  }
  const auto end = code.at.find(end_label);
  const size_t stop = end != code.at.end() ? end->second : code.text.size();
  size_t sequential = 0;  // without our labels the lines follow each other
  for (size_t i = 0; i < f.lines.size(); ++i) {
    const GoldenLine &g = f.lines[i];
    const size_t want = size_of(g.units);
    const size_t off = located ? start[i] : sequential;
    const size_t next = located ? (i + 1 < f.lines.size() ? start[i + 1] : stop) : off + want;
    sequential += want;
    if (failed.count(g.line)) continue;  // its message is the finding
    if (next > code.text.size() || off > next) {
      out.findings.push_back(where(g.line) + "expected " + GOLD_spell(g.units) + ", got nothing: the code ends at " +
                             std::to_string(code.text.size()) + source(g.line));
      continue;
    }
    ++out.compared;
    const std::string got = spell_actual(code, off, next - off, g.units);
    if (next - off != want) {
      out.findings.push_back(where(g.line) + "expected " + GOLD_spell(g.units) + " (" + std::to_string(want) +
                             " bytes), got " + got + " (" + std::to_string(next - off) + " bytes)" + source(g.line));
    } else if (got != GOLD_spell(g.units)) {
      out.findings.push_back(where(g.line) + "expected " + GOLD_spell(g.units) + ", got " + got + source(g.line));
    }
  }
  if (located && !f.lines.empty() && start[0] != 0)
    out.findings.push_back(where(f.lines[0].line) + std::to_string(start[0]) + " bytes before the first expected line");
  if (code.text.size() > total_want)
    out.findings.push_back(where(0) + std::to_string(code.text.size() - total_want) + " trailing bytes (" +
                           std::to_string(code.text.size()) + " in .text, " + std::to_string(total_want) + " expected)");
  else if (code.text.size() < total_want)
    out.findings.push_back(where(0) + "missing " + std::to_string(total_want - code.text.size()) + " bytes (" +
                           std::to_string(code.text.size()) + " in .text, " + std::to_string(total_want) + " expected)");
  return out;
}
