// Matching a command-line word against the spellings of all options.
//
// The spellings form a trie: the word is followed character by character,
// in either case, as long as some spelling goes on with the next character.
// Where none does, the spelling that ends at that point is the match and the
// rest of the word is its argument.  There is no backing up and there are
// no abbreviations.
#include <cstring>
#include <string>
#include <vector>

#include "driver/options_impl.h"
#include "support/diagnostic.h"

namespace {
constexpr int HELP_ID = -1;

struct spelling_ref {
    const char *text;   // without its first dash
    int id;             // option id, or HELP_ID
    unsigned index;     // into the option's spellings
};

const std::vector<spelling_ref> &all_spellings()
{
    static const std::vector<spelling_ref> table = [] {
        std::vector<spelling_ref> t;
        for (int id = 0; id < OPT_COUNT; ++id) {
            const char *const *sp = option_obj::option_definitions[id].spellings;
            for (unsigned i = 0; sp && sp[i]; ++i) t.push_back({sp[i] + 1, id, i});
        }
        for (unsigned i = 0; help_spellings[i]; ++i) t.push_back({help_spellings[i] + 1, HELP_ID, i});
        return t;
    }();
    return table;
}

char lower(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

// Follows the trie; returns the spelling that ends where the walk stopped,
// or null, and the length consumed.
const spelling_ref *walk(const char *word, size_t *consumed)
{
    std::vector<const spelling_ref *> cands;
    for (const spelling_ref &s : all_spellings()) cands.push_back(&s);
    size_t pos = 0;
    for (;;) {
        char c = lower(word[pos]);
        std::vector<const spelling_ref *> next;
        if (c != '\0')
            for (const spelling_ref *s : cands)
                if (lower(s->text[pos]) == c) next.push_back(s);
        if (next.empty()) break;
        cands.swap(next);
        ++pos;
    }
    *consumed = pos;
    for (const spelling_ref *s : cands)
        if (s->text[pos] == '\0') return s;
    return nullptr;
}

// Short options without an argument that let the rest of the word hold
// further letters: the single letters and the -m pairs.
bool combinable(const spelling_ref &s)
{
    if (s.text[0] == '-') return false;
    size_t n = strlen(s.text);
    return n == 1 || (n == 2 && s.text[0] == 'm');
}
}  // namespace

int option_obj::process_option(const char *text, const char **bad_place)
{
    if (!text) {
        if (bad_place) *bad_place = nullptr;
        return 0;
    }
    if (!cmdline_.empty()) cmdline_ += ' ';
    cmdline_ += '-';
    cmdline_ += text;
    return match_word(text, bad_place);
}

int option_obj::match_word(const char *word, const char **bad_place)
{
    parsing_ = word;
    size_t pos = 0;
    const spelling_ref *s = walk(word, &pos);
    if (!s) {
        if (bad_place) *bad_place = word + pos;
        return 0;
    }
    const char *rest = word + pos;
    bool no_arg = s->id == HELP_ID ? false : parm_type[s->id] == PT_NONE;
    if (no_arg && *rest && !combinable(*s)) {
        if (bad_place) *bad_place = rest;
        return 0;
    }
    if (strncmp(word, s->text, pos) != 0) {
        std::string typed(1, '-');
        typed.append(word, pos);
        std::string canonical(1, '-');
        canonical.append(s->text);
        deprecated_case(typed.c_str(), canonical.c_str());
    }
    if (s->id == HELP_ID) {
        // The usage request takes a topic: the rest of the word or the next one.
        std::string topic;
        if (*rest) {
            topic = rest;
        } else if (next_arg) {
            const char *w = next_arg();
            if (w) topic = w;
        }
        display_option_help(topic.c_str(), 0);
        return 1;
    }
    option_id id = static_cast<option_id>(s->id);
    apply_option(id, s->index, no_arg ? "" : rest);
    if (no_arg && *rest) return match_word(rest, bad_place);
    return 1;
}

// The steps every matched option goes through.
void option_obj::apply_option(option_id id, unsigned spelling, const char *rest)
{
    opt_state &o = opts_[id];
    o.spelling = static_cast<uint8_t>(spelling);
    ++o.parsed;
    option_arg arg;
    bool has_arg = parse_argument(id, rest, &arg);
    ++o.state;
    ++o.changes;
    if (!conflicts_off_) do_conflicts(id);
    if (has_arg) store_arg(id, arg);
    add_to_history(id, has_arg ? arg.text.c_str() : nullptr);
    run_action(id, has_arg ? &arg : nullptr);
}

void option_obj::deprecated_case(const char *typed, const char *canonical)
{
    DIAG::optgen_case_insensitivity_deprecated d;
    report_diagnostic(&d, typed, canonical);
}
