// The lifecycle every engine object shares: open, locked, formatted, saved.
#pragma once

#include "ofe/of_types.h"

namespace OFE {

class OF_STATE_MACHINE {
public:
    explicit OF_STATE_MACHINE(OBJECT_FILE *ofile) : ofile_m(ofile) {}
    OF_STATE_MACHINE(const OF_STATE_MACHINE &) = delete;
    OF_STATE_MACHINE &operator=(const OF_STATE_MACHINE &) = delete;
    virtual ~OF_STATE_MACHINE() = default;

    // The object's own state, or that of its file when that is later.
    OF_STATE state() const;
    OF_STATE own_state() const { return state_m; }
    int set_state(OF_STATE s);
    int reset_state(OF_STATE s);
    // Guards: report misuse (code 5) and return -1; callers carry on.
    int min_state(OF_STATE s);
    int max_state(OF_STATE s);

    OBJECT_FILE *ofile() const { return ofile_m; }

    virtual int progress_to_state(OF_STATE s) = 0;
    virtual int revert_to_state(OF_STATE s) = 0;

protected:
    void force_state(OF_STATE s) { state_m = s; }
    void set_ofile(OBJECT_FILE *f) { ofile_m = f; }

private:
    OF_STATE state_m = OFS_OPEN;
    OBJECT_FILE *ofile_m;
};

const char *state_name(int s);

// Implemented by type interfaces that hold section or symbol ids, so that a
// renumbering of sections or symbols reaches them.
class OF_ID_REFS {
public:
    virtual ~OF_ID_REFS() = default;
    virtual void update_section_refs(const RECORD_MAP<unsigned> &) {}
    virtual void update_symbol_refs(const RECORD_MAP<unsigned> &) {}
};

}  // namespace OFE
