#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/fhm.h"

namespace {

class FhmTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        char tmpl[] = "/tmp/zq_fhm_XXXXXX";
        ASSERT_NE(mkdtemp(tmpl), nullptr);
        dir = tmpl;
    }
    void TearDown() override
    {
        for (FHM_FILE *f : files) fhm_close(f);
        std::string cmd = "rm -rf '" + dir + "'";
        ASSERT_EQ(system(cmd.c_str()), 0);
    }
    std::string path(int i) const { return dir + "/f" + std::to_string(i); }
    static std::string slurp(const std::string &p)
    {
        std::ifstream in(p, std::ios::binary);
        std::stringstream ss;
        ss << in.rdbuf();
        return ss.str();
    }
    FHM_FILE *open(const std::string &p, const char *mode)
    {
        FHM_FILE *f = fhm_open(p.c_str(), mode);
        if (f) files.push_back(f);
        return f;
    }
    void forget(FHM_FILE *f) { std::erase(files, f); }

    std::string dir;
    std::vector<FHM_FILE *> files;
};

TEST_F(FhmTest, ReopenModes)
{
    struct {
        const char *mode, *reopen;
    } rows[] = {
        {"r", "r"},     {"rb", "rb"},   {"r+", "r+"},   {"r+b", "r+b"}, {"rb+", "r+b"},
        {"w", "r+"},    {"w+", "r+"},   {"wb", "r+b"},  {"w+b", "r+b"}, {"wb+", "r+b"},
        {"a", "a"},     {"ab", "ab"},   {"a+", "a+"},   {"a+b", "a+b"}, {"ab+", "a+b"},
    };
    for (auto &row : rows)
        EXPECT_STREQ(FILE_HANDLE_MANAGER::detect_reopen_mode(row.mode), row.reopen) << row.mode;
}

// Thirty files written and read in rotation through twelve handles: every
// access after an eviction resumes where the file stood.
TEST_F(FhmTest, ManyFilesInterleaved)
{
    const int n = 30;
    FILE_HANDLE_MANAGER &m = FILE_HANDLE_MANAGER::FHM();
    std::vector<FHM_FILE *> w;
    for (int i = 0; i < n; ++i) {
        FHM_FILE *f = open(path(i), "w");
        ASSERT_NE(f, nullptr) << i;
        w.push_back(f);
        EXPECT_LE(m.open_count(), FILE_HANDLE_MANAGER::MAX_OPEN_FILES);
    }
    EXPECT_EQ(m.open_count(), FILE_HANDLE_MANAGER::MAX_OPEN_FILES);
    // The files opened first were evicted; they come back for reading and writing.
    EXPECT_FALSE(w[0]->is_open());
    EXPECT_STREQ(w[0]->mode(), "r+");
    for (int round = 0; round < 5; ++round)
        for (int i = 0; i < n; ++i) {
            fprintf(w[i]->fp(), "%d:%d;", i, round);
            EXPECT_LE(m.open_count(), FILE_HANDLE_MANAGER::MAX_OPEN_FILES);
        }
    EXPECT_GT(w[0]->reopen_count(), 0);
    for (int i = 0; i < n; ++i) {
        EXPECT_EQ(fhm_close(w[i]), 0);
        forget(w[i]);
    }
    for (int i = 0; i < n; ++i) {
        std::string want;
        for (int round = 0; round < 5; ++round)
            want += std::to_string(i) + ":" + std::to_string(round) + ";";
        EXPECT_EQ(slurp(path(i)), want) << i;
    }

    // Reading in rotation, one line per access, from more files than handles.
    std::vector<FHM_FILE *> r;
    for (int i = 0; i < n; ++i) {
        FHM_FILE *f = open(path(i), "r");
        ASSERT_NE(f, nullptr);
        r.push_back(f);
    }
    for (int round = 0; round < 5; ++round)
        for (int i = 0; i < n; ++i) {
            int a = -1, b = -1;
            ASSERT_EQ(fscanf(r[i]->fp(), "%d:%d;", &a, &b), 2);
            EXPECT_EQ(a, i);
            EXPECT_EQ(b, round);
        }
    EXPECT_EQ(fgetc(r[3]->fp()), EOF);
}

