#pragma once
// Runs command-line words through a fresh option object the way the driver
// does: a word with a dash goes to process_option without it, and detached
// arguments come from the same list through next_arg.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "support/diagnostic.h"

namespace opt_test {

inline std::vector<std::string> words;
inline size_t next_word = 0;

inline const char *feed() { return next_word < words.size() ? words[next_word++].c_str() : nullptr; }

// Returns the results of process_option, one per option word.
inline std::vector<int> run(option_obj &o, std::vector<std::string> args)
{
    words = std::move(args);
    next_word = 0;
    option_obj::next_arg = feed;
    std::vector<int> results;
    while (const char *w = feed())
        if (w[0] == '-') results.push_back(o.process_option(w + 1, nullptr));
    return results;
}

inline ::testing::AssertionResult contains(const std::string &text, const std::string &part)
{
    if (text.find(part) != std::string::npos) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "'" << part << "' not in '" << text << "'";
}

class OptionsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        opts = new option_obj(true);
        global_opts = opts;
        predefs.clear();
        paths.assign(1, "");
        cmd_line_includes_cnt = 0;
        macro_file[0] = '\0';
        screen_line_width = 80;
        big_endian_data = big_endian_code = 0;
        DIAGNOSTIC::wrap_enabled_m = true;
        DIAGNOSTIC::diag_cols_m = 400;   // one line per message, easier to match
        remark_reset();
    }
    void TearDown() override
    {
        global_opts = nullptr;
        delete opts;
        DIAGNOSTIC::diag_cols_m = 79;
    }
    void reset()
    {
        TearDown();
        SetUp();
    }
    // Parses and returns what went to stderr.
    std::string parse(std::vector<std::string> args)
    {
        ::testing::internal::CaptureStderr();
        results = run(*opts, std::move(args));
        return ::testing::internal::GetCapturedStderr();
    }
    option_obj *opts = nullptr;
    std::vector<int> results;
};

}  // namespace opt_test
