// ELF symbols, their meta information, and the ELF symbol table.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ofe/elf_defs.h"
#include "ofe/of_symbol.h"
#include "support/memory.h"

class DATA_MAP;

namespace OFE {

class ELF_FILE;
class ELF_SECTION;
class ELF_SYMBOL_TABLE;

// Meta record tags of `.symtab_meta`.
enum ELF_SYM_META_TAG : unsigned {
    SMK_RETAIN = 1,
    SMK_LOCATION = 2,
    SMK_NOINIT = 3,
    SMK_OPTPRINTF_FORMATSTR = 4,
    SMK_OPTPRINTF_FORWARD = 5,
    SMK_PRESERVE = 6,
    SMK_UPDATE = 7,
    SMK_USER_SECTION_NAME = 15,
};

struct ELF_SYM_META {
    bool retained = false;
    bool has_location = false;
    uint64_t location = 0;
    bool noinit = false;
    bool preserve = false;
    bool update = false;
    bool has_formatstr = false;
    std::string formatstr;
    std::vector<std::string> forward;
    bool has_user_section_name = false;
    std::string user_section_name;
};

class ELF_SYMBOL : public OF_SYMBOL, public OALLOC<ELF_SYMBOL> {
public:
    ELF_SYMBOL(ELF_SYMBOL_TABLE *table, unsigned id);
    ~ELF_SYMBOL() override;

    ELF_SYMBOL_TABLE *elf_table() const;
    ELF_SYMBOL *elf_api() override { return this; }

    // Raw fields, in file layout.
    virtual uint32_t st_name() const = 0;
    virtual void set_st_name(uint32_t v) = 0;
    virtual uint64_t st_value() const = 0;
    virtual void set_st_value(uint64_t v) = 0;
    virtual uint64_t st_size() const = 0;
    virtual void set_st_size(uint64_t v) = 0;
    virtual unsigned char st_info() const = 0;
    virtual void set_st_info(unsigned char v) = 0;
    virtual unsigned char st_other() const = 0;
    virtual void set_st_other(unsigned char v) = 0;
    virtual uint16_t st_shndx() const = 0;
    virtual void set_st_shndx(uint16_t v) = 0;
    // The record in the map's byte order, at the map's cursor.
    virtual void write_elf_symbol(DATA_MAP &out) const = 0;
    // Empty name, all fields 0.
    void set_null();

    uint32_t extended_index() const { return xindex_m; }
    uint16_t version_index() const { return version_m; }
    void set_version_index(uint16_t v) { version_m = v; }

    // Neutral view.
    void set_name(const char *name) override;
    uint64_t value() const override { return st_value(); }
    void set_value(uint64_t v) override;
    bool refs_section() const override;
    unsigned section_id() const override;
    void set_section_id(unsigned id) override;
    uint64_t size() const override { return st_size(); }
    void set_size(uint64_t s) override;
    OF_SYM_KIND kind() const override;
    void set_kind(OF_SYM_KIND k) override;
    OF_SYM_BINDING binding() const override;
    void set_binding(OF_SYM_BINDING b) override;
    OF_SYM_TYPE type() const override;
    void set_type(OF_SYM_TYPE t) override;
    unsigned char visibility() const { return st_other() & 3; }
    void set_visibility(unsigned char v);

