// ELF type interfaces of sections: string table, group, vendor section
// attributes and symbol aliases.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "ofe/of_group.h"
#include "ofe/of_string_table.h"

namespace OFE {

class ELF_FILE;
class ELF_SECTION;

class ELF_STRING_TABLE : public OF_STRING_TABLE {
public:
    ELF_STRING_TABLE(ELF_FILE *file, ELF_SECTION *section);
    // Leaves the empty string at offset 0.
    void clear() override;
};

class ELF_GROUP_TABLE : public OF_GROUP_TABLE {
public:
    ELF_GROUP_TABLE(ELF_FILE *file, ELF_SECTION *section);

    ELF_SECTION *elf_section() const;
    const char *name() const override;
    void set_name(const char *name) override;
    OF_SYMBOL *symbol() const override;
    // sh_link takes the id of `.symtab`, sh_info the symbol's id.
    void set_symbol(OF_SYMBOL *s) override;
    bool comdat_flag() const override { return comdat_m; }
    void set_comdat_flag(bool on = true) override;
    // The signature symbol's id in sh_info.
    void update_symbol_refs(const RECORD_MAP<unsigned> &map) override;
    const char *comdat_flag_name() const override { return comdat_m ? "GRP_COMDAT" : ""; }

    int progress_to_state(OF_STATE s) override;
    int revert_to_state(OF_STATE) override { return 0; }

private:
    int lock_group_table();

    bool comdat_m = false;
};

// `.ZQ.section.flags`: the vendor flags of every section.
class ELF_SCN_ATTR_TABLE : public OF_STATE_MACHINE {
public:
    ELF_SCN_ATTR_TABLE(ELF_FILE *file, ELF_SECTION *section, int attr);

    ELF_SECTION *section() const { return section_m; }
    int attr() const { return attr_m; }
    // Builds the contents from the flags of all sections.
    int save();

    int progress_to_state(OF_STATE s) override;
    int revert_to_state(OF_STATE) override { return 0; }

private:
    ELF_SECTION *section_m;
    int attr_m;
};

// `.ZQ.symbol.alias`: pairs of symbol ids.
class ELF_SYMALIAS_TABLE : public OF_STATE_MACHINE, public OF_ID_REFS {
public:
    ELF_SYMALIAS_TABLE(ELF_FILE *file, ELF_SECTION *section);

    ELF_SECTION *section() const { return section_m; }
    // A pair of equal ids is ignored.
    void add_alias(unsigned sym_id, unsigned alias_id);
    // Does nothing unless both names are symbols of the file.
    void add_alias(const char *sym_name, const char *alias_name);
    unsigned alias_count() const { return static_cast<unsigned>(pairs_m.size()); }
    std::pair<unsigned, unsigned> alias(unsigned i) const { return pairs_m.at(i); }
    void update_symbol_refs(const RECORD_MAP<unsigned> &map) override;
    int save();

    int progress_to_state(OF_STATE s) override;
    int revert_to_state(OF_STATE) override { return 0; }

private:
    ELF_SECTION *section_m;
    std::vector<std::pair<unsigned, unsigned>> pairs_m;
};

}  // namespace OFE
