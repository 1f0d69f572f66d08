// Format-neutral relocations and relocation tables.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "ofe/of_reloc_type.h"
#include "ofe/of_state.h"

class DATA_MAP;

namespace OFE {

class ELF_RELOC;

class OF_RELOC {
public:
    OF_RELOC(OF_RELOC_TABLE *table, unsigned id) : table_m(table), id_m(id) {}
    OF_RELOC(const OF_RELOC &) = delete;
    OF_RELOC &operator=(const OF_RELOC &) = delete;
    virtual ~OF_RELOC() = default;

    OF_RELOC_TABLE *table() const { return table_m; }
    unsigned id() const { return id_m; }

    const OF_RELOC_TYPE *type() const { return type_m; }
    virtual void set_type(const OF_RELOC_TYPE *t) = 0;
    virtual OF_SYMBOL *symbol() const = 0;
    virtual void set_symbol(OF_SYMBOL *s) = 0;
    virtual uint64_t offset() const = 0;
    virtual void set_offset(uint64_t off) = 0;
    virtual unsigned sym_id() const = 0;
    virtual void set_sym_id(unsigned id) = 0;
    virtual bool is_internal() const { return false; }
    virtual void set_internal() {}
    // Writes the record into the table's raw data (locked state).
    virtual void patch_raw_data() = 0;
    // Format interface; null and code 3 on the wrong format.
    virtual ELF_RELOC *elf_api();

    void delete_reloc() { deleted_m = true; }
    bool is_deleted() const { return deleted_m; }

    uint32_t field_size() const { return type_m ? type_m->field_size() : 0; }
    uint32_t field_offset() const { return type_m ? type_m->field_offset() : 0; }
    uint32_t container_size() const { return type_m ? type_m->container_size() : 0; }
    uint32_t scale() const { return type_m ? type_m->scale() : 0; }
    uint32_t pc_mask() const { return type_m ? type_m->pc_mask() : ~0u; }

protected:
    friend class OF_RELOC_TABLE;
    void store_type(const OF_RELOC_TYPE *t) { type_m = t; }
    void set_id(unsigned id) { id_m = id; }

private:
    OF_RELOC_TABLE *table_m;
    const OF_RELOC_TYPE *type_m = nullptr;
    unsigned id_m;
    bool deleted_m = false;
};

class OF_RELOC_TABLE : public OF_STATE_MACHINE, public OF_ID_REFS {
public:
    OF_RELOC_TABLE(OBJECT_FILE *ofile, OF_SECTION *section);
    ~OF_RELOC_TABLE() override;

    // The relocation section that holds the table.
    OF_SECTION *section() const { return section_m; }
    virtual OF_RELOC *reloc(unsigned id);
    // First relocation at `offset` of `type`, searching from `start`.
    virtual OF_RELOC *reloc_offset_type(uint64_t offset, const OF_RELOC_TYPE *type,
                                        unsigned start = 0);
    // The section that the relocations apply to.
    virtual OF_SECTION *section_relocated() const = 0;
    virtual OF_RELOC *new_reloc();
    virtual void delete_reloc(unsigned id);
    virtual void purge_deleted_relocs();
    virtual unsigned relnum() const { return static_cast<unsigned>(relocs_m.size()); }
    virtual bool refs_section(const OF_SECTION *s) const { return section_relocated() == s; }
    virtual unsigned reloc_size() const = 0;
    virtual void clear();
    void update_symbol_refs(const RECORD_MAP<unsigned> &map) override;

    // Stable sort by offset, creation order among equals; renumbers.
    void sort_relocs();
    bool sorted() const { return sorted_m; }

protected:
    virtual std::unique_ptr<OF_RELOC> alloc_reloc(unsigned id) = 0;
    std::vector<std::unique_ptr<OF_RELOC>> &relocs() { return relocs_m; }
    DATA_MAP &raw_data();

private:
    OF_SECTION *section_m;
    std::vector<std::unique_ptr<OF_RELOC>> relocs_m;
    bool sorted_m = true;
    bool changed_m = false;
    bool changed_since_lock_m = false;
};

}  // namespace OFE
