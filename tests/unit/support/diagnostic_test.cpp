#include "support/diagnostic.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace {

// Sends every message into a string and restores the class settings after.
class DiagTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        saved_cols = DIAGNOSTIC::diag_cols_m;
        DIAGNOSTIC::fp_m = open_memstream(&buf, &len);
        DIAGNOSTIC::error_count_m = 0;
    }
    void TearDown() override
    {
        if (DIAGNOSTIC::fp_m) fclose(DIAGNOSTIC::fp_m);
        DIAGNOSTIC::fp_m = nullptr;
        free(buf);
        DIAGNOSTIC::diag_cols_m = saved_cols;
        DIAGNOSTIC::wrap_enabled_m = true;
        DIAGNOSTIC::warnings_m = true;
        DIAGNOSTIC::remarks_m = false;
        DIAGNOSTIC::display_code_m = false;
        DIAGNOSTIC::display_ipos_m = false;
        DIAGNOSTIC::indent_m = 0;
        DIAGNOSTIC::max_errors_m = 100;
        DIAGNOSTIC::error_count_m = 0;
        get_umsg_obj()->emit_warnings_as_errors = false;
    }
    std::string out()
    {
        fflush(DIAGNOSTIC::fp_m);
        return std::string(buf, len);
    }
    char *buf = nullptr;
    size_t len = 0;
    unsigned saved_cols = 79;
};

std::vector<std::string> lines_of(const std::string &s)
{
    std::vector<std::string> v;
    std::istringstream in(s);
    for (std::string l; std::getline(in, l);) v.push_back(l);
    return v;
}

TEST(DiagSeverity, RowsById)
{
    ASSERT_NE(DIAG_find_row(24013), nullptr);
    EXPECT_EQ(DIAG_find_row(24013)->severity, dc_error);
    EXPECT_EQ(DIAG_find_row(24016)->severity, dc_warning);
    EXPECT_EQ(DIAG_find_row(12345), nullptr);
}

TEST_F(DiagTest, HeaderFormsAndCounting)
{
    DIAG::optgen_missing_parameter missing;
    missing.emit("--define", "name=value");
    EXPECT_EQ(out(), "error: option --define is missing its parameter 'name=value'\n");
    EXPECT_EQ(DIAGNOSTIC::error_count_m, 1u);
    EXPECT_EQ(get_umsg_obj()->get_error_count(), 1u);

    DIAGNOSTIC::display_code_m = true;
    DIAG::optgen_conflict_override_option over;
    over.emit("-n", "-g");
    EXPECT_EQ(lines_of(out()).back(), "warning #24003-D: option -n overrides preceding option -g");
    EXPECT_EQ(DIAGNOSTIC::error_count_m, 1u);   // warnings do not count

    DIAG::gwarning w;
    w.set_srcinfo({"a.s", 7, 3, true});
    w.emit("look");
    EXPECT_EQ(lines_of(out()).back(), "\"a.s\", line 7 (approximate): warning #4-D: look");

    DIAGNOSTIC::display_code_m = false;
    DIAGNOSTIC::display_ipos_m = true;
    DIAG::gerror e("tool.cpp", 42);
    e.emit("bad");
    EXPECT_EQ(lines_of(out()).back(), "tool.cpp:42:error: bad");

    DIAGNOSTIC::display_ipos_m = false;
    DIAGNOSTIC::indent_m = 2;
    DIAG::gapperror app;   // never discretionary, shown with its code only on request
    app.emit("x");
    EXPECT_EQ(lines_of(out()).back(), "  error: x");
}

TEST_F(DiagTest, Suppression)
{
    DIAG::gremark r;
    r.emit("quiet");
    DIAG::gdebug().emit("quiet");
    DIAG::gadvice().emit("quiet");
    DIAGNOSTIC::warnings_m = false;
    DIAG::gwarning().emit("quiet");
    EXPECT_EQ(out(), "");

    DIAGNOSTIC::remarks_m = true;
    r.emit("loud");
    EXPECT_EQ(out(), "remark: loud\n");
}

