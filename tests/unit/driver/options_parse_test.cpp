#include <cstring>
#include <utility>

#include "options_fixture.h"

namespace opt_test {
namespace {

using ::testing::ExitedWithCode;

TEST_F(OptionsTest, DefaultsCountAsSet)
{
    EXPECT_TRUE(opt_on(OPT_HLL_SOURCE));
    EXPECT_EQ(opts->getnumarg(OPT_OBJECT_FORMAT, 0), 2);
    EXPECT_FALSE(opt_on(OPT_ELF));
    option_obj bare(false);
    EXPECT_EQ(bare.state(OPT_HLL_SOURCE), 0);
    EXPECT_EQ(bare.getstrarg(OPT_HLL_SOURCE, 0), nullptr);
}

TEST_F(OptionsTest, EverySpellingFormOfAnArgument)
{
    const std::vector<std::vector<std::string>> forms = {
        {"--define=X=1"}, {"--define", "X=1"}, {"-dX=1"}, {"-d", "X=1"}, {"--asm_define=X=1"}, {"--defineX=1"},
    };
    for (const auto &f : forms) {
        reset();
        EXPECT_EQ(parse(f), "") << f[0];
        EXPECT_EQ(results, std::vector<int>{1}) << f[0];
        ASSERT_EQ(predefs.size(), 1u) << f[0];
        EXPECT_EQ(predefs[0], "X=1") << f[0];
        EXPECT_STREQ(opts->getstrarg(OPT_DEFINE, 0), "X=1");
    }
    // The spelling used is the one messages show.
    reset();
    parse({"--asm_define", "A", "-u", "B"});
    EXPECT_STREQ(opts->format_of_option(OPT_DEFINE), "--asm_define");
    EXPECT_STREQ(opts->format_of_option(OPT_UNDEFINE), "-u");
    EXPECT_STREQ(opts->format_of_option(OPT_ABI), "--abi");
    EXPECT_EQ(opts->parsed_count(OPT_DEFINE), 1u);
}

TEST_F(OptionsTest, CaseIsAcceptedWithAWarning)
{
    std::string err = parse({"--DEFINE=X", "-L", "--Symdebug:Dwarf"});
    EXPECT_TRUE(contains(err, "warning: Case insensitivity of options has been deprecated; --DEFINE must be "
                               "written as --define in future releases"));
    EXPECT_TRUE(contains(err, "-L must be written as -l"));
    EXPECT_TRUE(contains(err, "--Symdebug:Dwarf must"));
    EXPECT_EQ(predefs, std::vector<std::string>{"X"});
    EXPECT_TRUE(opt_on(OPT_ASM_LISTING));
    EXPECT_TRUE(opt_on(OPT_SYMDEBUG_DWARF));
    // The argument itself keeps its case and draws no warning.
    EXPECT_EQ(parse({"--define=lower"}), "");
}

TEST_F(OptionsTest, LettersShareAWord)
{
    EXPECT_EQ(parse({"-al", "-xgc", "-memt"}), "");
    EXPECT_EQ(results, (std::vector<int>{1, 1, 1}));
    for (option_id id : {OPT_ABSOLUTE_LISTING, OPT_ASM_LISTING, OPT_CROSS_REFERENCE, OPT_SYMDEBUG_DWARF,
                         OPT_SYMS_IGNORE_CASE, OPT_LITTLE_ENDIAN, OPT_THUMB_STATE})
        EXPECT_TRUE(opt_on(id)) << id;
    EXPECT_STREQ(opts->getstrarg(OPT_CODE_STATE, 0), "16");
    EXPECT_STREQ(opts->getstrarg(OPT_ENDIAN, 0), "little");

    // A letter with an argument ends the word.
    reset();
    parse({"-aiinc/dir"});
    EXPECT_TRUE(opt_on(OPT_ABSOLUTE_LISTING));
    EXPECT_EQ(paths.back(), "inc/dir");
}

TEST_F(OptionsTest, MismatchesAreSilentAndPointAtTheFailure)
{
    struct row {
        const char *text;
        size_t bad_at;   // offset of the reported place
    } rows[] = {
        {"-nosuch", 3},  {"-elfx", 4},  {"-", 1},         {"m", 1},     {"pdbx", 3}, {"-debug_d", 6},
        {"-sta", 2},     {"z", 0},      {"az", 1},        {"-abc", 3},  {"-symdebug:dwarf_x", 16},
    };
    for (const row &r : rows) {
        option_obj o(false);
        global_opts = &o;
        const char *bad = nullptr;
        ::testing::internal::CaptureStderr();
        EXPECT_EQ(o.process_option(r.text, &bad), 0) << r.text;
        EXPECT_EQ(::testing::internal::GetCapturedStderr(), "") << r.text;
        EXPECT_EQ(bad, r.text + r.bad_at) << r.text;
    }
    global_opts = opts;
    EXPECT_EQ(opts->process_option(nullptr, nullptr), 0);
    // A combined word keeps what matched before the bad letter.
    option_obj o(false);
    EXPECT_EQ(o.process_option("az", nullptr), 0);
    EXPECT_NE(o.state(OPT_ABSOLUTE_LISTING), 0);
}

TEST_F(OptionsTest, NumbersAndRadix)
{
    struct row {
        const char *text;
        long value;
    } rows[] = {{"0x10", 16}, {"0X1f", 31}, {"20h", 32},  {"20H", 32}, {"17q", 15}, {"17Q", 15},
                {"010", 8},   {"10", 10},   {"-5", -5},   {"0", 0},    {"0ah", 10}, {"+7", 7}};
    for (const row &r : rows) {
        reset();
        EXPECT_EQ(parse({std::string("--max_branch_chain=") + r.text}), "") << r.text;
        EXPECT_EQ(opts->getnumarg(OPT_MAX_BRANCH_CHAIN, 0), r.value) << r.text;
    }
    const char *bad[] = {"", "1aq", "0x", "12x", "h", "--5", " 5", "99999999999999999999999"};
    for (const char *b : bad) {
        bool failed = false;
        option_obj::strtol_by_radix(b, &failed);
        bool range = errno == ERANGE;
        EXPECT_TRUE(failed || range) << b;
    }
    bool failed = false;
    EXPECT_EQ(option_obj::strtoul_by_radix("0ffh", &failed), 255u);
    EXPECT_FALSE(failed);
    option_obj::strtoul_by_radix("-1", &failed);
    EXPECT_TRUE(failed);

    std::string t = "7fh";
    EXPECT_EQ(option_obj::get_radix(t), 16);
    EXPECT_EQ(t, "7f");
    t = "18q";   // not octal digits: left alone
    EXPECT_EQ(option_obj::get_radix(t), 10);
    EXPECT_EQ(t, "18q");

    parse({"--w", "0x40", "--set_screen_width=120"});
    EXPECT_EQ(screen_line_width, 120);
    EXPECT_STREQ(opts->getstrarg(OPT_SET_SCREEN_WIDTH, 0), "120");
    EXPECT_STREQ(opts->format_of_option(OPT_SET_SCREEN_WIDTH), "--set_screen_width");
}

TEST_F(OptionsTest, NumericRangeMessages)
{
    EXPECT_EXIT(opts->check_numerical_arg(POT_NUMBER, OPT_MAX_BRANCH_CHAIN, "--x", "11", option_range{1, 10}),
                ExitedWithCode(1),
                "argument to option --x \\(11\\) is out of range \\(must be a number from 1 to 10\n");
    EXPECT_EXIT(opts->check_numerical_arg(POT_NUMBER, OPT_MAX_BRANCH_CHAIN, "--x", "6", option_range{0, 5}),
                ExitedWithCode(1), "argument to option --x \\(6\\) is out of range\n");
    EXPECT_EQ(opts->check_numerical_arg(POT_UNSIGNED, OPT_MAX_BRANCH_CHAIN, "--x", "5", option_range{1, 10}), 5);
}

TEST_F(OptionsTest, BadArgumentsExitWithOne)
{
    const std::pair<std::vector<std::string>, const char *> rows[] = {
        {{"--w=abc"}, "error: argument to option --w \\(abc\\) is out of range \\(must be a non-negative_number\\)"},
        {{"--set_screen_width", "-1"}, "option --set_screen_width \\(-1\\)"},
        {{"--parser_opts=99999999999999999999"}, "out of range"},
        {{"--suppress_remark=Rx"}, "out of range"},
        {{"--define="}, "error: option --define is missing its parameter 'name=value'"},
        {{"--define"}, "option --define is missing its parameter"},
        {{"-i"}, "option -i is missing its parameter 'path'"},
        {{"--abi"}, "option --abi is missing its parameter 'abi'"},
        {{"--depend="}, "option --depend is missing"},
        {{"--diag_wrap="}, "option --diag_wrap is missing"},
        {{"--parser_opts=2", "a"}, "option --parser_opts is missing"},
        {{"--abi=foo"}, "error: bad argument to option --abi: should be one of \\{eabi,zqabi,zq_arm9_abi\\}"},
        {{"--endian=middle"}, "should be one of \\{big,little\\}"},
        {{"--elf", "--coff_asd"}, "option --symdebug:coff conflicts with previous option --elf"},
    };
    for (const auto &[args, text] : rows) EXPECT_EXIT(run(*opts, args), ExitedWithCode(1), text) << args[0];
}

TEST_F(OptionsTest, OptionalArgumentsOnlyJoined)
{
    // A detached word is not taken: it stays a file name.
    parse({"--asm_dependency", "x.d", "-r", "--depend=deps.d"});
    EXPECT_EQ(opt_test::next_word, 4u);
    EXPECT_STREQ(opts->getstrarg(OPT_ASM_DEPENDENCY, 0), "deps.d");
    EXPECT_TRUE(remark_is_supressed(12345));

    remark_reset();
    parse({"--suppress_remark=R21", "-r22", "-rr23"});
    for (unsigned id : {21u, 22u, 23u}) EXPECT_TRUE(remark_is_supressed(id)) << id;
    EXPECT_FALSE(remark_is_supressed(24));
    EXPECT_EQ(opts->getargcount(OPT_SUPPRESS_REMARK), 3u);
}

TEST_F(OptionsTest, ListValues)
{
    EXPECT_EQ(parse({"--abi=EABI", "--silicon_version", "7m3", "--float_support=vfpv3", "-v=8m33"}), "");
    EXPECT_EQ(opts->getnumarg(OPT_ABI, 0), 1);
    EXPECT_STREQ(opts->getstrarg(OPT_ABI, 0), "eabi");
    EXPECT_STREQ(opts->getstrarg(OPT_SILICON_VERSION, 0), "8M33");
    EXPECT_EQ(opts->getnumarg(OPT_SILICON_VERSION, 0), 10);
    EXPECT_EQ(opts->getnumarg(OPT_FLOAT_SUPPORT, 0), 18);
    EXPECT_EQ(opts->getargcount(OPT_SILICON_VERSION), 1u);

    EXPECT_EQ(parse({"--visibility=hidden", "--symdebug:dwarf_version=4", "--code_state=32",
                     "--embedded_constants=off", "--unaligned_access", "on"}),
              "");
    EXPECT_EQ(opts->getnumarg(OPT_VISIBILITY, 0), 2);
    EXPECT_EQ(opts->getnumarg(OPT_SYMDEBUG_DWARF_VERSION, 0), 4);
    EXPECT_EQ(opts->getnumarg(OPT_CODE_STATE, 0), 32);
    EXPECT_EQ(opts->getnumarg(OPT_EMBEDDED_CONSTANTS, 0), 12);
    EXPECT_EQ(opts->getnumarg(OPT_UNALIGNED_ACCESS, 0), 62);

    std::string err = parse({"--code_address_listing_unit=HalfWord"});
    EXPECT_EQ(err, "WARNING: argument 'HalfWord' to option '--code_address_listing_unit' is deprecated and "
                   "will be removed in a future release\n");
    EXPECT_EQ(opts->getnumarg(OPT_CODE_ADDRESS_LISTING_UNIT, 0), 3);

}

TEST_F(OptionsTest, DiagWrapAndEndian)
{
    parse({"--diag_wrap"});
    EXPECT_TRUE(DIAGNOSTIC::wrap_enabled_m);
    EXPECT_EQ(opts->getargcount(OPT_DIAG_WRAP), 0u);
    EXPECT_EQ(screen_line_width, 80);
    parse({"--diag_wrap=off"});
    EXPECT_FALSE(DIAGNOSTIC::wrap_enabled_m);
    EXPECT_EQ(screen_line_width, 400);
    parse({"--diag_wrap=ON"});
    EXPECT_TRUE(DIAGNOSTIC::wrap_enabled_m);

    // The last endian option counts (--endian=big alone: tests/asm).
    parse({"--endian", "big", "-me"});
    EXPECT_EQ(big_endian_data, 0);
    EXPECT_EQ(big_endian_code, 0);
}

TEST_F(OptionsTest, ConflictsOverrideAndFail)
{
    std::string err = parse({"--symdebug:dwarf", "--symdebug:none"});
    EXPECT_EQ(err, "warning: option --symdebug:none overrides preceding option --symdebug:dwarf\n");
    EXPECT_FALSE(opt_on(OPT_SYMDEBUG_DWARF));
    EXPECT_TRUE(opt_on(OPT_SYMDEBUG_NONE));

    err = parse({"-g"});
    EXPECT_TRUE(contains(err, "option -g overrides preceding option --symdebug:none"));

    // --assembly_src_debug sets --symdebug:dwarf through the same check.
    reset();
    err = parse({"--symdebug:coff", "--assembly_src_debug"});
    EXPECT_TRUE(contains(err, "option --symdebug:dwarf overrides preceding option --symdebug:coff"));
    EXPECT_TRUE(opt_on(OPT_SYMDEBUG_DWARF));

    // The matrix is not symmetric: --elf after the COFF options finds nothing.
    reset();
    EXPECT_EQ(parse({"--symdebug:coff", "--cdebug_asm_data", "--elf"}), "");
    EXPECT_TRUE(opt_on(OPT_SYMDEBUG_COFF));
    EXPECT_TRUE(opt_on(OPT_ELF));

    EXPECT_EXIT(run(*opts, {"--symdebug:profile_coff"}), ExitedWithCode(1),
                "error: option --symdebug:profile_coff conflicts with previous option --elf");

    // Turned off, nothing is checked.
    reset();
    opts->set_conflicts_enabled(false);
    EXPECT_EQ(parse({"--elf", "--symdebug:coff", "-g"}), "");
    EXPECT_TRUE(opt_on(OPT_SYMDEBUG_COFF));
}

TEST_F(OptionsTest, PredefsFilesAndPaths)
{
    parse({"-dA=1", "-dB", "--define", "C:3", "-uA", "--undefine=C=9", "-dA"});
    EXPECT_EQ(predefs, (std::vector<std::string>{"B", "A"}));

    parse({"-iinc", "--include_path=lib", "-hc", "first.inc", "-hisecond.inc", "--copy_file=third.inc"});
    EXPECT_EQ(paths, (std::vector<std::string>{"", "inc", "lib"}));
    ASSERT_EQ(cmd_line_includes_cnt, 3);
    EXPECT_STREQ(cmd_line_includes[0].name, "first.inc");
    EXPECT_EQ(cmd_line_includes[0].is_include, 0);
    EXPECT_STREQ(cmd_line_includes[1].name, "second.inc");
    EXPECT_EQ(cmd_line_includes[1].is_include, 1);
    EXPECT_EQ(opts->getargcount(OPT_COPY_FILE), 2u);

    std::vector<std::string> many;
    for (int i = 0; i < 9; ++i) many.push_back("-hcf" + std::to_string(i));
    std::string err = parse(many);
    EXPECT_EQ(cmd_line_includes_cnt, 10);
    EXPECT_TRUE(contains(err, "f7 ignored"));

    std::string longname(300, 'm');
    parse({"-t" + longname});
    EXPECT_EQ(strlen(macro_file), 256u);
    EXPECT_STREQ(opts->getstrarg(OPT_MACRO_FILE, 0), longname.c_str());
}

TEST_F(OptionsTest, ParserOptsDebugOptionsAndListing)
{
    parse({"--parser_opts=2", "-a", "b", "-l"});
    ASSERT_NE(parser_options, nullptr);
    EXPECT_STREQ(parser_options[0], "-a");
    EXPECT_STREQ(parser_options[1], "b");
    EXPECT_EQ(parser_options[2], nullptr);
    EXPECT_FALSE(opt_on(OPT_ABSOLUTE_LISTING));
    EXPECT_TRUE(opt_on(OPT_ASM_LISTING));

    parse({"--debug:progress,obj_info=0x10,nosuch", "--disable:dwarf_comdat"});
    EXPECT_EQ(static_cast<int>(debug_progress), 1);
    EXPECT_EQ(static_cast<int>(debug_obj_info), 16);
    EXPECT_EQ(static_cast<int>(disable_dwarf_comdat), 1);
    EXPECT_EQ(static_cast<int>(disable_build_attributes), 0);
    debug_progress.set(0);
    debug_obj_info.set(0);
    disable_dwarf_comdat.set(0);

    reset();
    parse({"--cross_reference"});
    EXPECT_TRUE(opt_on(OPT_ASM_LISTING));
    reset();
    parse({"--preprocess"});
    EXPECT_TRUE(opt_on(OPT_ASM_LISTING));
}

TEST_F(OptionsTest, SetClearAndArguments)
{
    opts->setopt(OPT_MAX_BRANCH_CHAIN, "0x20");
    EXPECT_EQ(opts->getnumarg(OPT_MAX_BRANCH_CHAIN, 0), 32);
    EXPECT_STREQ(opts->getstrarg(OPT_MAX_BRANCH_CHAIN, 0), "32");
    opts->setarg(OPT_DEFINE, 7L);
    opts->setarg(OPT_DEFINE, "Y");
    EXPECT_STREQ(opts->getstrarg(OPT_DEFINE, 0), "7");
    EXPECT_EQ(opts->getnumarg(OPT_DEFINE, 0), 7);
    EXPECT_EQ(opts->getnumarg(OPT_DEFINE, 1), 0);
    EXPECT_EQ(opts->getargcount(OPT_DEFINE), 2u);
    opts->setarg(OPT_ABI, 3L);  // a list option takes the item's number or its text
    EXPECT_STREQ(opts->getstrarg(OPT_ABI, 0), "zq_arm9_abi");
    opts->setarg(OPT_ABI, "ZQABI");
    EXPECT_EQ(opts->getnumarg(OPT_ABI, 0), 2);
    EXPECT_EQ(opts->getargcount(OPT_ABI), 1u);
    opts->clearopt(OPT_DEFINE);
    EXPECT_EQ(opts->getargcount(OPT_DEFINE), 0u);

    opts->setopt(OPT_CMD_FILE, "x.cmd");
    ::testing::internal::CaptureStderr();
    opts->clearopt(OPT_CMD_FILE);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "warning: Attempt to clear PERSISTENT option --cmd_file ignored\n");
    EXPECT_TRUE(opt_on(OPT_CMD_FILE));

