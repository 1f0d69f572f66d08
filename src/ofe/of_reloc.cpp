#include "ofe/of_reloc.h"

#include <algorithm>

#include "ofe/object_file.h"
#include "ofe/of_section.h"
#include "support/data_map.h"

namespace OFE {

ELF_RELOC *OF_RELOC::elf_api()
{
    OBJECT_FILE *f = table_m ? table_m->ofile() : nullptr;
    if (f) f->set_error(OFERR_CORRUPTED, "attempting to get ELF interface for non-ELF file");
    return nullptr;
}

OF_RELOC_TABLE::OF_RELOC_TABLE(OBJECT_FILE *ofile, OF_SECTION *section)
    : OF_STATE_MACHINE(ofile), section_m(section)
{
}

OF_RELOC_TABLE::~OF_RELOC_TABLE() = default;

DATA_MAP &OF_RELOC_TABLE::raw_data() { return section_m->raw_data_nocheck(); }

OF_RELOC *OF_RELOC_TABLE::reloc(unsigned id)
{
    return id < relocs_m.size() ? relocs_m[id].get() : nullptr;
}

OF_RELOC *OF_RELOC_TABLE::reloc_offset_type(uint64_t offset, const OF_RELOC_TYPE *type, unsigned start)
{
    for (unsigned i = start; i < relocs_m.size(); ++i) {
        OF_RELOC *r = relocs_m[i].get();
        if (!r->is_deleted() && r->offset() == offset && r->type() == type) return r;
    }
    return nullptr;
}

OF_RELOC *OF_RELOC_TABLE::new_reloc()
{
    max_state(OFS_OPEN);
    auto id = static_cast<unsigned>(relocs_m.size());
    relocs_m.push_back(alloc_reloc(id));
    sorted_m = false;
    changed_m = true;
    changed_since_lock_m = true;
    return relocs_m.back().get();
}

void OF_RELOC_TABLE::delete_reloc(unsigned id)
{
    max_state(OFS_OPEN);
    if (id < relocs_m.size()) relocs_m[id]->delete_reloc();
}

void OF_RELOC_TABLE::purge_deleted_relocs()
{
    auto dead = [](const std::unique_ptr<OF_RELOC> &r) { return r->is_deleted(); };
    if (std::none_of(relocs_m.begin(), relocs_m.end(), dead)) return;
    std::erase_if(relocs_m, dead);
    for (unsigned i = 0; i < relocs_m.size(); ++i) relocs_m[i]->set_id(i);
}

void OF_RELOC_TABLE::clear()
{
    max_state(OFS_OPEN);
    relocs_m.clear();
    sorted_m = true;
}

void OF_RELOC_TABLE::update_symbol_refs(const RECORD_MAP<unsigned> &map)
{
    for (auto &r : relocs_m) {
        unsigned id = map(r->sym_id());
        r->set_sym_id(id == RECORD_MAP<unsigned>::DELETED ? 0 : id);
    }
}

void OF_RELOC_TABLE::sort_relocs()
{
    max_state(OFS_LOCKED);
    if (sorted_m) return;
    // Relocations applied to one place keep their creation order.
    std::stable_sort(relocs_m.begin(), relocs_m.end(),
                     [](const std::unique_ptr<OF_RELOC> &a, const std::unique_ptr<OF_RELOC> &b) {
                         if (a->offset() != b->offset()) return a->offset() < b->offset();
                         return a->id() < b->id();
                     });
    for (unsigned i = 0; i < relocs_m.size(); ++i) relocs_m[i]->set_id(i);
    sorted_m = true;
    if (state() == OFS_LOCKED)
        for (auto &r : relocs_m) r->patch_raw_data();
}

}  // namespace OFE
