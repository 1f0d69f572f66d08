// ELF relocations and relocation tables (REL and RELA).
#pragma once

#include <cstdint>
#include <memory>

#include "ofe/elf_defs.h"
#include "ofe/of_reloc.h"
#include "support/memory.h"

namespace OFE {

class ELF_FILE;
class ELF_SECTION;
class ELF_RELOC_TABLE;

class ELF_RELOC : public OF_RELOC, public OALLOC<ELF_RELOC> {
public:
    ELF_RELOC(ELF_RELOC_TABLE *table, unsigned id);

    ELF_RELOC_TABLE *elf_table() const;
    ELF_RELOC *elf_api() override { return this; }

    virtual uint64_t r_offset() const = 0;
    virtual void set_r_offset(uint64_t v) = 0;
    virtual uint64_t r_info() const = 0;
    virtual void set_r_info(uint64_t v) = 0;
    virtual int64_t r_addend() const = 0;
    virtual void set_r_addend(int64_t v) = 0;
    virtual unsigned r_sym() const = 0;
    virtual void set_r_sym(unsigned s) = 0;
    virtual unsigned r_type() const = 0;
    virtual void set_r_type(unsigned t) = 0;
    // The record at the map's cursor: 8 or 12 bytes for the 32-bit class.
    virtual void save(DATA_MAP &out, bool rela) const = 0;

    void set_type(const OF_RELOC_TYPE *t) override;
    OF_SYMBOL *symbol() const override;
    void set_symbol(OF_SYMBOL *s) override;
    uint64_t offset() const override { return r_offset(); }
    void set_offset(uint64_t off) override;
    unsigned sym_id() const override { return r_sym(); }
    void set_sym_id(unsigned id) override;
    // Ignored on a REL table.
    void set_addend(int64_t a);
    int64_t addend() const { return r_addend(); }
    void patch_raw_data() override;

private:
    bool begin_change();
    void end_change();
};

template <int BITS>
class ELF_RELOC_IMPL : public ELF_RELOC, public ELF_TRAITS<BITS> {
public:
    using Traits = ELF_TRAITS<BITS>;

    ELF_RELOC_IMPL(ELF_RELOC_TABLE *table, unsigned id) : ELF_RELOC(table, id) {}

    uint64_t r_offset() const override { return r_offset_m; }
    void set_r_offset(uint64_t v) override { r_offset_m = static_cast<typename Traits::Addr>(v); }
    uint64_t r_info() const override { return r_info_m; }
    void set_r_info(uint64_t v) override { r_info_m = static_cast<typename Traits::Word>(v); }
    int64_t r_addend() const override { return r_addend_m; }
    void set_r_addend(int64_t v) override { r_addend_m = static_cast<int32_t>(v); }
    unsigned r_sym() const override { return r_info_m >> Traits::r_sym_shift; }
    void set_r_sym(unsigned s) override {
        r_info_m = (static_cast<typename Traits::Word>(s) << Traits::r_sym_shift) | (r_info_m & Traits::r_type_mask);
    }
    unsigned r_type() const override { return r_info_m & Traits::r_type_mask; }
    void set_r_type(unsigned t) override {
        r_info_m = (r_info_m & ~Traits::r_type_mask) | (t & Traits::r_type_mask);
    }
    void save(DATA_MAP &out, bool rela) const override;

private:
    typename Traits::Addr r_offset_m = 0;
    typename Traits::Word r_info_m = 0;
    int32_t r_addend_m = 0;
};

class ELF_RELOC_TABLE : public OF_RELOC_TABLE {
public:
    ELF_RELOC_TABLE(ELF_FILE *file, ELF_SECTION *section, ELF_SECTION *target);
    ~ELF_RELOC_TABLE() override;

    ELF_FILE *elf_file() const;
    ELF_SECTION *elf_section() const;
    bool is_rela() const;
    OF_SECTION *section_relocated() const override;
    ELF_SECTION *target() const { return target_m; }
    void forget_target() { target_m = nullptr; }
    unsigned reloc_size() const override;
    ELF_RELOC *elf_reloc(unsigned id) { return static_cast<ELF_RELOC *>(reloc(id)); }

    int progress_to_state(OF_STATE s) override;
    int revert_to_state(OF_STATE) override { return 0; }

private:
    int lock_reloc_table();

    ELF_SECTION *target_m;
};

template <int BITS>
class ELF_RELOC_TABLE_IMPL : public virtual ELF_RELOC_TABLE {
public:
    ELF_RELOC_TABLE_IMPL(ELF_FILE *file, ELF_SECTION *section, ELF_SECTION *target)
        : ELF_RELOC_TABLE(file, section, target) {}

protected:
    std::unique_ptr<OF_RELOC> alloc_reloc(unsigned id) override {
        return std::make_unique<ELF_RELOC_IMPL<BITS>>(this, id);
    }
};

}  // namespace OFE
