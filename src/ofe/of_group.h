// Format-neutral group of sections.
#pragma once

#include <vector>

#include "ofe/of_state.h"

namespace OFE {

class OF_GROUP_TABLE : public OF_STATE_MACHINE, public OF_ID_REFS {
public:
    OF_GROUP_TABLE(OBJECT_FILE *ofile, OF_SECTION *section);
    ~OF_GROUP_TABLE() override;

    virtual const char *name() const = 0;
    virtual void set_name(const char *name) = 0;
    virtual OF_SYMBOL *symbol() const = 0;
    virtual void set_symbol(OF_SYMBOL *s) = 0;
    virtual bool comdat_flag() const = 0;
    virtual void set_comdat_flag(bool on = true) = 0;
    virtual const char *comdat_flag_name() const = 0;
    // The group's own section.
    virtual OF_SECTION *section_api() const { return section_m; }

    void add_member(OF_SECTION *s);
    void delete_member(OF_SECTION *s);
    // Null past the count.
    OF_SECTION *member(unsigned i) const;
    unsigned member_id(unsigned i) const { return i < members_m.size() ? members_m[i] : OF_NO_ID; }
    unsigned member_count() const { return static_cast<unsigned>(members_m.size()); }
    void purge_deleted_members();
    void update_translations(const RECORD_MAP<unsigned> &map);
    void update_section_refs(const RECORD_MAP<unsigned> &map) override { update_translations(map); }

private:
    OF_SECTION *section_m;
    std::vector<unsigned> members_m;
};

}  // namespace OFE
