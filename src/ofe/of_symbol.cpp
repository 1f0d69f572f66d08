#include "ofe/of_symbol.h"

#include <cstring>

#include "ofe/object_file.h"
#include "ofe/of_machine.h"
#include "ofe/of_section.h"

namespace OFE {

// ---- OF_SYMBOL ---------------------------------------------------------------

OF_SYMBOL::~OF_SYMBOL() = default;

OBJECT_FILE *OF_SYMBOL::ofile() const { return table_m ? table_m->ofile() : nullptr; }

void OF_SYMBOL::set_name_raw(const char *name)
{
    if (!name) {
        name_m.reset();
        return;
    }
    std::size_t n = std::strlen(name);
    name_m = std::make_unique<char[]>(n + 1);
    std::memcpy(name_m.get(), name, n + 1);
}

void OF_SYMBOL::set_name(const char *name)
{
    if (table_m) table_m->max_state(OFS_OPEN);
    set_name_raw(name);
}

OF_SECTION *OF_SYMBOL::section() const
{
    OBJECT_FILE *f = ofile();
    if (!f || !refs_section()) return nullptr;
    OF_SECTION_TABLE *t = f->section_table();
    OF_SECTION *s = t ? t->section(section_id()) : nullptr;
    return s && !s->is_deleted() ? s : nullptr;
}

void OF_SYMBOL::set_section(OF_SECTION *s)
{
    if (s && s->ofile() == ofile() && !s->is_deleted()) set_section_id(s->id());
}

void OF_SYMBOL::set_near_common()
{
    if (ofile()) ofile()->set_error(OFERR_INTERNAL, "symbol does not support setting near-common");
}

ELF_SYMBOL *OF_SYMBOL::elf_api()
{
    if (ofile()) ofile()->set_error(OFERR_CORRUPTED, "attempting to get ELF interface for non-ELF file");
    return nullptr;
}

ELF_SYMBOL_TABLE *OF_SYMBOL_TABLE::elf_api()
{
    if (ofile()) ofile()->set_error(OFERR_CORRUPTED, "attempting to get ELF interface for non-ELF file");
    return nullptr;
}

// ---- OF_SYMBOL_TABLE -----------------------------------------------------------

OF_SYMBOL_TABLE::OF_SYMBOL_TABLE(OBJECT_FILE *ofile, OF_SECTION *section)
    : OF_STATE_MACHINE(ofile), section_m(section)
{
}

OF_SYMBOL_TABLE::~OF_SYMBOL_TABLE() = default;

const char *OF_SYMBOL_TABLE::name() const { return section_m ? section_m->name() : ""; }

OF_SYMBOL *OF_SYMBOL_TABLE::symbol(unsigned id)
{
    return id < symbols_m.size() ? symbols_m[id].get() : nullptr;
}

OF_SYMBOL *OF_SYMBOL_TABLE::symbol_name(const char *name, unsigned start)
{
    if (!name) return nullptr;
    for (unsigned i = start; i < symbols_m.size(); i = next_symbol_id(i)) {
        OF_SYMBOL *s = symbols_m[i].get();
        if (s && std::strcmp(s->name(), name) == 0) return s;
    }
    return nullptr;
}

OF_SYMBOL *OF_SYMBOL_TABLE::new_symbol()
{
    max_state(OFS_OPEN);
    auto id = static_cast<unsigned>(symbols_m.size());
    symbols_m.push_back(alloc_symbol(id));
    OF_SYMBOL *s = symbols_m.back().get();
    if (ofile() && ofile()->machine_db()) ofile()->machine_db()->of_process_new_symbol(s);
    return s;
}

OF_SYMBOL *OF_SYMBOL_TABLE::new_symbol_at(unsigned id)
{
    if (id == symbols_m.size()) return new_symbol();
    if (id > symbols_m.size() || symbols_m[id]) return nullptr;
    max_state(OFS_OPEN);
    symbols_m[id] = alloc_symbol(id);
    OF_SYMBOL *s = symbols_m[id].get();
    if (ofile() && ofile()->machine_db()) ofile()->machine_db()->of_process_new_symbol(s);
    return s;
}

void OF_SYMBOL_TABLE::delete_symbol(unsigned id)
{
    max_state(OFS_OPEN);
    if (id >= symbols_m.size() || !symbols_m[id]) return;
    const OF_SYMBOL *dead = symbols_m[id].get();
    OF_SECTION_TABLE *t = ofile() ? ofile()->section_table() : nullptr;
    for (unsigned i = 0; t && i < t->scnnum(); ++i)
        if (OF_SECTION *s = t->section(i)) s->forget_symbol(dead);
    symbols_m[id].reset();
    purge_pending_m = true;
}

void OF_SYMBOL_TABLE::purge_deleted_symbols()
{
    if (!purge_pending_m) return;
    std::vector<OF_SYMBOL *> order;
    for (auto &s : symbols_m)
        if (s) order.push_back(s.get());
    reorder_symbols(std::move(order));
    purge_pending_m = false;
}

void OF_SYMBOL_TABLE::reorder_symbols(std::vector<OF_SYMBOL *> order)
{
    const size_t before = symbols_m.size();
    const RECORD_MAP<unsigned> map = OF_reorder_records(symbols_m, order, [](OF_SYMBOL *r, unsigned id) { r->set_id(id); });
    if (map.identity() && before == symbols_m.size()) return;
    update_translations(map);
    patch_symbol_refs(map);
}

void OF_SYMBOL_TABLE::update_translations(const RECORD_MAP<unsigned> &map)
{
    if (ofile() && ofile()->machine_db()) ofile()->machine_db()->of_update_symbol_refs(map);
}

void OF_SYMBOL_TABLE::update_section_refs(const RECORD_MAP<unsigned> &map)
{
    for (auto &s : symbols_m) {
        if (!s || !s->refs_section()) continue;
        unsigned id = map(s->section_id());
        if (id == RECORD_MAP<unsigned>::DELETED)
            s->set_kind(OFK_UNDEFINED);
        else
            s->set_section_id(id);
    }
}

void OF_SYMBOL_TABLE::patch_symbol_refs(const RECORD_MAP<unsigned> &) {}

}  // namespace OFE
