#include "ofe/elf_file.h"

#include <cstring>

#include "ofe/of_machine.h"

namespace OFE {

ELF_FILE::ELF_FILE(const OF_FILE_HANDLE &handle) : OBJECT_FILE(handle), machine_m(handle.machine)
{
    set_machine_db(OF_MACHINE_DB::machine_db(this, handle.machine));
}

ELF_FILE::~ELF_FILE()
{
    // Sections refer back to the file; they go first.
    section_table_m.reset();
}

ELF_SECTION_TABLE *ELF_FILE::elf_section_table()
{
    if (!section_table_m) section_table_m = alloc_section_table();
    return section_table_m.get();
}

// ---- special sections ------------------------------------------------------------

ELF_SECTION *ELF_FILE::symtab_section(bool create)
{
    if (symtab_m) return symtab_m;
    ELF_SECTION_TABLE *t = elf_section_table();
    for (unsigned i = 1; i < t->scnnum(); ++i) {
        ELF_SECTION *s = t->elf_section(i);
        if (s && s->sh_type() == SHT_SYMTAB) return symtab_m = s;
    }
    if (create) symtab_m = t->new_elf_section(".symtab");
    return symtab_m;
}

ELF_SYMBOL_TABLE *ELF_FILE::elf_symbol_table()
{
    ELF_SECTION *s = symtab_section(true);
    return s ? s->symbol_table_api() : nullptr;
}

unsigned ELF_FILE::symtab_id()
{
    ELF_SECTION *s = symtab_section(true);
    return s ? s->id() : 0;
}

ELF_SYMALIAS_TABLE *ELF_FILE::symalias_table(bool create)
{
    if (!symalias_m) {
        ELF_SECTION_TABLE *t = elf_section_table();
        for (unsigned i = 1; i < t->scnnum() && !symalias_m; ++i)
            if (ELF_SECTION *s = t->elf_section(i); s && s->is_symalias_section()) symalias_m = s;
        if (!symalias_m && create) symalias_m = t->new_elf_section(".ZQ.symbol.alias");
    }
    return symalias_m ? symalias_m->symalias_table_api(true) : nullptr;
}

ELF_SECTION *ELF_FILE::zq_sh_attr_section(int attr, bool create)
{
    OF_MACHINE_DB *db = machine_db();
    if (attr < 0 || attr > 2 || !db || !db->elf_supports_zq_sh_attr(attr)) return nullptr;
    if (scn_attr_m[attr]) return scn_attr_m[attr];
    const char *name = db->elf_zq_sh_attr_name(attr);
    ELF_SECTION_TABLE *t = elf_section_table();
    for (unsigned i = 1; i < t->scnnum(); ++i) {
        ELF_SECTION *s = t->elf_section(i);
        if (!s) continue;
        bool match = db->elf_match_zq_sh_attr_type(attr) ? s->sh_type() == db->elf_zq_sh_attr_type(attr)
                                                          : name && std::strcmp(s->name(), name) == 0;
        if (match) {
            scn_attr_m[attr] = s;
            break;
        }
    }
    if (!scn_attr_m[attr] && create && name) scn_attr_m[attr] = t->new_elf_section(name);
    if (scn_attr_m[attr]) scn_attr_m[attr]->scn_attr_table_api(attr, true);
    return scn_attr_m[attr];
}

ELF_SCN_ATTR_TABLE *ELF_FILE::zq_sh_attr_api(int attr, bool create)
{
    ELF_SECTION *s = zq_sh_attr_section(attr, create);
    return s ? s->scn_attr_table_api(attr, false) : nullptr;
}

ELF_SECTION *ELF_FILE::build_attributes()
{
    if (battr_m) return battr_m;
    ELF_SECTION_TABLE *t = elf_section_table();
    for (unsigned i = 1; i < t->scnnum(); ++i)
        if (ELF_SECTION *s = t->elf_section(i); s && s->sh_type() == SHT_ARM_ATTRIBUTES) return battr_m = s;
    battr_m = t->new_elf_section("__ZQ_build_attributes");
    return battr_m;
}

ELF_SECTION *ELF_FILE::create_sym_meta_scn()
{
    if (symmeta_m) return symmeta_m;
    ELF_SECTION_TABLE *t = elf_section_table();
    for (unsigned i = 1; i < t->scnnum(); ++i)
        if (ELF_SECTION *s = t->elf_section(i); s && s->sh_type() == SHT_ZQ_SYMTAB_META) return symmeta_m = s;
    unsigned link = symtab_id();
    symmeta_m = t->new_elf_section(".symtab_meta");
    symmeta_m->set_sh_type(SHT_ZQ_SYMTAB_META);
    symmeta_m->set_sh_link(link);
    symmeta_m->raw_data_nocheck().UINT8_write(1);
    return symmeta_m;
}

void ELF_FILE::section_deleted(const ELF_SECTION *s)
{
    for (ELF_SECTION **p : {&symtab_m, &battr_m, &symalias_m, &symmeta_m, &scn_attr_m[0], &scn_attr_m[1], &scn_attr_m[2]})
        if (*p == s) *p = nullptr;
    if (s->id() == shstrndx_m) shstrndx_m = 0;
}

// ---- properties ------------------------------------------------------------------

OF_FILE_TYPE ELF_FILE::file_type() const
{
    switch (e_type()) {
    case ET_REL: return OFT_RELOCATABLE;
    case ET_EXEC: return OFT_EXECUTABLE;
    case ET_DYN: return OFT_DYNAMIC;
    case ET_ZQ_STATIC_SHARED: return OFT_STATIC_SHARED;
    case ET_CORE: return OFT_CORE;
    default: return static_cast<OF_FILE_TYPE>(0);
    }
}

int ELF_FILE::set_file_type(OF_FILE_TYPE t)
{
    switch (t) {
    case OFT_RELOCATABLE: set_e_type(ET_REL); return 0;
    case OFT_EXECUTABLE: set_e_type(ET_EXEC); return 0;
    case OFT_DYNAMIC: set_e_type(ET_DYN); return 0;
    case OFT_STATIC_SHARED: set_e_type(ET_ZQ_STATIC_SHARED); return 0;
    case OFT_CORE: set_e_type(ET_CORE); return 0;
    default:
        set_e_type(ET_NONE);
        set_error(OFERR_ILLEGAL_OP, "invalid file type");
        return -1;
    }
}

OF_ENDIAN ELF_FILE::machine_endian() const { return handle_endian(); }

void ELF_FILE::set_machine_endian(OF_ENDIAN e)
{
    max_state(OFS_LOCKED);
    set_handle_endian(e);
    set_e_ident_entry(EI_DATA, e == OFE_BIG ? ELFDATA2MSB : ELFDATA2LSB);
    // Sections made earlier follow; their bytes are written by clients in
    // the map's order, so this matters only before any were written.
    if (section_table_m)
        for (unsigned i = 0; i < section_table_m->scnnum(); ++i)
            if (ELF_SECTION *s = section_table_m->elf_section(i)) s->raw_data_nocheck().set_big_endian(e == OFE_BIG);
}

unsigned ELF_FILE::shstrndx() const { return shstrndx_m; }

// ---- lifecycle -------------------------------------------------------------------

int ELF_FILE::progress_to_state(OF_STATE s)
{
    switch (s) {
    case OFS_LOCKED: return lock_elf_file();
    case OFS_FORMATTED: return format_elf_file();
    case OFS_SAVED: return save_elf_file();
    default: return 0;
    }
}

int ELF_FILE::revert_to_state(OF_STATE) { return -1; }

void ELF_FILE::load_and_clear_string_table()
{
    ELF_SECTION_TABLE *t = elf_section_table();
    for (unsigned i = 1; i < t->scnnum(); ++i) {
        ELF_SECTION *s = t->elf_section(i);
        if (!s || s->sh_link() == 0 || s->sh_link() == shstrndx_m) continue;
        switch (s->sh_type()) {
        case SHT_REL:
        case SHT_RELA:
        case SHT_GROUP:
        case SHT_SYMTAB_SHNDX:
        case SHT_ZQ_SYMTAB_META: continue;  // links to the symbol table
        default: break;
        }
        ELF_SECTION *strtab = t->elf_section(s->sh_link());
        if (!strtab || strtab->sh_type() != SHT_STRTAB || strtab->dynamic()) continue;
        if (ELF_STRING_TABLE *st = strtab->string_table_api()) st->clear();
    }
}

int ELF_FILE::lock_elf_file()
{
    load_and_clear_string_table();
    ELF_SECTION_TABLE *t = elf_section_table();
    t->lock_section_table_entries();
    if (t->set_state(OFS_LOCKED) != 0) return -1;
    finalize_file_header();
    return 0;
}

int ELF_FILE::format_elf_file()
{
    max_state(OFS_LOCKED);
    ELF_SECTION_TABLE *t = elf_section_table();
    uint64_t offset = e_ehsize();
    t->format_sections(offset);
    t->format_section_headers(offset);
    // Offsets of the 32-bit class would wrap, and later parts of the file
    // would overwrite earlier ones.
    if (format_class() == OFC_32 && offset > UINT32_MAX) {
        set_error(OFERR_TRUNCATED, "the object file would be %llu bytes, more than a 32-bit ELF file can address",
                  static_cast<unsigned long long>(offset));
        return -1;
    }
    if (t->set_state(OFS_FORMATTED) != 0) return -1;
    set_e_phoff(0);
    set_e_shoff(t->scnnum() ? t->file_offset() : 0);
    formatted_size_m = offset;
    return 0;
}

int ELF_FILE::save_elf_file()
{
    min_state(OFS_FORMATTED);
    if (write_file_header() != 0) return -1;
    return elf_section_table()->set_state(OFS_SAVED);
}

// ---- header of the 32-bit class ---------------------------------------------------

template <int BITS>
ELF_FILE_IMPL<BITS>::ELF_FILE_IMPL(const OF_FILE_HANDLE &handle) : ELF_FILE(handle)
{
    static constexpr unsigned char magic[4] = {0x7F, 'E', 'L', 'F'};
    std::memcpy(hdr_m.e_ident, magic, sizeof magic);
    hdr_m.e_ident[EI_VERSION] = EV_CURRENT;
    hdr_m.e_version = EV_CURRENT;
    hdr_m.e_ehsize = 0x34;
    hdr_m.e_phentsize = 0x20;
    hdr_m.e_shentsize = 0x28;
    set_elf_id();
    if (machine_db()) hdr_m.e_machine = static_cast<uint16_t>(machine_db()->elf_magic());
    hdr_m.e_ident[EI_DATA] = ELFDATA2LSB;
    hdr_m.e_type = ET_REL;
}

template <int BITS>
void ELF_FILE_IMPL<BITS>::set_elf_id()
{
    static constexpr unsigned char magic[4] = {0x7F, 'E', 'L', 'F'};
    std::memcpy(hdr_m.e_ident, magic, sizeof magic);
    hdr_m.e_ident[EI_CLASS] = Traits::elf_class;
    hdr_m.e_ident[EI_VERSION] = EV_CURRENT;
    hdr_m.e_ehsize = Traits::ehdr_size;
}

template <int BITS>
void ELF_FILE_IMPL<BITS>::set_e_flags(uint32_t v)
{
    max_state(OFS_LOCKED);
    hdr_m.e_flags |= v;
}

template <int BITS>
void ELF_FILE_IMPL<BITS>::clear_e_flags(uint32_t v)
{
    max_state(OFS_LOCKED);
    hdr_m.e_flags &= ~v;
}

template <int BITS>
void ELF_FILE_IMPL<BITS>::finalize_file_header()
{
    set_elf_id();
    hdr_m.e_ident[EI_DATA] = machine_endian() == OFE_BIG ? ELFDATA2MSB : ELFDATA2LSB;
    hdr_m.e_ehsize = Traits::ehdr_size;
    hdr_m.e_phentsize = Traits::phdr_size;
    hdr_m.e_phnum = 0;
    hdr_m.e_shentsize = Traits::shdr_size;
    unsigned count = elf_section_table()->scnnum();
    hdr_m.e_shnum = count >= SHN_LORESERVE ? 0 : static_cast<uint16_t>(count);
    hdr_m.e_shstrndx = shstrndx() >= SHN_LORESERVE ? SHN_XINDEX : static_cast<uint16_t>(shstrndx());
}

template <int BITS>
int ELF_FILE_IMPL<BITS>::write_file_header()
{
    DATA_MAP m(Traits::ehdr_size);
    m.set_big_endian(machine_endian() == OFE_BIG);
    m.write(hdr_m.e_ident, EI_NIDENT);
    m.UINT16_write(hdr_m.e_type);
    m.UINT16_write(hdr_m.e_machine);
    m.UINT32_write(hdr_m.e_version);
    m.UINT_write(hdr_m.e_entry, sizeof hdr_m.e_entry);
    m.UINT_write(hdr_m.e_phoff, sizeof hdr_m.e_phoff);
    m.UINT_write(hdr_m.e_shoff, sizeof hdr_m.e_shoff);
    m.UINT32_write(hdr_m.e_flags);
    m.UINT16_write(hdr_m.e_ehsize);
    m.UINT16_write(hdr_m.e_phentsize);
    m.UINT16_write(hdr_m.e_phnum);
    m.UINT16_write(hdr_m.e_shentsize);
    m.UINT16_write(hdr_m.e_shnum);
    m.UINT16_write(hdr_m.e_shstrndx);
    return put_file_data(m, 0);
}

template class ELF_FILE_IMPL<32>;

}  // namespace OFE
