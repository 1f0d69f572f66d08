#include <cstring>
#include <string>
#include <string_view>

#include "ofe/elf_file.h"

namespace OFE {

const ELF_SPECIAL_SECTION ELF_SPECIAL_SECTION_DB[] = {
    {".bss", SHT_NOBITS, 0, 3, 0},
    {".comment", SHT_PROGBITS, 0, 0, 8},
    {".data", SHT_PROGBITS, 0, 3, 0},
    {".data1", SHT_PROGBITS, 0, 3, 0},
    {".debug", SHT_PROGBITS, 0, 0, 8},
    {".dynamic", SHT_DYNAMIC, 8, 2, 8},
    {".dynstr", SHT_STRTAB, 1, 0x22, 8},
    {".dynsym", SHT_DYNSYM, 16, 2, 8},
    {".fini", SHT_PROGBITS, 0, 6, 0},
    {".fini_array", SHT_FINI_ARRAY, 0, 3, 0},
    {".got", SHT_PROGBITS, 4, 3, 0},
    {".hash", SHT_HASH, 0, 2, 8},
    {".init", SHT_PROGBITS, 0, 6, 0},
    {".init_array", SHT_INIT_ARRAY, 0, 3, 0},
    {".interp", SHT_PROGBITS, 0, 0, 8},
    {".line", SHT_PROGBITS, 0, 0, 8},
    {".note", SHT_NOTE, 0, 0, 8},
    {".plt", SHT_PROGBITS, 0, 0, 8},
    {".preinit_array", SHT_PREINIT_ARRAY, 0, 3, 0},
    {".rel", SHT_REL, 8, 0, 8},
    {".rela", SHT_RELA, 12, 0, 8},
    {".rodata", SHT_PROGBITS, 0, 2, 0},
    {".rodata1", SHT_PROGBITS, 0, 2, 0},
    {".shstrtab", SHT_STRTAB, 1, 0x20, 8},
    {".strtab", SHT_STRTAB, 1, 0x20, 8},
    {".symtab", SHT_SYMTAB, 16, 0, 8},
    {".symtab_shndx", SHT_SYMTAB_SHNDX, 4, 0, 8},
    {".tbss", SHT_NOBITS, 0, 0x403, 0},
    {".tdata", SHT_PROGBITS, 0, 0x403, 0},
    {".tdata1", SHT_PROGBITS, 0, 0x403, 0},
    {".text", SHT_PROGBITS, 0, 6, 0},
    {"__ZQ_build_attributes", SHT_ARM_ATTRIBUTES, 0, 0, 8},
    {".ZQ.section.flags", SHT_ZQ_SECTION_FLAGS, 0, 0, 8},
    {".ZQ.symbol.alias", SHT_ZQ_SYMBOL_ALIAS, 0, 0, 8},
    {".ZQ.section.page", SHT_ZQ_SECTION_PAGE, 0, 0, 8},
    {nullptr, 0, 0, 0, 0},
};

ELF_SECTION_TABLE::ELF_SECTION_TABLE(ELF_FILE *file) : OF_SECTION_TABLE(file) {}

ELF_SECTION_TABLE::~ELF_SECTION_TABLE() = default;

ELF_FILE *ELF_SECTION_TABLE::elf_file() const { return static_cast<ELF_FILE *>(ofile()); }

ELF_SECTION *ELF_SECTION_TABLE::elf_section(unsigned id)
{
    OF_SECTION *s = section(id);
    return s && !s->is_deleted() ? static_cast<ELF_SECTION *>(s) : nullptr;
}

// ---- special sections ------------------------------------------------------------

void ELF_SECTION_TABLE::build_special_sections()
{
    if (special_built_m) return;
    special_built_m = true;
    for (const ELF_SPECIAL_SECTION *row = ELF_SPECIAL_SECTION_DB; row->name; ++row) special_m[row->name] = *row;
    if (ofile() && ofile()->machine_db()) ofile()->machine_db()->elf_build_special_section_hash(special_m);
}

const ELF_SPECIAL_SECTION *ELF_SECTION_TABLE::special_section(const char *name)
{
    if (!name) return nullptr;
    build_special_sections();
    std::string_view n = name;
    auto it = special_m.find(n);
    if (it != special_m.end()) return &it->second;
    const ELF_SPECIAL_SECTION *best = nullptr;
    std::size_t best_len = 0;
    for (const auto &[key, row] : special_m) {
        if (key.size() > best_len && n.starts_with(key)) {
            best = &row;
            best_len = key.size();
        }
    }
    if (best) return best;
    if (n.ends_with("_shndx")) {
        it = special_m.find(".symtab_shndx");
        if (it != special_m.end()) return &it->second;
    }
    return nullptr;
}

// ---- creation and deletion ---------------------------------------------------

OF_SECTION *ELF_SECTION_TABLE::new_section(const char *name) { return new_elf_section(name); }

ELF_SECTION *ELF_SECTION_TABLE::new_elf_section(const char *name)
{
    OF_MACHINE_DB *db = ofile() ? ofile()->machine_db() : nullptr;
    unsigned machine_unit = db ? db->unit_size() : 8;
    if (scnnum() == 0) {
        auto *null = static_cast<ELF_SECTION *>(OF_SECTION_TABLE::new_section(nullptr));
        null->clear_header();
        null->set_unit_size(machine_unit);
    }
    std::string final_name;
    if (!(name && db && db->elf_special_section_name(this, name, final_name)) && name) final_name = name;
    const ELF_SPECIAL_SECTION *row = special_section(name);
    auto *s = static_cast<ELF_SECTION *>(OF_SECTION_TABLE::new_section(name ? final_name.c_str() : nullptr));
    if (row) {
        s->set_sh_type(row->sh_type);
        s->set_sh_flags(row->sh_flags);
        s->set_sh_entsize(row->sh_entsize);
        s->set_unit_size(row->unit_size ? row->unit_size : machine_unit);
    } else {
        s->set_unit_size(machine_unit);
    }
    return s;
}

OF_SECTION *ELF_SECTION_TABLE::new_group(const char *name)
{
    ELF_SECTION *s = new_elf_section(name);
    s->set_sh_type(SHT_GROUP);
    s->set_sh_flags(0);
    s->set_sh_entsize(4);
    s->group_table_api();
    return s;
}

void ELF_SECTION_TABLE::delete_section(unsigned id)
{
    ELF_SECTION *s = elf_section(id);
    if (!s) return;
    // The relocation sections of a section go with it.
    while (s->reloc_table_num() > 0) {
        auto *t = static_cast<ELF_RELOC_TABLE *>(s->reloc_table(0));
        s->remove_reloc_table(t);
        t->forget_target();
        delete_section(t->elf_section()->id());
    }
    if (auto *t = dynamic_cast<ELF_RELOC_TABLE *>(s->type_api()); t && t->target())
        t->target()->remove_reloc_table(t);
    if (auto *g = dynamic_cast<ELF_GROUP_TABLE *>(s->type_api())) {
        for (unsigned i = 0; i < g->member_count(); ++i)
            if (OF_SECTION *m = g->member(i); m && m->group() == g) m->clear_group();
    }
    if (OF_GROUP_TABLE *g = s->group()) g->delete_member(s);
    elf_file()->section_deleted(s);
    OF_SECTION_TABLE::delete_section(id);
}

// ---- renumbering -------------------------------------------------------------

void ELF_SECTION_TABLE::update_translations(const RECORD_MAP<unsigned> &map)
{
    OF_SECTION_TABLE::update_translations(map);
    if (ELF_SECTION *symtab = elf_file()->symtab_section(false))
        if (ELF_SYMBOL_TABLE *t = symtab->symbol_table_api()) t->update_section_refs(map);
    for (unsigned i = 0; i < scnnum(); ++i) {
        ELF_SECTION *s = elf_section(i);
        if (!s) continue;
        if (auto *refs = dynamic_cast<OF_ID_REFS *>(s->type_api())) refs->update_section_refs(map);
    }
}

void ELF_SECTION_TABLE::patch_section_refs(const RECORD_MAP<unsigned> &map)
{
    auto xlate = [&map](uint32_t id) {
        uint32_t n = map(id);
        return n == RECORD_MAP<unsigned>::DELETED ? 0u : n;
    };
    ELF_FILE *f = elf_file();
    f->set_shstrndx(xlate(f->shstrndx()));
    for (unsigned i = 1; i < scnnum(); ++i) {
        ELF_SECTION *s = elf_section(i);
        if (!s) continue;
        switch (s->sh_type()) {
        case SHT_REL:
        case SHT_RELA:
            s->set_sh_info(xlate(s->sh_info()));
            s->set_sh_link(xlate(s->sh_link()));
            break;
        case SHT_SYMTAB:
        case SHT_DYNSYM:
        case SHT_GROUP:
        case SHT_SYMTAB_SHNDX:
        case SHT_ZQ_SYMTAB_META:
            s->set_sh_link(xlate(s->sh_link()));
            break;
        default: {
            const ELF_SPECIAL_SECTION *row = special_section(s->name());
            if ((row && (row->sh_flags & SHF_LINK_ORDER)) || (s->sh_flags() & SHF_LINK_ORDER))
                s->set_sh_link_order(xlate(s->sh_link()));
            break;
        }
        }
    }
}

}  // namespace OFE
