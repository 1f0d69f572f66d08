// ELF sections and the ELF section table.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "ofe/elf_defs.h"
#include "ofe/of_machine.h"
#include "ofe/of_section.h"

namespace OFE {

class ELF_FILE;
class ELF_SECTION_TABLE;
class ELF_SYMBOL_TABLE;
class ELF_STRING_TABLE;
class ELF_RELOC_TABLE;
class ELF_GROUP_TABLE;
class ELF_SCN_ATTR_TABLE;
class ELF_SYMALIAS_TABLE;

class ELF_SECTION : public OF_SECTION {
public:
    ELF_SECTION(ELF_SECTION_TABLE *table, unsigned id);
    ~ELF_SECTION() override;

    ELF_SECTION_TABLE *elf_table() const;
    ELF_FILE *elf_file() const;
    ELF_SECTION *elf_api() override { return this; }

    // Header fields, in file layout.
    virtual uint32_t sh_name() const = 0;
    virtual void set_sh_name(uint32_t v) = 0;
    virtual uint32_t sh_type() const = 0;
    virtual void set_sh_type(uint32_t v) = 0;
    virtual uint64_t sh_flags() const = 0;
    virtual void set_sh_flags(uint64_t v) = 0;
    virtual uint64_t sh_addr() const = 0;
    virtual void set_sh_addr(uint64_t v) = 0;
    virtual uint64_t sh_offset() const = 0;
    virtual void set_sh_offset(uint64_t v) = 0;
    virtual uint64_t sh_size() const = 0;
    virtual void set_sh_size(uint64_t v) = 0;
    virtual unsigned sizeof_sh_size() const = 0;
    virtual unsigned sizeof_sh_entsize_rel() const = 0;
    virtual uint32_t sh_link() const = 0;
    virtual void set_sh_link(uint32_t v) = 0;
    virtual uint32_t sh_info() const = 0;
    virtual void set_sh_info(uint32_t v) = 0;
    virtual uint64_t sh_addralign() const = 0;
    virtual void set_sh_addralign(uint64_t v) = 0;
    virtual uint64_t max_sh_addralign() const = 0;
    virtual uint64_t sh_entsize() const = 0;
    virtual void set_sh_entsize(uint64_t v) = 0;
    // Appends the header in the map's byte order.
    virtual void write_header(DATA_MAP &out) const = 0;
    // All header fields to 0.
    virtual void clear_header() = 0;

    // Classification, from the header.
    bool allocated() const override { return (sh_flags() & SHF_ALLOC) != 0; }
    bool exec() const override { return (sh_flags() & SHF_EXECINSTR) != 0; }
    bool initialized() const override { return sh_type() != SHT_NULL && sh_type() != SHT_NOBITS; }
    bool progbits_type() const;
    bool data() const override { return progbits_type() && !exec(); }
    bool bss() const override { return sh_type() == SHT_NOBITS && allocated() && !exec(); }
    bool group_type() const override { return sh_type() == SHT_GROUP; }
    bool is_build_attr() const override;
    bool is_scn_attr_section() const;
    bool is_symalias_section() const;
    bool dynamic() const { return dynamic_m; }

    void set_allocated(bool a) override;
    void set_exec() override;
    void set_data() override;
    void set_const_data() override;
    void set_bss() override;
    void set_group(OF_GROUP_TABLE *g) override;
    void clear_group() override;
    // Sets SHF_LINK_ORDER when `link` is not 0, and the link.
    void set_sh_link_order(uint32_t link);

    uint64_t load_addr() const override { return sh_addr(); }
    void set_load_addr(uint64_t a) override { set_sh_addr(a); }
    uint64_t run_addr() const override { return sh_addr(); }
    void set_run_addr(uint64_t a) override { set_sh_addr(a); }
    uint64_t align() const override { return sh_addralign(); }
    void set_align(uint64_t a) override { set_sh_addralign(a); }
    unsigned unit_size() const override { return unit_size_m; }
    void set_unit_size(unsigned bits) override { unit_size_m = bits; }
    unsigned unit_bytes() const { return unit_size_m >= 8 ? unit_size_m / 8 : 1; }
    uint64_t size() const override;
    void set_size(uint64_t units) override;
    uint64_t file_offset() const override { return sh_offset(); }

    // Vendor section flags (attribute 0) and the other attribute slots.
    uint32_t zq_sh_flags() const { return zq_sh_attr_m[0]; }
    void set_zq_sh_flags(uint32_t v) { zq_sh_attr_m[0] = v; }
    uint32_t zq_sh_attr(int attr) const { return attr >= 0 && attr < 3 ? zq_sh_attr_m[attr] : 0; }
    void set_zq_sh_attr(int attr, uint32_t v) {
        if (attr >= 0 && attr < 3) zq_sh_attr_m[attr] = v;
    }

    // The type interface, made on first use from the section type.
    ELF_SYMBOL_TABLE *symbol_table_api();
    ELF_STRING_TABLE *string_table_api();
    ELF_RELOC_TABLE *reloc_table_api();
    ELF_GROUP_TABLE *group_table_api();
    OF_GROUP_TABLE *group_api() override;
    ELF_SCN_ATTR_TABLE *scn_attr_table_api(int attr, bool create);
    ELF_SYMALIAS_TABLE *symalias_table_api(bool create);
    OF_STATE_MACHINE *type_api() const { return type_api_m.get(); }
    // For interfaces made outside this family (build attributes).
    void set_type_api(std::unique_ptr<OF_STATE_MACHINE> api) { type_api_m = std::move(api); }

