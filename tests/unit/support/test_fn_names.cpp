#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "support/fhm.h"

namespace {

TEST(FnNames, Split)
{
    struct {
        const char *path, *dir, *base, *ext;
    } rows[] = {
        {"a/b.c/d", "a/b.c/", "d", ""},
        {"dir/file.asm", "dir/", "file", "asm"},
        {"/x/y.tar.gz", "/x/", "y.tar", "gz"},
        {"plain", "", "plain", ""},
        {"name.", "", "name", ""},
        {"/", "/", "", ""},
        {"", "", "", ""},
        {".hidden", "", "", "hidden"},
    };
    for (auto &r : rows) {
        const char *d, *b, *e;
        fn_split(r.path, &d, &b, &e);
        EXPECT_STREQ(d, r.dir) << r.path;
        EXPECT_STREQ(b, r.base) << r.path;
        EXPECT_STREQ(e, r.ext) << r.path;
    }
    const char *b = nullptr;
    fn_split("q/r.s", nullptr, &b, nullptr);
    EXPECT_STREQ(b, "r");
    // Parts are cut at 499 characters.
    std::string longname(700, 'n');
    fn_split(longname.c_str(), nullptr, &b, nullptr);
    EXPECT_EQ(std::string(b), std::string(499, 'n'));
}

TEST(FnNames, BuildAddDel)
{
    char *p = fn_build(nullptr, "x", "y", "z");
    EXPECT_STREQ(p, "x/y.z");
    free(p);
    char buf[FN_BUFSIZE];
    EXPECT_STREQ(fn_build(buf, "x/", "y", ".z"), "x/y.z");
    EXPECT_STREQ(fn_build(buf, "", "y", ""), "y");
    EXPECT_STREQ(fn_build(buf, nullptr, "y", nullptr), "y");

    struct {
        const char *name, *ext;
        int replace;
        const char *want;
    } add[] = {
        {"a.b/c", "o", 0, "a.b/c.o"},
        {"a.b/c", ".o", 0, "a.b/c.o"},
        {"src/f.asm", "obj", 0, "src/f.asm"},
        {"src/f.asm", "obj", 1, "src/f.obj"},
        {"f.x.y", "z", 1, "f.x.z"},
        {"f", "lst", 1, "f.lst"},
    };
    for (auto &r : add) EXPECT_STREQ(fn_addext(r.name, r.ext, r.replace), r.want) << r.name;

    EXPECT_STREQ(fn_delext("a/b.c"), "a/b");
    EXPECT_STREQ(fn_delext("a.b/c"), "a.b/c");
    EXPECT_STREQ(fn_delext("x.tar.gz"), "x.tar");
}

TEST(FnNames, Predicates)
{
    EXPECT_TRUE(fn_hasdir("a/b"));
    EXPECT_FALSE(fn_hasdir("ab"));
    EXPECT_STREQ(fn_basename("/usr/lib/x.a"), "x.a");
    EXPECT_STREQ(fn_basename("x.a"), "x.a");
    EXPECT_STREQ(fn_basename("dir/"), "");
    EXPECT_EQ(fn_basename(""), nullptr);
    EXPECT_EQ(fn_basename(nullptr), nullptr);
    EXPECT_EQ(fn_strcmp("abc", "abc"), 0);
    EXPECT_LT(fn_strcmp("abc", "abd"), 0);
    EXPECT_GT(fn_strcmp("abcd", "abc"), 0);
    EXPECT_TRUE(fn_has_full_path("/a"));
    EXPECT_FALSE(fn_has_full_path("a"));
    EXPECT_TRUE(fn_has_relative_path("a/b"));
    EXPECT_FALSE(fn_has_relative_path("/a"));
    EXPECT_TRUE(fn_starts_with_dot_dot("./x"));
    EXPECT_TRUE(fn_starts_with_dot_dot("../x"));
    EXPECT_FALSE(fn_starts_with_dot_dot(".x"));
    EXPECT_FALSE(fn_starts_with_dot_dot("..x"));
    EXPECT_TRUE(fn_matches_ext("a/b.asm", "asm"));
    EXPECT_FALSE(fn_matches_ext("a.asm/b", "asm"));
    EXPECT_TRUE(fn_matches_ext("a.asm/b", ""));
}

TEST(FnNames, FilesOnDisk)
{
    char tmpl[] = "/tmp/zq_fn_XXXXXX";
    ASSERT_NE(mkdtemp(tmpl), nullptr);
    std::string dir = tmpl;
    std::string a = dir + "/a.txt", b = dir + "/b.txt";

    FHM_FILE *f = fhm_open(a.c_str(), "w");
    ASSERT_NE(f, nullptr);
    fputs("12345", f->fp());
    fhm_close(f);
    EXPECT_TRUE(fn_exists(a.c_str()));
    EXPECT_EQ(file_size(a.c_str()), 5);
    EXPECT_EQ(file_size(b.c_str()), -1);
    EXPECT_TRUE(fn_samefile(a.c_str(), (dir + "/./a.txt").c_str()));
    EXPECT_FALSE(fn_samefile(a.c_str(), b.c_str()));
    EXPECT_EQ(fn_rename(a.c_str(), b.c_str()), 1);
    EXPECT_FALSE(fn_exists(a.c_str()));
    EXPECT_EQ(file_size(b.c_str()), 5);

    char *real = fn_realname(b.c_str());
    EXPECT_STREQ(real, b.c_str());
    free(real);

    // The temporary name is in the directory and carries the process prefix.
    char name[FN_BUFSIZE];
    EXPECT_EQ(fn_tmpnam(name, dir.c_str(), nullptr), name);
    std::string tn = name;
    EXPECT_EQ(tn.rfind(dir + "/ZQ", 0), 0u) << tn;
    static const char digits[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    unsigned long pid = static_cast<unsigned long>(getpid());
    std::string want = {digits[pid / 3844 % 62], digits[pid / 62 % 62], digits[pid % 62]};
    EXPECT_EQ(tn.substr(dir.size() + 3, 3), want);

    char cwd[FN_BUFSIZE];
    ASSERT_NE(fn_get_working_dir(cwd), nullptr);
    ASSERT_EQ(fn_change_dir(dir.c_str()), 0);
    char *here = fn_get_working_dir(nullptr);
    ASSERT_NE(here, nullptr);
    EXPECT_TRUE(fn_samefile(here, dir.c_str()));
    free(here);
    EXPECT_TRUE(fn_exists("b.txt"));
    ASSERT_EQ(fn_change_dir(cwd), 0);

    EXPECT_EQ(fn_delete(b.c_str()), 0);
    EXPECT_FALSE(fn_exists(b.c_str()));
    rmdir(dir.c_str());
}

}  // namespace
