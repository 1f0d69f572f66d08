#include "ofe/of_state.h"

#include "ofe/object_file.h"

namespace OFE {

const char *state_name(int s)
{
    switch (s) {
    case OFS_OPEN: return "open";
    case OFS_LOCKED: return "locked";
    case OFS_FORMATTED: return "formatted";
    case OFS_SAVED: return "saved";
    default: return "unknown";
    }
}

OF_STATE OF_STATE_MACHINE::state() const
{
    if (ofile_m && ofile_m != this) {
        OF_STATE f = ofile_m->own_state();
        if (f > state_m) return f;
    }
    return state_m;
}

int OF_STATE_MACHINE::max_state(OF_STATE s)
{
    if (state_m <= s) return 0;
    if (ofile_m)
        ofile_m->set_error(OFERR_ILLEGAL_OP,
                           "this OBJECT_FILE object is currently in the %s state, and must be in "
                           "at most the %s state to perform the requested operation ",
                           state_name(state_m), state_name(s));
    return -1;
}

int OF_STATE_MACHINE::min_state(OF_STATE s)
{
    if (state_m >= s) return 0;
    if (ofile_m)
        ofile_m->set_error(OFERR_ILLEGAL_OP,
                           "this OBJECT_FILE object is currently in the %s state, and must be in "
                           "at least the %s state to perform the requested operation ",
                           state_name(state_m), state_name(s));
    return -1;
}

int OF_STATE_MACHINE::set_state(OF_STATE s)
{
    if (state_m == s) return 0;
    if (s < state_m) {
        if (ofile_m)
            ofile_m->set_error(OFERR_ILLEGAL_OP,
                               "this OBJECT_FILE object is currently in the %s state, and cannot "
                               "revert to the %s state to perform the requested operation ",
                               state_name(state_m), state_name(s));
        return -1;
    }
    // The stored state moves only once every step has succeeded, so that
    // the object still reads as open while it is being locked.
    for (int next = state_m + 1; next <= s; ++next) {
        // A step that said what went wrong needs no second, vaguer message.
        const unsigned errors = ofile_m ? ofile_m->error_count() : 0;
        if (progress_to_state(static_cast<OF_STATE>(next)) != 0) {
            if (ofile_m && ofile_m->error_count() == errors)
                ofile_m->set_error(OFERR_INTERNAL,
                                   "an error was encountered while progressing an OBJECT_FILE "
                                   "object from the %s to the %s state",
                                   state_name(next - 1), state_name(next));
            return -1;
        }
    }
    state_m = s;
    return 0;
}

int OF_STATE_MACHINE::reset_state(OF_STATE s)
{
    if (state_m == s) return 0;
    min_state(s);
    if (revert_to_state(s) != 0) {
        if (ofile_m)
            ofile_m->set_error(OFERR_INTERNAL,
                               "an error was encountered while reverting an OBJECT_FILE object "
                               "from the %s to the %s state",
                               state_name(state_m), state_name(s));
        return -1;
    }
    state_m = s;
    return 0;
}

}  // namespace OFE
