// The usage text and the scrambling of stored names.
#include <cstdlib>
#include <cstring>
#include <string>

#include "driver/options_impl.h"

namespace {
std::string spelling_line(const option_definition &def)
{
    std::string line;
    for (unsigned i = 0; def.spellings[i]; ++i) {
        if (i) line += ", ";
        line += def.spellings[i];
    }
    if (def.arg_name) {
        line += def.items ? "=" : " ";
        line += '<';
        line += def.arg_name;
        line += '>';
    }
    return line;
}
}  // namespace

void option_obj::display_option_help(const char *, int flag) const
{
    const char *name = executable_name ? executable_name : "<toolname>";
    if (const char *slash = strrchr(name, '/')) name = slash + 1;
    fflush(stderr);
    printf("Usage: %s [-options] filename\n\n", name);
    printf("This tool is designed to be invoked by the compiler.");
    printf("\n\nOptions:\n");
    for (int id = 0; id < OPT_COUNT; ++id) {
        const option_definition &def = option_definitions[id];
        if (!def.spellings || !def.spellings[0]) continue;
        std::string line = spelling_line(def);
        if (line.size() > 44)
            printf("  %s\n  %-44s %s\n", line.c_str(), "", def.help);
        else
            printf("  %-44s %s\n", line.c_str(), def.help);
        if (!def.items) continue;
        std::string values;
        for (const option_item *it = def.items; it->text; ++it) {
            if (!values.empty()) values += ", ";
            values += item_name(*it);
            if (item_deprecated(*it)) values += " (deprecated)";
        }
        printf("  %-44s values: %s\n", "", values.c_str());
    }
    printf("  %-44s %s\n", "-?, -h, --help, --usage", "print this text");
    fflush(stdout);
    if (flag == 0) exit(0);
}

// Letters move 13 places within their case; '%' and '-' trade places.
const char *option_obj::rot13(const char *text)
{
    static std::string buffers[5];
    static unsigned next = 0;
    std::string &out = buffers[next];
    next = (next + 1) % 5;
    out = text ? text : "";
    for (char &c : out) {
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>('a' + (c - 'a' + 13) % 26);
        else if (c >= 'A' && c <= 'Z')
            c = static_cast<char>('A' + (c - 'A' + 13) % 26);
        else if (c == '%')
            c = '-';
        else if (c == '-')
            c = '%';
    }
    return out.c_str();
}
