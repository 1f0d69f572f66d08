// Mapping symbols give each address its mode; Thumb function symbols of an
// EABI object get bit 0, everything else keeps its value.
#include <gtest/gtest.h>

#include "ofe/of_machine.h"
#include "ofe/of_section.h"
#include "ofe/of_symbol.h"
#include "ofe_test_util.h"

using namespace OFE;
using namespace ofe_test;

namespace {

OF_SYMBOL *sym(OBJECT_FILE *f, const char *name, OF_SECTION *s, uint64_t value, OF_SYM_TYPE type,
               OF_SYM_BINDING binding = OFB_LOCAL) {
    OF_SYMBOL *x = new_symbol(f, name, s);
    x->set_kind(OFK_DEFINED);
    x->set_value(value);
    x->set_type(type);
    x->set_binding(binding);
    return x;
}

TEST(ArmModes, ThumbFunctionsGetBitZero) {
    auto f = make_elf();
    auto *arm = dynamic_cast<ARM_MACHINE_DB *>(f->machine_db());
    ASSERT_NE(arm, nullptr);
    OF_SECTION *text = new_section(f.get(), ".text", {0, 0, 0, 0, 0, 0});
    OF_SECTION *other = new_section(f.get(), ".other", {0, 0});
    sym(f.get(), "$a", text, 0, OFY_NONE);
    sym(f.get(), "$t.x", text, 8, OFY_NONE);
    sym(f.get(), "$d", text, 16, OFY_NONE);
    sym(f.get(), "$x", text, 4, OFY_NONE);    // not a mapping symbol
    sym(f.get(), "$ab", text, 4, OFY_NONE);   // nor this
    OF_SYMBOL *arm_fn = sym(f.get(), "arm_fn", text, 4, OFY_FUNCTION);
    OF_SYMBOL *thumb_fn = sym(f.get(), "thumb_fn", text, 12, OFY_FUNCTION, OFB_GLOBAL);
    OF_SYMBOL *thumb_obj = sym(f.get(), "thumb_obj", text, 10, OFY_OBJECT);
    OF_SYMBOL *data_fn = sym(f.get(), "data_fn", text, 20, OFY_FUNCTION);
    OF_SYMBOL *unmapped = sym(f.get(), "unmapped", other, 0, OFY_FUNCTION);

    const ARM_MACHINE_DB::MODE_MAP modes = arm->find_mapping_syms();
    EXPECT_EQ(ARM_MACHINE_DB::section_mode_addr(modes, 7, text), ARM_MACHINE_DB::MODE_ARM);
    EXPECT_EQ(ARM_MACHINE_DB::section_mode_addr(modes, 8, text), ARM_MACHINE_DB::MODE_THUMB);
    EXPECT_EQ(ARM_MACHINE_DB::section_mode_addr(modes, 99, text), ARM_MACHINE_DB::MODE_DATA);
    EXPECT_EQ(ARM_MACHINE_DB::section_mode_addr(modes, 0, other), ARM_MACHINE_DB::MODE_UNKNOWN);

    arm->adjust_thumb_symbol_values();
    EXPECT_EQ(thumb_fn->value(), 13u);
    EXPECT_EQ(arm_fn->value(), 4u);
    EXPECT_EQ(thumb_obj->value(), 10u);
    EXPECT_EQ(data_fn->value(), 20u);
    EXPECT_EQ(unmapped->value(), 0u);

    // Without an EABI version nothing changes.
    arm->set_eabi_version(0);
    thumb_fn->set_value(12);
    arm->adjust_thumb_symbol_values();
    EXPECT_EQ(thumb_fn->value(), 12u);
}

}  // namespace
