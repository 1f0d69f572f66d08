// Big reservations: a run of zeros costs no memory on its way to the file, the
// bytes around it land where they belong, and counters that would pass 4 GiB
// are refused with one message.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "zq_dir_fixture.h"

namespace fs = std::filesystem;

namespace {

struct Section {
  uint32_t type, offset, size;
};

class BigSections : public ZqDirFixture {
 protected:
  ZqRun assemble(const std::string &source, const std::string &options = "") {
    put("t.asm", source);
    return zq(options + " t.asm t.o");
  }

  // The object's sections by name, read from its headers alone: the
  // contents may be large.
  std::map<std::string, Section> sections() {
    std::ifstream in(path("t.o"), std::ios::binary);
    const auto read = [&](uint64_t at, size_t n) {
      std::string b(n, '\0');
      in.seekg(static_cast<std::streamoff>(at));
      in.read(b.data(), static_cast<std::streamsize>(n));
      return b;
    };
    const std::string head = read(0, 52);
    const bool big = head[5] == 2;
    const auto num = [big](const std::string &b, size_t at, int n) {
      uint32_t v = 0;
      for (int i = 0; i < n; ++i) v = v << 8 | static_cast<uint8_t>(b[at + (big ? i : n - 1 - i)]);
      return v;
    };
    const uint32_t shoff = num(head, 32, 4), shnum = num(head, 48, 2), shstrndx = num(head, 50, 2);
    const std::string table = read(shoff, shnum * 40);
    const std::string names = read(num(table, shstrndx * 40 + 16, 4), num(table, shstrndx * 40 + 20, 4));
    std::map<std::string, Section> out;
    for (uint32_t i = 0; i < shnum; ++i) {
      const size_t h = i * 40;
      out[names.c_str() + num(table, h, 4)] = {num(table, h + 4, 4), num(table, h + 16, 4), num(table, h + 20, 4)};
    }
    return out;
  }

  // `n` bytes of the object at `offset`, as hex pairs.
  std::string bytes_at(uint64_t offset, size_t n) {
    std::ifstream in(path("t.o"), std::ios::binary);
    in.seekg(static_cast<std::streamoff>(offset));
    std::string b(n, '\0');
    in.read(b.data(), static_cast<std::streamsize>(n));
    std::string out;
    char buf[4];
    for (char c : b) {
      std::snprintf(buf, sizeof buf, "%02x", static_cast<uint8_t>(c));
      out += buf;
    }
    return out;
  }

  bool all_zero(uint64_t offset, uint64_t n) {
    std::ifstream in(path("t.o"), std::ios::binary);
    in.seekg(static_cast<std::streamoff>(offset));
    std::vector<char> buf(1 << 16);
    while (n) {
      const auto k = static_cast<std::streamsize>(std::min<uint64_t>(n, buf.size()));
      if (!in.read(buf.data(), k)) return false;
      for (std::streamsize i = 0; i < k; ++i)
        if (buf[static_cast<size_t>(i)]) return false;
      n -= static_cast<uint64_t>(k);
    }
    return true;
  }

};

TEST_F(BigSections, QuarterGigabyteOfZerosIsNeverHeldInMemory) {
  const uint64_t size = 0x10000000;
  const ZqRun r = assemble("\t.data\n\t.word 0x11223344\n\t.space 0x10000000\n\t.word 0x55667788\n");
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.err, "");
  // One materialisation would take 256 MiB by itself.
  EXPECT_LT(r.max_rss_kib, 96 * 1024);

  const auto all = sections();
  ASSERT_EQ(all.count(".data"), 1u);
  const Section data = all.at(".data");
  ASSERT_EQ(data.size, size + 8);
  EXPECT_GE(fs::file_size(path("t.o")), data.offset + size + 8);
  EXPECT_EQ(bytes_at(data.offset, 8), "4433221100000000");
  EXPECT_EQ(bytes_at(data.offset + size / 2, 8), "0000000000000000");
  EXPECT_EQ(bytes_at(data.offset + size, 8), "0000000088776655");
}

