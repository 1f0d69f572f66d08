// Option state: setting, clearing, arguments, classes, conflicts, history.
#include <cctype>
#include <cstdarg>
#include <cstdlib>

#include "driver/driver.h"
#include "driver/options_impl.h"
#include "support/diagnostic.h"

const char *(*option_obj::next_arg)() = nullptr;
const char *option_obj::executable_name = "<toolname>";

bool opt_on(option_id id) { return global_opts && id >= 0 && id < OPT_COUNT && global_opts->state(id) != 0; }

int strcaseincmp(const char *a, const char *b, size_t n)
{
    for (size_t i = 0; i < n; ++i) {
        int ca = tolower(static_cast<unsigned char>(a[i]));
        int cb = tolower(static_cast<unsigned char>(b[i]));
        if (ca != cb) return ca - cb;
        if (ca == 0) return 0;
    }
    return 0;
}

const option_item *find_item_by_value(const option_item *list, long value)
{
    for (; list && list->text; ++list)
        if (list->value == value) return list;
    return nullptr;
}

const option_item *find_item_by_name(const option_item *list, const char *text)
{
    for (; list && list->text && text; ++list)
        if (strcaseincmp(item_name(*list), text, SIZE_MAX) == 0) return list;
    return nullptr;
}

const char *option_arg_name(option_id id)
{
    const char *name = option_obj::option_definitions[id].arg_name;
    return name ? name : "arg";
}

option_obj::option_obj(bool defaults)
{
    if (!defaults) return;
    setopt(OPT_HLL_SOURCE, "asm");
    setopt(OPT_OBJECT_FORMAT, "elf");
    setopt(OPT_RUNTIME, "rts");
}

void option_obj::report_diagnostic(DIAGNOSTIC *d, ...)
{
    va_list ap;
    va_start(ap, d);
    d->report(ap);
    va_end(ap);
    if (d->severity() >= dc_error) ++errors_;
}

void option_obj::fail_exit() { exit(1); }

void option_obj::missing_parameter(option_id id, const char *arg_name)
{
    DIAG::optgen_missing_parameter d;
    report_diagnostic(&d, format_of_option(id), arg_name ? arg_name : option_arg_name(id));
    fail_exit();
}

const char *option_obj::format_of_option(option_id id) const
{
    if (id < 0 || id >= OPT_COUNT) return "";
    const option_definition &def = option_definitions[id];
    if (!def.spellings || !def.spellings[0]) return def.name;
    unsigned n = 0;
    while (def.spellings[n]) ++n;
    return def.spellings[opts_[id].spelling < n ? opts_[id].spelling : 0];
}

void option_obj::set_state(option_id id)
{
    ++opts_[id].state;
    ++opts_[id].changes;
    if (!conflicts_off_) do_conflicts(id);
}

void option_obj::do_conflicts(option_id id)
{
    for (int k = 0; k < OPT_COUNT; ++k) {
        option_id other = static_cast<option_id>(k);
        if (other == id || opts_[k].state == 0) continue;
        switch (conflicts[id][k]) {
        case 1:
            if (debug) {
                DIAG::optgen_conflict_quiet_option d;
                report_diagnostic(&d, format_of_option(id), format_of_option(other));
            }
            clearopt(other);
            break;
        case 2: {
            DIAG::optgen_conflict_override_option d;
            report_diagnostic(&d, format_of_option(id), format_of_option(other));
            clearopt(other);
            break;
        }
        case 3: {
            DIAG::optgen_conflict_option d;
            report_diagnostic(&d, format_of_option(id), format_of_option(other));
            clearopt(other);
            fail_exit();
        }
        default: break;
        }
    }
}

void option_obj::add_to_history(option_id id, const char *arg)
{
    if (id < 0 || id >= OPT_COUNT) {
        DIAG::optgen_unhandled_clause_in_add_hist d;
        report_diagnostic(&d, static_cast<unsigned>(id));
        return;
    }
    history_.emplace_back(id, arg ? arg : "");
}

void option_obj::setopt(option_id id)
{
    set_state(id);
    add_to_history(id, nullptr);
}

void option_obj::setopt(option_id id, long value)
{
    set_state(id);
    setarg(id, value);
    add_to_history(id, opts_[id].args.empty() ? nullptr : opts_[id].args.back().text.c_str());
}

void option_obj::setopt(option_id id, const char *value)
{
    set_state(id);
    setarg(id, value);
    add_to_history(id, value);
}

void option_obj::setopt(class_id cls)
{
    for (int k = 0; k < OPT_COUNT; ++k) {
        option_id id = static_cast<option_id>(k);
        if (isclass(id, cls) && parm_type[k] == PT_NONE) setopt(id);
    }
}

