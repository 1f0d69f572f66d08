// What an option does beyond being on, run once each time it is parsed.
#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options_impl.h"
#include "support/diagnostic.h"
#include "support/memory.h"
#include "target/arm/trg.h"

uint8_t big_endian_data = 0;
uint8_t big_endian_code = 0;
char **parser_options = nullptr;
FILE *pbc_output_file = nullptr;
std::string pbc_output_name;

namespace {
// The storage behind parser_options.
std::vector<std::string> parser_words;
std::vector<char *> parser_ptrs;

void add_parser_word(const char *word)
{
    parser_words.emplace_back(word);
    parser_ptrs.clear();
    for (std::string &w : parser_words) parser_ptrs.push_back(w.data());
    parser_ptrs.push_back(nullptr);
    parser_options = parser_ptrs.data();
}

// The name part of a --define or --undefine text: up to the first '=', or
// without one up to the first ':'.
std::string predef_name(const std::string &text)
{
    size_t cut = text.find('=');
    if (cut == std::string::npos) cut = text.find(':');
    return text.substr(0, cut);
}

void add_cmd_line_include(const char *name, bool is_include)
{
    constexpr int16_t rows = sizeof cmd_line_includes / sizeof cmd_line_includes[0];
    if (cmd_line_includes_cnt >= rows) {
        get_umsg_obj()->warning("too many command-line copy or include files; %s ignored", name);
        return;
    }
    cmd_line_includes[cmd_line_includes_cnt].name = safestrdup(name);
    cmd_line_includes[cmd_line_includes_cnt].is_include = is_include ? 1 : 0;
    ++cmd_line_includes_cnt;
}

void set_both_endians(bool big)
{
    big_endian_data = big ? 1 : 0;
    big_endian_code = big ? 1 : 0;
}
}  // namespace

void option_obj::run_action(option_id id, const option_arg *arg)
{
    const char *text = arg ? arg->text.c_str() : nullptr;
    long num = arg ? arg->value : 0;
    switch (id) {
    case OPT_ABSOLUTE_LISTING:
    case OPT_CROSS_REFERENCE:
    case OPT_PREPROCESS:
        setopt(OPT_ASM_LISTING);
        break;
    case OPT_ASSEMBLY_SRC_DEBUG:
        setopt(OPT_SYMDEBUG_DWARF);
        break;
    case OPT_COFF_ASD:
        setopt(OPT_SYMDEBUG_COFF);
        break;
    case OPT_BUFFER_DIAGNOSTICS: {
        static char line_buffer[256];
        setvbuf(stderr, line_buffer, _IOLBF, sizeof line_buffer);
        break;
    }
    case OPT_CMD_FILE:
        open_cmd_file(text);
        break;
    case OPT_CODE_STATE:
        TRG_set_code_state(num);
        break;
    case OPT_THUMB_STATE:
        TRG_set_code_state(16);
        setopt(OPT_CODE_STATE, "16");
        break;
    case OPT_UAL:
        TRG_set_ual_mode();
        break;
    case OPT_SILICON_VERSION:
        version = static_cast<int16_t>(TRG_get_version(text));
        TRG_version_check();
        break;
    case OPT_COPY_FILE:
        add_cmd_line_include(text, false);
        break;
    case OPT_INCLUDE_FILE:
        add_cmd_line_include(text, true);
        break;
    case OPT_INCLUDE_PATH:
        add_incl_path(text);
        break;
    case OPT_DEBUG:
        process_debug_option("debug", text);
        break;
    case OPT_DISABLE:
        process_debug_option("disable", text);
        break;
    case OPT_DEFINE:
        predefs.emplace_back(text);
        break;
    case OPT_UNDEFINE: {
        std::string name = predef_name(text);
        std::erase_if(predefs, [&](const std::string &p) { return predef_name(p) == name; });
        break;
    }
    case OPT_DIAG_WRAP:
        // Without a value the option means "on".
        if (arg && num == 2) {
            DIAGNOSTIC::wrap_enabled_m = false;
            screen_line_width = 400;
        } else {
            DIAGNOSTIC::wrap_enabled_m = true;
        }
        break;
    case OPT_EMIT_WARNINGS_AS_ERRORS:
        get_umsg_obj()->emit_warnings_as_errors = true;
        break;
    case OPT_ENDIAN:
        set_both_endians(num == 1);
        break;
    case OPT_LITTLE_ENDIAN:
        setopt(OPT_ENDIAN, "little");
        set_both_endians(false);
        break;
    case OPT_MACRO_FILE:
        snprintf(macro_file, sizeof macro_file, "%s", text);
        break;
    case OPT_PARSER_OPTS:
        for (long i = 0; i < num; ++i) {
            const char *word = next_arg ? next_arg() : nullptr;
            if (!word) missing_parameter(id, nullptr);
            add_parser_word(word);
        }
        break;
    case OPT_PBC_OUTPUT:
        // Made once the command line is read and every output name is
        // known, so that it can't replace an input; the last name counts.
        pbc_output_name = text ? text : "";
        break;
    case OPT_SET_SCREEN_WIDTH:
        screen_line_width = static_cast<int32_t>(std::min<long>(num, INT32_MAX));
        break;
    case OPT_SUPPRESS_REMARK:
        if (!text) {
            supress_all_remarks();
        } else {
            const char *digits = (*text == 'R' || *text == 'r') ? text + 1 : text;
            long rid = check_numerical_arg(POT_OPT_UNSIGNED, id, format_of_option(id), digits, option_range{});
            supress_remark(static_cast<unsigned>(rid), REMARK_RUN);
        }
        break;
    case OPT_TOOLVERSION:
        print_toolversion(stdout);
        fflush(stdout);
        exit(0);
    default:
        break;
    }
}
