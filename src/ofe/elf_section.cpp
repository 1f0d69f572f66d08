#include "ofe/elf_section.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "ofe/elf_file.h"

namespace OFE {

namespace {

constexpr uint64_t KEPT_ON_RETYPE = SHF_GROUP | SHF_LINK_ORDER | SHF_INFO_LINK;

}  // namespace

ELF_SECTION::ELF_SECTION(ELF_SECTION_TABLE *table, unsigned id) : OF_SECTION(table, id) {}

ELF_SECTION::~ELF_SECTION() = default;

ELF_SECTION_TABLE *ELF_SECTION::elf_table() const { return static_cast<ELF_SECTION_TABLE *>(table()); }

ELF_FILE *ELF_SECTION::elf_file() const { return static_cast<ELF_FILE *>(ofile()); }

bool ELF_SECTION::progbits_type() const
{
    return sh_type() == SHT_PROGBITS && !is_scn_attr_section() && !is_symalias_section();
}

bool ELF_SECTION::is_build_attr() const
{
    return ofile() && ofile()->build_attributes_supported() && sh_type() == SHT_ARM_ATTRIBUTES;
}

bool ELF_SECTION::is_scn_attr_section() const
{
    if (dynamic_cast<const ELF_SCN_ATTR_TABLE *>(type_api_m.get())) return true;
    const OF_MACHINE_DB *db = ofile() ? ofile()->machine_db() : nullptr;
    if (!db) return false;
    for (int attr = 0; attr < 3; ++attr) {
        if (!db->elf_supports_zq_sh_attr(attr)) continue;
        if (db->elf_match_zq_sh_attr_type(attr)) {
            if (sh_type() == db->elf_zq_sh_attr_type(attr)) return true;
        } else if (const char *n = db->elf_zq_sh_attr_name(attr); n && std::strcmp(n, name()) == 0) {
            return true;
        }
    }
    return false;
}

bool ELF_SECTION::is_symalias_section() const
{
    if (dynamic_cast<const ELF_SYMALIAS_TABLE *>(type_api_m.get())) return true;
    const OF_MACHINE_DB *db = ofile() ? ofile()->machine_db() : nullptr;
    if (db && db->elf_match_symalias_type()) return sh_type() == db->elf_symalias_type();
    return std::strcmp(name(), ".ZQ.symbol.alias") == 0;
}

void ELF_SECTION::set_allocated(bool a)
{
    set_sh_flags(a ? sh_flags() | SHF_ALLOC : sh_flags() & ~uint64_t{SHF_ALLOC});
}

namespace {

// Type and flags of a section kind, keeping the flags that tie the section
// to others.
void take_row(ELF_SECTION *s, const char *row_name)
{
    const ELF_SPECIAL_SECTION *row = s->elf_table()->special_section(row_name);
    if (!row) return;
    s->set_sh_type(row->sh_type);
    s->set_sh_flags(row->sh_flags | (s->sh_flags() & KEPT_ON_RETYPE));
}

}  // namespace

void ELF_SECTION::set_exec()
{
    take_row(this, ".text");
    set_sh_flags(sh_flags() & ~uint64_t{SHF_WRITE});
}

void ELF_SECTION::set_data()
{
    take_row(this, ".data");
    set_sh_flags(sh_flags() & ~uint64_t{SHF_EXECINSTR});
}

void ELF_SECTION::set_const_data()
{
    set_data();
    set_sh_flags(sh_flags() & ~uint64_t{SHF_WRITE});
}

void ELF_SECTION::set_bss()
{
    take_row(this, ".bss");
    set_sh_flags(sh_flags() & ~uint64_t{SHF_EXECINSTR});
}

void ELF_SECTION::set_group(OF_GROUP_TABLE *g)
{
    OF_SECTION::set_group(g);
    set_sh_flags(sh_flags() | SHF_GROUP);
}

void ELF_SECTION::clear_group()
{
    OF_SECTION::clear_group();
    set_sh_flags(sh_flags() & ~uint64_t{SHF_GROUP});
}

void ELF_SECTION::set_sh_link_order(uint32_t link)
{
    set_sh_link(link);
    set_sh_flags(link ? sh_flags() | SHF_LINK_ORDER : sh_flags() & ~uint64_t{SHF_LINK_ORDER});
}

uint64_t ELF_SECTION::size() const
{
    uint64_t bytes = initialized() ? raw_data_nocheck().size() : sh_size();
    return bytes / unit_bytes();
}

void ELF_SECTION::set_size(uint64_t units) { set_sh_size(units * unit_bytes()); }

// ---- type interfaces -----------------------------------------------------------

ELF_SYMBOL_TABLE *ELF_SECTION::symbol_table_api()
{
    if (!type_api_m && (sh_type() == SHT_SYMTAB || sh_type() == SHT_DYNSYM))
        type_api_m = std::make_unique<ELF_SYMBOL_TABLE_IMPL<32>>(elf_file(), this);
    return dynamic_cast<ELF_SYMBOL_TABLE *>(type_api_m.get());
}

ELF_STRING_TABLE *ELF_SECTION::string_table_api()
{
    if (!type_api_m && sh_type() == SHT_STRTAB) type_api_m = std::make_unique<ELF_STRING_TABLE>(elf_file(), this);
    return dynamic_cast<ELF_STRING_TABLE *>(type_api_m.get());
}

ELF_RELOC_TABLE *ELF_SECTION::reloc_table_api()
{
    if (!type_api_m && (sh_type() == SHT_REL || sh_type() == SHT_RELA)) {
        OF_SECTION *target = elf_table()->section(sh_info());
        auto *t = dynamic_cast<ELF_SECTION *>(target);
        if (t && (t->is_deleted() || sh_info() == 0)) t = nullptr;
        auto table = std::make_unique<ELF_RELOC_TABLE_IMPL<32>>(elf_file(), this, t);
        ELF_RELOC_TABLE *raw = table.get();
        type_api_m = std::move(table);
        if (t) t->add_reloc_table(raw);
    }
    return dynamic_cast<ELF_RELOC_TABLE *>(type_api_m.get());
}

ELF_GROUP_TABLE *ELF_SECTION::group_table_api()
{
    if (!type_api_m && sh_type() == SHT_GROUP) {
        set_unit_size(8);
        type_api_m = std::make_unique<ELF_GROUP_TABLE>(elf_file(), this);
    }
    return dynamic_cast<ELF_GROUP_TABLE *>(type_api_m.get());
}

OF_GROUP_TABLE *ELF_SECTION::group_api() { return group_table_api(); }

ELF_SCN_ATTR_TABLE *ELF_SECTION::scn_attr_table_api(int attr, bool create)
{
    if (!type_api_m && create) type_api_m = std::make_unique<ELF_SCN_ATTR_TABLE>(elf_file(), this, attr);
    return dynamic_cast<ELF_SCN_ATTR_TABLE *>(type_api_m.get());
}

ELF_SYMALIAS_TABLE *ELF_SECTION::symalias_table_api(bool create)
{
    if (!type_api_m && create) type_api_m = std::make_unique<ELF_SYMALIAS_TABLE>(elf_file(), this);
    return dynamic_cast<ELF_SYMALIAS_TABLE *>(type_api_m.get());
}

// ---- relocations -----------------------------------------------------------------

OF_RELOC_TABLE *ELF_SECTION::reloc_table(unsigned i)
{
    return i < reloc_tables_m.size() ? reloc_tables_m[i] : nullptr;
}

ELF_RELOC_TABLE *ELF_SECTION::find_reloc_table(bool rela)
{
    for (ELF_RELOC_TABLE *t : reloc_tables_m)
        if (t->is_rela() == rela) return t;
    return nullptr;
}

void ELF_SECTION::remove_reloc_table(const ELF_RELOC_TABLE *t) { std::erase(reloc_tables_m, t); }

OF_RELOC *ELF_SECTION::new_reloc(bool rela)
{
    ELF_RELOC_TABLE *table = find_reloc_table(rela);
    if (!table) {
        std::string name = std::string(rela ? ".rela" : ".rel") + this->name();
        ELF_SECTION *rs = elf_table()->new_elf_section(name.c_str());
        // ".rel" + "a.data" reads as a RELA name.
        if (!rela && rs->sh_type() == SHT_RELA) {
            rs->set_sh_type(SHT_REL);
            rs->set_sh_entsize(rs->sizeof_sh_entsize_rel());
        }
        rs->set_sh_info(id());
        rs->set_sh_link(elf_file()->symtab_id());
        table = rs->reloc_table_api();
        if (!table) return nullptr;
    }
    return table->new_reloc();
}

OF_SYMBOL *ELF_SECTION::create_section_symbol()
{
    ELF_SYMBOL_TABLE *symtab = elf_file()->elf_symbol_table();
    if (!symtab) return nullptr;
    ELF_SYMBOL *s = symtab->new_elf_symbol();
    s->set_name(name());
    s->set_section(this);
    s->set_binding(OFB_LOCAL);
    s->set_type(OFY_SECTION);
    return s;
}

// ---- lifecycle -----------------------------------------------------------------

int ELF_SECTION::lock_section()
{
    int rc = 0;
    if (sh_type() == SHT_SYMTAB || sh_type() == SHT_DYNSYM) symbol_table_api();
    if (type_api_m) rc = type_api_m->set_state(OFS_LOCKED);
    if (initialized()) {
        DATA_MAP &d = raw_data_nocheck();
        // Held bytes and zero runs are what the save writes; only a map
        // that stands for a file range is loaded.
        if (!d.in_memory()) d.load();
        set_sh_size(d.size());
    }
    return rc;
}

int ELF_SECTION::progress_to_state(OF_STATE s)
{
    switch (s) {
    case OFS_LOCKED: return lock_section();
    case OFS_FORMATTED: return type_api_m ? type_api_m->set_state(s) : 0;
    case OFS_SAVED: {
        int rc = save();
        if (type_api_m && type_api_m->set_state(s) != 0) rc = -1;
        return rc;
    }
    default: return 0;
    }
}

int ELF_SECTION::save()
{
    min_state(OFS_FORMATTED);
    if (!initialized() || direct_write()) return 0;
    return elf_file()->put_file_data(raw_data_nocheck(), static_cast<uint32_t>(sh_offset()));
}

// ---- 32-bit header -----------------------------------------------------------

namespace {

template <typename F>
F narrow(ELF_SECTION *s, uint64_t v, const char *field)
{
    if (v > static_cast<uint64_t>(static_cast<F>(~F{})) && s->ofile())
        s->ofile()->set_error(OFERR_TRUNCATED, "value 0x%llx of %s of section \"%s\" truncated",
                              static_cast<unsigned long long>(v), field, s->name());
    return static_cast<F>(v);
}

}  // namespace

template <int BITS>
void ELF_SECTION_IMPL<BITS>::set_sh_flags(uint64_t v)
{
    hdr_m.sh_flags = narrow<decltype(hdr_m.sh_flags)>(this, v, "sh_flags");
}

template <int BITS>
void ELF_SECTION_IMPL<BITS>::set_sh_addr(uint64_t v)
{
    hdr_m.sh_addr = narrow<decltype(hdr_m.sh_addr)>(this, v, "sh_addr");
}

template <int BITS>
void ELF_SECTION_IMPL<BITS>::set_sh_offset(uint64_t v)
{
    hdr_m.sh_offset = narrow<decltype(hdr_m.sh_offset)>(this, v, "sh_offset");
}

template <int BITS>
void ELF_SECTION_IMPL<BITS>::set_sh_size(uint64_t v)
{
    hdr_m.sh_size = narrow<decltype(hdr_m.sh_size)>(this, v, "sh_size");
}

template <int BITS>
void ELF_SECTION_IMPL<BITS>::set_sh_addralign(uint64_t v)
{
    hdr_m.sh_addralign = narrow<decltype(hdr_m.sh_addralign)>(this, v, "sh_addralign");
}

template <int BITS>
void ELF_SECTION_IMPL<BITS>::set_sh_entsize(uint64_t v)
{
    hdr_m.sh_entsize = narrow<decltype(hdr_m.sh_entsize)>(this, v, "sh_entsize");
}

template <int BITS>
void ELF_SECTION_IMPL<BITS>::write_header(DATA_MAP &out) const
{
    out.UINT_write(hdr_m.sh_name, sizeof hdr_m.sh_name);
    out.UINT_write(hdr_m.sh_type, sizeof hdr_m.sh_type);
    out.UINT_write(hdr_m.sh_flags, sizeof hdr_m.sh_flags);
    out.UINT_write(hdr_m.sh_addr, sizeof hdr_m.sh_addr);
    out.UINT_write(hdr_m.sh_offset, sizeof hdr_m.sh_offset);
    out.UINT_write(hdr_m.sh_size, sizeof hdr_m.sh_size);
    out.UINT_write(hdr_m.sh_link, sizeof hdr_m.sh_link);
    out.UINT_write(hdr_m.sh_info, sizeof hdr_m.sh_info);
    out.UINT_write(hdr_m.sh_addralign, sizeof hdr_m.sh_addralign);
    out.UINT_write(hdr_m.sh_entsize, sizeof hdr_m.sh_entsize);
}

template class ELF_SECTION_IMPL<32>;

}  // namespace OFE
