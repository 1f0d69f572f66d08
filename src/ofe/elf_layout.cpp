// Lock, format and save steps of the ELF section table.
#include <cstring>
#include <string>
#include <vector>

#include "ofe/elf_file.h"

namespace OFE {

namespace {

bool is_producer(const OBJECT_FILE *f, const char *name)
{
    return f && std::strcmp(f->producer_name(), name) == 0;
}

uint64_t round_up(uint64_t v, uint64_t a) { return a > 1 ? (v + a - 1) / a * a : v; }

}  // namespace

void ELF_SECTION_TABLE::lock_section_table_entries()
{
    ELF_FILE *f = elf_file();
    OF_MACHINE_DB *db = f->machine_db();
    if (db && (is_producer(f, "Assembler") || is_producer(f, "Linker"))) {
        for (int attr = 0; attr < 3; ++attr) {
            if (!db->elf_supports_zq_sh_attr(attr)) continue;
            if (ELF_SECTION *s = f->zq_sh_attr_section(attr, true)) s->reset_state(OFS_OPEN);
        }
    }
    if (db) db->elf_lock_section_table(this);

    for (unsigned i = 1; i < scnnum(); ++i) {
        ELF_SECTION *s = elf_section(i);
        if (!s || !s->group_type()) continue;
        ELF_GROUP_TABLE *g = s->group_table_api();
        if (!g || g->member_count() == 0) delete_section(i);
    }
    purge_deleted_sections();
    lock_section_ordering();
}

void ELF_SECTION_TABLE::lock_section_ordering()
{
    ELF_SECTION *null = nullptr;
    if (scnnum() == 0) {
        null = static_cast<ELF_SECTION *>(OF_SECTION_TABLE::new_section(nullptr));
        null->clear_header();
    } else if (elf_section(0) && elf_section(0)->sh_type() == SHT_NULL) {
        null = elf_section(0);
    } else {
        ofile()->set_error(OFERR_INTERNAL, "section 0 is not a NULL section");
        null = static_cast<ELF_SECTION *>(OF_SECTION_TABLE::new_section(nullptr));
        null->clear_header();
    }

    std::vector<OF_SECTION *> groups, dynamic, contents, rest;
    for (unsigned i = 0; i < scnnum(); ++i) {
        ELF_SECTION *s = elf_section(i);
        if (!s || s == null) continue;
        if (s->group_type())
            groups.push_back(s);
        else if (s->dynamic())
            dynamic.push_back(s);
        else if (s->progbits_type() || s->sh_type() == SHT_NOBITS)
            contents.push_back(s);
        else
            rest.push_back(s);
    }
    std::vector<OF_SECTION *> order{null};
    for (auto *list : {&groups, &dynamic, &contents, &rest}) order.insert(order.end(), list->begin(), list->end());
    reorder_sections(std::move(order));
}

ELF_SECTION *ELF_SECTION_TABLE::shstrtab_section()
{
    ELF_FILE *f = elf_file();
    ELF_SECTION *s = f->shstrndx() ? elf_section(f->shstrndx()) : nullptr;
    if (!s || s->sh_type() != SHT_STRTAB) {
        s = new_elf_section(".shstrtab");
        f->set_shstrndx(s->id());
    }
    return s;
}

int ELF_SECTION_TABLE::lock_sections()
{
    int rc = 0;
    auto lock = [&rc](ELF_SECTION *s) {
        if (s->set_state(OFS_LOCKED) != 0) rc = -1;
    };
    // Locking the symbol table makes its string table; the name tables and
    // the vendor flags come after everything they describe.
    for (unsigned i = 0; i < scnnum(); ++i) {
        ELF_SECTION *s = elf_section(i);
        if (s && (s->sh_type() == SHT_DYNAMIC || s->sh_type() == SHT_SYMTAB || s->sh_type() == SHT_DYNSYM)) lock(s);
    }
    for (unsigned i = 0; i < scnnum(); ++i) {
        ELF_SECTION *s = elf_section(i);
        if (s && s->sh_type() != SHT_STRTAB && !s->is_scn_attr_section()) lock(s);
    }

    ELF_SECTION *shstrtab = shstrtab_section();
    ELF_STRING_TABLE *names = shstrtab->string_table_api();
    if (!names) return -1;
    names->clear();
    for (unsigned i = 0; i < scnnum(); ++i)
        if (ELF_SECTION *s = elf_section(i)) s->set_sh_name(names->add_string(s->name()));

    for (unsigned i = 0; i < scnnum(); ++i) {
        ELF_SECTION *s = elf_section(i);
        if (s && s->sh_type() == SHT_STRTAB) lock(s);
    }
    for (unsigned i = 0; i < scnnum(); ++i) {
        ELF_SECTION *s = elf_section(i);
        if (s && s->is_scn_attr_section()) lock(s);
    }

    // Counts that do not fit the 16-bit header fields live in section 0.
    if (ELF_SECTION *null = elf_section(0)) {
        if (scnnum() >= SHN_LORESERVE) null->set_sh_size(scnnum());
        if (elf_file()->shstrndx() >= SHN_LORESERVE) null->set_sh_link(elf_file()->shstrndx());
    }
    return rc;
}

void ELF_SECTION_TABLE::format_sections(uint64_t &offset)
{
    const unsigned min_align = elf_file()->elf_align();
    for (unsigned i = 0; i < scnnum(); ++i) {
        ELF_SECTION *s = elf_section(i);
        if (!s) continue;
        if (s->initialized()) s->set_sh_size(s->raw_data_nocheck().size());
        if (!s->allocated() && s->sh_size() == 0 && !s->dynamic()) {
            s->set_sh_offset(0);
            continue;
        }
        uint64_t align = 1;
        switch (s->sh_type()) {
        case SHT_SYMTAB:
        case SHT_RELA:
        case SHT_HASH:
        case SHT_DYNAMIC:
        case SHT_REL:
        case SHT_DYNSYM:
        case SHT_GROUP:
        case SHT_SYMTAB_SHNDX: align = min_align; break;
        default: break;
        }
        uint64_t wanted = s->sh_addralign() * s->unit_bytes();
        if (wanted > align) align = wanted;
        offset = round_up(offset, align);
        s->set_sh_offset(offset);
        if (s->initialized()) offset += s->sh_size();
    }
}

void ELF_SECTION_TABLE::format_section_headers(uint64_t &offset)
{
    offset = round_up(offset, 4);
    shdr_offset_m = offset;
    offset += static_cast<uint64_t>(scnnum()) * elf_file()->shdr_size();
}

int ELF_SECTION_TABLE::save_section_table()
{
    int rc = 0;
    if (scnnum() > 0) {
        DATA_MAP headers(static_cast<size_t>(scnnum()) * elf_file()->shdr_size());
        headers.set_big_endian(elf_file()->machine_endian() == OFE_BIG);
        for (unsigned i = 0; i < scnnum(); ++i)
            if (ELF_SECTION *s = elf_section(i)) s->write_header(headers);
        if (ofile()->put_file_data(headers, static_cast<uint32_t>(shdr_offset_m)) != 0) rc = -1;
    }
    for (unsigned i = 0; i < scnnum(); ++i)
        if (ELF_SECTION *s = elf_section(i); s && s->set_state(OFS_SAVED) != 0) rc = -1;
    return rc;
}

int ELF_SECTION_TABLE::progress_to_state(OF_STATE s)
{
    switch (s) {
    case OFS_LOCKED: return lock_sections();
    case OFS_FORMATTED: {
        int rc = 0;
        for (unsigned i = 0; i < scnnum(); ++i)
            if (ELF_SECTION *sec = elf_section(i); sec && sec->set_state(s) != 0) rc = -1;
        return rc;
    }
    case OFS_SAVED: return save_section_table();
    default: return 0;
    }
}

}  // namespace OFE
