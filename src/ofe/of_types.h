// Format-neutral vocabulary of the object file engine: enumerations with
// fixed numbers, error codes, the file handle record and the id translation
// map used when sections or symbols are renumbered.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

class FHM_FILE;

namespace OFE {

enum OF_FORMAT : int { OFF_ZQCOFF = 1, OFF_ELF = 2 };

enum OF_FORMAT_VER : int {
    OFV_COFF0 = 1,
    OFV_COFF1 = 2,
    OFV_COFF2 = 3,
    OFV_ELF1 = 4,
};

enum OF_FORMAT_CLASS : int { OFC_32 = 1, OFC_64 = 2 };

enum OF_FILE_TYPE : int {
    OFT_RELOCATABLE = 1,
    OFT_EXECUTABLE = 2,
    OFT_DYNAMIC = 3,
    OFT_STATIC_SHARED = 4,
    OFT_CORE = 5,
};

enum OF_MACHINE : int { OFM_ARM = 1 };

// Same numbers as DATA_MAP::ENDIAN.
enum OF_ENDIAN : int { OFE_LITTLE = 1, OFE_BIG = 2 };

enum OF_STATE : int {
    OFS_OPEN = 0,
    OFS_LOCKED = 1,
    OFS_FORMATTED = 2,
    OFS_SAVED = 3,
};

enum OF_SYM_KIND : int {
    OFK_UNKNOWN = 0,
    OFK_UNDEFINED = 1,
    OFK_DEFINED = 2,
    OFK_ABSOLUTE = 3,
    OFK_COMMON = 4,
    OFK_DEBUG = 5,
};

enum OF_SYM_BINDING : int {
    OFB_UNKNOWN = 0,
    OFB_LOCAL = 1,
    OFB_GLOBAL = 2,
    OFB_WEAK = 3,
};

enum OF_SYM_TYPE : int {
    OFY_NONE = 0,
    OFY_OBJECT = 1,
    OFY_FUNCTION = 2,
    OFY_SECTION = 3,
    OFY_FILE = 4,
    OFY_COMMON = 5,
    OFY_TLS = 6,
};

enum OF_ERROR_CODE : int {
    OFERR_NONE = 0,
    OFERR_INVALID_FORMAT = 1,
    OFERR_FILE_ACCESS = 2,
    OFERR_CORRUPTED = 3,
    OFERR_WARNING = 4,
    OFERR_ILLEGAL_OP = 5,
    OFERR_TRUNCATED = 6,
    OFERR_INTERNAL = 7,
    OFERR_DEVELOPMENT = 8,
};

class OBJECT_FILE;
class OF_SECTION;
class OF_SECTION_TABLE;
class OF_SYMBOL;
class OF_SYMBOL_TABLE;
class OF_RELOC;
class OF_RELOC_TABLE;
class OF_RELOC_TYPE;
struct OF_RELOC_TEMPLATE;
class OF_GROUP_TABLE;
class OF_STRING_TABLE;
class OF_MACHINE_DB;

using OF_ERROR_HANDLER = void (*)(OBJECT_FILE *, OF_ERROR_CODE, const char *);

// Names a file and all its format properties.
struct OF_FILE_HANDLE {
    FHM_FILE *fh = nullptr;
    const char *name = nullptr;
    OF_FORMAT format = OFF_ELF;
    OF_FORMAT_VER version = OFV_ELF1;
    OF_FORMAT_CLASS fclass = OFC_32;
    OF_ENDIAN endian = OFE_LITTLE;
    OF_MACHINE machine = OFM_ARM;
    uint32_t file_offset = 0;
    uint32_t file_size = 0;
    bool owns_handle = false;
};

// Old id -> new id after a renumbering; removed records map to all ones.
template <typename T>
class RECORD_MAP {
public:
    static constexpr T DELETED = static_cast<T>(~T{});

    explicit RECORD_MAP(std::size_t n = 0) : map_m(n, DELETED) {}

    void set(T old_id, T new_id) {
        if (old_id >= map_m.size()) map_m.resize(old_id + 1, DELETED);
        map_m[old_id] = new_id;
    }
    // An id the map never heard of is left as it is.
    T operator()(T old_id) const { return old_id < map_m.size() ? map_m[old_id] : old_id; }
    bool is_deleted(T old_id) const { return (*this)(old_id) == DELETED; }
    std::size_t size() const { return map_m.size(); }
    bool identity() const {
        for (std::size_t i = 0; i < map_m.size(); ++i)
            if (map_m[i] != static_cast<T>(i)) return false;
        return true;
    }

private:
    std::vector<T> map_m;
};

inline constexpr unsigned OF_NO_ID = ~0u;

// Moves the records named by order (ids into table) to the front of table in
// that order, renumbers them through set_id(record, id) (the owner's access),
// drops the rest, and returns old id -> new id.
template <class R, class SetId>
RECORD_MAP<unsigned> OF_reorder_records(std::vector<std::unique_ptr<R>> &table, const std::vector<R *> &order,
                                        SetId set_id)
{
    RECORD_MAP<unsigned> map(table.size());
    std::vector<std::unique_ptr<R>> old = std::move(table);
    table.clear();
    table.reserve(order.size());
    for (R *r : order) {
        unsigned old_id = r->id();
        auto new_id = static_cast<unsigned>(table.size());
        table.push_back(std::move(old[old_id]));
        set_id(r, new_id);
        map.set(old_id, new_id);
    }
    return map;
}

}  // namespace OFE