    // Relocation tables that apply to this section.
    unsigned reloc_table_num() const override { return static_cast<unsigned>(reloc_tables_m.size()); }
    OF_RELOC_TABLE *reloc_table(unsigned i) override;
    OF_RELOC *new_reloc(bool rela) override;
    ELF_RELOC_TABLE *find_reloc_table(bool rela);
    void add_reloc_table(ELF_RELOC_TABLE *t) { reloc_tables_m.push_back(t); }
    void remove_reloc_table(const ELF_RELOC_TABLE *t);

    OF_SYMBOL *create_section_symbol() override;
    int save() override;

    int progress_to_state(OF_STATE s) override;
    int revert_to_state(OF_STATE) override { return 0; }

protected:
    int lock_section();

private:
    unsigned unit_size_m = 8;
    uint32_t zq_sh_attr_m[3] = {0, 0, 0};
    bool dynamic_m = false;
    std::vector<ELF_RELOC_TABLE *> reloc_tables_m;
    std::unique_ptr<OF_STATE_MACHINE> type_api_m;
};

template <int BITS>
class ELF_SECTION_IMPL : public ELF_SECTION {
public:
    using Shdr = typename ELF_TRAITS<BITS>::Shdr;

    ELF_SECTION_IMPL(ELF_SECTION_TABLE *table, unsigned id) : ELF_SECTION(table, id) {}

    uint32_t sh_name() const override { return hdr_m.sh_name; }
    void set_sh_name(uint32_t v) override { hdr_m.sh_name = v; }
    uint32_t sh_type() const override { return hdr_m.sh_type; }
    void set_sh_type(uint32_t v) override { hdr_m.sh_type = v; }
    uint64_t sh_flags() const override { return hdr_m.sh_flags; }
    void set_sh_flags(uint64_t v) override;
    uint64_t sh_addr() const override { return hdr_m.sh_addr; }
    void set_sh_addr(uint64_t v) override;
    uint64_t sh_offset() const override { return hdr_m.sh_offset; }
    void set_sh_offset(uint64_t v) override;
    uint64_t sh_size() const override { return hdr_m.sh_size; }
    void set_sh_size(uint64_t v) override;
    unsigned sizeof_sh_size() const override { return sizeof(hdr_m.sh_size); }
    unsigned sizeof_sh_entsize_rel() const override { return ELF_TRAITS<BITS>::rel_size; }
    uint32_t sh_link() const override { return hdr_m.sh_link; }
    void set_sh_link(uint32_t v) override { hdr_m.sh_link = v; }
    uint32_t sh_info() const override { return hdr_m.sh_info; }
    void set_sh_info(uint32_t v) override { hdr_m.sh_info = v; }
    uint64_t sh_addralign() const override { return hdr_m.sh_addralign; }
    void set_sh_addralign(uint64_t v) override;
    uint64_t max_sh_addralign() const override { return ~static_cast<decltype(hdr_m.sh_addralign)>(0); }
    uint64_t sh_entsize() const override { return hdr_m.sh_entsize; }
    void set_sh_entsize(uint64_t v) override;
    void write_header(DATA_MAP &out) const override;
    void clear_header() override { hdr_m = Shdr{}; }

private:
    Shdr hdr_m{};
};

class ELF_SECTION_TABLE : public OF_SECTION_TABLE {
public:
    explicit ELF_SECTION_TABLE(ELF_FILE *file);
    ~ELF_SECTION_TABLE() override;

    ELF_FILE *elf_file() const;
    ELF_SECTION_TABLE *elf_api() override { return this; }
    ELF_SECTION *elf_section(unsigned id);

    OF_SECTION *new_section(const char *name) override;
    ELF_SECTION *new_elf_section(const char *name);
    OF_SECTION *new_group(const char *name) override;
    void delete_section(unsigned id) override;
    void update_translations(const RECORD_MAP<unsigned> &map) override;
    void patch_section_refs(const RECORD_MAP<unsigned> &map) override;

    // The row that a name gets its attributes from, or null.
    const ELF_SPECIAL_SECTION *special_section(const char *name);

    // Lock, format and save steps.
    void lock_section_table_entries();
    void lock_section_ordering();
    int lock_sections();
    void format_sections(uint64_t &offset);
    void format_section_headers(uint64_t &offset);
    uint64_t file_offset() const { return shdr_offset_m; }
    int save_section_table();

    int progress_to_state(OF_STATE s) override;
    int revert_to_state(OF_STATE) override { return 0; }

private:
    void build_special_sections();
    // The section name table, created when missing.
    ELF_SECTION *shstrtab_section();

    ELF_SPECIAL_SECTION_MAP special_m;
    bool special_built_m = false;
    uint64_t shdr_offset_m = 0;
};

template <int BITS>
class ELF_SECTION_TABLE_IMPL : public ELF_SECTION_TABLE {
public:
    explicit ELF_SECTION_TABLE_IMPL(ELF_FILE *file) : ELF_SECTION_TABLE(file) {}

protected:
    std::unique_ptr<OF_SECTION> alloc_section(unsigned id) override {
        return std::make_unique<ELF_SECTION_IMPL<BITS>>(this, id);
    }
};

// Fixed special section rows shared by all ELF machines.
extern const ELF_SPECIAL_SECTION ELF_SPECIAL_SECTION_DB[];

}  // namespace OFE