TEST_F(DiagTest, Wrapping)
{
    struct {
        unsigned cols;
        bool wrap;
        const char *text;
        std::vector<std::string> lines;
    } rows[] = {
        {30, true, "one two three four five six seven eight nine ten eleven",
         {"warning: one two three four", "   five six seven eight nine", "   ten eleven"}},
        // A word longer than a line stays whole.
        {20, true, "see /a/very/long/path/name/that/does/not/fit here",
         {"warning: see", "   /a/very/long/path/name/that/does/not/fit", "   here"}},
        {20, false, "a b c d e f g h i j k l m n o p", {"warning: a b c d e f g h i j k l m n o p"}},
        // Columns that cannot hold the indents: no wrapping, no hang.
        {2, true, "x y z", {"warning: x y z"}},
    };
    for (const auto &r : rows) {
        SCOPED_TRACE(r.text);
        DIAGNOSTIC::diag_cols_m = r.cols;
        DIAGNOSTIC::wrap_enabled_m = r.wrap;
        fclose(DIAGNOSTIC::fp_m);
        free(buf);
        buf = nullptr;
        DIAGNOSTIC::fp_m = open_memstream(&buf, &len);
        DIAG::gwarning().emit(r.text);
        EXPECT_EQ(lines_of(out()), r.lines);
    }
}

TEST_F(DiagTest, OpenMessageIsFinishedByTheNext)
{
    DIAG::gwarning first;
    first.print_header();
    first.print("%s", "partial");
    DIAG::gerror second;
    second.emit("next");
    EXPECT_EQ(out(), "warning: partial\nerror: next\n");
}

TEST_F(DiagTest, LongFormattedTextIsNotCut)
{
    std::string big(2000, 'x');
    DIAGNOSTIC::wrap_enabled_m = false;
    DIAG::gerror e;
    e.emit(big.c_str());
    EXPECT_EQ(out(), "error: " + big + "\n");
    EXPECT_EQ(std::string(e.get_sp_buffer()), big);
}

TEST_F(DiagTest, UserMsgForms)
{
    USER_MSG *u = get_umsg_obj();
    u->error("e %d", 1);
    u->warning("w %s", "x");
    u->warning(1, "promotable");
    u->emit_warnings_as_errors = true;
    u->warning(1, "promoted");
    u->warning(0, "kept");
    u->warning(DIAG_SRCINFO{"f.s", 3, 0, false}, "at %d", 3);
    std::vector<std::string> l = lines_of(out());
    std::vector<std::string> want = {"error: e 1",       "warning: w x",   "warning: promotable",
                                     "error: promoted",  "warning: kept",  "\"f.s\", line 3: warning: at 3"};
    EXPECT_EQ(l, want);
    EXPECT_EQ(u->get_error_count(), 2u);
}

TEST_F(DiagTest, SeverityOverrideAndRestore)
{
    DIAGNOSTIC::save_severities();
    DIAGNOSTIC::override_severity(24003, dc_error);
    EXPECT_TRUE(DIAGNOSTIC::override_severity("24016", dc_suppressed));
    EXPECT_FALSE(DIAGNOSTIC::override_severity("nope", dc_error));
    DIAG::optgen_case_insensitivity_deprecated c;
    c.emit("--X", "--x");
    DIAG::optgen_conflict_override_option o;
    o.emit("a", "b");
    EXPECT_EQ(out(), "error: option a overrides preceding option b\n");
    DIAGNOSTIC::restore_severities();
    EXPECT_EQ(DIAG_find_row(24003)->severity, dc_warning);
    EXPECT_EQ(DIAG_find_row(24016)->severity, dc_warning);
}

TEST_F(DiagTest, DebugModeNeitherCountsNorStops)
{
    DIAGNOSTIC::push_debug_mode(true);
    DIAG::gerror e;
    e.emit("x");
    DIAG::gfatal f;
    f.emit("y");
    DIAGNOSTIC::pop_debug_mode();
    EXPECT_EQ(DIAGNOSTIC::error_count_m, 0u);
    EXPECT_EQ(out(), "error: x\nfatal error: y\n");
}

TEST(DiagDeath, FatalExitsDieAbortsAndErrorLimit)
{
    EXPECT_EXIT(get_umsg_obj()->fatal("stop %d", 1), ::testing::ExitedWithCode(1), "fatal error: stop 1");
    EXPECT_EXIT(DIAG::optgen_unhandled_clause_in_setarg().emit(9u), ::testing::ExitedWithCode(1),
                "fatal error: unhandled clause in setarg\\(\\) \\[9\\]");
    EXPECT_DEATH(get_umsg_obj()->die("broken"), "internal fatal error #8:[[:space:]]+broken");
    EXPECT_EXIT(
        {
            DIAGNOSTIC::max_errors_m = 2;
            for (int i = 0; i < 3; ++i) get_umsg_obj()->error("e%d", i);
            exit(0);
        },
        ::testing::ExitedWithCode(1), "e2\n.*error limit of 2 reached");
}

}  // namespace
