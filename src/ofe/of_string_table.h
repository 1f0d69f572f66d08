// String tables: a byte table of NUL-terminated strings with a cache that
// maps each whole string to its offset.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "ofe/of_state.h"

class DATA_MAP;

namespace OFE {

class OF_STRING_TABLE_MANAGER {
public:
    explicit OF_STRING_TABLE_MANAGER(DATA_MAP *bytes) : bytes_m(bytes) {}
    OF_STRING_TABLE_MANAGER(const OF_STRING_TABLE_MANAGER &) = delete;
    OF_STRING_TABLE_MANAGER &operator=(const OF_STRING_TABLE_MANAGER &) = delete;
    virtual ~OF_STRING_TABLE_MANAGER() = default;

    virtual const char *name() const { return ""; }
    // Pointer into the table; null at or past the end.
    virtual const char *get_string(uint32_t offset);
    virtual void unload();
    virtual void clear();
    // Offset of `s`, adding it when new. Only whole strings are shared.
    virtual uint32_t add_string(const char *s);
    virtual bool find_string(const char *s, uint32_t &offset);
    virtual uint32_t first_offset() const { return 0; }

    std::size_t entry_count() const { return map_m.size(); }

protected:
    DATA_MAP &bytes() { return *bytes_m; }
    void rebuild_map();

private:
    std::map<std::string, uint32_t, std::less<>> map_m;
    DATA_MAP *bytes_m;
};

class OF_STRING_TABLE : public OF_STRING_TABLE_MANAGER, public OF_STATE_MACHINE {
public:
    OF_STRING_TABLE(OBJECT_FILE *ofile, OF_SECTION *section);

    OF_SECTION *section() const { return section_m; }
    const char *name() const override;
    void unload() override;
    void clear() override;
    uint32_t add_string(const char *s) override;
    bool find_string(const char *s, uint32_t &offset) override;

    int progress_to_state(OF_STATE) override { return 0; }
    int revert_to_state(OF_STATE) override { return 0; }

private:
    OF_SECTION *section_m;
};

}  // namespace OFE
