#include "ofe/of_section.h"

#include <cstring>

#include "ofe/object_file.h"
#include "ofe/of_machine.h"
#include "ofe/of_symbol.h"

namespace OFE {

// ---- OF_SECTION --------------------------------------------------------------

OF_SECTION::OF_SECTION(OF_SECTION_TABLE *table, unsigned id)
    : OF_STATE_MACHINE(table ? table->ofile() : nullptr), table_m(table), id_m(id)
{
}

OF_SECTION::~OF_SECTION() = default;

void OF_SECTION::set_name(const char *name)
{
    max_state(OFS_LOCKED);
    if (!name) {
        name_m.reset();
        return;
    }
    std::size_t n = std::strlen(name);
    name_m = std::make_unique<char[]>(n + 1);
    std::memcpy(name_m.get(), name, n + 1);
}

void OF_SECTION::validate_initialized()
{
    if (!initialized() && ofile())
        ofile()->set_error(OFERR_WARNING,
                           "accessing the raw data of section \"%s\" which is uninitialized according "
                           "to its section attributes; changes to raw data may be lost",
                           name());
}

DATA_MAP &OF_SECTION::raw_data()
{
    validate_initialized();
    return data_m;
}

namespace {

void not_elf(OBJECT_FILE *f)
{
    if (f) f->set_error(OFERR_CORRUPTED, "attempting to get ELF interface for non-ELF file");
}

}  // namespace

ELF_SECTION *OF_SECTION::elf_api()
{
    not_elf(ofile());
    return nullptr;
}

ELF_SECTION_TABLE *OF_SECTION_TABLE::elf_api()
{
    not_elf(ofile());
    return nullptr;
}

OF_SYMBOL *OF_SECTION::symbol()
{
    if (symbol_m) return symbol_m;
    symbol_m = find_symbol();
    if (!symbol_m) symbol_m = create_section_symbol();
    return symbol_m;
}

OF_SYMBOL *OF_SECTION::find_symbol()
{
    if (symbol_m) return symbol_m;
    OF_SYMBOL_TABLE *symtab = ofile() ? ofile()->symbol_table() : nullptr;
    if (!symtab) return nullptr;
    OF_SYMBOL *at_run_addr = nullptr;
    for (unsigned i = 0; i < symtab->symnum(); ++i) {
        OF_SYMBOL *s = symtab->symbol(i);
        if (!s || s->type() != OFY_SECTION || !s->refs_section() || s->section_id() != id_m) continue;
        if (s->value() == 0) {
            symbol_m = s;
            return s;
        }
        if (!at_run_addr && s->value() == run_addr()) at_run_addr = s;
    }
    symbol_m = at_run_addr;
    return symbol_m;
}

// ---- OF_SECTION_TABLE --------------------------------------------------------

OF_SECTION_TABLE::OF_SECTION_TABLE(OBJECT_FILE *ofile) : OF_STATE_MACHINE(ofile) {}

OF_SECTION_TABLE::~OF_SECTION_TABLE() = default;

OF_SECTION *OF_SECTION_TABLE::section(unsigned id)
{
    if (id >= sections_m.size()) return nullptr;
    OF_SECTION *s = sections_m[id].get();
    return s ? s : deleted_sentinel();
}

OF_SECTION *OF_SECTION_TABLE::section_name(const char *name, unsigned start_id)
{
    if (!name) return nullptr;
    for (unsigned i = start_id; i < sections_m.size(); ++i) {
        OF_SECTION *s = sections_m[i].get();
        if (s && std::strcmp(s->name(), name) == 0) return s;
    }
    return nullptr;
}

OF_SECTION *OF_SECTION_TABLE::new_section(const char *name)
{
    max_state(OFS_OPEN);
    auto id = static_cast<unsigned>(sections_m.size());
    sections_m.push_back(alloc_section(id));
    OF_SECTION *s = sections_m.back().get();
    if (name) s->set_name(name);
    OF_MACHINE_DB *db = ofile() ? ofile()->machine_db() : nullptr;
    OF_ENDIAN e = db ? db->of_section_endian(s) : OFE_LITTLE;
    s->data_map().set_big_endian(e == OFE_BIG);
    if (name && std::strncmp(name, ".debug", 6) == 0) {
        s->set_allocated(false);
        s->set_unit_size(8);
    }
    return s;
}

OF_SECTION *OF_SECTION_TABLE::deleted_sentinel()
{
    if (!sentinel_m) {
        sentinel_m = alloc_section(OF_NO_ID);
        sentinel_m->set_name("__ZQ_deleted_section");
        sentinel_m->mark_deleted();
    }
    return sentinel_m.get();
}

void OF_SECTION_TABLE::delete_section(unsigned id)
{
    max_state(OFS_OPEN);
    if (id >= sections_m.size() || !sections_m[id]) return;
    sections_m[id].reset();
    purge_pending_m = true;
}

void OF_SECTION_TABLE::purge_deleted_sections()
{
    if (!purge_pending_m) return;
    std::vector<OF_SECTION *> order;
    for (auto &s : sections_m)
        if (s) order.push_back(s.get());
    reorder_sections(std::move(order));
    purge_pending_m = false;
}

void OF_SECTION_TABLE::reorder_sections(std::vector<OF_SECTION *> order)
{
    const RECORD_MAP<unsigned> map = OF_reorder_records(sections_m, order, [](OF_SECTION *r, unsigned id) { r->set_id(id); });
    update_translations(map);
    patch_section_refs(map);
}

void OF_SECTION_TABLE::clear()
{
    max_state(OFS_OPEN);
    sections_m.clear();
    purge_pending_m = false;
}

void OF_SECTION_TABLE::update_translations(const RECORD_MAP<unsigned> &map)
{
    if (ofile() && ofile()->machine_db()) ofile()->machine_db()->of_update_section_refs(map);
}

void OF_SECTION_TABLE::patch_section_refs(const RECORD_MAP<unsigned> &) {}

}  // namespace OFE