// The least recently used file goes first, a persistent one never; "w"
// comes back as "r+" and keeps what it had, reads and writes resume in place.
TEST_F(FhmTest, EvictionOrderAndResume)
{
    FHM_FILE *w = open(path(100), "w+");
    ASSERT_NE(w, nullptr);
    fputs("hello ", w->fp());
    FHM_FILE *pers = open(path(101), "w");
    ASSERT_NE(pers, nullptr);
    pers->set_persistent(true);
    std::vector<FHM_FILE *> others;
    for (int i = 0; i < 10; ++i) others.push_back(open(path(i), "w"));
    EXPECT_TRUE(w->is_open());
    others[0]->fp();   // touch: w is now the least recently used
    w->fp();
    others[0]->fp();
    pers->fp();
    // others[1] and others[2] are now the least recently used.
    FHM_FILE *x = open(path(50), "w");
    ASSERT_NE(x, nullptr);
    EXPECT_TRUE(w->is_open());
    EXPECT_FALSE(others[1]->is_open());
    FHM_FILE *y = open(path(51), "w");
    ASSERT_NE(y, nullptr);
    EXPECT_FALSE(others[2]->is_open());
    // Force w out, then write more: the earlier text survives.
    EXPECT_EQ(w->evict(), 0);
    EXPECT_FALSE(w->is_open());
    EXPECT_EQ(pers->evict(), -1);
    EXPECT_TRUE(pers->is_open());
    EXPECT_STREQ(w->mode(), "r+");
    fputs("world", w->fp());
    EXPECT_EQ(w->reopen_count(), 1);
    fflush(w->fp());
    EXPECT_EQ(slurp(path(100)), "hello world");
    // Read back through the same handle after an eviction mid-file.
    ASSERT_EQ(fseek(w->fp(), 2, SEEK_SET), 0);
    EXPECT_EQ(fgetc(w->fp()), 'l');
    w->evict();
    EXPECT_EQ(fgetc(w->fp()), 'l');
    EXPECT_EQ(fgetc(w->fp()), 'o');

    // Append files return in append mode.
    FHM_FILE *a = open(path(60), "a");
    ASSERT_NE(a, nullptr);
    fputs("one", a->fp());
    a->evict();
    fputs("two", a->fp());
    ASSERT_EQ(fhm_close(a), 0);
    forget(a);
    EXPECT_EQ(slurp(path(60)), "onetwo");
}

TEST_F(FhmTest, AllPersistentAndFailures)
{
    std::vector<FHM_FILE *> p;
    for (int i = 0; i < FILE_HANDLE_MANAGER::MAX_OPEN_FILES; ++i) {
        FHM_FILE *f = open(path(i), "w");
        ASSERT_NE(f, nullptr);
        f->set_persistent(true);
        p.push_back(f);
    }
    errno = 0;
    EXPECT_EQ(fhm_open(path(99).c_str(), "w"), nullptr);
    EXPECT_EQ(errno, EMFILE);
    EXPECT_FALSE(fn_exists(path(99).c_str()));
    // One closed makes room again.
    ASSERT_EQ(fhm_close(p[5]), 0);
    forget(p[5]);
    EXPECT_NE(open(path(99), "w"), nullptr);

    errno = 0;
    EXPECT_EQ(fhm_open((dir + "/no/such").c_str(), "r"), nullptr);
    EXPECT_EQ(errno, ENOENT);
}

TEST_F(FhmTest, StandardStreamsAndStats)
{
    EXPECT_STREQ(fhm_stdin()->name(), "(stdin)");
    EXPECT_STREQ(fhm_stdout()->name(), "(stdout)");
    EXPECT_STREQ(fhm_stderr()->mode(), "w");
    EXPECT_EQ(fhm_stdout()->fp(), stdout);
    EXPECT_EQ(fhm_stdout()->evict(), -1);
    EXPECT_EQ(fhm_close(fhm_stderr()), 0);
    EXPECT_EQ(fhm_stderr()->fp(), stderr);

    FHM_FILE *f = open(path(1), "w");
    ASSERT_NE(f, nullptr);
    f->evict();
    f->fp();
    char *buf = nullptr;
    size_t len = 0;
    FILE *mem = open_memstream(&buf, &len);
    fhm_stats(mem);
    fclose(mem);
    std::string text(buf, len);
    free(buf);
    EXPECT_NE(text.find(" File Manager Statistics\n"), std::string::npos);
    EXPECT_NE(text.find("    Max # Open Files:  12\n"), std::string::npos);
    EXPECT_NE(text.find("    " + path(1) + " was reopened 1 times\n"), std::string::npos);
}

// Closing files leaves gaps; the table compacts, and grows past 1024 live files.
TEST_F(FhmTest, ManagedTableGrowsAndCompacts)
{
    FILE_HANDLE_MANAGER &m = FILE_HANDLE_MANAGER::FHM();
    int32_t base = m.managed_count();
    std::vector<FHM_FILE *> v;
    for (int i = 0; i < 2000; ++i) {
        FHM_FILE *f = fhm_open(path(i % 20).c_str(), "a");
        ASSERT_NE(f, nullptr);
        v.push_back(f);
        if (i % 3 == 0) {
            fhm_close(f);
            v.pop_back();
        }
    }
    EXPECT_EQ(m.managed_count(), base + static_cast<int32_t>(v.size()));
    for (FHM_FILE *f : v) fputc('x', f->fp());
    for (FHM_FILE *f : v) EXPECT_EQ(fhm_close(f), 0);
    EXPECT_EQ(m.managed_count(), base);
    long total = 0;
    for (int i = 0; i < 20; ++i) total += static_cast<long>(file_size(path(i).c_str()));
    EXPECT_EQ(total, static_cast<long>(v.size()));
}

}  // namespace