void option_obj::clearopt(option_id id)
{
    if (option_definitions[id].persistent) {
        DIAG::optgen_clear_persistent d;
        report_diagnostic(&d, format_of_option(id));
        return;
    }
    opt_state &o = opts_[id];
    o.state = 0;
    ++o.changes;
    o.args.clear();
}

void option_obj::clearopt(class_id cls)
{
    for (int k = 0; k < OPT_COUNT; ++k) {
        option_id id = static_cast<option_id>(k);
        if (isclass(id, cls) && opts_[k].state) clearopt(id);
    }
}

// Builds an argument record of the option's kind from a number.
option_arg option_obj::make_arg(option_id id, long value) const
{
    option_arg a;
    a.value = value;
    char text[32];
    uint32_t kind = parm_type[id];
    if (kind == PT_ONEOF || kind == PT_ITEM_LIST) {
        if (const option_item *it = find_item_by_value(option_definitions[id].items, value)) {
            a.text = item_name(*it);
            a.has_text = true;
            return a;
        }
    }
    snprintf(text, sizeof text, kind == PT_HEX ? "0x%lX" : "%ld", value);
    a.text = text;
    a.has_text = kind == PT_STRING || kind == PT_STRING_LIST;
    return a;
}

// Builds an argument record of the option's kind from a text.
option_arg option_obj::make_arg(option_id id, const char *text) const
{
    if (!text) text = "";
    uint32_t kind = parm_type[id];
    if (kind == PT_NUMBER || kind == PT_HEX || kind == PT_NUMBER_LIST) {
        bool failed = false;
        return make_arg(id, strtol_by_radix(text, &failed));
    }
    option_arg a;
    a.text = text;
    a.has_text = true;
    if (kind == PT_ONEOF || kind == PT_ITEM_LIST) {
        if (const option_item *it = find_item_by_name(option_definitions[id].items, text)) {
            a.value = it->value;
            a.text = item_name(*it);
        } else {
            bool failed = false;
            long v = strtol_by_radix(text, &failed);
            if (!failed) return make_arg(id, v);
        }
    }
    return a;
}

void option_obj::store_arg(option_id id, option_arg arg)
{
    opt_state &o = opts_[id];
    if (o.state == 0) set_state(id);
    switch (parm_type[id]) {
    case PT_STRING:
    case PT_NUMBER:
    case PT_HEX:
    case PT_ONEOF:
        o.args.assign(1, std::move(arg));
        break;
    case PT_STRING_LIST:
    case PT_NUMBER_LIST:
    case PT_ITEM_LIST:
        o.args.push_back(std::move(arg));
        break;
    default: {
        DIAG::optgen_unhandled_clause_in_setarg d;
        report_diagnostic(&d, static_cast<unsigned>(parm_type[id]));
        break;
    }
    }
}

void option_obj::setarg(option_id id, long value) { store_arg(id, make_arg(id, value)); }

void option_obj::setarg(option_id id, const char *value) { store_arg(id, make_arg(id, value)); }

long option_obj::getnumarg(option_id id, unsigned n) const
{
    if (id < 0 || id >= OPT_COUNT || n >= opts_[id].args.size()) return 0;
    const option_arg &a = opts_[id].args[n];
    uint32_t kind = parm_type[id];
    if (kind == PT_STRING || kind == PT_STRING_LIST) {
        bool failed = false;
        long v = strtol_by_radix(a.text.c_str(), &failed);
        return failed ? 0 : v;
    }
    return a.value;
}

const char *option_obj::getstrarg(option_id id, unsigned n) const
{
    if (id < 0 || id >= OPT_COUNT || n >= opts_[id].args.size()) return nullptr;
    return opts_[id].args[n].text.c_str();
}

unsigned option_obj::getargcount(option_id id) const
{
    if (id < 0 || id >= OPT_COUNT) return 0;
    return static_cast<unsigned>(opts_[id].args.size());
}

bool option_obj::isclass(option_id id, class_id cls) const
{
    return (option_definitions[id].classes & (1u << cls)) != 0;
}

bool option_obj::testclass(class_id cls) const
{
    for (int k = 0; k < OPT_COUNT; ++k)
        if (opts_[k].state && isclass(static_cast<option_id>(k), cls)) return true;
    return false;
}

bool option_obj::seenclass(class_id cls) const
{
    for (int k = 0; k < OPT_COUNT; ++k)
        if (opts_[k].changes && isclass(static_cast<option_id>(k), cls)) return true;
    return false;
}

void option_obj::dump_history(FILE *fp) const
{
    for (const auto &[id, arg] : history_) {
        const char *name = option_definitions[id].name;
        if (arg.empty())
            fprintf(fp, "%s\n", name);
        else
            fprintf(fp, "%s=%s\n", name, arg.c_str());
    }
}
