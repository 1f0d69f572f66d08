#include "ofe/elf_reloc.h"

#include "ofe/elf_file.h"

namespace OFE {

// ---- ELF_RELOC -------------------------------------------------------------------

ELF_RELOC::ELF_RELOC(ELF_RELOC_TABLE *table, unsigned id) : OF_RELOC(table, id) {}

// The constructor's table, never replaced: no run-time type test on each
// change of a relocation.
ELF_RELOC_TABLE *ELF_RELOC::elf_table() const { return static_cast<ELF_RELOC_TABLE *>(table()); }

bool ELF_RELOC::begin_change()
{
    elf_table()->max_state(OFS_LOCKED);
    return true;
}

void ELF_RELOC::end_change()
{
    if (elf_table()->state() == OFS_LOCKED) patch_raw_data();
}

void ELF_RELOC::set_type(const OF_RELOC_TYPE *t)
{
    begin_change();
    store_type(t);
    set_r_type(t ? t->number() : 0);
    end_change();
}

OF_SYMBOL *ELF_RELOC::symbol() const
{
    ELF_SYMBOL_TABLE *symtab = elf_table()->elf_file()->elf_symbol_table();
    return symtab ? symtab->symbol(r_sym()) : nullptr;
}

void ELF_RELOC::set_symbol(OF_SYMBOL *s) { set_sym_id(s ? s->id() : 0); }

void ELF_RELOC::set_sym_id(unsigned id)
{
    begin_change();
    set_r_sym(id);
    end_change();
}

void ELF_RELOC::set_offset(uint64_t off)
{
    begin_change();
    set_r_offset(off);
    end_change();
}

void ELF_RELOC::set_addend(int64_t a)
{
    if (!elf_table()->is_rela()) return;
    begin_change();
    set_r_addend(a);
    end_change();
}

void ELF_RELOC::patch_raw_data()
{
    ELF_RELOC_TABLE *t = elf_table();
    DATA_MAP &d = t->elf_section()->raw_data_nocheck();
    d.set_cursor(static_cast<uint64_t>(id()) * t->reloc_size());
    save(d, t->is_rela());
}

template <int BITS>
void ELF_RELOC_IMPL<BITS>::save(DATA_MAP &out, bool rela) const
{
    out.UINT_write(r_offset_m, sizeof r_offset_m);
    out.UINT_write(r_info_m, sizeof r_info_m);
    if (rela) out.INT_write(r_addend_m, sizeof r_addend_m);
}

template class ELF_RELOC_IMPL<32>;

// ---- ELF_RELOC_TABLE ---------------------------------------------------------------

ELF_RELOC_TABLE::ELF_RELOC_TABLE(ELF_FILE *file, ELF_SECTION *section, ELF_SECTION *target)
    : OF_RELOC_TABLE(file, section), target_m(target)
{
}

ELF_RELOC_TABLE::~ELF_RELOC_TABLE() = default;

ELF_FILE *ELF_RELOC_TABLE::elf_file() const { return static_cast<ELF_FILE *>(ofile()); }

ELF_SECTION *ELF_RELOC_TABLE::elf_section() const { return static_cast<ELF_SECTION *>(section()); }

bool ELF_RELOC_TABLE::is_rela() const { return elf_section()->sh_type() == SHT_RELA; }

OF_SECTION *ELF_RELOC_TABLE::section_relocated() const { return target_m; }

unsigned ELF_RELOC_TABLE::reloc_size() const
{
    return is_rela() ? ELF_TRAITS<32>::rela_size : ELF_TRAITS<32>::rel_size;
}

int ELF_RELOC_TABLE::lock_reloc_table()
{
    purge_deleted_relocs();
    DATA_MAP &data = elf_section()->raw_data_nocheck();
    data.clear();
    // A relocation without a type the format can express can't be written.
    for (auto &r : relocs())
        if (!r->type() || !r->type()->reloc_template()) r->delete_reloc();
    purge_deleted_relocs();
    sort_relocs();
    const bool rela = is_rela();
    for (auto &r : relocs()) static_cast<ELF_RELOC *>(r.get())->save(data, rela);
    elf_section()->set_sh_entsize(reloc_size());
    return 0;
}

int ELF_RELOC_TABLE::progress_to_state(OF_STATE s) { return s == OFS_LOCKED ? lock_reloc_table() : 0; }

}  // namespace OFE
