// Reading option arguments: the spelling forms, numbers with radix
// suffixes and ranges, and values from a list.
#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "driver/options_impl.h"
#include "support/diagnostic.h"

namespace {
bool is_optional(parse_option_type t)
{
    switch (t) {
    case POT_OPT_NUMBER: case POT_OPT_NUMBER10: case POT_OPT_UNSIGNED: case POT_OPT_STRING:
    case POT_OPT_STRING13: case POT_OPT_NUMBER14: case POT_OPT_NUMBER17: case POT_OPT_ONEOF:
    case POT_OPT_ONEOF16:
        return true;
    default:
        return false;
    }
}

bool is_unsigned(parse_option_type t) { return t == POT_UNSIGNED || t == POT_OPT_UNSIGNED; }

bool is_oct(char c) { return c >= '0' && c <= '7'; }

bool all_of(const std::string &s, size_t n, int (*pred)(int))
{
    for (size_t i = 0; i < n; ++i)
        if (!pred(static_cast<unsigned char>(s[i]))) return false;
    return true;
}

int is_octal_digit(int c) { return c >= '0' && c <= '7'; }

// Splits an optional sign from the digits; false when no digits follow or
// when something other than a digit or letter begins them.
bool split_sign(const char *text, bool *negative, std::string *digits)
{
    if (!text) return false;
    *negative = false;
    if (*text == '-' || *text == '+') *negative = *text++ == '-';
    *digits = text;
    return !digits->empty() && isalnum(static_cast<unsigned char>((*digits)[0]));
}
}  // namespace

int option_obj::get_radix(std::string &text)
{
    size_t n = text.size();
    if (n >= 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) return 16;
    if (n >= 2 && text[0] == '0' && is_oct(text[1])) return 8;
    if (n >= 2) {
        char last = text[n - 1];
        if ((last == 'h' || last == 'H') && all_of(text, n - 1, isxdigit)) {
            text.pop_back();
            return 16;
        }
        if ((last == 'q' || last == 'Q') && all_of(text, n - 1, is_octal_digit)) {
            text.pop_back();
            return 8;
        }
    }
    return 10;
}

long option_obj::strtol_by_radix(const char *text, bool *failed)
{
    bool negative;
    std::string digits;
    if (!split_sign(text, &negative, &digits)) {
        *failed = true;
        return 0;
    }
    int radix = get_radix(digits);
    std::string signed_digits = (negative ? "-" : "") + digits;
    char *end = nullptr;
    errno = 0;
    long v = strtol(signed_digits.c_str(), &end, radix);
    *failed = end == signed_digits.c_str() || *end != '\0';
    return v;
}

unsigned long option_obj::strtoul_by_radix(const char *text, bool *failed)
{
    bool negative;
    std::string digits;
    if (!split_sign(text, &negative, &digits) || negative) {
        *failed = true;
        return 0;
    }
    int radix = get_radix(digits);
    char *end = nullptr;
    errno = 0;
    unsigned long v = strtoul(digits.c_str(), &end, radix);
    *failed = end == digits.c_str() || *end != '\0';
    return v;
}

const char *option_obj::parse_arg(option_id id, const char *rest, const char *arg_name, parse_option_type type,
                                  option_range)
{
    if (rest && *rest) {
        if (*rest == '=') ++rest;
        if (!*rest) missing_parameter(id, arg_name);
        argbuf_ = rest;
        return argbuf_.c_str();
    }
    if (is_optional(type)) return nullptr;
    const char *word = next_arg ? next_arg() : nullptr;
    if (!word || !*word) missing_parameter(id, arg_name);
    argbuf_ = word;
    return argbuf_.c_str();
}

long option_obj::check_numerical_arg(parse_option_type type, option_id id, const char *name, const char *text,
                                     option_range range)
{
    if (!text || !*text) missing_parameter(id, nullptr);
    bool failed = false;
    bool bad;
    long value = 0;
    if (is_unsigned(type)) {
        unsigned long u = strtoul_by_radix(text, &failed);
        bad = failed || errno == ERANGE || u > static_cast<unsigned long>(range.max) ||
              (range.min > 0 && u < static_cast<unsigned long>(range.min));
        value = static_cast<long>(u);
    } else {
        value = strtol_by_radix(text, &failed);
        bad = failed || errno == ERANGE || value < range.min || value > range.max;
    }
    if (!bad) return value;
    if (range.is_default()) {
        DIAG::optgen_arg_out_of_range_non_neg d;
        report_diagnostic(&d, name, text);
    } else if (range.min > 0) {
        DIAG::optgen_arg_out_of_range2 d;
        report_diagnostic(&d, name, text, static_cast<unsigned>(range.min), static_cast<unsigned>(range.max));
    } else {
        DIAG::optgen_arg_out_of_range d;
        report_diagnostic(&d, name, text);
    }
    fail_exit();
}

int option_obj::parse_oneof(option_id id, const char *text, const option_item *list, parse_option_type type,
                            long *value, const char **item_text)
{
    if (!list) {
        DIAG::optgen_invalid_list_handler d;
        report_diagnostic(&d, static_cast<unsigned>(id));
        return 0;
    }
    if (!text || !*text) {
        if (type == POT_OPT_ONEOF || type == POT_OPT_ONEOF16) return 0;
        text = next_arg ? next_arg() : nullptr;
        if (!text || !*text) missing_parameter(id, nullptr);
    }
    if (*text == '=') ++text;
    if (!*text) missing_parameter(id, nullptr);
    std::string typed = text;   // the next word may not outlive another read
    for (const option_item *it = list; it->text; ++it) {
        if (strcaseincmp(item_name(*it), typed.c_str(), SIZE_MAX) != 0) continue;
        *value = it->value;
        if (item_text) *item_text = item_name(*it);
        if (item_deprecated(*it)) {
            fflush(stdout);
            fprintf(stderr, "WARNING: argument '%s' to option '%s' is deprecated and will be removed in a future release\n",
                    typed.c_str(), format_of_option(id));
            fflush(stderr);
        }
        return 1;
    }
    std::string names;
    for (const option_item *it = list; it->text; ++it) {
        if (!names.empty()) names += ',';
        names += item_name(*it);
    }
    DIAG::optgen_bad_argument d;
    report_diagnostic(&d, format_of_option(id), names.c_str());
    fail_exit();
}

bool option_obj::parse_argument(option_id id, const char *rest, option_arg *out)
{
    const option_parse_row &row = option_parse_rows[id];
    const char *arg_name = option_arg_name(id);
    switch (parm_type[id]) {
    case PT_NONE:
        return false;
    case PT_ONEOF:
    case PT_ITEM_LIST: {
        long value = 0;
        const char *text = nullptr;
        if (!parse_oneof(id, rest, option_definitions[id].items, row.type, &value, &text)) return false;
        out->value = value;
        out->text = text;
        out->has_text = true;
        return true;
    }
    case PT_NUMBER:
    case PT_HEX:
    case PT_NUMBER_LIST: {
        const char *text = parse_arg(id, rest, arg_name, row.type, row.range);
        if (!text) return false;
        *out = make_arg(id, check_numerical_arg(row.type, id, format_of_option(id), text, row.range));
        return true;
    }
    default: {
        const char *text = parse_arg(id, rest, arg_name, row.type, row.range);
        if (!text) return false;
        out->text = text;
        out->has_text = true;
        return true;
    }
    }
}
