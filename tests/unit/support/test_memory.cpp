#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>

#include "support/memory.h"

// Out-of-memory tests ask for absurd sizes; under the address sanitizer the
// allocator must answer with null as the C library does.
extern "C" const char *__asan_default_options() { return "allocator_may_return_null=1"; }

namespace {

TEST(Memory, SafeAllocators)
{
    char *p = static_cast<char *>(safemalloc(10));
    std::memcpy(p, "abcdefghi", 10);
    p = static_cast<char *>(saferealloc(p, 100000));
    EXPECT_STREQ(p, "abcdefghi");
    free(p);
    p = static_cast<char *>(saferealloc(nullptr, 4));
    ASSERT_NE(p, nullptr);
    free(p);
    int *z = static_cast<int *>(safecalloc(8, sizeof(int)));
    for (int i = 0; i < 8; ++i) EXPECT_EQ(z[i], 0);
    free(z);
    char *s = safestrdup("copy");
    EXPECT_STREQ(s, "copy");
    free(s);
    EXPECT_EQ(safestrdup(nullptr), nullptr);
}

TEST(MemoryDeathTest, OutOfMemoryExits)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const size_t huge = SIZE_MAX / 2;
    EXPECT_EXIT(safemalloc(huge), ::testing::ExitedWithCode(1), "(^|\n)ERROR: out of memory\n$");
    EXPECT_EXIT(safecalloc(huge, 4), ::testing::ExitedWithCode(1), "(^|\n)ERROR: out of memory\n$");
    EXPECT_EXIT(
        {
            void *p = safemalloc(16);
            saferealloc(p, huge);
        },
        ::testing::ExitedWithCode(1), "(^|\n)ERROR: out of memory\n$");
}

TEST(Memory, GrowTable)
{
    uint32_t *t = nullptr;
    unsigned n = 0;
    grow_table(&t, &n);
    ASSERT_NE(t, nullptr);
    EXPECT_EQ(n, 1u);
    uint32_t *first = t;
    // Room for 100: no reallocation until the count is 100.
    for (unsigned i = 1; i < 100; ++i) {
        grow_table(&t, &n);
        t[n - 1] = i;
        EXPECT_EQ(t, first);
    }
    t[0] = 0;
    for (unsigned i = 100; i < 1000; ++i) {
        grow_table(&t, &n);
        t[n - 1] = i;   // the sanitizer checks the room
    }
    EXPECT_EQ(n, 1000u);
    for (unsigned i = 0; i < 1000; ++i) ASSERT_EQ(t[i], i);
    free(t);

    // The untyped form.
    void *v = nullptr;
    unsigned c = 0;
    for (int i = 0; i < 250; ++i) {
        grow_table(&v, &c, 3);
        static_cast<char *>(v)[3 * c - 1] = 'x';
    }
    EXPECT_EQ(c, 250u);
    free(v);
}

struct Tracked {
    explicit Tracked(int *counter) : c(counter) {}
    ~Tracked() { ++*c; }
    int *c;
};

TEST(Memory, ZoneAllocAndReset)
{
    unsigned zones_before = zl_avail;
    {
        MZONE z(64, "here", 7);
        EXPECT_EQ(zl_avail, zones_before + 1);
        EXPECT_EQ(zonelist[zl_avail - 1], &z);
        EXPECT_STREQ(z.name(), "here");
        EXPECT_EQ(z.line(), 7);

        // alloc(0) is a valid pointer and takes 8 bytes; 8 takes 16.
        auto *a = static_cast<unsigned char *>(z.alloc(0));
        auto *b = static_cast<unsigned char *>(z.alloc(8));
        auto *c = static_cast<unsigned char *>(z.alloc(5));
        EXPECT_EQ(b - a, 8);
        EXPECT_EQ(c - b, 16);
        for (int i = 0; i < 8; ++i) EXPECT_EQ(b[i], 0);
        std::memset(b, 0xFF, 8);
        std::memset(c, 0xFF, 5);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(c) % 8, 0u);

        int destroyed = 0;
        z.make<Tracked>(&destroyed);
        z.make<std::string>(200, 'q');   // its heap buffer is released at reset

        // A large request gets a block of its own.
        size_t before = cur_alloced;
        void *big = z.alloc(1000);
        EXPECT_EQ(cur_alloced, before + 1000);
        std::memset(big, 1, 1000);

        // After reset the newest block is kept, cleared, and handed out again.
        z.reset();
        EXPECT_EQ(cur_alloced, before + 1000 - 128);   // the two older blocks went
        EXPECT_EQ(destroyed, 1);
        EXPECT_EQ(z.bytes_alloced(), 0u);
        EXPECT_EQ(z.alloc(1000), big);
        for (int i = 0; i < 1000; ++i) ASSERT_EQ(static_cast<unsigned char *>(big)[i], 0);

        // Small allocations spill into a fresh block when the current is full.
        for (int i = 0; i < 100; ++i) {
            char *s = z.strdup("zone text");
            ASSERT_STREQ(s, "zone text");
        }
        EXPECT_EQ(z.strndup("abcdef", 3), std::string("abc"));
        EXPECT_EQ(z.strdup(nullptr), nullptr);
        int *arr = new (z) int[4];
        for (int i = 0; i < 4; ++i) EXPECT_EQ(arr[i], 0);
        EXPECT_GE(z.max_bytes_alloced(), 1000u);
    }
    EXPECT_EQ(zl_avail, zones_before);

    MZONE here;   // declared with the place it stands
    EXPECT_NE(std::string(here.name()).find("test_memory"), std::string::npos);
    EXPECT_GT(here.line(), 0);
}

