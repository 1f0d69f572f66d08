#include "ofe/of_string_table.h"

#include <cstring>

#include "ofe/of_section.h"
#include "support/data_map.h"

namespace OFE {

// ---- OF_STRING_TABLE_MANAGER -------------------------------------------------

const char *OF_STRING_TABLE_MANAGER::get_string(uint32_t offset)
{
    if (offset >= bytes_m->size()) return nullptr;
    bytes_m->load();
    const unsigned char *p = bytes_m->data();
    return p ? reinterpret_cast<const char *>(p) + offset : nullptr;
}

void OF_STRING_TABLE_MANAGER::unload() { map_m.clear(); }

void OF_STRING_TABLE_MANAGER::clear()
{
    map_m.clear();
    bytes_m->clear();
}

void OF_STRING_TABLE_MANAGER::rebuild_map()
{
    bytes_m->load();
    const unsigned char *p = bytes_m->data();
    uint64_t size = bytes_m->size();
    if (!p) return;
    uint64_t start = first_offset();
    while (start < size) {
        uint64_t end = start;
        while (end < size && p[end] != 0) ++end;
        // A later duplicate replaces the earlier offset.
        map_m[std::string(reinterpret_cast<const char *>(p) + start, end - start)] =
            static_cast<uint32_t>(start);
        start = end + 1;
    }
}

uint32_t OF_STRING_TABLE_MANAGER::add_string(const char *s)
{
    if (!s) s = "";
    if (!bytes_m->empty() && map_m.empty()) rebuild_map();
    auto it = map_m.find(std::string_view(s));
    if (it != map_m.end()) return it->second;
    uint64_t offset = bytes_m->size() > first_offset() ? bytes_m->size() : first_offset();
    bytes_m->set_cursor(offset);
    bytes_m->string_write(s);
    map_m.emplace(s, static_cast<uint32_t>(offset));
    return static_cast<uint32_t>(offset);
}

bool OF_STRING_TABLE_MANAGER::find_string(const char *s, uint32_t &offset)
{
    if (bytes_m->empty() && map_m.empty()) return false;
    auto it = map_m.find(std::string_view(s ? s : ""));
    if (it == map_m.end()) return false;
    offset = it->second;
    return true;
}

// ---- OF_STRING_TABLE ---------------------------------------------------------

OF_STRING_TABLE::OF_STRING_TABLE(OBJECT_FILE *ofile, OF_SECTION *section)
    : OF_STRING_TABLE_MANAGER(&section->raw_data_nocheck()), OF_STATE_MACHINE(ofile), section_m(section)
{
}

const char *OF_STRING_TABLE::name() const { return section_m->name(); }

void OF_STRING_TABLE::unload()
{
    // Built here, so the bytes are the only copy: keep them, drop the cache.
    if (!bytes().is_modified() && bytes().file()) bytes().unload();
    OF_STRING_TABLE_MANAGER::unload();
}

void OF_STRING_TABLE::clear()
{
    max_state(OFS_OPEN);
    OF_STRING_TABLE_MANAGER::clear();
}

uint32_t OF_STRING_TABLE::add_string(const char *s)
{
    max_state(OFS_OPEN);
    return OF_STRING_TABLE_MANAGER::add_string(s);
}

bool OF_STRING_TABLE::find_string(const char *s, uint32_t &offset)
{
    return OF_STRING_TABLE_MANAGER::find_string(s, offset);
}

}  // namespace OFE
