#include <vector>

#include "ofe/elf_file.h"

namespace OFE {

namespace {

bool is_null_symbol(const ELF_SYMBOL *s)
{
    return s->name()[0] == '\0' && s->st_value() == 0 && s->st_size() == 0 && s->st_info() == 0 &&
           s->st_other() == 0 && s->st_shndx() == 0;
}

}  // namespace

ELF_SYMBOL_TABLE::ELF_SYMBOL_TABLE(ELF_FILE *file, ELF_SECTION *section) : OF_SYMBOL_TABLE(file, section) {}

ELF_SYMBOL_TABLE::~ELF_SYMBOL_TABLE() = default;

ELF_FILE *ELF_SYMBOL_TABLE::elf_file() const { return static_cast<ELF_FILE *>(ofile()); }

ELF_SECTION *ELF_SYMBOL_TABLE::elf_section() const { return static_cast<ELF_SECTION *>(section()); }

ELF_SYMBOL *ELF_SYMBOL_TABLE::elf_symbol(unsigned id) { return static_cast<ELF_SYMBOL *>(symbol(id)); }

unsigned ELF_SYMBOL_TABLE::symbol_size() const { return ELF_TRAITS<32>::sym_size; }

OF_SYMBOL *ELF_SYMBOL_TABLE::new_symbol()
{
    if (symnum() == 0) static_cast<ELF_SYMBOL *>(OF_SYMBOL_TABLE::new_symbol())->set_null();
    auto *s = static_cast<ELF_SYMBOL *>(OF_SYMBOL_TABLE::new_symbol());
    s->set_st_other(default_vis_m);
    return s;
}

ELF_SECTION *ELF_SYMBOL_TABLE::string_table_section()
{
    ELF_SECTION_TABLE *t = elf_file()->elf_section_table();
    ELF_SECTION *me = elf_section();
    ELF_SECTION *s = me->sh_link() ? t->elf_section(me->sh_link()) : nullptr;
    if (s && s->sh_type() == SHT_STRTAB) return s;
    s = static_cast<ELF_SECTION *>(t->section_name(".strtab"));
    if (!s || s->sh_type() != SHT_STRTAB) s = t->new_elf_section(".strtab");
    if (!s || !s->string_table_api()) {
        ofile()->set_error(OFERR_INTERNAL, "string table for symbol table \"%s\" not found", name());
        return nullptr;
    }
    me->set_sh_link(s->id());
    return s;
}

void ELF_SYMBOL_TABLE::update_section_refs(const RECORD_MAP<unsigned> &map)
{
    OF_SYMBOL_TABLE::update_section_refs(map);
}

void ELF_SYMBOL_TABLE::patch_symbol_refs(const RECORD_MAP<unsigned> &map)
{
    ELF_SECTION_TABLE *t = elf_file()->elf_section_table();
    for (unsigned i = 0; i < t->scnnum(); ++i) {
        ELF_SECTION *s = t->elf_section(i);
        if (!s) continue;
        if (auto *refs = dynamic_cast<OF_ID_REFS *>(s->type_api())) refs->update_symbol_refs(map);
    }
}

void ELF_SYMBOL_TABLE::patch_raw_data(const ELF_SYMBOL *sym)
{
    DATA_MAP &d = elf_section()->raw_data_nocheck();
    d.set_cursor(static_cast<uint64_t>(sym->id()) * symbol_size());
    sym->write_elf_symbol(d);
}

void ELF_SYMBOL_TABLE::lock_symbol_ordering()
{
    ELF_SYMBOL *null = nullptr;
    if (symnum() == 0) {
        null = static_cast<ELF_SYMBOL *>(OF_SYMBOL_TABLE::new_symbol());
        null->set_null();
    } else if (is_null_symbol(elf_symbol(0))) {
        null = elf_symbol(0);
    } else {
        ofile()->set_error(OFERR_INTERNAL, "symbol 0 is not a NULL symbol");
        null = static_cast<ELF_SYMBOL *>(OF_SYMBOL_TABLE::new_symbol());
        null->set_null();
    }
    std::vector<OF_SYMBOL *> order{null}, others;
    for (unsigned i = 0; i < symnum(); ++i) {
        OF_SYMBOL *s = symbol(i);
        if (!s || s == null) continue;
        (s->binding() == OFB_LOCAL ? order : others).push_back(s);
    }
    locals_m = static_cast<unsigned>(order.size());
    order.insert(order.end(), others.begin(), others.end());
    reorder_symbols(std::move(order));
    elf_section()->set_sh_info(locals_m);
}

int ELF_SYMBOL_TABLE::lock_symbol_table()
{
    ELF_FILE *f = elf_file();
    if (OF_MACHINE_DB *db = f->machine_db()) db->elf_lock_symbol_table(this);
    purge_deleted_symbols();
    lock_symbol_ordering();

    ELF_SECTION *me = elf_section();
    DATA_MAP &data = me->raw_data_nocheck();
    data.clear();
    if (ELF_SECTION *meta = f->sym_meta_section()) {
        meta->raw_data_nocheck().clear();
        meta->raw_data_nocheck().UINT8_write(1);
    }
    me->set_sh_entsize(symbol_size());

    ELF_SECTION_TABLE *t = f->elf_section_table();
    ELF_SECTION *shndx = nullptr;
    if (t->scnnum() >= SHN_LORESERVE) {
        bool extended = false;
        for (unsigned i = 0; i < symnum() && !extended; ++i) extended = elf_symbol(i)->st_shndx() == SHN_XINDEX;
        if (extended) {
            shndx = static_cast<ELF_SECTION *>(t->section_name(".symtab_shndx"));
            if (!shndx || shndx->sh_type() != SHT_SYMTAB_SHNDX) shndx = t->new_elf_section(".symtab_shndx");
            shndx->raw_data_nocheck().clear();
            shndx->set_sh_link(me->id());
        }
    }

    ELF_SECTION *strtab = string_table_section();
    if (!strtab) return -1;
    ELF_STRING_TABLE *names = strtab->string_table_api();
    names->clear();
    for (unsigned i = 0; i < symnum(); ++i) {
        ELF_SYMBOL *s = elf_symbol(i);
        s->set_st_name(names->add_string(s->name()));
        if (shndx) shndx->raw_data_nocheck().UINT32_write(s->st_shndx() == SHN_XINDEX ? s->extended_index() : 0);
    }
    data.set_min_bufsize(static_cast<size_t>(symnum()) * symbol_size());
    for (unsigned i = 0; i < symnum(); ++i) {
        ELF_SYMBOL *s = elf_symbol(i);
        s->write_elf_symbol(data);
        if (s->has_metainfo()) s->write_metainfo(f->create_sym_meta_scn()->raw_data_nocheck());
    }
    return 0;
}

int ELF_SYMBOL_TABLE::progress_to_state(OF_STATE s)
{
    return s == OFS_LOCKED ? lock_symbol_table() : 0;
}

}  // namespace OFE
