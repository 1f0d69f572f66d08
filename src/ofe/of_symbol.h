// Format-neutral symbols and symbol tables.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "ofe/of_state.h"

namespace OFE {

class ELF_SYMBOL;
class ELF_SYMBOL_TABLE;

class OF_SYMBOL {
public:
    explicit OF_SYMBOL(OF_SYMBOL_TABLE *table, unsigned id) : table_m(table), id_m(id) {}
    OF_SYMBOL(const OF_SYMBOL &) = delete;
    OF_SYMBOL &operator=(const OF_SYMBOL &) = delete;
    virtual ~OF_SYMBOL();

    OF_SYMBOL_TABLE *table() const { return table_m; }
    OBJECT_FILE *ofile() const;
    unsigned id() const { return id_m; }
    const char *name() const { return name_m ? name_m.get() : ""; }
    virtual void set_name(const char *name);

    virtual uint64_t value() const = 0;
    virtual void set_value(uint64_t v) = 0;
    virtual bool refs_section() const = 0;
    virtual OF_SECTION *section() const;
    virtual unsigned section_id() const = 0;
    virtual void set_section_id(unsigned id) = 0;
    // Takes the section's id when it belongs to the same file.
    virtual void set_section(OF_SECTION *s);
    virtual uint64_t size() const = 0;
    virtual void set_size(uint64_t s) = 0;
    virtual OF_SYM_KIND kind() const = 0;
    virtual void set_kind(OF_SYM_KIND k) = 0;
    virtual OF_SYM_BINDING binding() const = 0;
    virtual void set_binding(OF_SYM_BINDING b) = 0;
    virtual OF_SYM_TYPE type() const = 0;
    virtual void set_type(OF_SYM_TYPE t) = 0;
    virtual bool is_load_label() const { return false; }
    virtual bool is_alias() const { return alias_m; }
    virtual void set_alias(bool a) { alias_m = a; }
    virtual void set_near_common();
    // Format interface; null and code 3 on the wrong format.
    virtual ELF_SYMBOL *elf_api();

    bool sym_blocked() const { return blocked_m; }
    void set_sym_blocked(bool b) { blocked_m = b; }
    bool sym_called() const { return called_m; }
    void set_sym_called(bool c) { called_m = c; }

    // Linker-side resolution; never set by this system.
    OF_SYMBOL *resolved_by() const { return resolved_by_m; }
    void set_resolved_by(OF_SYMBOL *s) { resolved_by_m = s; }
    bool final() const { return final_m; }
    void set_final(bool f) { final_m = f; }
    bool final_value() const { return final_value_m; }
    void set_final_value(bool f) { final_value_m = f; }

protected:
    friend class OF_SYMBOL_TABLE;
    void set_id(unsigned id) { id_m = id; }
    void set_name_raw(const char *name);

private:
    std::unique_ptr<char[]> name_m;
    OF_SYMBOL_TABLE *table_m;
    unsigned id_m;
    bool alias_m = false;
    bool blocked_m = false;
    bool called_m = false;
    OF_SYMBOL *resolved_by_m = nullptr;
    bool final_m = false;
    bool final_value_m = false;
};

class OF_SYMBOL_TABLE : public OF_STATE_MACHINE {
public:
    OF_SYMBOL_TABLE(OBJECT_FILE *ofile, OF_SECTION *section);
    ~OF_SYMBOL_TABLE() override;

    OF_SECTION *section() const { return section_m; }
    virtual const char *name() const;
    // Null at or past symnum(), and for a deleted symbol not yet purged.
    virtual OF_SYMBOL *symbol(unsigned id);
    virtual OF_SYMBOL *symbol_name(const char *name, unsigned start = 0);
    virtual unsigned next_symbol_id(unsigned id) const { return id + 1; }
    virtual OF_SYMBOL *new_symbol();
    virtual OF_SYMBOL *new_symbol_at(unsigned id);
    virtual void delete_symbol(unsigned id);
    virtual void purge_deleted_symbols();
    virtual unsigned symnum() const { return static_cast<unsigned>(symbols_m.size()); }
    virtual unsigned symbol_size() const = 0;
    virtual ELF_SYMBOL_TABLE *elf_api();

    // Renumbering: section ids held by symbols, and symbol ids held by
    // others (relocations, groups, aliases).
    virtual void update_translations(const RECORD_MAP<unsigned> &map);
    virtual void update_section_refs(const RECORD_MAP<unsigned> &map);
    virtual void patch_symbol_refs(const RECORD_MAP<unsigned> &map);

protected:
    virtual std::unique_ptr<OF_SYMBOL> alloc_symbol(unsigned id) = 0;
    void reorder_symbols(std::vector<OF_SYMBOL *> order);
    std::vector<std::unique_ptr<OF_SYMBOL>> &symbols() { return symbols_m; }

private:
    OF_SECTION *section_m;
    std::vector<std::unique_ptr<OF_SYMBOL>> symbols_m;
    bool purge_pending_m = false;
};

}  // namespace OFE
