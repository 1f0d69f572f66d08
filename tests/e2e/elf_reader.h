#pragma once
// A small independent reader of 32-bit ELF relocatable files, for the test runner only.
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

struct ElfSection {
  std::string name;
  uint32_t type, flags, offset, size, link, info, align, entsize;
};

class ElfFile {
 public:
  bool load(std::string bytes, std::string &why) {
    data_ = std::move(bytes);
    if (data_.size() < 52 || data_.compare(0, 4, "\x7f" "ELF") != 0) return fail(why, "not an ELF file");
    if (data_[4] != 1) return fail(why, "not ELFCLASS32");
    big_ = data_[5] == 2;
    uint32_t shoff = u32(32);
    uint16_t shentsize = u16(46), shnum = u16(48), shstrndx = u16(50);
    if (shentsize != 40) return fail(why, "bad e_shentsize");
    if (shoff + uint64_t(shnum) * 40 > data_.size()) return fail(why, "section headers out of file");
    for (unsigned i = 0; i < shnum; ++i) {
      uint32_t h = shoff + i * 40;
      ElfSection s{"", u32(h + 4), u32(h + 8), u32(h + 16), u32(h + 20),
                   u32(h + 24), u32(h + 28), u32(h + 32), u32(h + 36)};
      names_.push_back(u32(h));
      sections_.push_back(s);
    }
    if (shstrndx >= sections_.size()) return fail(why, "bad e_shstrndx");
    for (size_t i = 0; i < sections_.size(); ++i) sections_[i].name = str(sections_[shstrndx].offset + names_[i]);
    return true;
  }

  const ElfSection *section(const std::string &name) const {
    for (auto &s : sections_)
      if (s.name == name) return &s;
    return nullptr;
  }

  std::string hex_bytes(const ElfSection &s) const {
    if (s.type == 8) return "nobits " + std::to_string(s.size);
    std::string out;
    char buf[4];
    for (uint32_t i = 0; i < s.size && s.offset + i < data_.size(); ++i) {
      std::snprintf(buf, sizeof buf, "%02x ", static_cast<uint8_t>(data_[s.offset + i]));
      out += buf;
    }
    return out;
  }

  // value size type bind visibility section, as readelf spells them.
  bool symbol_fields(const std::string &name, std::vector<std::string> &out) const {
    for (auto &st : sections_) {
      if (st.type != 2) continue;
      const ElfSection &strtab = sections_.at(st.link);
      for (uint32_t off = st.offset; off + 16 <= st.offset + st.size; off += 16) {
        if (str(strtab.offset + u32(off)) != name) continue;
        char buf[16];
        std::snprintf(buf, sizeof buf, "%08x", u32(off + 4));
        uint8_t info = static_cast<uint8_t>(data_[off + 12]), other = static_cast<uint8_t>(data_[off + 13]);
        uint16_t shndx = u16(off + 14);
        static const char *types[] = {"NOTYPE", "OBJECT", "FUNC", "SECTION", "FILE", "COMMON", "TLS"};
        static const char *binds[] = {"LOCAL", "GLOBAL", "WEAK"};
        static const char *vis[] = {"DEFAULT", "INTERNAL", "HIDDEN", "PROTECTED"};
        out = {buf, std::to_string(u32(off + 8)), (info & 15) < 7 ? types[info & 15] : "?",
               (info >> 4) < 3 ? binds[info >> 4] : "?", vis[other & 3],
               shndx == 0 ? "UND" : shndx == 0xfff1 ? "ABS" : shndx == 0xfff2 ? "COM"
                                  : shndx < sections_.size() ? sections_[shndx].name : "?"};
        return true;
      }
    }
    return false;
  }

  // Relocation entries of every REL and RELA section, in file order, as
  // "section offset type symbol [addend]" with the offset in 8 hex digits,
  // the type by its ABI name, and a section symbol by its section's name.
  std::vector<std::string> relocations() const {
    std::vector<std::string> out;
    for (auto &rs : sections_) {
      if (rs.type != 9 && rs.type != 4) continue;
      const bool rela = rs.type == 4;
      const unsigned step = rela ? 12 : 8;
      if (rs.link >= sections_.size() || rs.info >= sections_.size()) continue;
      const ElfSection &symtab = sections_[rs.link];
      const ElfSection &strtab = sections_.at(symtab.link);
      for (uint32_t off = rs.offset; off + step <= rs.offset + rs.size; off += step) {
        const uint32_t info = u32(off + 4), sym = info >> 8;
        const uint32_t entry = symtab.offset + sym * 16;
        std::string name = str(strtab.offset + u32(entry));
        if ((b(entry + 12) & 15) == 3 && u16(entry + 14) < sections_.size()) name = sections_[u16(entry + 14)].name;
        char buf[24];
        std::snprintf(buf, sizeof buf, "%08x", u32(off));
        std::string row = sections_[rs.info].name + " " + buf + " " + reloc_name(info & 0xff) + " " + name;
        if (rela) row += " " + std::to_string(static_cast<int32_t>(u32(off + 8)));
        out.push_back(row);
      }
    }
    return out;
  }

  static std::string reloc_name(uint32_t type) {
    static const struct { uint32_t n; const char *name; } names[] = {
        {0, "R_ARM_NONE"},         {1, "R_ARM_PC24"},        {2, "R_ARM_ABS32"},        {3, "R_ARM_REL32"},
        {5, "R_ARM_ABS16"},        {10, "R_ARM_THM_CALL"},   {28, "R_ARM_CALL"},        {29, "R_ARM_JUMP24"},
        {30, "R_ARM_THM_JUMP24"},  {38, "R_ARM_TARGET1"},    {41, "R_ARM_TARGET2"},     {42, "R_ARM_PREL31"},
        {43, "R_ARM_MOVW_ABS_NC"}, {44, "R_ARM_MOVT_ABS"},   {47, "R_ARM_THM_MOVW_ABS_NC"},
        {48, "R_ARM_THM_MOVT_ABS"}, {51, "R_ARM_THM_JUMP19"},
    };
    for (auto &r : names)
      if (r.n == type) return r.name;
    return std::to_string(type);
  }

  const std::vector<ElfSection> &sections() const { return sections_; }

 private:
  static bool fail(std::string &why, const char *w) {
    why = w;
    return false;
  }
  uint8_t b(size_t i) const { return i < data_.size() ? static_cast<uint8_t>(data_[i]) : 0; }
  uint16_t u16(size_t i) const { return big_ ? uint16_t(b(i) << 8 | b(i + 1)) : uint16_t(b(i + 1) << 8 | b(i)); }
  uint32_t u32(size_t i) const {
    return big_ ? uint32_t(u16(i)) << 16 | u16(i + 2) : uint32_t(u16(i + 2)) << 16 | u16(i);
  }
  std::string str(size_t i) const {
    std::string s;
    while (i < data_.size() && data_[i]) s += data_[i++];
    return s;
  }
  std::string data_;
  bool big_ = false;
  std::vector<ElfSection> sections_;
  std::vector<uint32_t> names_;
};
