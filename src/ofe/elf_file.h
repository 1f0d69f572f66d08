// The ELF object file: header, special sections, and the lock, format and
// save steps.
#pragma once

#include <cstdint>
#include <memory>

#include "ofe/elf_defs.h"
#include "ofe/elf_reloc.h"
#include "ofe/elf_section.h"
#include "ofe/elf_symbol.h"
#include "ofe/elf_tables.h"
#include "ofe/object_file.h"

namespace OFE {

class ELF_FILE : public OBJECT_FILE {
public:
    ~ELF_FILE() override;

    ELF_FILE *elf_api() override { return this; }

    OF_SECTION_TABLE *section_table() override { return elf_section_table(); }
    ELF_SECTION_TABLE *elf_section_table();
    // `.symtab`, found or created (with the null section before it).
    OF_SYMBOL_TABLE *symbol_table() override { return elf_symbol_table(); }
    ELF_SYMBOL_TABLE *elf_symbol_table();
    ELF_SECTION *symtab_section(bool create);
    unsigned symtab_id();

    ELF_SYMALIAS_TABLE *symalias_table(bool create);
    ELF_SECTION *zq_sh_attr_section(int attr, bool create);
    ELF_SCN_ATTR_TABLE *zq_sh_attr_api(int attr, bool create);
    // The build attribute section, found by type or created.
    ELF_SECTION *build_attributes();
    // `.symtab_meta`, created on first need with its version byte.
    ELF_SECTION *create_sym_meta_scn();
    ELF_SECTION *sym_meta_section() const { return symmeta_m; }
    // Forgets cached special sections that are being deleted.
    void section_deleted(const ELF_SECTION *s);

    bool values_are_scnrel() const override { return file_type() == OFT_RELOCATABLE; }
    OF_FILE_TYPE file_type() const override;
    int set_file_type(OF_FILE_TYPE t) override;
    OF_MACHINE machine() const override { return machine_m; }
    OF_ENDIAN machine_endian() const override;
    void set_machine_endian(OF_ENDIAN e) override;
    OF_ENDIAN control_endian() const override { return machine_endian(); }

    // Header fields.
    virtual unsigned char e_ident_entry(unsigned i) const = 0;
    virtual void set_e_ident_entry(unsigned i, unsigned char v) = 0;
    virtual uint16_t e_type() const = 0;
    virtual void set_e_type(uint16_t v) = 0;
    virtual uint16_t e_machine() const = 0;
    virtual void set_e_machine(uint16_t v) = 0;
    virtual uint32_t e_version() const = 0;
    virtual void set_e_version(uint32_t v) = 0;
    virtual uint64_t e_entry() const = 0;
    virtual void set_e_entry(uint64_t v) = 0;
    virtual uint64_t e_phoff() const = 0;
    virtual void set_e_phoff(uint64_t v) = 0;
    virtual uint64_t e_shoff() const = 0;
    virtual void set_e_shoff(uint64_t v) = 0;
    virtual uint32_t e_flags() const = 0;
    // ORs the bits in / clears them; at most locked.
    virtual void set_e_flags(uint32_t v) = 0;
    virtual void clear_e_flags(uint32_t v) = 0;
    virtual uint16_t e_ehsize() const = 0;
    virtual void set_e_ehsize(uint16_t v) = 0;
    virtual uint16_t e_phentsize() const = 0;
    virtual void set_e_phentsize(uint16_t v) = 0;
    virtual uint16_t e_phnum() const = 0;
    virtual void set_e_phnum(uint16_t v) = 0;
    virtual uint16_t e_shentsize() const = 0;
    virtual void set_e_shentsize(uint16_t v) = 0;
    virtual uint16_t e_shnum() const = 0;
    virtual void set_e_shnum(uint16_t v) = 0;
    virtual uint16_t e_shstrndx() const = 0;
    virtual void set_e_shstrndx(uint16_t v) = 0;

    virtual void finalize_file_header() = 0;
    virtual int write_file_header() = 0;
    virtual unsigned elf_align() const = 0;
    virtual void set_elf_id() = 0;
    virtual unsigned shdr_size() const = 0;

    // The section name table id, beyond the 16-bit escape.
    unsigned shstrndx() const;
    // Size of the whole file, known once it is formatted.
    uint64_t formatted_size() const { return formatted_size_m; }
    void set_shstrndx(unsigned id) { shstrndx_m = id; }

