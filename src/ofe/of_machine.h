// What is particular to one target machine, asked by the engine through
// hooks. ARM is the only machine built.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "ofe/of_types.h"

namespace OFE {

class ELF_SECTION_TABLE;
class OF_RELOC_TYPE_TABLE;

// A row of the special section table: attributes a section gets from its name.
struct ELF_SPECIAL_SECTION {
    const char *name;
    uint32_t sh_type;
    uint32_t sh_entsize;
    uint32_t sh_flags;
    unsigned unit_size;  // bits; 0 means the machine's
};

using ELF_SPECIAL_SECTION_MAP = std::map<std::string, ELF_SPECIAL_SECTION, std::less<>>;

// Vendor section flags kept per section in `zq_sh_flags`.
enum ZQ_SH_FLAG : uint32_t {
    ZQ_SHF_NONE = 0,
    ZQ_SHF_INVALID = 1,
    ZQ_SHF_RETAIN = 2,
    ZQ_SHF_BOUND = 4,
    ZQ_SHF_RETAINREFS = 8,
    ZQ_SHF_NOINIT = 16,
    ZQ_SHF_PRESERVE = 32,
    ZQ_SHF_UPDATE = 64,
};

class OF_MACHINE_DB {
public:
    static std::unique_ptr<OF_MACHINE_DB> machine_db(OBJECT_FILE *ofile, OF_MACHINE machine);

    explicit OF_MACHINE_DB(OBJECT_FILE *ofile) : ofile_m(ofile) {}
    OF_MACHINE_DB(const OF_MACHINE_DB &) = delete;
    OF_MACHINE_DB &operator=(const OF_MACHINE_DB &) = delete;
    virtual ~OF_MACHINE_DB() = default;

    OBJECT_FILE *ofile() const { return ofile_m; }

    virtual OF_MACHINE machine() const = 0;
    virtual unsigned zqcoff_magic() const = 0;
    virtual unsigned elf_magic() const = 0;
    virtual unsigned unit_size() const = 0;      // bits
    virtual unsigned address_size() const = 0;   // bits
    virtual OF_ENDIAN of_section_endian(const OF_SECTION *section) const;
    virtual uint32_t seg_attr_p_type() const = 0;

    // Vendor section flags; `flag` must be a single bit.
    virtual bool is_zq_sh_flag_set(const OF_SECTION *section, uint32_t flag);
    virtual void set_zq_sh_flag(OF_SECTION *section, uint32_t flag, bool on);
    virtual bool is_bound(const OF_SECTION *) const { return false; }
    virtual bool is_readonly(const OF_SECTION *) const { return false; }
    virtual bool is_blocked(const OF_SECTION *) const { return false; }
    virtual void set_blocked(OF_SECTION *, bool) {}
    virtual unsigned elf_near_common_shndx();

    // Notifications of changes to the file.
    virtual void of_update_section_refs(const RECORD_MAP<unsigned> &) {}
    virtual void of_update_symbol_refs(const RECORD_MAP<unsigned> &) {}
    virtual void of_process_new_symbol(OF_SYMBOL *) {}
    virtual void of_process_new_ofile() {}

    virtual bool of_supports_build_attributes(const OBJECT_FILE *file, bool &supported) const;
    virtual const char *ofba_abi_scn_name() const { return nullptr; }

    // ELF hooks.
    virtual bool elf_special_section_name(ELF_SECTION_TABLE *table, const char *name,
                                          std::string &out) const;
    virtual bool elf_gnu_symver(const OBJECT_FILE *file, bool &on) const;
    virtual void elf_set_gnu_symver(OBJECT_FILE *file, bool on);
    virtual void elf_lock_section_table(ELF_SECTION_TABLE *) {}
    virtual void elf_lock_symbol_table(OF_SYMBOL_TABLE *) {}
    virtual void elf_lock_dynamic_table(OF_SECTION *) {}
    virtual bool elf_sym_kind(const OF_SYMBOL *, OF_SYM_KIND &) const { return false; }
    virtual void elf_build_special_section_hash(ELF_SPECIAL_SECTION_MAP &) const {}
    virtual bool elf_supports_zq_sh_attr(int attr) const = 0;
    virtual bool elf_match_zq_sh_attr_type(int attr) const = 0;
    virtual uint32_t elf_zq_sh_attr_type(int attr) const = 0;
    virtual const char *elf_zq_sh_attr_name(int attr) const = 0;
    virtual bool elf_match_symalias_type() const = 0;
    virtual uint32_t elf_symalias_type() const = 0;
    virtual const char *elf_zq_sh_flag_name(uint32_t flag) const;

    // Enters the machine's templates and the format's relocation rows.
    virtual void rel_build_type_table(OF_RELOC_TYPE_TABLE &table) = 0;
    virtual uint64_t dwarf_address(const OF_SECTION *, uint64_t addr) const { return addr; }

private:
    OBJECT_FILE *ofile_m;
};

class ARM_MACHINE_DB : public OF_MACHINE_DB {
public:
    explicit ARM_MACHINE_DB(OBJECT_FILE *ofile) : OF_MACHINE_DB(ofile) {}

    OF_MACHINE machine() const override { return OFM_ARM; }
    unsigned zqcoff_magic() const override { return 0x97; }
    unsigned elf_magic() const override { return 40; }  // EM_ARM
    unsigned unit_size() const override { return 8; }
    unsigned address_size() const override { return 32; }
    uint32_t seg_attr_p_type() const override { return 0x70000000; }

    void of_process_new_ofile() override;
    bool of_supports_build_attributes(const OBJECT_FILE *, bool &supported) const override {
        supported = true;
        return true;
    }
    const char *ofba_abi_scn_name() const override { return "aeabi"; }

    bool elf_special_section_name(ELF_SECTION_TABLE *table, const char *name,
                                  std::string &out) const override;
    void elf_lock_section_table(ELF_SECTION_TABLE *table) override;
    void elf_build_special_section_hash(ELF_SPECIAL_SECTION_MAP &map) const override;
    bool elf_supports_zq_sh_attr(int attr) const override { return attr == 0; }
    bool elf_match_zq_sh_attr_type(int) const override { return false; }
    uint32_t elf_zq_sh_attr_type(int) const override { return 1; }  // SHT_PROGBITS
    const char *elf_zq_sh_attr_name(int attr) const override;
    bool elf_match_symalias_type() const override { return false; }
    uint32_t elf_symalias_type() const override { return 1; }  // SHT_PROGBITS

    void rel_build_type_table(OF_RELOC_TYPE_TABLE &table) override;

    // The EABI version in the top byte of e_flags (ELF only).
    void set_eabi_version(unsigned char v);
    unsigned char eabi_version() const;

    // Modes of code and data that mapping symbols give.
    enum SECTION_MODE : unsigned { MODE_UNKNOWN = 0, MODE_ARM = 1, MODE_THUMB = 2, MODE_DATA = 3 };
    // Section, then address, to the mode that starts there.
    using MODE_MAP = std::map<const OF_SECTION *, std::map<uint64_t, unsigned>>;
    MODE_MAP find_mapping_syms() const;
    // The mode of the nearest mapping symbol at or below `addr`; 0 if none.
    static unsigned section_mode_addr(const MODE_MAP &modes, uint64_t addr, const OF_SECTION *section);
    // ELF with an EABI version: Thumb function symbols get bit 0 set.
    void adjust_thumb_symbol_values();
};

}  // namespace OFE
