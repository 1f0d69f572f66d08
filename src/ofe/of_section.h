// Format-neutral sections and the table that owns them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ofe/of_state.h"
#include "support/data_map.h"

namespace OFE {

class ELF_SECTION;
class ELF_SECTION_TABLE;

class OF_SECTION : public OF_STATE_MACHINE {
public:
    OF_SECTION(OF_SECTION_TABLE *table, unsigned id);
    ~OF_SECTION() override;

    OF_SECTION_TABLE *table() const { return table_m; }
    unsigned id() const { return id_m; }
    const char *name() const { return name_m ? name_m.get() : ""; }
    virtual void set_name(const char *name);
    // The sentinel that stands in the slot of a deleted section.
    bool is_deleted() const { return deleted_m; }

    // The section's contents; warns (code 4) when the section has no data
    // in the file.
    DATA_MAP &raw_data();
    // Engine access, without the warning.
    DATA_MAP &raw_data_nocheck() { return data_m; }
    const DATA_MAP &raw_data_nocheck() const { return data_m; }
    void validate_initialized();

    virtual uint64_t load_addr() const = 0;
    virtual void set_load_addr(uint64_t a) = 0;
    virtual uint64_t run_addr() const = 0;
    virtual void set_run_addr(uint64_t a) = 0;

    // Section symbol: cached, else found, else created.
    virtual OF_SYMBOL *symbol();
    virtual OF_SYMBOL *find_symbol();
    virtual OF_SYMBOL *create_section_symbol() = 0;
    void forget_symbol(const OF_SYMBOL *s) {
        if (symbol_m == s) symbol_m = nullptr;
    }

    virtual bool initialized() const = 0;
    virtual uint64_t align() const = 0;
    virtual void set_align(uint64_t a) = 0;
    virtual bool is_blocked() const { return false; }
    virtual void set_blocked(bool) {}
    virtual bool allocated() const = 0;
    virtual void set_allocated(bool a) = 0;
    virtual bool loaded() const { return allocated() && initialized(); }
    virtual bool exec() const = 0;
    virtual void set_exec() = 0;
    virtual bool data() const = 0;
    virtual void set_data() = 0;
    virtual void set_const_data() = 0;
    virtual bool bss() const = 0;
    virtual void set_bss() = 0;
    virtual bool group_type() const = 0;
    virtual unsigned unit_size() const = 0;       // in bits
    virtual void set_unit_size(unsigned bits) = 0;
    virtual uint64_t size() const = 0;            // in units
    virtual void set_size(uint64_t units) = 0;
    virtual uint64_t file_offset() const = 0;
    // Index of the section header in the file.
    virtual unsigned sh_id() const { return id(); }
    virtual bool is_build_attr() const = 0;
    virtual OF_GROUP_TABLE *group_api() { return nullptr; }
    // Format interface; null and code 3 on the wrong format.
    virtual ELF_SECTION *elf_api();
    virtual unsigned reloc_table_num() const = 0;
    virtual OF_RELOC_TABLE *reloc_table(unsigned i) = 0;
    virtual OF_RELOC *new_reloc(bool rela) = 0;
    virtual int save() = 0;

    // Membership of a group.
    virtual void set_group(OF_GROUP_TABLE *g) { group_m = g; }
    virtual void clear_group() { group_m = nullptr; }
    OF_GROUP_TABLE *group() const { return group_m; }

    bool direct_write() const { return direct_write_m; }

protected:
    friend class OF_SECTION_TABLE;
    void set_id(unsigned id) { id_m = id; }
    void mark_deleted() { deleted_m = true; }
    DATA_MAP &data_map() { return data_m; }
    const DATA_MAP &data_map() const { return data_m; }

private:
    OF_SECTION_TABLE *table_m;
    std::unique_ptr<char[]> name_m;
    DATA_MAP data_m;
    unsigned id_m;
    OF_SYMBOL *symbol_m = nullptr;
    OF_GROUP_TABLE *group_m = nullptr;
    bool direct_write_m = false;
    bool deleted_m = false;
};

class OF_SECTION_TABLE : public OF_STATE_MACHINE {
public:
    explicit OF_SECTION_TABLE(OBJECT_FILE *ofile);
    ~OF_SECTION_TABLE() override;

    // Null at or past scnnum(); the deleted-section sentinel for a slot
    // deleted but not yet purged.
    virtual OF_SECTION *section(unsigned id);
    virtual OF_SECTION *section_name(const char *name, unsigned start_id = 0);
    virtual OF_SECTION *new_section(const char *name);
    virtual void delete_section(unsigned id);
    virtual void purge_deleted_sections();
    virtual unsigned scnnum() const { return static_cast<unsigned>(sections_m.size()); }
    virtual OF_SECTION *new_group(const char *name) = 0;
    virtual void clear();
    virtual ELF_SECTION_TABLE *elf_api();

    // Apply a renumbering of sections to everything that holds section ids.
    virtual void update_translations(const RECORD_MAP<unsigned> &map);
    virtual void patch_section_refs(const RECORD_MAP<unsigned> &map);

protected:
    virtual std::unique_ptr<OF_SECTION> alloc_section(unsigned id) = 0;
    // Puts the sections in the given order (a permutation of the live
    // ones), renumbers them and applies the translation.
    void reorder_sections(std::vector<OF_SECTION *> order);
    OF_SECTION *deleted_sentinel();
    std::vector<std::unique_ptr<OF_SECTION>> &sections() { return sections_m; }
    bool purge_pending() const { return purge_pending_m; }

private:
    std::vector<std::unique_ptr<OF_SECTION>> sections_m;
    std::unique_ptr<OF_SECTION> sentinel_m;
    bool purge_pending_m = false;
};

}  // namespace OFE
