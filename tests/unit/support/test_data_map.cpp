#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/data_map.h"
#include "support/diagnostic.h"
#include "support/fhm.h"

namespace {

std::vector<unsigned char> bytes_of(const DATA_MAP &m)
{
    std::vector<unsigned char> v(m.size());
    uint64_t at = m.cursor();
    m.set_cursor(0);
    m.read(v.data(), v.size());
    m.set_cursor(at);
    return v;
}

using B = std::vector<unsigned char>;

TEST(DataMap, ByteOrder)
{
    DATA_MAP le, be;
    be.set_endian(DATA_MAP::ENDIAN_BIG);
    for (DATA_MAP *m : {&le, &be}) {
        m->UINT_write(0x12345678, 3);
        m->UINT16_write(0xA1B2);
        m->UINT32_write(0xC1C2C3C4);
        m->UINT64_write(0x0102030405060708ull);
        m->INT8_write(-2);
        m->INT_write(-3, 2);
    }
    EXPECT_EQ(bytes_of(le), (B{0x78, 0x56, 0x34, 0xB2, 0xA1, 0xC4, 0xC3, 0xC2, 0xC1, 8, 7, 6, 5, 4,
                               3, 2, 1, 0xFE, 0xFD, 0xFF}));
    EXPECT_EQ(bytes_of(be), (B{0x34, 0x56, 0x78, 0xA1, 0xB2, 0xC1, 0xC2, 0xC3, 0xC4, 1, 2, 3, 4, 5,
                               6, 7, 8, 0xFE, 0xFF, 0xFD}));
    for (DATA_MAP *m : {&le, &be}) {
        m->set_cursor(0);
        EXPECT_EQ(m->UINT_read(3), 0x345678u);
        EXPECT_EQ(m->UINT16_read(), 0xA1B2u);
        EXPECT_EQ(m->UINT32_read(), 0xC1C2C3C4u);
        EXPECT_EQ(m->UINT64_read(), 0x0102030405060708ull);
        EXPECT_EQ(m->INT8_read(), -2);
        EXPECT_EQ(m->INT_read(2), -3);
        EXPECT_EQ(m->cursor(), 20u);
    }
    // Raw pointer forms with explicit order.
    unsigned char raw[8];
    DATA_MAP::UINT32_write(raw, 0x11223344, DATA_MAP::ENDIAN_BIG);
    EXPECT_EQ(raw[0], 0x11);
    EXPECT_EQ(DATA_MAP::UINT32_read(raw, DATA_MAP::ENDIAN_LITTLE), 0x44332211u);
    int64_t sv = 0;
    DATA_MAP::INT_read(raw, &sv, DATA_MAP::ENDIAN_LITTLE, 1);
    EXPECT_EQ(sv, 0x11);
    DATA_MAP::UINT16_write(raw, 0x80FF, DATA_MAP::ENDIAN_LITTLE);
    DATA_MAP::INT_read(raw, &sv, DATA_MAP::ENDIAN_LITTLE, 2);
    EXPECT_EQ(sv, -32513);
    EXPECT_EQ(DATA_MAP::toggle_endian(uint16_t{0x1234}), 0x3412);
    EXPECT_EQ(DATA_MAP::toggle_endian(uint32_t{0x12345678}), 0x78563412u);
    EXPECT_EQ(DATA_MAP::toggle_endian(uint64_t{0x0102030405060708}), 0x0807060504030201ull);
}

TEST(DataMap, CursorAndSize)
{
    DATA_MAP m;
    EXPECT_TRUE(m.in_memory());
    EXPECT_EQ(m.dptr(), nullptr);
    // Writing past the end leaves zero bytes between.
    m.set_cursor(4);
    m.UINT8_write(0xAA);
    EXPECT_EQ(m.size(), 5u);
    EXPECT_TRUE(m.is_modified());
    EXPECT_EQ(bytes_of(m), (B{0, 0, 0, 0, 0xAA}));
    // Writes inside do not change the size.
    m.set_cursor(1);
    m.UINT16_write(0x0201);
    EXPECT_EQ(m.size(), 5u);
    EXPECT_EQ(m.cursor(), 3u);
    EXPECT_EQ(*m.dptr(), 0);

    // A read past the end yields 0 and still moves the cursor.
    m.set_cursor(3);
    EXPECT_EQ(m.UINT32_read(), 0u);
    EXPECT_EQ(m.cursor(), 7u);
    EXPECT_EQ(m.UINT8_read(), 0u);
    EXPECT_EQ(m.cursor(), 8u);
    m.set_cursor(3);
    EXPECT_EQ(m.UINT16_read(), 0xAA00u);
    unsigned char buf[4] = {9, 9, 9, 9};
    m.set_cursor(2);
    m.read(buf, 4);
    EXPECT_EQ(B(buf, buf + 4), (B{0, 0, 0, 0}));

    // Strings.
    DATA_MAP s;
    s.string_write("ab");
    s.string_write("");
    s.string_write("c");
    EXPECT_EQ(s.size(), 6u);
    s.set_cursor(0);
    EXPECT_STREQ(s.string_read(), "ab");
    EXPECT_STREQ(s.string_read(), "");
    EXPECT_STREQ(s.string_read(), "c");
    EXPECT_EQ(s.string_read(), nullptr);
    EXPECT_EQ(s.cursor(), 7u);
    s.set_cursor(6);
    s.write(reinterpret_cast<const unsigned char *>("xy"), 2);   // no NUL
    s.set_cursor(6);
    EXPECT_EQ(s.string_read(), nullptr);

    // clear keeps only the byte order.
    s.set_endian(DATA_MAP::ENDIAN_BIG);
    s.clear();
    EXPECT_EQ(s.size(), 0u);
    EXPECT_EQ(s.cursor(), 0u);
    EXPECT_TRUE(s.is_big_endian());
    EXPECT_EQ(s.flags(), DATA_MAP::DM_IN_MEMORY | DATA_MAP::DM_BIG_ENDIAN);
}

TEST(DataMap, Leb128)
{
    struct {
        long v;
        bool is_signed;
        B enc;
    } rows[] = {
        {0, false, {0}},
        {127, false, {0x7f}},
        {128, false, {0x80, 0x01}},
        {624485, false, {0xE5, 0x8E, 0x26}},
        {0xFFFFFFFFl, false, {0xFF, 0xFF, 0xFF, 0xFF, 0x0F}},
        {63, true, {0x3f}},
        {64, true, {0xC0, 0x00}},
        {-1, true, {0x7f}},
        {-64, true, {0x40}},
        {-65, true, {0xBF, 0x7F}},
        {-123456, true, {0xC0, 0xBB, 0x78}},
        {INT32_MIN, true, {0x80, 0x80, 0x80, 0x80, 0x78}},
    };
    for (auto &r : rows) {
        DATA_MAP m;
        unsigned len = r.is_signed ? m.SLEB128_write(static_cast<int>(r.v))
                                   : m.ULEB128_write(static_cast<unsigned>(r.v));
        EXPECT_EQ(len, r.enc.size()) << r.v;
        EXPECT_EQ(bytes_of(m), r.enc) << r.v;
        EXPECT_EQ(r.is_signed ? DATA_MAP::SLEB128_size(static_cast<int>(r.v))
                              : DATA_MAP::ULEB128_size(static_cast<unsigned>(r.v)),
                  len);
        m.set_cursor(0);
        if (r.is_signed)
            EXPECT_EQ(m.SLEB128_read(), r.v);
        else
            EXPECT_EQ(m.ULEB128_read(), static_cast<uint64_t>(r.v));
        EXPECT_EQ(m.cursor(), len);
        m.set_cursor(0);
        DATA_MAP::LEB128_RAW raw = m.ULEB128_read_raw();
        EXPECT_EQ(raw.length, len);
    }
    // An unterminated number at the end reads as 0 and consumes what is there.
    DATA_MAP t;
    t.UINT8_write(0x80);
    t.UINT8_write(0x80);
    t.set_cursor(0);
    EXPECT_EQ(t.ULEB128_read(), 0u);
    EXPECT_EQ(t.cursor(), 2u);
}

TEST(DataMap, PackUnpack)
{
    DATA_MAP m;
    m.UINT32_write(0);
    m.set_cursor(0);
    m.pack(0x5, 4, 4, 3);
    m.pack(0xFFFF, 4, 28, 4);   // value is masked to the field
    EXPECT_EQ(m.cursor(), 0u);
    EXPECT_EQ(m.UINT32_read(), 0xF0000050u);
    m.set_cursor(0);
    EXPECT_EQ(m.unpack(4, 4, 3), 5u);
    EXPECT_EQ(m.unpack(4, 28, 4), 0xFu);
    // Misuse is reported as an application error each time, and the data stay.
    unsigned errors = get_umsg_obj()->get_error_count();
    EXPECT_EQ(m.unpack(4, 0, 0), 0u);
    EXPECT_EQ(get_umsg_obj()->get_error_count(), errors);
    EXPECT_EQ(m.unpack(4, 30, 4), 0u);    // overruns the container
    EXPECT_EQ(m.unpack(9, 0, 4), 0u);     // container too large
    m.pack(1, 4, 30, 4);
    m.pack(1, 9, 0, 4);
    EXPECT_EQ(get_umsg_obj()->get_error_count(), errors + 4);
    EXPECT_EQ(m.UINT32_read(), 0xF0000050u);

    DATA_MAP b;
    b.set_endian(DATA_MAP::ENDIAN_BIG);
    b.UINT16_write(0);
    b.set_cursor(0);
    b.pack(0xAB, 2, 8, 8);
    EXPECT_EQ(bytes_of(b), (B{0xAB, 0}));
    DATA_MAP w;
    w.set_cursor(0);
    w.pack(0x123456789ABCDEF0ull, 8, 0, 64);
    EXPECT_EQ(w.unpack(8, 0, 64), 0x123456789ABCDEF0ull);
    EXPECT_EQ(w.size(), 8u);
}

TEST(DataMap, CopyAndRanges)
{
    DATA_MAP a;
    a.set_endian(DATA_MAP::ENDIAN_BIG);
    const unsigned char src[] = {1, 2, 3, 4, 5, 6};
    a.set_data(src, 6);
    EXPECT_EQ(a.flags(), DATA_MAP::DM_IN_MEMORY | DATA_MAP::DM_BOUND | DATA_MAP::DM_BIG_ENDIAN);
    DATA_MAP b = a;
    EXPECT_TRUE(b == a);
    EXPECT_TRUE(b.is_big_endian());
    b.set_cursor(5);
    b.UINT8_write(9);
    EXPECT_TRUE(b != a);

    DATA_MAP sub;
    sub.set_data(a, 4, 10);   // cut to what a holds
    EXPECT_EQ(bytes_of(sub), (B{5, 6}));
    sub.set_data(a, 7, 1);
    EXPECT_EQ(sub.size(), 0u);

    DATA_MAP c;
    a.set_cursor(1);
    c.write(a, 3);
    c.write(a, 10);   // at most what is left
    EXPECT_EQ(bytes_of(c), (B{2, 3, 4, 5, 6}));
    EXPECT_EQ(a.cursor(), 6u);

    c.remove_data(1, 2);
    EXPECT_EQ(bytes_of(c), (B{2, 5, 6}));
    c.set_size(5);
    EXPECT_EQ(bytes_of(c), (B{2, 5, 6, 0, 0}));   // no stale bytes come back
    c.copy_data(0, 3, 2);
    EXPECT_EQ(bytes_of(c), (B{2, 5, 6, 2, 5}));
    c.copy_data(3, 4, 2);   // overlapping, and growing
    EXPECT_EQ(bytes_of(c), (B{2, 5, 6, 2, 2, 5}));

    DATA_MAP z;
    EXPECT_TRUE(z.contains_all_zeroes());
    z.UINT32_write(0);
    EXPECT_TRUE(z.contains_all_zeroes());
    z.UINT8_write(1);
    EXPECT_FALSE(z.contains_all_zeroes());
}

class DataMapFile : public ::testing::Test {
protected:
    void SetUp() override
    {
        char tmpl[] = "/tmp/zq_dm_XXXXXX";
        ASSERT_NE(mkdtemp(tmpl), nullptr);
        dir = tmpl;
        name = dir + "/data.bin";
        std::ofstream out(name, std::ios::binary);
        for (int i = 0; i < 64; ++i) out.put(static_cast<char>(i));
    }
    void TearDown() override
    {
        std::string cmd = "rm -rf '" + dir + "'";
        ASSERT_EQ(system(cmd.c_str()), 0);
    }
    std::string dir, name;
};

TEST_F(DataMapFile, LazyRange)
{
    FHM_FILE *f = fhm_open(name.c_str(), "rb");
    ASSERT_NE(f, nullptr);
    fseek(f->fp(), 7, SEEK_SET);

    DATA_MAP m;
    m.set_data(f, 16, 8);
    EXPECT_FALSE(m.in_memory());
    EXPECT_EQ(m.flags(), DATA_MAP::DM_BOUND);
    EXPECT_EQ(m.size(), 8u);

    // read_bypass reads from the file and leaves the map unloaded.
    unsigned char buf[4];
    m.set_cursor(2);
    m.read_bypass(buf, 4);
    EXPECT_EQ(B(buf, buf + 4), (B{18, 19, 20, 21}));
    EXPECT_FALSE(m.in_memory());
    EXPECT_EQ(ftell(f->fp()), 7);

    // A copy of a clean bound map takes the binding, not the bytes.
    DATA_MAP copy = m;
    EXPECT_FALSE(copy.in_memory());
    EXPECT_EQ(copy.file(), f);

    m.set_cursor(0);
    EXPECT_EQ(m.UINT16_read(), 0x1110u);
    EXPECT_TRUE(m.in_memory());
    EXPECT_FALSE(m.is_modified());
    EXPECT_EQ(ftell(f->fp()), 7);   // the client's position is kept
    EXPECT_TRUE(copy == m);

    // Evicted between loads: the file comes back where it stood.
    f->evict();
    m.unload();
    EXPECT_FALSE(m.in_memory());
    m.set_cursor(7);
    EXPECT_EQ(m.UINT8_read(), 23u);
    EXPECT_EQ(m.UINT8_read(), 0u);   // past the range
    EXPECT_EQ(ftell(f->fp()), 7);

    // Writing turns it into a memory map holding the loaded bytes.
    m.unload();
    m.set_cursor(8);
    m.UINT8_write(0xEE);
    EXPECT_TRUE(m.in_memory());
    EXPECT_TRUE(m.is_modified());
    EXPECT_EQ(bytes_of(m), (B{16, 17, 18, 19, 20, 21, 22, 23, 0xEE}));
    DATA_MAP copy2 = m;   // modified: the bytes are copied
    EXPECT_TRUE(copy2.in_memory());
    EXPECT_TRUE(copy2 == m);
    fhm_close(f);
}

TEST_F(DataMapFile, SaveAndRebind)
{
    std::string out = dir + "/out.bin";
    FHM_FILE *f = fhm_open(out.c_str(), "w+b");
    ASSERT_NE(f, nullptr);
    fputs("HDR", f->fp());

    DATA_MAP m;
    m.set_endian(DATA_MAP::ENDIAN_BIG);
    m.UINT32_write(0xDEADBEEF);
    m.set_cursor(0);
    EXPECT_EQ(m.save_data(f, 6), 0);   // padded with two zero bytes
    EXPECT_EQ(m.save_data(f, 0), 0);
    m.set_data(f, 3, 6);
    EXPECT_FALSE(m.in_memory());
    EXPECT_TRUE(m.is_big_endian());
    fputs("T", f->fp());
    fflush(f->fp());
    m.set_cursor(0);
    EXPECT_EQ(m.UINT32_read(), 0xDEADBEEFu);
    EXPECT_EQ(m.UINT16_read(), 0u);
    fputs("U", f->fp());   // still writing at the end
    fhm_close(f);

    std::ifstream in(out, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    EXPECT_EQ(ss.str(), std::string("HDR\xDE\xAD\xBE\xEF\0\0TU", 11));

    // write(FHM_FILE*) reads at the file's position.
    FHM_FILE *r = fhm_open(name.c_str(), "rb");
    ASSERT_NE(r, nullptr);
    fseek(r->fp(), 60, SEEK_SET);
    DATA_MAP d;
    d.write(r, 6);   // two bytes short
    EXPECT_EQ(bytes_of(d), (B{60, 61, 62, 63, 0, 0}));
    fhm_close(r);
}

// Zero runs: counted, not held; saved as zeros between the held bytes; any
// access that needs the data in one piece makes them bytes once.
TEST_F(DataMapFile, ZeroRuns)
{
    const uint64_t run = 3 * DATA_MAP::ZERO_RUN_MIN;
    DATA_MAP m;
    m.set_endian(DATA_MAP::ENDIAN_BIG);
    m.UINT16_write(0x0102);
    m.zeros_write(run);
    m.UINT8_write(3);
    m.zeros_write(run);
    m.zeros_write(run);          // joins the run before it
    m.zeros_write(5);            // short: written as bytes
    m.UINT8_write(4);
    m.zeros_write(run);          // ends the data
    const uint64_t size = 2 + run + 1 + 2 * run + 5 + 1 + run;
    EXPECT_EQ(m.size(), size);
    EXPECT_EQ(m.cursor(), size);
    EXPECT_EQ(m.zero_run_bytes(), 4 * run);
    EXPECT_TRUE(m.is_modified());

    // A copy keeps the runs; a move takes them.
    DATA_MAP copy = m;
    EXPECT_EQ(copy.zero_run_bytes(), 4 * run);
    DATA_MAP moved = std::move(copy);
    EXPECT_EQ(moved.zero_run_bytes(), 4 * run);

    std::string out = dir + "/runs.bin";
    FHM_FILE *f = fhm_open(out.c_str(), "w+b");
    ASSERT_NE(f, nullptr);
    m.set_cursor(1);             // from inside the held bytes, and past the end
    EXPECT_EQ(m.save_data(f, size + 2), 0);
    EXPECT_EQ(m.zero_run_bytes(), 4 * run);   // saving needs no flat copy
    fhm_close(f);
    std::ifstream in(out, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    std::string want(size + 2, '\0');
    want[0] = 0x02;
    want[1 + run] = 3;
    want[1 + run + 1 + 2 * run + 5] = 4;
    EXPECT_TRUE(ss.str() == want);

    // Reads and writes inside the data flatten it.
    std::vector<unsigned char> flat(size, 0);
    flat[0] = 1;
    flat[1] = 2;
    flat[2 + run] = 3;
    flat[2 + run + 1 + 2 * run + 5] = 4;
    EXPECT_EQ(bytes_of(moved), flat);
    EXPECT_EQ(moved.zero_run_bytes(), 0u);
    EXPECT_TRUE(moved == m);
    m.set_cursor(2 + run);
    EXPECT_EQ(m.UINT8_read(), 3u);
    EXPECT_EQ(m.zero_run_bytes(), 0u);
    m.set_cursor(size);
    m.UINT8_write(9);            // the hot path is open again
    EXPECT_EQ(m.size(), size + 1);

    EXPECT_FALSE(m.contains_all_zeroes());
    DATA_MAP zeros;
    zeros.zeros_write(run);
    EXPECT_TRUE(zeros.contains_all_zeroes());
    EXPECT_EQ(zeros.size(), run);
}

}  // namespace