    int progress_to_state(OF_STATE s) override;
    int revert_to_state(OF_STATE s) override;

protected:
    explicit ELF_FILE(const OF_FILE_HANDLE &handle);
    void init_tables();
    virtual std::unique_ptr<ELF_SECTION_TABLE> alloc_section_table() = 0;

private:
    int lock_elf_file();
    int format_elf_file();
    int save_elf_file();
    void load_and_clear_string_table();

    OF_MACHINE machine_m;
    std::unique_ptr<ELF_SECTION_TABLE> section_table_m;
    ELF_SECTION *symtab_m = nullptr;
    ELF_SECTION *battr_m = nullptr;
    ELF_SECTION *scn_attr_m[3] = {nullptr, nullptr, nullptr};
    ELF_SECTION *symalias_m = nullptr;
    ELF_SECTION *symmeta_m = nullptr;
    unsigned shstrndx_m = 0;
    uint64_t formatted_size_m = 0;
};

template <int BITS>
class ELF_FILE_IMPL : public ELF_FILE {
public:
    using Traits = ELF_TRAITS<BITS>;
    using Ehdr = typename Traits::Ehdr;

    explicit ELF_FILE_IMPL(const OF_FILE_HANDLE &handle);

    OF_FORMAT_VER format_version() const override { return OFV_ELF1; }
    OF_FORMAT_CLASS format_class() const override { return BITS == 32 ? OFC_32 : OFC_64; }

    unsigned char e_ident_entry(unsigned i) const override { return i < EI_NIDENT ? hdr_m.e_ident[i] : 0; }
    void set_e_ident_entry(unsigned i, unsigned char v) override {
        if (i < EI_NIDENT) hdr_m.e_ident[i] = v;
    }
    uint16_t e_type() const override { return hdr_m.e_type; }
    void set_e_type(uint16_t v) override { hdr_m.e_type = v; }
    uint16_t e_machine() const override { return hdr_m.e_machine; }
    void set_e_machine(uint16_t v) override { hdr_m.e_machine = v; }
    uint32_t e_version() const override { return hdr_m.e_version; }
    void set_e_version(uint32_t v) override { hdr_m.e_version = v; }
    uint64_t e_entry() const override { return hdr_m.e_entry; }
    void set_e_entry(uint64_t v) override { hdr_m.e_entry = static_cast<typename Traits::Addr>(v); }
    uint64_t e_phoff() const override { return hdr_m.e_phoff; }
    void set_e_phoff(uint64_t v) override { hdr_m.e_phoff = static_cast<typename Traits::Addr>(v); }
    uint64_t e_shoff() const override { return hdr_m.e_shoff; }
    void set_e_shoff(uint64_t v) override { hdr_m.e_shoff = static_cast<typename Traits::Addr>(v); }
    uint32_t e_flags() const override { return hdr_m.e_flags; }
    void set_e_flags(uint32_t v) override;
    void clear_e_flags(uint32_t v) override;
    uint16_t e_ehsize() const override { return hdr_m.e_ehsize; }
    void set_e_ehsize(uint16_t v) override { hdr_m.e_ehsize = v; }
    uint16_t e_phentsize() const override { return hdr_m.e_phentsize; }
    void set_e_phentsize(uint16_t v) override { hdr_m.e_phentsize = v; }
    uint16_t e_phnum() const override { return hdr_m.e_phnum; }
    void set_e_phnum(uint16_t v) override { hdr_m.e_phnum = v; }
    uint16_t e_shentsize() const override { return hdr_m.e_shentsize; }
    void set_e_shentsize(uint16_t v) override { hdr_m.e_shentsize = v; }
    uint16_t e_shnum() const override { return hdr_m.e_shnum; }
    void set_e_shnum(uint16_t v) override { hdr_m.e_shnum = v; }
    uint16_t e_shstrndx() const override { return hdr_m.e_shstrndx; }
    void set_e_shstrndx(uint16_t v) override { hdr_m.e_shstrndx = v; }

    void finalize_file_header() override;
    int write_file_header() override;
    unsigned elf_align() const override { return Traits::align; }
    void set_elf_id() override;
    unsigned shdr_size() const override { return Traits::shdr_size; }

protected:
    std::unique_ptr<ELF_SECTION_TABLE> alloc_section_table() override {
        return std::make_unique<ELF_SECTION_TABLE_IMPL<BITS>>(this);
    }

private:
    Ehdr hdr_m{};
};

}  // namespace OFE
