#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "driver/options.h"

namespace {

FILE *file_with(const std::string &text)
{
    FILE *fp = tmpfile();
    fwrite(text.data(), 1, text.size(), fp);
    rewind(fp);
    return fp;
}

std::vector<std::string> words_of(const std::string &text)
{
    FILE *fp = file_with(text);
    std::vector<std::string> words;
    while (char *w = fnextopt(fp)) {
        words.emplace_back(w);
        free(w);
    }
    fclose(fp);
    return words;
}

using W = std::vector<std::string>;

TEST(CommandFile, Words)
{
    struct row {
        const char *text;
        W words;
    } rows[] = {
        {"", {}},
        {"  \n\t ", {}},
        {"-a -l", {"-a", "-l"}},
        {"  -a\n\t-l  \r\n", {"-a", "-l"}},
        {"src.asm obj.obj", {"src.asm", "obj.obj"}},
        // Comments: in a word the word goes on after it.
        {"ab/*c*/cd", {"abcd"}},
        {"-a /* x \n y */ -l", {"-a", "-l"}},
        {"/**/-a/* ** */", {"-a"}},
        {"a/b /x", {"a/b", "/x"}},
        {"-a ; comment -l\n-x", {"-a", "-x"}},
        {"-a;c\n-x", {"-a", "-x"}},
        {"# whole line\n-a", {"-a"}},
        {"x#y z\nw", {"x", "w"}},
        {"-dA#1 x", {"-dA#1", "x"}},   // a dash earlier in the word keeps '#'
        // Quotes and escapes.
        {"\"a b\" c", {"a b", "c"}},
        {"x\"a\nb\"y", {"xa\nby"}},
        {"\"\"", {""}},
        {"\"a;b#c/*d*/\"", {"a;b#c/*d*/"}},
        {"\\\"q", {"\"q"}},
        {"a\\\\b", {"a\\b"}},
        {"a\\nb", {"a\\nb"}},
        {"\"in \\\" and \\\\ and \\x\"", {"in \" and \\ and \\x"}},
        {"-dX=\"1 2\"", {"-dX=1 2"}},
        {"end\\", {"end\\"}},
    };
    for (const row &r : rows) EXPECT_EQ(words_of(r.text), r.words) << r.text;
}

TEST(CommandFile, LongWordsGrow)
{
    std::string big(1000, 'w');
    EXPECT_EQ(words_of("a " + big + " b"), (W{"a", big, "b"}));
    FILE *fp = file_with("");
    EXPECT_EQ(fnextopt(fp), nullptr);
    fclose(fp);
    EXPECT_EQ(fnextopt(nullptr), nullptr);
}

TEST(CommandFile, UnterminatedCommentAndQuote)
{
    EXPECT_EXIT(words_of("-a /* open"), ::testing::ExitedWithCode(255),
                "^>> Unterminated comment in command file; aborting!\n$");
    EXPECT_EXIT(words_of("x\"abc\n\tdef"), ::testing::ExitedWithCode(255),
                "^>> Unterminated quote in command file; aborting\n   Quote starts at abc\\\\n\\\\tdef\n$");
    std::string long_quote = "\"" + std::string(40, 'q');
    EXPECT_EXIT(words_of(long_quote), ::testing::ExitedWithCode(255), "Quote starts at " + std::string(30, 'q') + "\n$");
}

}  // namespace