    EXPECT_EXIT(opts->setarg(OPT_ELF, 1L), ExitedWithCode(1), "unhandled clause in setarg\\(\\) \\[0\\]");

    // Clearing a class clears its members, and it stays seen.
    opts->setopt(OPT_SYMDEBUG_SKELETAL);
    EXPECT_TRUE(opts->testclass(OC_DEBUG));
    opts->clearopt(OC_DEBUG);
    EXPECT_FALSE(opts->testclass(OC_DEBUG));
    EXPECT_TRUE(opts->seenclass(OC_DEBUG));
    EXPECT_FALSE(opts->seenclass(OC_LISTING));
}

TEST_F(OptionsTest, HistoryAndCommandLine)
{
    parse({"-al", "--define", "Q"});
    const auto &h = opts->history();
    ASSERT_GE(h.size(), 6u);
    EXPECT_EQ(h[0].first, OPT_HLL_SOURCE);
    EXPECT_EQ(h[0].second, "asm");
    EXPECT_EQ(h[3].first, OPT_ABSOLUTE_LISTING);
    EXPECT_EQ(h.back().first, OPT_DEFINE);
    EXPECT_EQ(h.back().second, "Q");
    EXPECT_EQ(opts->command_line(), "-al --define");
}

TEST_F(OptionsTest, UsageAndVersionExitWithZero)
{
    option_obj::executable_name = "/usr/bin/zqasm";
    for (const char *w : {"-h", "-?", "--help", "--usage", "-hx", "--HELP"})
        EXPECT_EXIT((freopen("/dev/null", "w", stdout), run(*opts, {w})), ExitedWithCode(0), "") << w;
    EXPECT_EXIT((freopen("/dev/null", "w", stdout), run(*opts, {"--toolversion"})), ExitedWithCode(0), "");
}

TEST(OptionsHelp, FixedLinesAndList)
{
    option_obj::executable_name = "/usr/bin/zqasm";
    option_obj o(false);
    ::testing::internal::CaptureStdout();
    o.display_option_help(nullptr, 1);
    std::string text = ::testing::internal::GetCapturedStdout();
    EXPECT_EQ(text.rfind("Usage: zqasm [-options] filename\n\nThis tool is designed to be invoked by the compiler.", 0),
              0u);
    EXPECT_TRUE(contains(text, "--abi=<abi>"));
    EXPECT_TRUE(contains(text, "values: eabi, zqabi, zq_arm9_abi"));
    EXPECT_TRUE(contains(text, "halfword (deprecated)"));
    EXPECT_TRUE(contains(text, "--define, --asm_define, -d <name=value>"));
    EXPECT_TRUE(contains(text, "values: 4, 5e, 6, 6M0, 7A8, 7M3, 7M4, 7R4, 7R5, 8M33"));
}

}  // namespace
}  // namespace opt_test