    // Meta information, written to `.symtab_meta`.
    void init_metainfo();
    bool has_metainfo() const { return meta_m != nullptr; }
    const ELF_SYM_META *metainfo() const { return meta_m.get(); }
    void set_retained(bool on);
    bool is_retained() const { return meta_m && meta_m->retained; }
    void set_location(uint64_t addr);
    bool has_location() const { return meta_m && meta_m->has_location; }
    uint64_t location() const { return meta_m ? meta_m->location : 0; }
    void set_noinit(bool on);
    bool is_noinit() const { return meta_m && meta_m->noinit; }
    void set_preserve(bool on);
    bool is_preserve() const { return meta_m && meta_m->preserve; }
    void set_update(bool on);
    bool is_update() const { return meta_m && meta_m->update; }
    void set_optprintf_formatstr(const char *s);
    bool has_optprintf_formatstr() const { return meta_m && meta_m->has_formatstr; }
    const char *optprintf_formatstr() const;
    void add_to_optprintf_forward(const char *s);
    bool has_optprintf_forward() const { return meta_m && !meta_m->forward.empty(); }
    const std::vector<std::string> *optprintf_forward() const;
    void set_user_section_name(const char *s);
    bool has_user_section_name() const { return meta_m && meta_m->has_user_section_name; }
    const char *user_section_name() const;
    // Appends this symbol's meta records.
    void write_metainfo(DATA_MAP &out) const;

protected:
    // Setters call this: guard, then write through when locked.
    bool begin_change();
    void end_change();

private:
    uint32_t xindex_m = 0;
    uint16_t version_m = 0;
    std::unique_ptr<ELF_SYM_META> meta_m;
};

template <int BITS>
class ELF_SYMBOL_IMPL : public ELF_SYMBOL {
public:
    using Sym = typename ELF_TRAITS<BITS>::Sym;

    ELF_SYMBOL_IMPL(ELF_SYMBOL_TABLE *table, unsigned id) : ELF_SYMBOL(table, id) {}

    uint32_t st_name() const override { return sym_m.st_name; }
    void set_st_name(uint32_t v) override { sym_m.st_name = v; }
    uint64_t st_value() const override { return sym_m.st_value; }
    void set_st_value(uint64_t v) override;
    uint64_t st_size() const override { return sym_m.st_size; }
    void set_st_size(uint64_t v) override;
    unsigned char st_info() const override { return sym_m.st_info; }
    void set_st_info(unsigned char v) override { sym_m.st_info = v; }
    unsigned char st_other() const override { return sym_m.st_other; }
    void set_st_other(unsigned char v) override { sym_m.st_other = v; }
    uint16_t st_shndx() const override { return sym_m.st_shndx; }
    void set_st_shndx(uint16_t v) override { sym_m.st_shndx = v; }
    void write_elf_symbol(DATA_MAP &out) const override;

private:
    Sym sym_m{};
};

class ELF_SYMBOL_TABLE : public OF_SYMBOL_TABLE {
public:
    ELF_SYMBOL_TABLE(ELF_FILE *file, ELF_SECTION *section);
    ~ELF_SYMBOL_TABLE() override;

    ELF_FILE *elf_file() const;
    ELF_SECTION *elf_section() const;
    ELF_SYMBOL *elf_symbol(unsigned id);
    ELF_SYMBOL_TABLE *elf_api() override { return this; }

    OF_SYMBOL *new_symbol() override;
    ELF_SYMBOL *new_elf_symbol() { return static_cast<ELF_SYMBOL *>(new_symbol()); }
    unsigned symbol_size() const override;

    // Visibility given to every new symbol (st_other).
    unsigned char default_visibility() const { return default_vis_m; }
    void set_default_visibility(unsigned char v) { default_vis_m = v & 3; }

    // The string table for the names (sh_link), created when missing.
    ELF_SECTION *string_table_section();
    // Number of local symbols after locking, the null symbol included.
    unsigned local_count() const { return locals_m; }

    void update_section_refs(const RECORD_MAP<unsigned> &map) override;
    void patch_symbol_refs(const RECORD_MAP<unsigned> &map) override;
    // Rewrites one record in the locked raw data.
    void patch_raw_data(const ELF_SYMBOL *sym);

    int progress_to_state(OF_STATE s) override;
    int revert_to_state(OF_STATE) override { return 0; }

private:
    int lock_symbol_table();
    void lock_symbol_ordering();

    unsigned char default_vis_m = STV_DEFAULT;
    unsigned locals_m = 0;
};

template <int BITS>
class ELF_SYMBOL_TABLE_IMPL : public ELF_SYMBOL_TABLE {
public:
    ELF_SYMBOL_TABLE_IMPL(ELF_FILE *file, ELF_SECTION *section) : ELF_SYMBOL_TABLE(file, section) {}

protected:
    std::unique_ptr<OF_SYMBOL> alloc_symbol(unsigned id) override {
        return std::make_unique<ELF_SYMBOL_IMPL<BITS>>(this, id);
    }
};

}  // namespace OFE
