// One object with a bit of everything, built through the engine's interface
// in the order the assembler uses.
#pragma once

#include "ofe_test_util.h"

namespace ofe_test {

struct TypicalObject {
    std::unique_ptr<OFE::OBJECT_FILE> file;
    OFE::OF_SECTION *text = nullptr, *data = nullptr, *bss = nullptr, *user = nullptr, *debug = nullptr,
                    *inl = nullptr, *group = nullptr;
    OFE::OF_SYMBOL *main_sym = nullptr, *loop = nullptr, *weak = nullptr, *ext = nullptr, *common = nullptr,
                   *inl_sym = nullptr;
};

TypicalObject build_typical(bool big_endian);

}  // namespace ofe_test
