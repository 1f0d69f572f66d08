// Named integers set by --debug: and --disable:.
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>

#include "driver/options.h"

namespace {
// Built on first use, so that objects of any file can enter themselves.
std::map<std::string, register_option *> &registry()
{
    static std::map<std::string, register_option *> map;
    return map;
}
}  // namespace

register_option::register_option(const char *name, int initial) : name_(name), value_(initial)
{
    registry()[name] = this;
}

register_option::~register_option()
{
    auto it = registry().find(name_);
    if (it != registry().end() && it->second == this) registry().erase(it);
}

register_option *register_option::find(const char *name)
{
    auto it = registry().find(name ? name : "");
    return it == registry().end() ? nullptr : it->second;
}

void process_debug_option(const char *prefix, const char *list)
{
    if (!list) return;
    std::string items = list;
    size_t start = 0;
    while (start <= items.size()) {
        size_t comma = items.find(',', start);
        if (comma == std::string::npos) comma = items.size();
        std::string item = items.substr(start, comma - start);
        start = comma + 1;
        if (item.empty()) continue;
        int value = 1;
        size_t eq = item.find('=');
        if (eq != std::string::npos) {
            value = static_cast<int>(strtol(item.c_str() + eq + 1, nullptr, 0));
            item.resize(eq);
        }
        std::string key = std::string(prefix) + ":" + item;
        if (register_option *opt = register_option::find(key.c_str())) opt->set(value);
    }
}

register_option disable_build_attributes("disable:build_attributes");
register_option disable_dwarf_extensions("disable:dwarf_extensions");
register_option disable_dwarf_anon_ssnames("disable:dwarf_anon_ssnames");
register_option disable_dwarf_comdat("disable:dwarf_comdat");
register_option debug_obj_info("debug:obj_info");
register_option debug_dwarf_info("debug:dwarf_info");
register_option debug_progress("debug:progress");
register_option debug_mot("debug:mot");