TEST_F(BigSections, DataAroundSeveralBlocksInBothByteOrders) {
  // Blocks, bit fields and alignment fill mixed in one section, and a second
  // section made of two blocks and one byte.
  const std::string source =
      "\t.data\n"
      "\t.bes 0x30001\n"
      "\t.word 0x99887766\n"
      "\t.field 3, 5\n"
      "\t.space 0x20000\n"
      "\t.field 7, 9\n"
      "\t.space 7\n"
      "\t.align 32768\n"
      "\t.byte 3\n"
      "\t.sect \"s2\"\n"
      "\t.space 0x10000\n"
      "\t.space 0x10000\n"
      "\t.byte 9\n";
  for (const char *endian : {"little", "big"}) {
    SCOPED_TRACE(endian);
    const ZqRun r = assemble(source, std::string("--endian=") + endian);
    ASSERT_EQ(r.status, 0) << r.err;
    const bool big = std::string(endian) == "big";
    const auto all = sections();
    ASSERT_TRUE(all.count(".data") && all.count("s2"));
    const Section *data = &all.at(".data");
    const Section *s2 = &all.at("s2");

    // .bes 0x30001 ends at 0x30001; three bytes of fill align the word.
    EXPECT_TRUE(all_zero(data->offset, 0x30001));
    EXPECT_EQ(bytes_at(data->offset + 0x30000, 8), big ? "00a0000099887766" : "000000a066778899");
    // The 5-bit field rounds up to a byte before the block.
    EXPECT_EQ(bytes_at(data->offset + 0x30008, 1), big ? "18" : "03");
    EXPECT_TRUE(all_zero(data->offset + 0x30009, 0x20000));
    // The 9-bit field after it, 7 zero bytes, then fill words up to 0x58000.
    EXPECT_EQ(bytes_at(data->offset + 0x50009, 2), big ? "0380" : "0700");
    EXPECT_TRUE(all_zero(data->offset + 0x5000b, 7));
    EXPECT_EQ(bytes_at(data->offset + 0x50012, 4), big ? "01a00000" : "0000a001");
    EXPECT_EQ(data->size, 0x58001u);
    EXPECT_EQ(bytes_at(data->offset + 0x58000, 1), "03");

    EXPECT_EQ(s2->size, 0x20001u);
    EXPECT_TRUE(all_zero(s2->offset, 0x20000));
    EXPECT_EQ(bytes_at(s2->offset + 0x20000, 1), "09");
  }
}

TEST_F(BigSections, CountersThatWouldPassFourGigabytes) {
  struct Case {
    const char *source;
    const char *message;   // expected in stderr, empty for none
  };
  const Case cases[] = {
      // .usect on one section until the total passes 4 GiB.
      {"a .usect \".u\", 0x80000000\nb .usect \".u\", 0x7FFFFFFF\nc .usect \".u\", 1\n",
       "at line 3: [E0004] .usect size 1 goes beyond the 32-bit address space"},
      {"\t.bss a, 0xFFFFFFF0\n\t.bss b, 0x20\n",
       "at line 2: [E0004] .bss size 32 goes beyond the 32-bit address space"},
      // Alignment of a .bss block past the top.
      {"\t.bss a, 0xFFFFFFF1\n\t.bss b, 1, 16\n",
       "at line 2: [E0004] Section .bss goes beyond the 32-bit address space"},
      // Data behind a block that fills the address space.
      {"\t.data\n\t.space 0xFFFFFFFC\n\t.word 1\n\t.word 2\n",
       "at line 3: [E0004] Section .data goes beyond the 32-bit address space"},
      {"\t.data\n\t.space 0xFFFFFFF0\n\t.align 32\n",
       "at line 3: [E0004] Section .data goes beyond the 32-bit address space"},
      {"\t.data\n\t.space 0xFFFFFFFD\n\t.field 1, 24\n",
       "at line 3: [E0004] Section .data goes beyond the 32-bit address space"},
      {"\t.data\n\t.space 0xFFFFFFF0\n\t.space 0x10\n",
       "at line 3: [E0004] .space size 16 goes beyond the 32-bit address space"},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.source);
    const ZqRun r = assemble(c.source);
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(joined(r.err).find(c.message), std::string::npos) << r.err;
    // One message, and no object.
    EXPECT_EQ(r.err.find("ERROR!"), r.err.rfind("ERROR!")) << r.err;
    EXPECT_FALSE(fs::exists(path("t.o")));
    EXPECT_LT(r.max_rss_kib, 96 * 1024);
  }
}

TEST_F(BigSections, ReservationsUpToTheLastByteAreAccepted) {
  // A .bss section may reach the last address; its size is recorded, not written.
  const ZqRun r = assemble("\t.bss a, 0xFFFFFFFE\n\t.bss b, 1\n");
  ASSERT_EQ(r.status, 0) << r.err;
  const auto all = sections();
  ASSERT_EQ(all.count(".bss"), 1u);
  EXPECT_EQ(all.at(".bss").size, 0xFFFFFFFFu);
  EXPECT_EQ(all.at(".bss").type, 8u);   // SHT_NOBITS
}

TEST_F(BigSections, ObjectThatWouldPassFourGigabytesIsNotWritten) {
  // Each section fits, but the file offsets behind them would wrap.
  const ZqRun r = assemble("\t.data\n\t.word 1\n\t.space 0xFFFFFF00\n\t.word 2\n");
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(joined(r.err).find("[E1500] value truncated: the object file would be 42949676"), std::string::npos)
      << r.err;
  EXPECT_NE(joined(r.err).find("bytes, more than a 32-bit ELF file can address"), std::string::npos) << r.err;
  EXPECT_EQ(r.err.find("INTERNAL"), std::string::npos) << r.err;
  EXPECT_FALSE(fs::exists(path("t.o")));
  EXPECT_LT(r.max_rss_kib, 96 * 1024);
}

}  // namespace
