// ARM mapping symbols: the mode ($a ARM, $t Thumb, $d data) of each address,
// and the Thumb bit of function symbols that the ELF ABI asks for.
#include <iterator>
#include <map>

#include "ofe/elf_file.h"
#include "ofe/object_file.h"
#include "ofe/of_machine.h"
#include "ofe/of_section.h"
#include "ofe/of_symbol.h"

namespace OFE {

namespace {

// The mode an ELF mapping symbol names, or 0 for any other symbol.
unsigned elf_mapping_mode(const OF_SYMBOL *s) {
    if (s->type() != OFY_NONE || s->binding() != OFB_LOCAL) return 0;
    const char *name = s->name();
    if (!name || name[0] != '$' || !name[1] || (name[2] && name[2] != '.')) return 0;
    switch (name[1]) {
        case 'a': return ARM_MACHINE_DB::MODE_ARM;
        case 't': return ARM_MACHINE_DB::MODE_THUMB;
        case 'd': return ARM_MACHINE_DB::MODE_DATA;
        default: return 0;
    }
}

}  // namespace

ARM_MACHINE_DB::MODE_MAP ARM_MACHINE_DB::find_mapping_syms() const
{
    MODE_MAP modes;
    OF_SYMBOL_TABLE *table = ofile() ? ofile()->symbol_table() : nullptr;
    if (!table || ofile()->format() != OFF_ELF) return modes;
    for (unsigned i = 0; i < table->symnum(); ++i) {
        const OF_SYMBOL *s = table->symbol(i);
        if (!s || s->kind() != OFK_DEFINED || !s->refs_section()) continue;
        if (unsigned mode = elf_mapping_mode(s)) modes[s->section()][s->value()] = mode;
    }
    return modes;
}

unsigned ARM_MACHINE_DB::section_mode_addr(const MODE_MAP &modes, uint64_t addr, const OF_SECTION *section)
{
    auto in_section = modes.find(section);
    if (in_section == modes.end()) return MODE_UNKNOWN;
    auto after = in_section->second.upper_bound(addr);
    return after == in_section->second.begin() ? MODE_UNKNOWN : std::prev(after)->second;
}

void ARM_MACHINE_DB::adjust_thumb_symbol_values()
{
    if (!ofile() || ofile()->format() != OFF_ELF || eabi_version() == 0) return;
    OF_SYMBOL_TABLE *table = ofile()->symbol_table();
    if (!table) return;
    const MODE_MAP modes = find_mapping_syms();
    for (unsigned i = 0; i < table->symnum(); ++i) {
        OF_SYMBOL *s = table->symbol(i);
        if (!s || !s->refs_section() || s->kind() != OFK_DEFINED || s->type() != OFY_FUNCTION) continue;
        if (section_mode_addr(modes, s->value(), s->section()) == MODE_THUMB) s->set_value(s->value() | 1);
    }
}

}  // namespace OFE
