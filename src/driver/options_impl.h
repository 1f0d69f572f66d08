#pragma once
// Internals shared by the option parser's files.
#include "driver/options.h"

// How an option's argument is read, beside its row in option_definitions.
struct option_parse_row {
  parse_option_type type;
  option_range range;
};
extern const option_parse_row option_parse_rows[OPT_COUNT];

// The spellings of the usage request; they have no option id.
extern const char *const help_spellings[];

// Lower-case compare of at most n characters; the typed text may be shorter.
int strcaseincmp(const char *a, const char *b, size_t n);

// Item text without its marker, and whether it is deprecated.
inline const char *item_name(const option_item &it) { return it.text + 1; }
inline bool item_deprecated(const option_item &it) { return it.text[0] == '*'; }

// The item of `list` whose value is `value`, or null.
const option_item *find_item_by_value(const option_item *list, long value);
// The item of `list` named `text` without regard to case, or null.
const option_item *find_item_by_name(const option_item *list, const char *text);

// Argument name of an option for messages ("file" where the row has none).
const char *option_arg_name(option_id id);
