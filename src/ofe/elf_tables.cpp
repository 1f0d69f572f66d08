#include "ofe/elf_tables.h"

#include <algorithm>

#include "ofe/elf_file.h"

namespace OFE {

// ---- string table ------------------------------------------------------------------

ELF_STRING_TABLE::ELF_STRING_TABLE(ELF_FILE *file, ELF_SECTION *section) : OF_STRING_TABLE(file, section) {}

void ELF_STRING_TABLE::clear()
{
    OF_STRING_TABLE::clear();
    add_string("");
}

// ---- group -------------------------------------------------------------------------

ELF_GROUP_TABLE::ELF_GROUP_TABLE(ELF_FILE *file, ELF_SECTION *section) : OF_GROUP_TABLE(file, section) {}

ELF_SECTION *ELF_GROUP_TABLE::elf_section() const { return static_cast<ELF_SECTION *>(section_api()); }

const char *ELF_GROUP_TABLE::name() const { return elf_section()->name(); }

void ELF_GROUP_TABLE::set_name(const char *name) { elf_section()->set_name(name); }

OF_SYMBOL *ELF_GROUP_TABLE::symbol() const
{
    ELF_SECTION *s = elf_section();
    if (s->sh_info() == 0) return nullptr;
    ELF_SYMBOL_TABLE *symtab = static_cast<ELF_FILE *>(ofile())->elf_symbol_table();
    return symtab ? symtab->symbol(s->sh_info()) : nullptr;
}

void ELF_GROUP_TABLE::set_symbol(OF_SYMBOL *sym)
{
    max_state(OFS_LOCKED);
    ELF_SECTION *s = elf_section();
    s->set_sh_link(static_cast<ELF_FILE *>(ofile())->symtab_id());
    s->set_sh_info(sym ? sym->id() : 0);
}

void ELF_GROUP_TABLE::set_comdat_flag(bool on)
{
    max_state(OFS_OPEN);
    comdat_m = on;
}

void ELF_GROUP_TABLE::update_symbol_refs(const RECORD_MAP<unsigned> &map)
{
    ELF_SECTION *s = elf_section();
    if (s->sh_info() == 0) return;
    unsigned id = map(s->sh_info());
    s->set_sh_info(id == RECORD_MAP<unsigned>::DELETED ? 0 : id);
}

int ELF_GROUP_TABLE::lock_group_table()
{
    ELF_SECTION *s = elf_section();
    if (s->sh_info() == 0) {
        ofile()->set_error(OFERR_CORRUPTED, "a symbol has not been specified for the group section %s", name());
        return -1;
    }
    s->set_sh_entsize(4);
    DATA_MAP &d = s->raw_data_nocheck();
    d.clear();
    d.UINT32_write(comdat_m ? GRP_COMDAT : 0);
    for (unsigned i = 0; i < member_count(); ++i) d.UINT32_write(member_id(i));
    return 0;
}

int ELF_GROUP_TABLE::progress_to_state(OF_STATE s) { return s == OFS_LOCKED ? lock_group_table() : 0; }

// ---- vendor section attributes -------------------------------------------------------

ELF_SCN_ATTR_TABLE::ELF_SCN_ATTR_TABLE(ELF_FILE *file, ELF_SECTION *section, int attr)
    : OF_STATE_MACHINE(file), section_m(section), attr_m(attr)
{
}

int ELF_SCN_ATTR_TABLE::save()
{
    auto *f = static_cast<ELF_FILE *>(ofile());
    if (const OF_MACHINE_DB *db = f->machine_db()) section_m->set_sh_type(db->elf_zq_sh_attr_type(attr_m));
    ELF_SECTION_TABLE *t = f->elf_section_table();
    uint32_t count = 0;
    uint32_t largest = 0;
    for (unsigned i = 0; i < t->scnnum(); ++i) {
        ELF_SECTION *s = t->elf_section(i);
        uint32_t v = s ? s->zq_sh_attr(attr_m) : 0;
        if (v) count = i + 1;
        largest = std::max(largest, v);
    }
    unsigned width = 0;
    for (uint64_t v = largest; v; v >>= 8) ++width;

    DATA_MAP &d = section_m->raw_data_nocheck();
    d.clear();
    d.UINT32_write(1);  // ZQElf_SHattrver
    for (int i = 0; i < 4; ++i) d.UINT32_write(0);
    d.UINT_write(count, 4);
    d.UINT16_write(static_cast<uint16_t>(width));
    for (unsigned i = 0; i < count && width; ++i) {
        ELF_SECTION *s = t->elf_section(i);
        d.UINT_write(s ? s->zq_sh_attr(attr_m) : 0, width);
    }
    return 0;
}

int ELF_SCN_ATTR_TABLE::progress_to_state(OF_STATE s) { return s == OFS_LOCKED ? save() : 0; }

// ---- symbol aliases ------------------------------------------------------------------

ELF_SYMALIAS_TABLE::ELF_SYMALIAS_TABLE(ELF_FILE *file, ELF_SECTION *section)
    : OF_STATE_MACHINE(file), section_m(section)
{
}

void ELF_SYMALIAS_TABLE::add_alias(unsigned sym_id, unsigned alias_id)
{
    max_state(OFS_OPEN);
    if (sym_id == alias_id) return;
    pairs_m.emplace_back(sym_id, alias_id);
}

void ELF_SYMALIAS_TABLE::add_alias(const char *sym_name, const char *alias_name)
{
    ELF_SYMBOL_TABLE *symtab = static_cast<ELF_FILE *>(ofile())->elf_symbol_table();
    OF_SYMBOL *sym = symtab ? symtab->symbol_name(sym_name) : nullptr;
    OF_SYMBOL *alias = symtab ? symtab->symbol_name(alias_name) : nullptr;
    if (sym && alias) add_alias(sym->id(), alias->id());
}

void ELF_SYMALIAS_TABLE::update_symbol_refs(const RECORD_MAP<unsigned> &map)
{
    for (auto &[sym, alias] : pairs_m) {
        sym = map(sym);
        alias = map(alias);
    }
    std::erase_if(pairs_m, [](const std::pair<unsigned, unsigned> &p) {
        return p.first == RECORD_MAP<unsigned>::DELETED || p.second == RECORD_MAP<unsigned>::DELETED;
    });
}

int ELF_SYMALIAS_TABLE::save()
{
    auto *f = static_cast<ELF_FILE *>(ofile());
    if (const OF_MACHINE_DB *db = f->machine_db()) section_m->set_sh_type(db->elf_symalias_type());
    section_m->set_sh_entsize(8);
    DATA_MAP &d = section_m->raw_data_nocheck();
    d.clear();
    d.UINT32_write(1);
    d.UINT16_write(static_cast<uint16_t>(pairs_m.size()));
    d.string_write("ZQ");
    for (const auto &[sym, alias] : pairs_m) {
        d.UINT32_write(sym);
        d.UINT32_write(alias);
    }
    return 0;
}

int ELF_SYMALIAS_TABLE::progress_to_state(OF_STATE s) { return s == OFS_LOCKED ? save() : 0; }

}  // namespace OFE