struct Rec : OALLOC<Rec> {
    int64_t a = 1, b = 2;
};
struct BigRec : Rec {
    char pad[40] = {};
};

TEST(Memory, Pools)
{
    long base_total = Rec::total_alloc_cnt_m;
    std::vector<Rec *> v;
    for (int i = 0; i < 100; ++i) v.push_back(new Rec);
    EXPECT_EQ(Rec::curr_alloc_cnt_m, 100);
    EXPECT_EQ(Rec::total_alloc_cnt_m, base_total + 100);
    // A chunk as large as the count in use, at least 32: 32, 33, 66.
    EXPECT_EQ(Rec::mempool_sz_m, 131 * sizeof(Rec));
    Rec *last = v.back();
    delete last;
    v.pop_back();
    EXPECT_EQ(Rec::curr_alloc_cnt_m, 99);
    Rec *again = new Rec;
    EXPECT_EQ(again, last);   // from the free list
    EXPECT_EQ(again->a, 1);
    v.push_back(again);
    for (Rec *r : v) delete r;
    EXPECT_EQ(Rec::curr_alloc_cnt_m, 0);

    // A subclass of another size goes to the plain allocator.
    Rec *big = new BigRec;
    EXPECT_EQ(Rec::curr_alloc_cnt_m, 0);
    delete static_cast<BigRec *>(big);
    EXPECT_EQ(Rec::curr_alloc_cnt_m, 0);

    EXPECT_STREQ(Rec::pool_name(), "(anonymous namespace)::Rec");

    testing::internal::CaptureStderr();
    Rec::oa_stats_m = true;
    delete new Rec;
    Rec::oa_stats_m = false;
    std::string report = testing::internal::GetCapturedStderr();
    EXPECT_NE(report.find("(anonymous namespace)::Rec:         1:"), std::string::npos) << report;
}

TEST(Memory, Bitvec)
{
    BITVEC v(40);
    EXPECT_EQ(v.bv_size(), 40u);
    EXPECT_TRUE(v.bv_test(39));    // grown beyond the capacity: new words start set
    EXPECT_FALSE(v.bv_test(40));
    v.bv_clr(0, 39);
    EXPECT_FALSE(v.bv_any());
    v.bv_set(3);
    v.bv_set(33);
    v.bv_resize(10);
    v.bv_resize(40);               // within the capacity: new bits are clear
    EXPECT_TRUE(v.bv_test(3));
    EXPECT_FALSE(v.bv_test(33));

    v.bv_clr(5, 4);                // nothing
    v.bv_clr(0, 0xFFFFFFFFu);      // nothing
    EXPECT_TRUE(v.bv_test(3));
    EXPECT_EQ(v.bv_size(), 40u);
    v.bv_clr(70, 80);              // grows first
    EXPECT_EQ(v.bv_size(), 81u);
    EXPECT_FALSE(v.bv_test(75));

    BITVEC a, b, d;
    for (uint32_t i : {1u, 2u, 31u, 32u, 64u, 99u}) a.bv_set(i);
    for (uint32_t i : {2u, 32u, 65u}) b.bv_set(i);
    EXPECT_TRUE(a.bv_intersects(b));
    d.bv_diff(a, b);
    EXPECT_EQ(d.bv_size(), a.bv_size());
    for (uint32_t i = 0; i < 100; ++i)
        EXPECT_EQ(d.bv_test(i), i == 1 || i == 31 || i == 64 || i == 99) << i;
    EXPECT_FALSE(d.bv_intersects(b));
    d.bv_diff(d, d);
    EXPECT_FALSE(d.bv_any());

    BITVEC m = b;
    EXPECT_TRUE(m == b);
    m.bv_merge(a);
    EXPECT_EQ(m.bv_size(), a.bv_size());
    for (uint32_t i : {1u, 2u, 31u, 32u, 64u, 65u, 99u}) EXPECT_TRUE(m.bv_test(i)) << i;
    EXPECT_FALSE(m.bv_test(66));

    BITVEC seg;
    seg.bv_copy_seg(a, 30, 64);
    EXPECT_EQ(seg.bv_size(), 65u);
    EXPECT_FALSE(seg.bv_test(2));
    EXPECT_TRUE(seg.bv_test(31));
    EXPECT_TRUE(seg.bv_test(64));

    char *buf = nullptr;
    size_t len = 0;
    FILE *mem = open_memstream(&buf, &len);
    seg.bv_print(mem);
    fclose(mem);
    EXPECT_STREQ(buf, "BITVEC[65] {31,32,64}\n");
    free(buf);
}

}  // namespace
