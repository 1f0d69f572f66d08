#include "ofe/of_group.h"

#include <algorithm>

#include "ofe/object_file.h"
#include "ofe/of_section.h"

namespace OFE {

OF_GROUP_TABLE::OF_GROUP_TABLE(OBJECT_FILE *ofile, OF_SECTION *section)
    : OF_STATE_MACHINE(ofile), section_m(section)
{
}

OF_GROUP_TABLE::~OF_GROUP_TABLE() = default;

void OF_GROUP_TABLE::add_member(OF_SECTION *s)
{
    max_state(OFS_OPEN);
    if (!s || s->is_deleted()) return;
    members_m.push_back(s->id());
    s->set_group(this);
}

void OF_GROUP_TABLE::delete_member(OF_SECTION *s)
{
    max_state(OFS_OPEN);
    if (!s) return;
    auto it = std::find(members_m.begin(), members_m.end(), s->id());
    if (it == members_m.end()) return;
    members_m.erase(it);
    if (s->group() == this) s->clear_group();
}

OF_SECTION *OF_GROUP_TABLE::member(unsigned i) const
{
    if (i >= members_m.size() || !ofile()) return nullptr;
    OF_SECTION_TABLE *t = ofile()->section_table();
    return t ? t->section(members_m[i]) : nullptr;
}

void OF_GROUP_TABLE::purge_deleted_members()
{
    std::erase(members_m, RECORD_MAP<unsigned>::DELETED);
}

void OF_GROUP_TABLE::update_translations(const RECORD_MAP<unsigned> &map)
{
    for (unsigned &id : members_m) id = map(id);
    purge_deleted_members();
}

}  // namespace OFE
